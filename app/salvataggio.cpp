// What a fatal error has to save, and where.
#include "app/salvataggio.h"

#include <optional>

#include "model/file_sezioni.h"
#include "model/tabella_sezioni.h"
#include "platform/desktop.h"
#include "platform/file.h"

namespace tarvel {
namespace {

struct Salvataggio {
  Testo percorso;
  Testo testo;
};
std::optional<Salvataggio> gDaParte;

std::optional<Salvataggio> DaSalvare() {
  if (SezioneSalvata || NumeroSezioni < 1) return std::nullopt;
  return Salvataggio{FileSezioni + ".salvataggio", ComponiSezioniScrivibili()};
}

Testo Salva() {
  const auto salvataggio = gDaParte ? gDaParte : DaSalvare();
  if (!salvataggio || !SostituisciFile(salvataggio->percorso, salvataggio->testo)) return {};
  return "Le sezioni non ancora salvate sono nel file " + salvataggio->percorso;
}

}  // namespace

void PreparaSalvataggio() {
  PrimaDellaFine(Salva);
}

void MettiDaParteSezioni() {
  gDaParte = DaSalvare();
}

void LasciaSezioniDaParte() {
  gDaParte.reset();
}

}  // namespace tarvel
