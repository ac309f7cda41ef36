// Closed-form integrals over the area between one polygon edge and the axis y = 0 (Green's theorem:
// area integrals become sums over the edges). Summed over a clockwise polygon they give the
// positive value, over a counter-clockwise one the negative; units are those of the coordinates.
#pragma once

#include <optional>
#include <span>

#include "model/sezione.h"

namespace tarvel {

/// An edge that is not vertical: its line y = m z + q and the differences z2^n - z1^n of its abscissas.
struct Segmento {
  Reale PendenzaSegmento, TermineNotoSegmento;
  Reale d1, d2, d3;
};

/// Nothing for an edge with |z1 - z2| within the tolerance: it contributes to no integral.
std::optional<Segmento> SegmentoDi(Punto da, Punto a);

/// Integral of dA by the trapezoid, also for vertical edges.
inline Reale AreaTrapezio(Punto da, Punto a) {
  return (da.y + a.y) * (a.z - da.z) / 2;
}

Reale MomStaticoY(const Segmento& s);  ///< integral of z dA
Reale MomStaticoZ(const Segmento& s);  ///< integral of y dA

/// Second moments need the fourth powers too; an outline too large for them still has an area.
struct SegmentoQuarto : Segmento {
  Reale d4;
};
std::optional<SegmentoQuarto> SegmentoQuartoDi(Punto da, Punto a);

Reale MomInerziaY(const SegmentoQuarto& s);    ///< integral of z² dA
Reale MomInerziaZ(const SegmentoQuarto& s);    ///< integral of y² dA
Reale MomCentrifugo(const SegmentoQuarto& s);  ///< integral of z·y dA

/// Calls lavoro(from, to) for each edge of a closed polygon of n vertices, the closing one last.
template <class Vertice, class Lavoro>
void PerOgniLato(int n, Vertice vertice, Lavoro lavoro) {
  for (int v = 1; v < n; ++v) lavoro(vertice(v), vertice(v + 1));
  lavoro(vertice(n), vertice(1));
}

/// Sum of AreaTrapezio over a closed polygon.
Reale AreaPoligono(std::span<const Punto> vertici);

}  // namespace tarvel
