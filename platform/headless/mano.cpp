// Mouse and keyboard, as events of controls.
#include "platform/headless/mano.h"

#include <algorithm>

#include "platform/comune/smista.h"
#include "platform/headless/desktop.h"

namespace tarvel::headless {
namespace {

bool HaFuoco(const Controllo& controllo) {
  return Usabile(controllo) && Fuoco() == &controllo;
}

// The key's event, then what the key does to the text as the event's handler has left it: `nuovo`
// takes the place of the selected text, or of the last characters. The key is done also where its
// handler has taken the form away.
void Modifica(Controllo& casella, int codice, std::size_t via, const Testo& nuovo) {
  const Form& form = *FormDi(casella);
  if (casella.tasto) Smista([&] { casella.tasto(codice); });
  if (!Caricata(form)) return;
  Testo& testo = casella.testo;
  testo.resize(
      TuttoScelto(casella) && (via > 0 || !nuovo.empty()) ? 0 : testo.size() - std::min(via, testo.size()));
  testo += nuovo.substr(0, kMassimoCasella - testo.size());
  if (via == 0 && nuovo.empty()) return;
  ScegliTutto(casella, false);
  MettiCursoreInVista(casella, true);
}

void PremiInCasella(Controllo& casella, int tasto) {
  switch (tasto) {
    case kTastoInvio:
    case kTastoEsc:
      return Modifica(casella, tasto, 0, {});
    case kTastoIndietro:
      return Modifica(casella, tasto, 1, {});
    case kTastoCanc:
      // After the end of the text there is nothing to delete.
      if (TuttoScelto(casella) && !casella.testo.empty())
        Modifica(casella, kTastoIndietro, casella.testo.size(), {});
      return;
    default:
      return Modifica(casella, tasto, 0, Testo(1, static_cast<char>(tasto)));
  }
}

bool VaiAlProssimo(const Controllo& da) {
  const Form& form = *FormDi(da);
  auto c = std::find(form.controlli.begin(), form.controlli.end(), &da);
  do {
    if (++c == form.controlli.end()) c = form.controlli.begin();
  } while ((*c)->tipo == TipoControllo::Etichetta);
  if (!Vai(**c)) return false;
  ScegliTutto(**c, true);
  return true;
}

// The mouse, at the middle of a control, meets that one.
bool InVista(const Controllo& controllo) {
  const auto& tutti = FormDi(controllo)->controlli;
  const int x = controllo.posto.sinistra + controllo.posto.larghezza / 2;
  const int y = controllo.posto.alto + controllo.posto.altezza / 2;
  return std::none_of(std::find(tutti.begin(), tutti.end(), &controllo) + 1, tutti.end(),
                      [&](const Controllo* c) {
                        const Rettangolo& p = c->posto;
                        return c->tipo != TipoControllo::Etichetta && x >= p.sinistra && y >= p.alto &&
                               x < p.sinistra + p.larghezza && y < p.alto + p.altezza;
                      });
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
  if (controllo.tipo == TipoControllo::Lista || !Usabile(controllo) || !InVista(controllo)) return false;
  if (!Vai(controllo)) return false;
  ScegliTutto(controllo, false);
  return controllo.tipo != TipoControllo::Bottone || ClickBottone(controllo);
}

bool Premi(int tasto) {
  Controllo* const controllo = Fuoco();
  if (controllo == nullptr || !Usabile(*controllo)) return false;
  if (tasto == kTastoTab) return VaiAlProssimo(*controllo);
  if (controllo->tipo == TipoControllo::Casella) return PremiInCasella(*controllo, tasto), true;
  const bool preme = tasto == kTastoInvio || tasto == ' ';
  return controllo->tipo != TipoControllo::Bottone || !preme || ClickBottone(*controllo);
}

bool Incolla(const Testo& testo) {
  Controllo* const casella = Fuoco();
  if (casella == nullptr || !Usabile(*casella) || casella->tipo != TipoControllo::Casella) return false;
  Testo pulito = testo;
  std::erase_if(pulito, [](char c) { return c >= 0 && c < ' '; });
  Modifica(*casella, kTastoIncolla, 0, pulito);
  return true;
}

bool Invio(Controllo& controllo) {
  return Vai(controllo) && Premi(kTastoInvio);
}

bool Digita(Controllo& casella, const Testo& testo) {
  if (casella.tipo != TipoControllo::Casella || !Vai(casella)) return false;
  ScegliTutto(casella, true);
  if (testo.empty()) return Premi(kTastoIndietro);
  return std::all_of(testo.begin(), testo.end(), [&](char c) {
    if (!HaFuoco(casella)) return false;
    PremiInCasella(casella, static_cast<unsigned char>(c));
    return true;
  });
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
