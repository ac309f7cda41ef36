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

  /// 8-bit text: "what happened (where)" of a file, "where: what happened. Conclusion" of a
  /// calculation, whose place is the operation that it interrupted.
  Testo Messaggio() const;
  const char* what() const noexcept override { return cosa.c_str(); }

  /// Learns which operation it interrupted, and what a fault of arithmetic in there means to the user.
  void Interrompe(const Testo& operazione, const char* significato);

  TipoErrore tipo;
  Testo cosa;
  Testo dove;
  Testo conclusione;
};

/// Runs `lavoro`; a fatal error that passes through learns which operation it interrupted.
/// `operazione` is a text, or a callable that makes it only when it is needed; `conclusione` is a
/// sentence for a fault of arithmetic.
template <class Operazione, class Lavoro>
decltype(auto) Durante(const Operazione& operazione, Lavoro&& lavoro, const char* conclusione = "") {
  try {
    return std::forward<Lavoro>(lavoro)();
  } catch (ErroreFatale& errore) {
    if constexpr (requires { operazione(); })
      errore.Interrompe(operazione(), conclusione);
    else
      errore.Interrompe(operazione, conclusione);
    throw;
  }
}

}  // namespace tarvel
