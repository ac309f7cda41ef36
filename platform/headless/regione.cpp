// The regional number format, as the entry set it.
#include "platform/headless/regione.h"

#include "platform/regione.h"

namespace tarvel {
namespace {

char gDecimale = '.';

}  // namespace

void headless::ImpostaDecimale(char decimale) {
  gDecimale = decimale;
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
