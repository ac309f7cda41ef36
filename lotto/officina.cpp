#include "lotto/officina.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>

namespace tarvel::lotto {
namespace {

constexpr std::chrono::milliseconds kPasso{50};  // within which a stop is heard

// Outlives its caller where threads are left to themselves.
struct Officina {
  Mestieri mestieri;
  std::size_t finestra = 0;  // blocks in the queue at most

  std::mutex chiave;
  std::condition_variable cambiata;
  std::deque<std::shared_ptr<Blocco>> coda;  // in order, from the next to be delivered
  std::size_t presi = 0;                     // of the queue's, by workers
  bool letto = false;                        // nothing follows
};

template <class Lavoro>
void Custodisci(Blocco& blocco, Lavoro lavoro) {
  try {
    lavoro();
  } catch (...) {
    blocco.guasto = std::current_exception();
  }
}

void Legge(Officina& o) {
  for (bool altri = true; altri;) {
    auto blocco = std::make_shared<Blocco>();
    altri = false;
    Custodisci(*blocco, [&] { altri = o.mestieri.leggi(*blocco); });
    std::unique_lock lucchetto(o.chiave);
    o.cambiata.wait(lucchetto, [&] { return o.coda.size() < o.finestra; });
    o.coda.push_back(std::move(blocco));
    o.letto = !altri;
    o.cambiata.notify_all();
  }
}

void Lavorante(Officina& o) {
  std::unique_lock lucchetto(o.chiave);
  for (;;) {
    o.cambiata.wait(lucchetto, [&] { return o.presi < o.coda.size() || o.letto; });
    if (o.presi == o.coda.size()) return;
    const auto blocco = o.coda[o.presi++];
    lucchetto.unlock();
    const std::exception_ptr lettura = blocco->guasto;
    Custodisci(*blocco, [&] { o.mestieri.lavora(*blocco); });
    if (lettura) blocco->guasto = lettura;
    lucchetto.lock();
    blocco->pronto = true;
    o.cambiata.notify_all();
  }
}

// Delivers until the end; false when stopped.
bool Consegna(Officina& o) {
  std::unique_lock lucchetto(o.chiave);
  for (;;) {
    const auto daFare = [&] { return o.coda.empty() ? o.letto : o.coda.front()->pronto; };
    while (!o.cambiata.wait_for(lucchetto, kPasso, daFare))
      if (o.mestieri.smetti()) return false;
    if (o.coda.empty()) return true;
    const auto blocco = o.coda.front();
    lucchetto.unlock();
    if (o.mestieri.smetti() || !o.mestieri.consegna(*blocco)) return false;
    if (blocco->guasto) std::rethrow_exception(blocco->guasto);
    lucchetto.lock();
    o.coda.pop_front();
    --o.presi;
    o.cambiata.notify_all();
  }
}

}  // namespace

bool Lavora(int processi, Mestieri mestieri) {
  const auto officina = std::make_shared<Officina>();
  officina->mestieri = std::move(mestieri);
  officina->finestra = 4 * static_cast<std::size_t>(processi) + 4;

  std::vector<std::thread> mani;
  mani.emplace_back([officina] { Legge(*officina); });
  for (int i = 0; i < processi; ++i) mani.emplace_back([officina] { Lavorante(*officina); });

  bool tutto = false;
  std::exception_ptr guasto;
  try {
    tutto = Consegna(*officina);
  } catch (...) {
    guasto = std::current_exception();
  }
  for (std::thread& mano : mani) {
    if (tutto)
      mano.join();
    else
      mano.detach();
  }
  if (guasto) std::rethrow_exception(guasto);
  return tutto;
}

}  // namespace tarvel::lotto
