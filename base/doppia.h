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

/// The exact product, where it and its resto are doubles: always from 2^-968 on, as a resto may lie 106
/// digits below its product; what would be less than the smallest double is lost.
constexpr Doppia ProdottoEsatto(double a, double b) {
  // Halves of 26 and 27 digits, cut off by a mask, as the usual large factor would overflow from 1E+300 on.
  // Two lower halves have a product of 54 digits: the last digit of one goes apart.
  constexpr auto senza = [](double x, std::uint64_t cifre) {
    return std::bit_cast<double>(std::bit_cast<std::uint64_t>(x) & ~cifre);
  };
  const double p = a * b;
  const double aAlta = senza(a, 0x7FFFFFF), aBassa = a - aAlta;
  const double bAlta = senza(b, 0x7FFFFFF), bPari = senza(b, 1), bUltima = b - bPari;
  return {p, (((aAlta * bAlta - p) + aAlta * (b - bAlta) + aBassa * bAlta) + aBassa * (bPari - bAlta)) +
                 aBassa * bUltima};
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
