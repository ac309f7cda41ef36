// Which control of the desktop has the focus, as the forms see it.
#include "platform/qt/fuoco.h"

#include <QPointer>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <utility>
#include <vector>

#include "platform/qt/gestori.h"

namespace tarvel {
namespace {

int messaggi = 0;
int loopAperti = 0;
int livelloModale = 0;
Controllo* colFuoco = nullptr;
QPointer<Finestra> attivata;    // whose control is not reached yet
std::vector<Finestra*> ordine;  // the windows on the screen, the last used one at the end

bool SulloSchermo(const Controllo* controllo) {
  return std::any_of(ordine.begin(), ordine.end(),
                     [&](const Finestra* f) { return f->WidgetDi(*controllo) != nullptr; });
}

}  // namespace

bool Usabile(const Finestra& finestra) {
  return messaggi == 0 && finestra.livello >= livelloModale && finestra.isVisible();
}

void RaggiungeControllo(Finestra& finestra, Controllo* controllo) {
  // The window manager may make a window active for a moment that cannot be used.
  if (!Usabile(finestra)) return;
  attivata.clear();
  std::erase(ordine, &finestra);
  ordine.push_back(&finestra);
  if (colFuoco == controllo) return;
  if (const Controllo* lasciato = std::exchange(colFuoco, controllo))
    QuandoLibero([lasciato] {
      if (SulloSchermo(lasciato)) EseguiGestore(lasciato->fuocoPerso);
    });
}

void AttivaFinestra(Finestra& finestra) {
  constexpr std::chrono::milliseconds kAttesaClick{150};
  attivata = &finestra;
  QTimer::singleShot(kAttesaClick, &finestra, FinisceAttivazione);
}

void FinisceAttivazione() {
  const QPointer<Finestra> finestra = std::exchange(attivata, nullptr);
  if (finestra != nullptr && finestra->form != nullptr) RaggiungeControllo(*finestra, finestra->ColFuoco());
}

void LasciaControllo(const Finestra& finestra) {
  if (colFuoco == nullptr || finestra.WidgetDi(*colFuoco) == nullptr) return;
  EseguiGestore(std::exchange(colFuoco, nullptr)->fuocoPerso);
}

void RendeFuoco(const Finestra& finestra) {
  const bool aveva = FinestraAttiva() == &finestra;
  std::erase(ordine, &finestra);
  if (!aveva) return;
  colFuoco = ordine.empty() ? nullptr : ordine.back()->ColFuoco();
}

Finestra* FinestraAttiva() {
  return ordine.empty() ? nullptr : ordine.back();
}

int LoopAperti() {
  return loopAperti;
}

int LivelloModale() {
  return livelloModale;
}

LivelloInPiu::LivelloInPiu() {
  ++livelloModale, ++loopAperti;
}

LivelloInPiu::~LivelloInPiu() {
  --livelloModale;
  for (Finestra* finestra : ordine) finestra->livello = std::min(finestra->livello, livelloModale);
}

MessaggioAperto::MessaggioAperto() {
  ++messaggi, ++loopAperti;
}

MessaggioAperto::~MessaggioAperto() {
  --messaggi;
}

}  // namespace tarvel
