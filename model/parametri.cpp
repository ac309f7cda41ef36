// The defaults file: one value a line.
#include "model/parametri.h"

#include "base/errore.h"
#include "base/numeri.h"
#include "lavoro/cartelle.h"
#include "platform/file.h"

namespace tarvel {

VettoreParametri ParametriSezione;

namespace {
Testo FileDefault() {
  return DirCustom + "\\CapSezDe.txt";
}
}  // namespace

void LeggiDefault() {
  auto file = FileInLettura::Apri(FileDefault());
  if (!file) return;
  for (Reale& p : ParametriSezione) {
    // A short or spoiled file is no reason to stop a start: the user sees the values in the boxes.
    const auto voce = file->ProssimaVoce();
    if (!voce) return;
    const auto valore = InizioNumerico(*voce);
    if (!valore && !voce->empty()) return;
    p = valore.value_or(0);
  }
}

void ScriviDefault(std::span<const Testo> caselle) {
  Testo testo;
  for (const Testo& casella : caselle) AccodaRiga(testo, SenzaBlanchi(casella));
  switch (ScriviFile(FileDefault(), testo)) {
    case EsitoScrittura::Scritto:
      return;
    case EsitoScrittura::NonAperto:
      throw ErroreFatale(TipoErrore::File, "impossibile creare il file dei valori iniziali", FileDefault());
    case EsitoScrittura::Incompleto:
      throw ErroreFatale(TipoErrore::File, "scrittura del file non riuscita",
                         "il file " + FileDefault() + " può essere incompleto"_t);
  }
}

}  // namespace tarvel
