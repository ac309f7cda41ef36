// Numbers of twice a double's precision, held as the sum of two: with the same bits on every processor and
// in every build, since only sums, products, quotients and roots of doubles are used, which all round alike
// (Dekker, Knuth).
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

namespace tarvel {

constexpr bool Finito(double x) {
  constexpr double limite = std::numeric_limits<double>::max();
  return x >= -limite && x <= limite;
}

/// A value as its rounded part and what that one lacks.
struct Doppia {
  double valore;
  double resto = 0;

  /// Without a resto where the value has overflowed: it is the overflow that counts.
  constexpr double Arrotondata() const { return Finito(valore) ? valore + resto : valore; }
};

/// The exact sum of two numbers, the first not the smaller one.
constexpr Doppia SommaOrdinata(double a, double b) {
  const double s = a + b;
  return {s, b - (s - a)};
}

constexpr Doppia SommaEsatta(double a, double b) {
  const double s = a + b;
  const double di_b = s - a;
  return {s, (a - (s - di_b)) + (b - di_b)};
}

constexpr Doppia ProdottoEsatto(double a, double b) {
  // The upper half of the digits: products of halves are exact, that of the lower ones but for its last
  // bit. Cut off by a mask, as the usual large factor would overflow from 1E+300 on.
  constexpr auto alta = [](double x) {
    return std::bit_cast<double>(std::bit_cast<std::uint64_t>(x) & ~std::uint64_t{0x7FFFFFF});
  };
  const double p = a * b;
  const double aAlta = alta(a), aBassa = a - aAlta;
  const double bAlta = alta(b), bBassa = b - bAlta;
  return {p, ((aAlta * bAlta - p) + aAlta * bBassa + aBassa * bAlta) + aBassa * bBassa};
}

constexpr Doppia operator-(Doppia a) {
  return {-a.valore, -a.resto};
}
constexpr Doppia operator+(Doppia a, Doppia b) {
  const Doppia s = SommaEsatta(a.valore, b.valore);
  return SommaOrdinata(s.valore, s.resto + (a.resto + b.resto));
}
constexpr Doppia operator*(Doppia a, Doppia b) {
  const Doppia p = ProdottoEsatto(a.valore, b.valore);
  return SommaOrdinata(p.valore, p.resto + (a.valore * b.resto + a.resto * b.valore));
}
constexpr Doppia operator/(Doppia a, Doppia b) {
  const double q = a.valore / b.valore;
  const Doppia manca = a + -(b * Doppia{q});
  return SommaOrdinata(q, manca.valore / b.valore);
}

inline Doppia Radice(Doppia x) {
  const double r = std::sqrt(x.valore);
  const Doppia manca = x + -ProdottoEsatto(r, r);
  return SommaOrdinata(r, manca.valore / (2 * r));
}

}  // namespace tarvel
