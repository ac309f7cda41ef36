// The faults of checked arithmetic and of checked tables.
#include "base/errore.h"

#include "base/reale.h"
#include "base/tabella.h"

namespace tarvel {

void ErroreOverflow(const char* operazione) {
  throw ErroreFatale(TipoErrore::Overflow, "numero troppo grande", operazione);
}

void ErroreNonValida(const char* operazione) {
  throw ErroreFatale(TipoErrore::OperazioneNonValida, "operazione non valida", operazione);
}

void ErroreDivisione(bool zeroSuZero) {
  if (zeroSuZero) ErroreNonValida("zero diviso zero");
  throw ErroreFatale(TipoErrore::DivisionePerZero, "divisione per zero", "quoziente");
}

void ErroreIndice(const char* tabella, long long indice, int primo, int ultimo) {
  throw ErroreFatale(
      TipoErrore::Indice, "indice " + std::to_string(indice) + " fuori dai limiti",
      std::string("tabella ") + tabella + ", da " + std::to_string(primo) + " a " + std::to_string(ultimo));
}

}  // namespace tarvel
