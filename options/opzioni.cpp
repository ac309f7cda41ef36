// A line of the file: the value, ten blanks, its label.
#include "options/opzioni.h"

#include <optional>

#include "base/numeri.h"
#include "lavoro/cartelle.h"
#include "platform/desktop.h"
#include "platform/regione.h"
#include "platform/scrittura.h"

namespace tarvel {

VettoreOpzioni Opzioni;

namespace {

Testo FileOpzioni() {
  return DirCustom + "\\CapOpSez.txt";
}

VettoreOpzioni Predefinite() {
  VettoreOpzioni predefinite;
  int i = 0;
  for (const VoceOpzione& voce : kVociOpzioni) predefinite[++i] = voce.predefinito;
  return predefinite;
}

const VoceOpzione& Voce(int i) {
  return kVociOpzioni[static_cast<std::size_t>(i - 1)];
}

// The file is written with '.', whatever the region of who reads it.
std::optional<Reale> Valore(int i, std::string_view parola) {
  auto valore = NumeroInvariante(parola);
  if (!valore) valore = NumeroRegionale(parola, SeparatoreDecimale(), SeparatoreMigliaia());
  return valore && Ammesso(i, *valore) ? valore : std::nullopt;
}

}  // namespace

void LeggiOpzioni() {
  LeggiOpzioni(FileOpzioni());
}

void LeggiOpzioni(const Testo& percorso) {
  Opzioni = Predefinite();
  auto file = FileInLettura::Apri(percorso);
  if (!file) return;
  VettoreOpzioni lette;
  for (int i = 1; i <= kNumOpzioni; ++i) {
    auto riga = file->ProssimaRiga();
    if (file->Guasto()) {
      MostraMessaggio("Lettura del file " + percorso + " non riuscita", "ERRORE", Icona::Esclamazione);
      return;
    }
    const auto valore = riga ? Valore(i, PrimaParola(*riga)) : std::nullopt;
    if (!valore) {
      MostraMessaggio("File " + percorso + " non valido, riga " + std::to_string(i) + ". " + ValoriAmmessi(i),
                      "ERRORE", Icona::Esclamazione);
      return;
    }
    lette[i] = *valore;
  }
  Opzioni = lette;
}

void ScriviOpzioni() {
  Testo testo;
  for (int i = 1; i <= kNumOpzioni; ++i)
    AccodaRiga(testo, FormatoNumero(Opzioni[i]) + Testo(10, ' ') + Voce(i).etichettaFile);
  // A disk that is full has the same answer as a file that cannot be created.
  if (ScriviFile(FileOpzioni(), testo, true) != EsitoScrittura::Scritto)
    MostraMessaggio("Problemi con la scrittura del file " + FileOpzioni(), "ERRORE", Icona::Esclamazione);
}

bool Ammesso(int i, Reale valore) {
  const GenereOpzione& genere = Voce(i).genere;
  double v = valore.Valore();
  if (genere.volte != 0) v = std::nearbyint(v * genere.volte) / genere.volte;
  return v >= genere.minimo && v <= genere.massimo;
}

Testo ValoriAmmessi(int i) {
  const VoceOpzione& voce = Voce(i);
  Testo testo = Testo(voce.etichettaForm) + ": " + voce.genere.cosa + " da ";
  AccodaNumero(testo, voce.genere.minimo, SeparatoreDecimale());
  AccodaNumero(testo += " a ", voce.genere.massimo, SeparatoreDecimale());
  return testo;
}

}  // namespace tarvel
