// Mouse and keyboard, as events of controls.
#include "platform/headless/mano.h"

#include <algorithm>

#include "platform/comune/smista.h"
#include "platform/headless/desktop.h"

namespace tarvel::headless {
namespace {

constexpr int kTastoCancella = 8;

bool HaFuoco(const Controllo& controllo) {
  return Usabile(controllo) && Fuoco() == &controllo;
}

// False when the handler has taken the control away.
bool Premi(const Controllo& controllo, int codice) {
  if (controllo.tasto) Smista([&] { controllo.tasto(codice); });
  return HaFuoco(controllo);
}

bool ClickBottone(const Controllo& bottone) {
  if (bottone.click) Smista(bottone.click);
  return true;
}

}  // namespace

bool Usabile(const Controllo& controllo) {
  const Form* form = FormDi(controllo);
  return form != nullptr && Usabile(*form) && controllo.tipo != TipoControllo::Etichetta;
}

bool Vai(Controllo& controllo) {
  if (!Usabile(controllo)) return false;
  const Controllo* prima = Fuoco();
  if (prima == &controllo) return true;
  SpostaFuoco(*FormDi(controllo), &controllo);
  if (prima != nullptr && prima->fuocoPerso) Smista(prima->fuocoPerso);
  return HaFuoco(controllo);
}

bool Clicca(Controllo& controllo) {
  if (controllo.tipo == TipoControllo::Lista || !Vai(controllo)) return false;
  return controllo.tipo != TipoControllo::Bottone || ClickBottone(controllo);
}

bool Invio(Controllo& controllo) {
  if (!Vai(controllo)) return false;
  if (controllo.tipo == TipoControllo::Bottone) return ClickBottone(controllo);
  if (controllo.tipo == TipoControllo::Casella) Premi(controllo, kTastoInvio);
  return true;
}

bool Digita(Controllo& casella, const Testo& testo) {
  if (casella.tipo != TipoControllo::Casella || !Vai(casella)) return false;
  if (testo.empty()) {
    if (!Premi(casella, kTastoCancella)) return false;
    casella.testo.clear();
  }
  for (std::size_t i = 0; i < testo.size(); ++i) {
    if (!Premi(casella, static_cast<unsigned char>(testo[i]))) return false;
    if (i == 0) casella.testo.clear();  // the first key replaces the selected text
    casella.testo += testo[i];
  }
  return true;
}

bool Seleziona(Controllo& lista, const std::vector<int>& voci) {
  const auto fuori = [&](int voce) { return voce < 0 || voce >= static_cast<int>(lista.voci.size()); };
  if (lista.tipo != TipoControllo::Lista || !Vai(lista)) return false;
  if (std::any_of(voci.begin(), voci.end(), fuori) || (voci.size() > 1 && !lista.selezioneEstesa))
    return false;
  lista.scelte.assign(lista.voci.size(), false);
  for (const int voce : voci) lista.scelte[static_cast<std::size_t>(voce)] = true;
  return true;
}

bool DoppioClick(Controllo& lista, int voce) {
  if (!Seleziona(lista, {voce})) return false;
  if (lista.doppioClick) Smista(lista.doppioClick);
  return true;
}

bool Chiudi(Form& form) {
  if (!Usabile(form)) return false;
  if (const Controllo* fuoco = Fuoco(); FormAttiva() == &form && fuoco != nullptr) {
    SpostaFuoco(form, nullptr);
    if (fuoco->fuocoPerso) Smista(fuoco->fuocoPerso);
  }
  Smista([&] { ScaricaForm(form); });
  return true;
}

}  // namespace tarvel::headless
