// With y = m z + q along the edge, the integrals of y, y²/2 and y³/3 times powers of z.
#include "properties/integrali.h"

namespace tarvel {

namespace {

// z2^n - z1^n. Each integral takes no higher power than it needs, so that an outline too large for
// its second moments still has an area.
Reale Differenza(const Segmento& s, double n) {
  return Potenza(s.z2, n) - Potenza(s.z1, n);
}

}  // namespace

std::optional<Segmento> SegmentoDi(Punto da, Punto a) {
  const Reale corsa = a.z - da.z;
  if (Assoluto(corsa) <= kTolleranza) return std::nullopt;
  const Reale m = (a.y - da.y) / corsa;
  return Segmento{da.z, a.z, m, da.y - m * da.z};
}

Reale MomStaticoY(const Segmento& s) {
  return Differenza(s, 2) * s.TermineNotoSegmento / 2 + Differenza(s, 3) * s.PendenzaSegmento / 3;
}

Reale MomStaticoZ(const Segmento& s) {
  const Reale m = s.PendenzaSegmento;
  const Reale q = s.TermineNotoSegmento;
  return (Potenza(m, 2) * Differenza(s, 3) / 3 + m * q * Differenza(s, 2) + Potenza(q, 2) * (s.z2 - s.z1)) /
         2;
}

Reale MomInerziaY(const Segmento& s) {
  return Differenza(s, 3) * s.TermineNotoSegmento / 3 + Differenza(s, 4) * s.PendenzaSegmento / 4;
}

Reale MomInerziaZ(const Segmento& s) {
  const Reale m = s.PendenzaSegmento;
  const Reale q = s.TermineNotoSegmento;
  return (Potenza(m, 3) * Differenza(s, 4) / 4 + Potenza(m, 2) * q * Differenza(s, 3) +
          3 * m * Potenza(q, 2) * Differenza(s, 2) / 2 + Potenza(q, 3) * (s.z2 - s.z1)) /
         3;
}

Reale MomCentrifugo(const Segmento& s) {
  const Reale m = s.PendenzaSegmento;
  const Reale q = s.TermineNotoSegmento;
  return (Potenza(m, 2) * Differenza(s, 4) / 4 + 2 * m * q * Differenza(s, 3) / 3 +
          Potenza(q, 2) * Differenza(s, 2) / 2) /
         2;
}

Reale AreaPoligono(std::span<const Punto> vertici) {
  Reale area;
  PerOgniLato(
      static_cast<int>(vertici.size()), [&](int v) { return vertici[static_cast<std::size_t>(v - 1)]; },
      [&](Punto da, Punto a) { area += AreaTrapezio(da, a); });
  return area;
}

}  // namespace tarvel
