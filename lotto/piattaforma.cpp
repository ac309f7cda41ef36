#include "lotto/piattaforma.h"

#include <cstdlib>
#include <utility>

#include "platform/desktop.h"
#include "platform/regione.h"

namespace tarvel {
namespace {

Testo gDetto;
char gDecimale = '.';

}  // namespace

Testo lotto::PrendiMessaggio() {
  return std::exchange(gDetto, {});
}

void lotto::ImpostaDecimale(char decimale) {
  gDecimale = decimale;
}

// Nothing that is asked here may be taken for granted.
Risposta MostraMessaggio(const Testo& testo, const Testo&, Icona, Bottoni bottoni) {
  gDetto = testo;
  return bottoni == Bottoni::SiNo ? Risposta::No : Risposta::Ok;
}

// A filter has no start-up of its own: it knows its folders, and ends by itself.
Testo RigaComando() {
  return {};
}

void TerminaProgramma(int stato) {
  std::_Exit(stato);
}

char SeparatoreDecimale() {
  return gDecimale;
}

char SeparatoreMigliaia() {
  return gDecimale == '.' ? ',' : '.';
}

}  // namespace tarvel
