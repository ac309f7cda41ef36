// The one place where a fatal error stops.
#include "platform/comune/smista.h"

#include <new>
#include <utility>

#include "platform/desktop.h"

namespace tarvel {
namespace {

std::function<Testo()> gSalva;

// What was saved, in a sentence.
Testo PrimaDelMessaggio() {
  try {
    return gSalva ? gSalva() : Testo();
  } catch (const ErroreFatale&) {
  } catch (const std::bad_alloc&) {
  }
  return {};
}

}  // namespace

void PrimaDellaFine(std::function<Testo()> salva) {
  gSalva = std::move(salva);
}

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
  if (const Testo salvato = PrimaDelMessaggio(); !salvato.empty())
    testo += (testo.ends_with('.') ? " " : ". ") + salvato;
  MostraMessaggio(testo, kTitoloProgramma, Icona::Stop);
  TerminaProgramma(1);
}

}  // namespace tarvel
