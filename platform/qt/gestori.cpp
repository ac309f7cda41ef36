// Running the forms' handlers from the toolkit's events.
#include "platform/qt/gestori.h"

#include <deque>
#include <utility>

#include "platform/comune/smista.h"

namespace tarvel {
namespace {

int inCorso = 0;  // handlers of the current loop
int totali = 0;   // and of the loops outside it, with the modal showings between them
std::deque<std::function<void()>> rimandati;
std::deque<std::function<void()>> finali;

void EseguiPrimo(std::deque<std::function<void()>>& lavori) {
  const std::function<void()> lavoro = std::move(lavori.front());
  lavori.pop_front();
  lavoro();
}

void Riprendi() {
  while (!Occupato() && !rimandati.empty()) EseguiPrimo(rimandati);
  while (totali == 0 && !finali.empty()) EseguiPrimo(finali);
}

}  // namespace

void EseguiGestore(const std::function<void()>& gestore) {
  if (!gestore) return;
  ++inCorso, ++totali;
  Smista(gestore);
  --inCorso, --totali;
  Riprendi();
}

bool Occupato() {
  return inCorso > 0;
}

void QuandoLibero(std::function<void()> lavoro) {
  rimandati.push_back(std::move(lavoro));
  Riprendi();
}

void FinitiTutti(std::function<void()> lavoro) {
  finali.push_back(std::move(lavoro));
  Riprendi();
}

AttesaModale::AttesaModale() : salvato_(std::exchange(inCorso, 0)) {
  ++totali;
  Riprendi();
}

AttesaModale::~AttesaModale() {
  inCorso = salvato_;
  --totali;
  Riprendi();
}

}  // namespace tarvel
