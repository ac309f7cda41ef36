// The faults of checked arithmetic and of checked tables, in words for the user who typed the numbers.
#include "base/errore.h"

#include "base/reale.h"
#include "base/tabella.h"

namespace tarvel {
namespace {

bool DiAritmetica(TipoErrore tipo) {
  return tipo == TipoErrore::Overflow || tipo == TipoErrore::OperazioneNonValida ||
         tipo == TipoErrore::DivisionePerZero;
}

bool DiCalcolo(TipoErrore tipo) {
  return DiAritmetica(tipo) || tipo == TipoErrore::Indice;
}

}  // namespace

Testo ErroreFatale::Messaggio() const {
  if (!DiCalcolo(tipo)) return dove.empty() ? cosa : cosa + " (" + dove + ")";
  return (dove.empty() ? "" : dove + ": ") + cosa + (conclusione.empty() ? "" : ". " + conclusione);
}

void ErroreFatale::Interrompe(const Testo& operazione, const char* significato) {
  if (DiCalcolo(tipo))
    dove = dove.empty() ? operazione : operazione + ", " + dove;
  else
    dove = dove.empty() ? operazione : dove + "; " + operazione;
  if (DiAritmetica(tipo) && conclusione.empty()) conclusione = significato;
}

void ErroreOverflow() {
  throw ErroreFatale(TipoErrore::Overflow, "numero troppo grande");
}

void ErroreNonValida(const char* operazione) {
  throw ErroreFatale(TipoErrore::OperazioneNonValida, operazione);
}

void ErroreDivisione(bool zeroSuZero) {
  if (zeroSuZero) ErroreNonValida("zero diviso per zero");
  throw ErroreFatale(TipoErrore::DivisionePerZero, "divisione per zero");
}

void ErroreIndice(const char* tabella, long long indice, int primo, int ultimo) {
  const Testo quale = "la tabella " + Testo(tabella);
  if (indice > ultimo)
    throw ErroreFatale(TipoErrore::Indice,
                       quale + " è piena, ne tiene al massimo "_t + std::to_string(ultimo - primo + 1));
  throw ErroreFatale(TipoErrore::Indice, quale + " comincia da " + std::to_string(primo) + ", l'elemento " +
                                             std::to_string(indice) + " non esiste");
}

}  // namespace tarvel
