// Running the forms' handlers from the toolkit's events.
#include "platform/qt/gestori.h"

#include <QApplication>
#include <QTimer>
#include <utility>
#include <vector>

#include "platform/comune/smista.h"

namespace tarvel {
namespace {

int inCorso = 0;  // handlers of the current loop
int totali = 0;   // and of the loops outside it, with the modal showings between them
std::vector<std::function<void()>> rimandati;
std::vector<std::function<void()>> finali;

void RiprendiRimandati() {
  if (Occupato()) return;
  for (auto& lavoro : std::exchange(rimandati, {})) AppenaLibero(std::move(lavoro));
}

void Ripulisci() {
  RiprendiRimandati();
  if (totali == 0)
    for (auto& lavoro : std::exchange(finali, {})) lavoro();
}

}  // namespace

void EseguiGestore(const std::function<void()>& gestore) {
  if (!gestore) return;
  ++inCorso, ++totali;
  Smista(gestore);
  --inCorso, --totali;
  Ripulisci();
}

bool Occupato() {
  return inCorso > 0;
}

void AppenaLibero(std::function<void()> lavoro) {
  if (Occupato()) {
    rimandati.push_back(std::move(lavoro));
    return;
  }
  QTimer::singleShot(0, qApp, [lavoro = std::move(lavoro)]() mutable {
    // A handler that waits in a message box may have begun in the meantime.
    if (Occupato())
      rimandati.push_back(std::move(lavoro));
    else
      lavoro();
  });
}

void FinitiTutti(std::function<void()> lavoro) {
  if (totali == 0)
    lavoro();
  else
    finali.push_back(std::move(lavoro));
}

AttesaModale::AttesaModale() : salvato_(std::exchange(inCorso, 0)) {
  ++totali;
  RiprendiRimandati();
}

AttesaModale::~AttesaModale() {
  inCorso = salvato_;
  --totali;
  Ripulisci();
}

}  // namespace tarvel
