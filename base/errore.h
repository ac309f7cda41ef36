// The fatal error: the one way to fail. Only a platform's event dispatcher catches it; it shows
// one message and ends the program with exit status 1.
#pragma once

#include <exception>
#include <utility>

#include "base/testo.h"

namespace tarvel {

enum class TipoErrore {
  Overflow,
  OperazioneNonValida,
  DivisionePerZero,
  Indice,
  Formato,
  File,
  Argomento,
};

class ErroreFatale : public std::exception {
 public:
  ErroreFatale(TipoErrore genere, Testo fatto, Testo luogo = {})
      : tipo(genere), cosa(std::move(fatto)), dove(std::move(luogo)) {}

  /// "what happened (where)", 8-bit text.
  Testo Messaggio() const { return dove.empty() ? cosa : cosa + " (" + dove + ")"; }
  const char* what() const noexcept override { return cosa.c_str(); }

  TipoErrore tipo;
  Testo cosa;
  Testo dove;
};

/// Runs `lavoro`; a fatal error that passes through learns which operation it interrupted.
/// `operazione` is a text, or a callable that makes it only when it is needed.
template <class Operazione, class Lavoro>
decltype(auto) Durante(const Operazione& operazione, Lavoro&& lavoro) {
  try {
    return std::forward<Lavoro>(lavoro)();
  } catch (ErroreFatale& errore) {
    if (!errore.dove.empty()) errore.dove += "; ";
    if constexpr (requires { operazione(); })
      errore.dove += operazione();
    else
      errore.dove += operazione;
    throw;
  }
}

}  // namespace tarvel
