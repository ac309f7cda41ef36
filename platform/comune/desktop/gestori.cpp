// What the seam's calls do whatever is shown: contents, the command line, the one place where a fatal error
// stops.
#include <new>
#include <utility>

#include "platform/comune/desktop/schermo.h"
#include "platform/comune/desktop/scrivania.h"

namespace tarvel {
namespace {

Testo rigaComando;
std::function<Testo()> salva;

// What was saved, in a sentence.
Testo PrimaDelMessaggio() {
  try {
    return salva ? salva() : Testo();
  } catch (const ErroreFatale&) {
  } catch (const std::bad_alloc&) {
  }
  return {};
}

// The message of the fatal error that ended the handler; "" where it has run to its end.
Testo ErroreDi(const std::function<void()>& gestore) {
  try {
    gestore();
    return {};
  } catch (const ErroreFatale& errore) {
    return "Errore irreversibile: " + errore.Messaggio();
  } catch (const std::bad_alloc&) {
    return "Errore irreversibile: memoria esaurita";
  }
}

}  // namespace

void ImpostaRigaComando(Testo riga) {
  rigaComando = std::move(riga);
}

Testo RigaComando() {
  return rigaComando;
}

void PrimaDellaFine(std::function<Testo()> daSalvare) {
  salva = std::move(daSalvare);
}

void ImpostaTesto(Controllo& controllo, const Testo& testo) {
  const Testo prima = std::exchange(
      controllo.testo, controllo.tipo == TipoControllo::Casella ? testo.substr(0, kMassimoCasella) : testo);
  Aggiorna(controllo, controllo.testo != prima);
}

void ImpostaVoci(Controllo& lista, std::vector<Testo> voci) {
  const std::vector<Testo> prima = std::exchange(lista.voci, std::move(voci));
  lista.scelte.assign(lista.voci.size(), false);
  Aggiorna(lista, lista.voci != prima);
}

void Smista(const std::function<void()>& gestore) {
  Testo errore = ErroreDi(gestore);
  if (errore.empty()) return;
  if (const Testo salvato = PrimaDelMessaggio(); !salvato.empty())
    errore += (errore.ends_with('.') ? " " : ". ") + salvato;
  MostraMessaggio(errore, kTitoloProgramma, Icona::Stop);
  TerminaProgramma(1);
}

}  // namespace tarvel
