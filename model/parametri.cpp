// The defaults file: one value a line.
#include "model/parametri.h"

#include "app/cartelle.h"
#include "base/errore.h"
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
  try {
    for (Reale& p : ParametriSezione) p = file->LeggiVoceNumero();
  } catch (const ErroreFatale&) {
    // A short or spoiled file is no reason to stop a start: the user sees the values in the boxes.
  }
}

void ScriviDefault(std::span<const Testo> caselle) {
  Durante([] { return "il file " + FileDefault() + " può essere incompleto"_t; }, [&] {
    auto file = FileInScrittura::Crea(FileDefault());
    if (!file) throw ErroreFatale(TipoErrore::File, "impossibile creare il file dei valori iniziali");
    for (const Testo& testo : caselle) file->ScriviRiga(SenzaBlanchi(testo));
    file->Chiudi();
  });
}

}  // namespace tarvel
