// The defaults file: one value a line.
#include "model/parametri.h"

#include "base/errore.h"
#include "base/numeri.h"
#include "lavoro/cartelle.h"
#include "platform/scrittura.h"

namespace tarvel {

namespace {

// The host did not let the existing file be read. What it holds is not known, so it is not replaced.
bool gIntoccabile = false;

Testo FileDefault() {
  return DirCustom + "\\CapSezDe.txt";
}

}  // namespace

void LeggiDefault() {
  auto file = FileInLettura::Apri(FileDefault());
  gIntoccabile = !file && GenereFile(FileDefault()) != TipoVoce::Assente;
  if (!file) return;
  for (Reale& p : ParametriSezione) {
    // A short or spoiled file is no reason to stop a start: the user sees the values in the boxes.
    const auto voce = file->ProssimaVoce();
    gIntoccabile = !file->MotivoGuasto().empty();
    if (!voce) return;
    const auto valore = InizioNumerico(*voce);
    if (!valore && !voce->empty()) return;
    p = valore.value_or(0);
  }
}

void ScriviDefault(std::span<const Testo> caselle) {
  if (gIntoccabile) return;
  Testo testo;
  for (const Testo& casella : caselle) AccodaRiga(testo, SenzaBlanchi(casella));
  const EsitoScrittura esito = ScriviFile(FileDefault(), testo, true);
  if (esito == EsitoScrittura::NonAperto)
    throw ErroreFatale(TipoErrore::File, "il file dei valori iniziali non si può scrivere: "_t + esito.motivo,
                       FileDefault());
  if (esito == EsitoScrittura::Incompleto)
    throw ErroreFatale(TipoErrore::File, "scrittura del file non riuscita: " + esito.motivo,
                       "il file " + FileDefault() + " può essere incompleto"_t);
}

}  // namespace tarvel
