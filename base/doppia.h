// Numbers of twice a double's precision, each held as the sum of two doubles (Dekker, Knuth). Every processor
// and every build gives the same bits, since all of them round sums, products, quotients and roots alike.
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

/// A number as its nearest double and what that one lacks.
struct Doppia {
  double valore;
  double resto = 0;

  /// A value that has overflowed stays so: the resto of an infinite value is no number.
  constexpr double Arrotondata() const { return Finito(valore) ? valore + resto : valore; }
};

/// The exact sum of two numbers, where |a| >= |b|.
constexpr Doppia SommaOrdinata(double a, double b) {
  const double s = a + b;
  return {s, b - (s - a)};
}

constexpr Doppia SommaEsatta(double a, double b) {
  const double s = a + b;
  const double di_b = s - a;
  return {s, (a - (s - di_b)) + (b - di_b)};
}

/// The exact product. A resto may lie 106 digits below its product: of a product below 2^-968 the digits that
/// are less than the smallest double are lost.
constexpr Doppia ProdottoEsatto(double a, double b) {
  // A mask cuts each factor in halves of 26 and 27 digits; the usual multiplication by a large number would
  // overflow from 1E+300 on. The product of both lower halves has 54 digits, one too many: the last digit of
  // one of them is multiplied separately.
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
