
#include "app/salvataggio.h"

#include <optional>
#include <vector>

#include "model/archivio/copie_sezioni.h"
#include "model/archivio/file_sezioni.h"
#include "model/tabella_sezioni.h"
#include "platform/desktop.h"

namespace tarvel {
namespace {

struct DaConservare {
  Testo file;
  std::vector<Testo> sezioni;
};
std::optional<DaConservare> gDiPrima;  // while another file's sections take the place of the table's

Testo Conserva(const DaConservare& sezioni) {
  const Testo dove = ConservaSezioni(sezioni.file, FileSezioniIntero, sezioni.sezioni);
  return dove.empty() ? Testo() : "Le sezioni non ancora salvate sono nel file " + dove;
}

std::optional<DaConservare> NonSalvate() {
  if (SezioneSalvata || NumeroSezioni < 1) return std::nullopt;
  return DaConservare{FileSezioni, SezioniScrivibili()};
}

Testo ConservaAllaFine() {
  const auto sezioni = gDiPrima ? gDiPrima : NonSalvate();
  return sezioni ? Conserva(*sezioni) : Testo();
}

}  // namespace

void PreparaSalvataggio() {
  PrimaDellaFine(ConservaAllaFine);
}

Testo ConservaNonSalvate() {
  return Conserva({FileSezioni, SezioniScrivibili()});
}

std::optional<Guasto> CambiaFileSezioni(const Testo& file) {
  gDiPrima = NonSalvate();
  FileSezioni = file;
  auto esito = LeggiFileSezioni();
  gDiPrima.reset();
  return esito;
}

}  // namespace tarvel
