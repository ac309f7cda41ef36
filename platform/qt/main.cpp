// The program in a window.
#include "app/tarvel1.h"
#include "platform/qt/avvio.h"

int main(int argc, char** argv) {
  return tarvel::EseguiProgramma(argc, argv, tarvel::FormPrincipale());
}
