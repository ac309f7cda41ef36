// Whole powers of a double, rounded once, where a library rounds its own way.
#pragma once

#include "base/doppia.h"

namespace tarvel {

/// The same as Potenza, calculated in whole numbers, for an exponent > 0 and an x that is finite and not 0.
double PotenzaInteri(double x, int esponente);

/// The double nearest to the power, the even one of two that are as near; subnormal numbers too. For a
/// negative exponent the reciprocal of that.
constexpr double Potenza(double x, int esponente) {
  if (esponente < 0) return 1 / Potenza(x, -esponente);
  if (esponente == 0) return 1;
  if (esponente == 2) return x * x;
  Doppia p{x};
  for (int n = 1; n < esponente; ++n) {
    const Doppia q = ProdottoEsatto(p.valore, x);
    p = {q.valore, q.resto + p.resto * x};
  }
  // The error of resto is less than (esponente - 1)^2 2^-106 of the power. PotenzaInteri decides where that
  // error could change the rounding, and where digits may have been lost near the ends of a double's range.
  const double scarto = p.valore * (0x1p-105 * esponente * esponente);
  const double esito = p.valore + (p.resto - scarto);
  if (esito == p.valore + (p.resto + scarto) && (esito > 0x1p-900 || esito < -0x1p-900)) return esito;
  return x == 0 || !Finito(x) ? p.valore : PotenzaInteri(x, esponente);
}

}  // namespace tarvel
