// A line of the file: the value, ten blanks, its label.
#include "options/opzioni.h"

#include <optional>

#include "base/numeri.h"
#include "lavoro/cartelle.h"
#include "platform/regione.h"
#include "platform/scrittura.h"

namespace tarvel {

namespace {

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

Testo FileOpzioni() {
  return DirCustom + "\\CapOpSez.txt";
}

std::optional<Guasto> LeggiOpzioni(const Testo& percorso, VettoreOpzioni& opzioni) {
  opzioni = Predefinite();
  auto file = FileInLettura::Apri(percorso);
  if (!file) return {};
  VettoreOpzioni lette;
  for (int i = 1; i <= kNumOpzioni; ++i) {
    auto riga = file->ProssimaRiga();
    if (!file->MotivoGuasto().empty())
      return Guasto{TipoErrore::File, "Lettura del file " + percorso + " non riuscita", file->MotivoGuasto()};
    const auto valore = riga ? Valore(i, PrimaParola(*riga)) : std::nullopt;
    if (!valore)
      return Guasto{TipoErrore::Formato,
                    "File " + percorso + " non valido, riga " + std::to_string(i) + ". " + ValoriAmmessi(i)};
    lette[i] = *valore;
  }
  opzioni = lette;
  return {};
}

std::optional<Guasto> ScriviOpzioni(const Testo& percorso, const VettoreOpzioni& opzioni) {
  Testo testo;
  for (int i = 1; i <= kNumOpzioni; ++i)
    AccodaRiga(testo, FormatoNumero(opzioni[i]) + Testo(10, ' ') + Voce(i).etichettaFile);
  const EsitoScrittura esito = ScriviFile(percorso, testo, true);
  if (esito) return {};
  // A disk that is full has the same answer as a file that cannot be created.
  return Guasto{TipoErrore::File, "Problemi con la scrittura del file " + percorso, esito.motivo};
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
