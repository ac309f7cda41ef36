// The one place where a fatal error stops.
#include "platform/comune/smista.h"

#include <new>

#include "platform/desktop.h"

namespace tarvel {

Testo TestoErroreFatale(const ErroreFatale& errore) {
  return "Errore irreversibile: " + errore.Messaggio();
}

void Smista(const std::function<void()>& gestore) {
  Testo testo;
  try {
    gestore();
    return;
  } catch (const ErroreFatale& errore) {
    testo = TestoErroreFatale(errore);
  } catch (const std::bad_alloc&) {
    testo = "Errore irreversibile: memoria esaurita";
  }
  MostraMessaggio(testo, kTitoloProgramma, Icona::Stop);
  TerminaProgramma(1);
}

}  // namespace tarvel
