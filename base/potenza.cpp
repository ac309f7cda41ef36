// A power in whole numbers of any length, rounded at the end.
#include "base/potenza.h"

#include <algorithm>
#include <vector>

namespace tarvel {

double PotenzaInteri(double x, int esponente) {
  int scala = 0;
  auto m = static_cast<std::uint64_t>(std::ldexp(std::frexp(std::fabs(x), &scala), 53));
  scala += std::countr_zero(m) - 53;
  m >>= std::countr_zero(m);

  // m^esponente in bytes, the lowest first. A byte times m, with what is carried, takes no more than 61 bits.
  std::vector<std::uint64_t> cifre{1};
  for (int n = 0; n < esponente; ++n) {
    std::uint64_t riporto = 0;
    for (auto& c : cifre) {
      riporto += c * m;
      c = riporto & 0xFF;
      riporto >>= 8;
    }
    for (; riporto != 0; riporto >>= 8) cifre.push_back(riporto & 0xFF);
  }

  // The upper 55 to 62 bits of the power. The bits below them are not all zero, as the power is odd: the
  // lowest bit stands for them, so that no power seems to lie halfway between two doubles.
  std::uint64_t alto = 0;
  auto sotto = static_cast<int>(cifre.size());
  while (sotto > 0 && alto < std::uint64_t{1} << 54)
    alto = alto << 8 | cifre[static_cast<std::size_t>(--sotto)];
  if (sotto > 0) alto |= 1;
  scala = scala * esponente + 8 * sotto;

  // A double holds 53 bits, none of them below 2^-1074: what is more is rounded, halves to even.
  const int via = std::clamp(std::max(static_cast<int>(std::bit_width(alto)) - 53, -1074 - scala), 0, 63);
  if (via > 0) alto = (alto + (std::uint64_t{1} << (via - 1)) - 1 + (alto >> via & 1)) >> via;
  return std::copysign(std::ldexp(static_cast<double>(alto), scala + via), esponente % 2 == 0 ? 1 : x);
}

}  // namespace tarvel
