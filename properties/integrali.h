// Closed-form integrals over the area between one polygon edge and the axis y = 0 (Green's theorem:
// area integrals become sums over the edges). Summed over a clockwise polygon they give the
// positive value, over a counter-clockwise one the negative; units are those of the coordinates.
#pragma once

#include <array>
#include <optional>
#include <span>

#include "model/sezione.h"

namespace tarvel {

/// A vertex with the powers of its abscissa: the integrals over both its edges need them, and so does every
/// cut that passes through it. It is never moved, only replaced, so the powers always are its own. They are
/// not checked, as not every integral reads them all: an outline too large for fourth powers still has an
/// area.
class Estremo {
 public:
  Estremo() = default;
  Estremo(Reale z, Reale y) : Estremo(Punto{z, y}) {}
  Estremo(Punto p)
      : punto_(p),
        potenze_{p.z.Valore(), Potenza(p.z.Valore(), 2), Potenza(p.z.Valore(), 3), Potenza(p.z.Valore(), 4)} {
  }

  operator const Punto&() const { return punto_; }
  /// The same abscissa at another height.
  Estremo AllaQuota(Reale y) const {
    Estremo e = *this;
    e.punto_.y = y;
    return e;
  }
  double PotenzaDiZ(int n) const { return potenze_[static_cast<std::size_t>(n - 1)]; }

 private:
  Punto punto_;
  std::array<double, 4> potenze_{};  // z, z², z³, z⁴
};

/// An edge that is not vertical, on its line y = PendenzaSegmento z + TermineNotoSegmento.
struct Segmento {
  const Estremo& da;
  const Estremo& a;
  Reale PendenzaSegmento, TermineNotoSegmento;

  /// The value of formula(d, m, q), where d(n) is z2^n - z1^n. It is evaluated in plain doubles, with one
  /// check at the end: sums, products and powers never make a finite number of one that is not. Only after a
  /// fault the formula is evaluated once more in checked numbers, so that the operation that failed reports
  /// it. So a formula neither compares nor divides by anything but constants.
  template <class Formula>
  Reale Integra(const Formula& formula) const {
    const double valore = formula([this](int n) { return a.PotenzaDiZ(n) - da.PotenzaDiZ(n); },
                                  PendenzaSegmento.Valore(), TermineNotoSegmento.Valore());
    if (Finito(valore)) [[likely]]
      return valore;
    const Punto &p1 = da, &p2 = a;
    return formula([&](int n) { return Potenza(p2.z, n) - Potenza(p1.z, n); }, PendenzaSegmento,
                   TermineNotoSegmento);
  }
};

/// Nothing for an edge with |z1 - z2| within the tolerance: it contributes to no integral.
inline std::optional<Segmento> SegmentoDi(const Estremo& da, const Estremo& a) {
  const Punto &p1 = da, &p2 = a;
  const Reale corsa = p2.z - p1.z;
  if (Assoluto(corsa) <= kTolleranza) return std::nullopt;
  const Reale m = (p2.y - p1.y) / corsa;
  return Segmento{da, a, m, p1.y - m * p1.z};
}

/// Integral of dA by the trapezoid, also for vertical edges.
inline Reale AreaTrapezio(Punto da, Punto a) {
  return (da.y + a.y) * (a.z - da.z) / 2;
}

/// Integral of z dA.
inline Reale MomStaticoY(const Segmento& s) {
  return s.Integra([](auto d, auto m, auto q) { return d(2) * q / 2 + d(3) * m / 3; });
}

/// Integral of y dA.
inline Reale MomStaticoZ(const Segmento& s) {
  return s.Integra([](auto d, auto m, auto q) {
    return (Potenza(m, 2) * d(3) / 3 + m * q * d(2) + Potenza(q, 2) * d(1)) / 2;
  });
}

/// Integral of z² dA.
inline Reale MomInerziaY(const Segmento& s) {
  return s.Integra([](auto d, auto m, auto q) { return d(3) * q / 3 + d(4) * m / 4; });
}

/// Integral of y² dA.
inline Reale MomInerziaZ(const Segmento& s) {
  return s.Integra([](auto d, auto m, auto q) {
    return (Potenza(m, 3) * d(4) / 4 + Potenza(m, 2) * q * d(3) + 3 * m * Potenza(q, 2) * d(2) / 2 +
            Potenza(q, 3) * d(1)) /
           3;
  });
}

/// Integral of z·y dA.
inline Reale MomCentrifugo(const Segmento& s) {
  return s.Integra([](auto d, auto m, auto q) {
    return (Potenza(m, 2) * d(4) / 4 + 2 * m * q * d(3) / 3 + Potenza(q, 2) * d(2) / 2) / 2;
  });
}

/// Calls lavoro(edge) for each edge of a closed polygon that is not vertical, the closing one last.
template <class Lavoro>
void PerOgniSegmento(std::span<const Estremo> vertici, const Lavoro& lavoro) {
  const std::size_t n = vertici.size();
  for (std::size_t v = 0; v < n; ++v)
    if (const auto s = SegmentoDi(vertici[v], vertici[v + 1 < n ? v + 1 : 0])) lavoro(*s);
}

/// Sum of AreaTrapezio over a closed polygon.
inline Reale AreaPoligono(std::span<const Punto> vertici) {
  Reale area;
  const std::size_t n = vertici.size();
  for (std::size_t v = 0; v < n; ++v) area += AreaTrapezio(vertici[v], vertici[v + 1 < n ? v + 1 : 0]);
  return area;
}

}  // namespace tarvel
