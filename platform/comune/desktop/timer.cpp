// Timers: each fires between two handlers, once however often it was due.
#include <algorithm>
#include <vector>

#include "platform/comune/desktop/schermo.h"
#include "platform/comune/desktop/scrivania.h"

namespace tarvel {
namespace {

struct Sveglia {
  Temporizzatore* timer;
  long long scadenza;
};

std::vector<Sveglia> sveglie;

// An interval of 0 would make the clock stand still.
long long ScadenzaDi(const Temporizzatore& timer) {
  return Adesso() + std::max(timer.intervallo, 1);
}

std::vector<Sveglia>::iterator Prossima() {
  return std::min_element(sveglie.begin(), sveglie.end(),
                          [](const Sveglia& a, const Sveglia& b) { return a.scadenza < b.scadenza; });
}

}  // namespace

void AbilitaTimer(Temporizzatore& timer, bool attivo) {
  if (timer.attivo == attivo) return;
  timer.attivo = attivo;
  std::erase_if(sveglie, [&](const Sveglia& s) { return s.timer == &timer; });
  if (attivo) sveglie.push_back({&timer, ScadenzaDi(timer)});
  NuovaScadenza();
}

bool ScattaProssimo() {
  const auto prossima = Prossima();
  if (Occupato() || prossima == sveglie.end() || prossima->scadenza > Adesso()) return false;
  prossima->scadenza = ScadenzaDi(*prossima->timer);
  Esegui(prossima->timer->scatto);
  return true;
}

std::optional<long long> ProssimaScadenza() {
  if (sveglie.empty()) return std::nullopt;
  return Prossima()->scadenza;
}

void FermaTimer() {
  for (const Sveglia& s : sveglie) s.timer->attivo = false;
  sveglie.clear();
}

}  // namespace tarvel
