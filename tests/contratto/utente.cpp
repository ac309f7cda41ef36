// What the users have in common, and the wording of the diary.
#include "tests/contratto/utente.h"

#include <algorithm>
#include <utility>

namespace tarvel::contratto {

void Utente::FaProssimo() {
  if (passi_.empty()) TerminaProgramma(0);
  const Passo passo = std::move(passi_.front());
  passi_.pop_front();
  passo();
}

Utente::Pronta Utente::ProssimaRisposta(Bottoni bottoni) {
  if (pronte_.empty()) Rispondi(bottoni == Bottoni::SiNo ? Risposta::No : Risposta::Ok);
  const Pronta pronta = pronte_.front();
  pronte_.pop_front();
  return pronta;
}

std::string RigaMessaggio(Icona icona, Bottoni bottoni, const Testo& titolo, const Testo& testo,
                          Risposta risposta) {
  static constexpr const char* kIcone[] = {"nessuna", "stop", "esclamazione", "informazione"};
  static constexpr const char* kBottoni[] = {"ok", "sino"};
  static constexpr const char* kRisposte[] = {"ok", "si", "no"};
  Testo righe = testo;
  std::replace(righe.begin(), righe.end(), '\n', '/');
  return std::string("messaggio ") + kIcone[static_cast<int>(icona)] + ' ' +
         kBottoni[static_cast<int>(bottoni)] + " \"" + titolo + "\" \"" + righe + "\" -> " +
         kRisposte[static_cast<int>(risposta)];
}

}  // namespace tarvel::contratto
