// The enabled timers and their next firing.
#include "platform/headless/timer.h"

#include <algorithm>
#include <vector>

#include "platform/comune/smista.h"
#include "platform/desktop.h"

namespace tarvel {
namespace headless {
namespace {

struct Sveglia {
  Temporizzatore* timer;
  Durata scadenza;
};

Durata gAdesso = 0;
Durata gTraguardo = 0;  // the time that may pass before the user's next event
std::vector<Sveglia> gSveglie;

// An interval of 0 would make the clock stand still.
Durata Scadenza(const Temporizzatore& timer) {
  return gAdesso + std::max(timer.intervallo, 1);
}

std::vector<Sveglia>::iterator Prossima() {
  return std::min_element(gSveglie.begin(), gSveglie.end(),
                          [](const Sveglia& a, const Sveglia& b) { return a.scadenza < b.scadenza; });
}

}  // namespace

void LasciaPassare(Durata durata) {
  gTraguardo += durata;
}

PausaTimer::PausaTimer() : inizio_(gTraguardo) {}

PausaTimer::~PausaTimer() {
  gAdesso += gTraguardo - inizio_;
}

bool ScattaProssimo() {
  const auto prossima = Prossima();
  if (prossima == gSveglie.end() || prossima->scadenza > gTraguardo) {
    gAdesso = gTraguardo;
    return false;
  }
  gAdesso = std::max(gAdesso, prossima->scadenza);
  const Temporizzatore& timer = *prossima->timer;
  prossima->scadenza = Scadenza(timer);
  if (timer.scatto) Smista(timer.scatto);
  return true;
}

std::optional<Durata> AttesaProssimo() {
  const auto prossima = Prossima();
  if (prossima == gSveglie.end()) return std::nullopt;
  return prossima->scadenza - gTraguardo;
}

void AzzeraTempo() {
  for (const Sveglia& s : gSveglie) s.timer->attivo = false;
  gSveglie.clear();
  gAdesso = gTraguardo = 0;
}

}  // namespace headless

void AbilitaTimer(Temporizzatore& timer, bool attivo) {
  using namespace headless;
  if (timer.attivo == attivo) return;
  timer.attivo = attivo;
  if (attivo)
    gSveglie.push_back({&timer, Scadenza(timer)});
  else
    std::erase_if(gSveglie, [&](const Sveglia& s) { return s.timer == &timer; });
}

}  // namespace tarvel
