// Programs that are not run, each a task until it ends; separators as the entry set them.
#include "platform/headless/ambiente.h"

#include <set>
#include <string>

#include "platform/file.h"
#include "platform/headless/verbale.h"
#include "platform/programmi.h"
#include "platform/regione.h"

namespace tarvel {
namespace headless {
namespace {

std::int32_t gUltimo = 0;
std::set<std::int32_t> gAttivi;
std::int32_t gAttivato = 0;  // the task that keys go to
char gDecimale = '.';

}  // namespace

bool TerminaCompito(std::int32_t id) {
  return gAttivi.erase(id) == 1;
}

void AzzeraProgrammi() {
  gUltimo = gAttivato = 0;
  gAttivi.clear();
}

void ImpostaDecimale(char decimale) {
  gDecimale = decimale;
}

}  // namespace headless

using namespace headless;

std::optional<std::int32_t> AvviaProgramma(const Testo& percorso, std::int16_t stile) {
  const std::string riga = "start " + TraVirgolette(percorso) + ' ' + std::to_string(stile) + " -> ";
  if (GenereFile(percorso) != TipoVoce::File) {
    Annota(riga + "failed");
    return std::nullopt;
  }
  gAttivi.insert(++gUltimo);
  Annota(riga + std::to_string(gUltimo));
  return gUltimo;
}

bool AttivaProgramma(std::int32_t id) {
  const bool attivo = gAttivi.count(id) != 0;
  gAttivato = attivo ? id : 0;
  Annota("activate " + std::to_string(id) + (attivo ? " -> done" : " -> failed"));
  return attivo;
}

void InviaTasti(const Testo& sequenza) {
  if (gAttivi.count(gAttivato) != 0) Annota("keys " + TraVirgolette(sequenza));
}

char SeparatoreDecimale() {
  return gDecimale;
}

char SeparatoreMigliaia() {
  return gDecimale == '.' ? ',' : gDecimale == ',' ? '.' : '\0';
}

}  // namespace tarvel
