#include "lotto/piattaforma.h"

#include "platform/regione.h"

namespace tarvel {
namespace {

char gDecimale = '.';

}  // namespace

void lotto::ImpostaDecimale(char decimale) {
  gDecimale = decimale;
}

char SeparatoreDecimale() {
  return gDecimale;
}

char SeparatoreMigliaia() {
  return gDecimale == '.' ? ',' : '.';
}

}  // namespace tarvel
