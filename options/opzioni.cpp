// A line of the file: the value, ten blanks, its label.
#include "options/opzioni.h"

#include <optional>

#include "app/cartelle.h"
#include "base/errore.h"
#include "base/numeri.h"
#include "platform/desktop.h"
#include "platform/file.h"
#include "platform/regione.h"

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

// The file is written with '.', whatever the region of who reads it.
std::optional<Reale> Valore(const Testo& parola) {
  if (const auto invariante = NumeroInvariante(parola)) return invariante;
  return NumeroRegionale(parola, SeparatoreDecimale(), SeparatoreMigliaia());
}

}  // namespace

void LeggiOpzioni() {
  Opzioni = Predefinite();
  auto file = FileInLettura::Apri(FileOpzioni());
  if (!file) return;
  VettoreOpzioni lette;
  for (int i = 1; i <= kNumOpzioni; ++i) {
    std::optional<Reale> valore;
    try {
      Testo riga(SenzaBlanchi(file->LeggiRiga()));
      valore = Valore(PrimaParola(riga));
    } catch (const ErroreFatale&) {
      // A short file is reported as a spoiled line is.
    }
    if (!valore) {
      MostraMessaggio("File " + FileOpzioni() + " non valido, riga " + std::to_string(i), "ERRORE",
                      Icona::Esclamazione);
      return;
    }
    lette[i] = *valore;
  }
  Opzioni = lette;
}

void ScriviOpzioni() {
  Testo testo;
  for (int i = 1; i <= kNumOpzioni; ++i)
    AccodaRiga(testo, FormatoNumero(Opzioni[i]) + Testo(10, ' ') +
                          kVociOpzioni[static_cast<std::size_t>(i - 1)].etichettaFile);
  // A disk that is full has the same answer as a file that cannot be created.
  if (ScriviFile(FileOpzioni(), testo) != EsitoScrittura::Scritto)
    MostraMessaggio("Problemi con la scrittura del file " + FileOpzioni(), "ERRORE", Icona::Esclamazione);
}

Testo PrimaParola(Testo& riga) {
  constexpr const char* kSeparatori = " \t";
  const auto inizio = riga.find_first_not_of(kSeparatori);
  if (inizio == Testo::npos) return {};
  const auto fine = std::min(riga.find_first_of(kSeparatori, inizio), riga.size());
  Testo parola = riga.substr(inizio, fine - inizio);
  riga.erase(0, fine);
  return parola;
}

}  // namespace tarvel
