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

void Scaduto(Temporizzatore& timer, QTimer& orologio) {
  if (!Occupato()) {
    orologio.start(timer.intervallo);
    return EseguiGestore(timer.scatto);
  }
  // One firing waits, however long the handler takes.
  orologio.stop();
  QuandoLibero([&] {
    const bool riavviato = orologio.isActive();
    if (timer.attivo && !riavviato) orologio.start(0);
  });
}

}  // namespace

void AbilitaTimer(Temporizzatore& timer, bool attivo) {
  if (timer.attivo == attivo) return;
  timer.attivo = attivo;
  auto& orologio = orologi[&timer];
  if (!orologio) {
    orologio = std::make_unique<QTimer>();
    QObject::connect(orologio.get(), &QTimer::timeout, [&timer, &o = *orologio] { Scaduto(timer, o); });
  }
  if (attivo)
    orologio->start(timer.intervallo);
  else
    orologio->stop();
}

}  // namespace tarvel
