// Whole powers of a double, carried in twice the precision and rounded once, where a library rounds its
// own way.
#pragma once

#include "base/doppia.h"

namespace tarvel {

/// x to a whole exponent.
constexpr double Potenza(double x, int esponente) {
  if (esponente < 0) return 1 / Potenza(x, -esponente);
  if (esponente == 0) return 1;
  Doppia p{x};
  for (int n = 1; n < esponente; ++n) {
    const Doppia q = ProdottoEsatto(p.valore, x);
    p = {q.valore, q.resto + p.resto * x};
  }
  return p.Arrotondata();
}

}  // namespace tarvel
