// Desktop, script and transcript brought together.
#include "platform/headless/avvio.h"

#include <string>

#include "platform/headless/copione.h"
#include "platform/headless/desktop.h"
#include "platform/headless/verbale.h"

namespace tarvel::headless {

int Recita(Form& principale, std::istream& copione, std::ostream& verbale, std::ostream& errori) {
  ApriVerbale(&verbale);
  Copione utente(copione, principale);
  int stato = 0;
  try {
    stato =
        Avvia(principale, {[&] { utente.Agisce(); }, [&](const Messaggio& m) { return utente.Risponde(m); }});
    if (stato == 0) utente.ControllaResto();
  } catch (const ErroreCopione& errore) {
    errori << "script line " << errore.riga << ": " << errore.cosa << '\n';
    stato = 2;
  }
  Annota("end " + std::to_string(stato));
  ApriVerbale(nullptr);
  return stato;
}

}  // namespace tarvel::headless
