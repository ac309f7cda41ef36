// The command line and the streams of a POSIX system: they come as they are needed.
#include "platform/comune/argomenti.h"

namespace tarvel {

std::vector<std::string> Argomenti(int argc, char** argv) {
  return {argv + 1, argv + argc};
}

Testo RigaComandoPassata(int argc, char** argv) {
  return UnisciArgomenti(Argomenti(argc, argv));
}

void PreparaFlussi() {}

}  // namespace tarvel
