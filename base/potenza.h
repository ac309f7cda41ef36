// Whole powers of a double, with the same bits on every processor and in every build: the products are
// carried in twice the precision and rounded once (Dekker), where a library rounds its own way.
#pragma once

#include <bit>
#include <cstdint>
#include <limits>

namespace tarvel {

constexpr bool Finito(double x) {
  constexpr double limite = std::numeric_limits<double>::max();
  return x >= -limite && x <= limite;
}

/// A product as the sum of its rounded value and of what that one lacks.
struct ProdottoEsatto {
  double valore;
  double resto = 0;

  /// Without a resto where the value has overflowed: it is the overflow that counts.
  constexpr double Arrotondato() const { return Finito(valore) ? valore + resto : valore; }
};

constexpr ProdottoEsatto operator*(ProdottoEsatto a, double b) {
  // The upper half of the digits: products of halves are exact, that of the lower ones but for its last
  // bit. Cut off by a mask, as the usual large factor would overflow from 1E+300 on.
  constexpr auto alta = [](double x) {
    return std::bit_cast<double>(std::bit_cast<std::uint64_t>(x) & ~std::uint64_t{0x7FFFFFF});
  };
  const double p = a.valore * b;
  const double aAlta = alta(a.valore), aBassa = a.valore - aAlta;
  const double bAlta = alta(b), bBassa = b - bAlta;
  const double resto = ((aAlta * bAlta - p) + aAlta * bBassa + aBassa * bAlta) + aBassa * bBassa;
  return {p, resto + a.resto * b};
}

/// x to a whole exponent.
constexpr double Potenza(double x, int esponente) {
  if (esponente < 0) return 1 / Potenza(x, -esponente);
  if (esponente == 0) return 1;
  ProdottoEsatto p{x};
  for (int n = 1; n < esponente; ++n) p = p * x;
  return p.Arrotondato();
}

}  // namespace tarvel
