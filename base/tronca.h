// Cutting to a number of decimals.
#pragma once

#include <iterator>

#include "base/intero.h"
#include "base/reale.h"

namespace tarvel {

/// floor(valore · 10^decimali) / 10^decimali in double precision, with no correction: 0.29 cut to
/// two decimals may give 0.28, and a negative value moves away from zero.
inline Reale Tronca(Reale valore, Intero16 decimali) {
  constexpr double kPotenze[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6, 1e7,
                                 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14};
  const bool nota = decimali >= 0 && decimali < static_cast<int>(std::size(kPotenze));
  const Reale potenza = nota ? Reale(kPotenze[decimali]) : Potenza(Reale(10), decimali);
  return Pavimento(valore * potenza) / potenza;
}

}  // namespace tarvel
