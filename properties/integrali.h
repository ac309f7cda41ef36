// Closed-form integrals over the area between one polygon edge and the axis y = 0 (Green's theorem:
// area integrals become sums over the edges). Summed over a clockwise polygon they give the
// positive value, over a counter-clockwise one the negative; units are those of the coordinates.
#pragma once

#include <optional>
#include <span>

#include "model/sezione.h"

namespace tarvel {

/// A vertex with the powers of its abscissa, which the integrals over both its edges share.
struct Estremo {
  explicit Estremo(Punto v) : p(v), z2(Potenza(v.z, 2)), z3(Potenza(v.z, 3)) {}
  Punto p;
  Reale z2, z3;
};

/// An edge that is not vertical: its line y = m z + q and the differences z2^n - z1^n of its abscissas.
struct Segmento {
  Reale PendenzaSegmento, TermineNotoSegmento;
  Reale d1, d2, d3;
};

/// Nothing for an edge with |z1 - z2| within the tolerance: it contributes to no integral.
std::optional<Segmento> SegmentoDi(const Estremo& da, const Estremo& a);

/// Integral of dA by the trapezoid, also for vertical edges.
inline Reale AreaTrapezio(Punto da, Punto a) {
  return (da.y + a.y) * (a.z - da.z) / 2;
}

Reale MomStaticoY(const Segmento& s);  ///< integral of z dA
Reale MomStaticoZ(const Segmento& s);  ///< integral of y dA

/// Second moments need the fourth powers too; an outline too large for them still has an area.
struct EstremoQuarto : Estremo {
  explicit EstremoQuarto(Punto v) : Estremo(v), z4(Potenza(v.z, 4)) {}
  Reale z4;
};
struct SegmentoQuarto : Segmento {
  Reale d4;
};
std::optional<SegmentoQuarto> SegmentoDi(const EstremoQuarto& da, const EstremoQuarto& a);

Reale MomInerziaY(const SegmentoQuarto& s);    ///< integral of z² dA
Reale MomInerziaZ(const SegmentoQuarto& s);    ///< integral of y² dA
Reale MomCentrifugo(const SegmentoQuarto& s);  ///< integral of z·y dA

/// Calls lavoro(from, to) for each edge of a closed polygon of n vertices, the closing one last;
/// vertice(v) is asked once for each.
template <class Vertice, class Lavoro>
void PerOgniLato(int n, Vertice vertice, Lavoro lavoro) {
  const auto primo = vertice(1);
  auto da = primo;
  for (int v = 2; v <= n; ++v) {
    const auto a = vertice(v);
    lavoro(da, a);
    da = a;
  }
  lavoro(da, primo);
}

/// Sum of AreaTrapezio over a closed polygon.
Reale AreaPoligono(std::span<const Punto> vertici);

}  // namespace tarvel
