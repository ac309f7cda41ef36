// Command line and regional format, as the entry set them.
#include "platform/headless/ambiente.h"

#include <utility>

#include "platform/desktop.h"
#include "platform/regione.h"

namespace tarvel {
namespace {

Testo gRigaComando;
char gDecimale = '.';

}  // namespace

namespace headless {

void ImpostaAmbiente(Testo rigaComando, char decimale) {
  gRigaComando = std::move(rigaComando);
  gDecimale = decimale;
}

}  // namespace headless

Testo RigaComando() {
  return gRigaComando;
}

char SeparatoreDecimale() {
  return gDecimale;
}

char SeparatoreMigliaia() {
  switch (gDecimale) {
    case '.':
      return ',';
    case ',':
      return '.';
    default:
      return '\0';
  }
}

}  // namespace tarvel
