// A 16-bit integer for counts and indices: leaving its range is fatal. Arithmetic is done on the
// host's int and checked when the result is stored.
#pragma once

#include <cstdint>
#include <limits>

#include "base/reale.h"

namespace tarvel {

class Intero16 {
 public:
  constexpr Intero16() = default;
  constexpr Intero16(long long valore) : valore_(static_cast<std::int16_t>(valore)) {
    if (valore != valore_) ErroreOverflow();
  }
  constexpr operator int() const { return valore_; }

  constexpr Intero16& operator+=(int n) { return *this = Intero16(valore_ + n); }
  constexpr Intero16& operator-=(int n) { return *this = Intero16(valore_ - n); }
  constexpr Intero16& operator++() { return *this += 1; }

 private:
  std::int16_t valore_ = 0;
};

/// x rounded to a whole number, halves to even; fatal beyond 16 bits.
inline Intero16 InteroPari(Reale x) {
  const double r = Arrotondato(x).Valore();
  if (r < std::numeric_limits<std::int16_t>::min() || r > std::numeric_limits<std::int16_t>::max())
    ErroreOverflow();
  return {static_cast<long long>(r)};
}

}  // namespace tarvel
