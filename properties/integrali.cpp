// With y = m z + q along the edge, the integrals of y, y²/2 and y³/3 times powers of z.
#include "properties/integrali.h"

namespace tarvel {

namespace {

Reale Differenza(Punto da, Punto a, double n) {
  return Potenza(a.z, n) - Potenza(da.z, n);
}

}  // namespace

std::optional<Segmento> SegmentoDi(Punto da, Punto a) {
  const Reale d1 = a.z - da.z;
  if (Assoluto(d1) <= kTolleranza) return std::nullopt;
  const Reale m = (a.y - da.y) / d1;
  return Segmento{m, da.y - m * da.z, d1, Differenza(da, a, 2), Differenza(da, a, 3)};
}

std::optional<SegmentoQuarto> SegmentoQuartoDi(Punto da, Punto a) {
  const auto s = SegmentoDi(da, a);
  if (!s) return std::nullopt;
  return SegmentoQuarto{*s, Differenza(da, a, 4)};
}

Reale MomStaticoY(const Segmento& s) {
  return s.d2 * s.TermineNotoSegmento / 2 + s.d3 * s.PendenzaSegmento / 3;
}

Reale MomStaticoZ(const Segmento& s) {
  const Reale m = s.PendenzaSegmento;
  const Reale q = s.TermineNotoSegmento;
  return (Potenza(m, 2) * s.d3 / 3 + m * q * s.d2 + Potenza(q, 2) * s.d1) / 2;
}

Reale MomInerziaY(const SegmentoQuarto& s) {
  return s.d3 * s.TermineNotoSegmento / 3 + s.d4 * s.PendenzaSegmento / 4;
}

Reale MomInerziaZ(const SegmentoQuarto& s) {
  const Reale m = s.PendenzaSegmento;
  const Reale q = s.TermineNotoSegmento;
  return (Potenza(m, 3) * s.d4 / 4 + Potenza(m, 2) * q * s.d3 + 3 * m * Potenza(q, 2) * s.d2 / 2 +
          Potenza(q, 3) * s.d1) /
         3;
}

Reale MomCentrifugo(const SegmentoQuarto& s) {
  const Reale m = s.PendenzaSegmento;
  const Reale q = s.TermineNotoSegmento;
  return (Potenza(m, 2) * s.d4 / 4 + 2 * m * q * s.d3 / 3 + Potenza(q, 2) * s.d2 / 2) / 2;
}

Reale AreaPoligono(std::span<const Punto> vertici) {
  Reale area;
  PerOgniLato(
      static_cast<int>(vertici.size()), [&](int v) { return vertici[static_cast<std::size_t>(v - 1)]; },
      [&](Punto da, Punto a) { area += AreaTrapezio(da, a); });
  return area;
}

}  // namespace tarvel
