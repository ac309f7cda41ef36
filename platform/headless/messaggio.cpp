// Message boxes: whoever plays the user answers them.
#include <string>

#include "platform/headless/desktop.h"
#include "platform/headless/verbale.h"

namespace tarvel {

Risposta MostraMessaggio(const Testo& testo, const Testo& titolo, Icona icona, Bottoni bottoni) {
  static constexpr const char* kIcone[] = {"none", "stop", "exclamation", "information"};
  static constexpr const char* kRisposte[] = {"ok", "yes", "no"};
  const Risposta risposta = headless::Chiede({testo, titolo, icona, bottoni});
  headless::Annota(std::string("message ") + kIcone[static_cast<int>(icona)] + ' ' +
                   headless::TraVirgolette(titolo) + ' ' + headless::TraVirgolette(testo) + " -> " +
                   kRisposte[static_cast<int>(risposta)]);
  return risposta;
}

}  // namespace tarvel
