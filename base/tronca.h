// Cutting to a number of decimals.
#pragma once

#include "base/intero.h"
#include "base/reale.h"

namespace tarvel {

/// floor(valore · 10^decimali) / 10^decimali in double precision, with no correction: 0.29 cut to
/// two decimals may give 0.28, and a negative value moves away from zero.
inline Reale Tronca(Reale valore, Intero16 decimali) {
  const Reale potenza = Potenza(Reale(10), decimali);
  return Pavimento(valore * potenza) / potenza;
}

}  // namespace tarvel
