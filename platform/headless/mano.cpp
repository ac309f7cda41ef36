// Mouse and keyboard, as events of controls.
#include "platform/headless/mano.h"

#include <algorithm>

#include "platform/comune/desktop/casella.h"
#include "platform/headless/desktop.h"

namespace tarvel::headless {
namespace {

bool Prendibile(const Controllo& controllo) {
  const Form* form = FormDi(controllo);
  return form != nullptr && Usabile(*form) && controllo.tipo != TipoControllo::Etichetta;
}

// What the key does to the text as its handler has left it: `nuovo` takes the place of the selected text,
// or of the last characters.
void Modifica(Controllo& casella, int codice, std::size_t via, const Testo& nuovo) {
  PremiInCasella(casella, {codice}, [&] {
    if (via == 0 && nuovo.empty()) return;
    Testo& testo = casella.testo;
    testo.resize(TuttoScelto(casella) ? 0 : testo.size() - std::min(via, testo.size()));
    testo += nuovo.substr(0, kMassimoCasella - testo.size());
    ScegliTutto(casella, false);
    MettiCursoreInVista(&casella);
  });
}

void BattiInCasella(Controllo& casella, int tasto) {
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

// The entry beside the selected one; the first where none is.
void ScorriLista(Controllo& lista, int tasto) {
  if ((tasto != kTastoSu && tasto != kTastoGiu) || lista.voci.empty()) return;
  const auto scelta = std::find(lista.scelte.begin(), lista.scelte.end(), true);
  const int prima = scelta == lista.scelte.end() ? -1 : static_cast<int>(scelta - lista.scelte.begin());
  const int dopo = prima + (tasto == kTastoSu && prima >= 0 ? -1 : 1);
  Seleziona(lista, {std::clamp(dopo, 0, static_cast<int>(lista.voci.size()) - 1)});
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

}  // namespace

bool Vai(Controllo& controllo) {
  if (!Prendibile(controllo)) return false;
  if (Fuoco() == &controllo) return true;
  ScegliTutto(controllo, false);
  MettiCursoreInVista(nullptr);
  return Raggiungi(*FormDi(controllo), &controllo);
}

bool Clicca(Controllo& controllo) {
  if (controllo.tipo == TipoControllo::Lista || !Prendibile(controllo) || !InVista(controllo)) return false;
  if (!Vai(controllo)) return false;
  ScegliTutto(controllo, false);
  if (controllo.tipo == TipoControllo::Bottone) Esegui(controllo.click);
  return true;
}

bool Premi(int tasto) {
  Controllo* const controllo = Fuoco();
  if (controllo == nullptr || !Prendibile(*controllo)) return false;
  if (tasto == kTastoTab) return VaiAlProssimo(*controllo);
  if (controllo->tipo == TipoControllo::Casella) return BattiInCasella(*controllo, tasto), true;
  if (controllo->tipo == TipoControllo::Lista) return ScorriLista(*controllo, tasto), true;
  const bool preme = tasto == kTastoInvio || tasto == ' ';
  if (preme) Esegui(controllo->click);
  return true;
}

bool Incolla(const Testo& testo) {
  Controllo* const casella = Fuoco();
  if (casella == nullptr || !Prendibile(*casella) || casella->tipo != TipoControllo::Casella) return false;
  Modifica(*casella, kTastoIncolla, 0, SenzaControlli(testo));
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
    if (Fuoco() != &casella || !Prendibile(casella)) return false;
    BattiInCasella(casella, static_cast<unsigned char>(c));
    return true;
  });
}

bool Seleziona(Controllo& lista, const std::vector<int>& voci) {
  const auto fuori = [&](int voce) { return voce < 0 || voce >= static_cast<int>(lista.voci.size()); };
  if (lista.tipo != TipoControllo::Lista || !Vai(lista)) return false;
  if (std::any_of(voci.begin(), voci.end(), fuori)) return false;
  lista.scelte.assign(lista.voci.size(), false);
  for (const int voce : voci) {
    if (!lista.selezioneEstesa) lista.scelte.assign(lista.voci.size(), false);
    lista.scelte[static_cast<std::size_t>(voce)] = true;
  }
  return true;
}

bool DoppioClick(Controllo& lista, int voce) {
  if (!Seleziona(lista, {voce})) return false;
  Esegui(lista.doppioClick);
  return true;
}

}  // namespace tarvel::headless
