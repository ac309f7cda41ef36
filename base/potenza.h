// Whole powers of a double, rounded once, where a library rounds its own way.
#pragma once

#include "base/doppia.h"

namespace tarvel {

/// The same as Potenza for any exponent > 0 and any x that is neither 0 nor infinite, in whole numbers.
double PotenzaInteri(double x, int esponente);

/// The double nearest to x to a whole exponent, of two the even one, down to the smallest number; for a
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
  // What resto lacks is less than (esponente - 1)^2 2^-106 of the power. Where that could change the
  // rounding, or digits may have been lost below the smallest number or beyond the largest, whole numbers
  // decide.
  const double scarto = p.valore * (0x1p-105 * esponente * esponente);
  const double esito = p.valore + (p.resto - scarto);
  if (esito == p.valore + (p.resto + scarto) && (esito > 0x1p-900 || esito < -0x1p-900)) return esito;
  return x == 0 || !Finito(x) ? p.valore : PotenzaInteri(x, esponente);
}

}  // namespace tarvel
