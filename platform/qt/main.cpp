// The program in a window.
#include <cstdio>
#include <string_view>

#include "app/tarvel1.h"
#include "platform/comune/argomenti.h"
#include "platform/qt/avvio.h"

int main(int argc, char** argv) {
  if (argc == 2 && std::string_view(argv[1]) == "--version") {
    tarvel::PreparaFlussi();
    return std::puts("tarvel1 " VERSIONE) < 0;
  }
  return tarvel::EseguiProgramma(argc, argv, tarvel::FormPrincipale());
}
