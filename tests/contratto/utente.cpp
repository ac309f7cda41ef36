// Wording of the diary.
#include "tests/contratto/utente.h"

#include <algorithm>

namespace tarvel::contratto {

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
