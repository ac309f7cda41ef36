// Timers: they wait for the running handler, never interrupt it.
#include <QTimer>
#include <map>
#include <memory>

#include "platform/desktop.h"
#include "platform/qt/gestori.h"

namespace tarvel {
namespace {

// A timer of the program lives as long as the program.
std::map<Temporizzatore*, std::unique_ptr<QTimer>> orologi;

void Scatta(Temporizzatore& timer) {
  if (timer.attivo) EseguiGestore(timer.scatto);
}

}  // namespace

void AbilitaTimer(Temporizzatore& timer, bool attivo) {
  if (timer.attivo == attivo) return;
  timer.attivo = attivo;
  auto& orologio = orologi[&timer];
  if (!orologio) {
    orologio = std::make_unique<QTimer>();
    QObject::connect(orologio.get(), &QTimer::timeout, [&timer] {
      if (!Occupato()) return Scatta(timer);
      // One firing waits, however long the handler takes.
      QTimer* const mio = orologi[&timer].get();
      mio->stop();
      AppenaLibero([&timer, mio] {
        if (!timer.attivo || mio->isActive()) return;  // stopped, or started anew, in the meantime
        mio->start();
        Scatta(timer);
      });
    });
  }
  if (attivo)
    orologio->start(timer.intervallo);
  else
    orologio->stop();
}

}  // namespace tarvel
