// With y = m z + q along the edge, the integrals of y, y²/2 and y³/3 times powers of z.
#include "properties/integrali.h"

namespace tarvel {

std::optional<Segmento> SegmentoDi(const Estremo& da, const Estremo& a) {
  const Reale d1 = a.p.z - da.p.z;
  if (Assoluto(d1) <= kTolleranza) return std::nullopt;
  const Reale m = (a.p.y - da.p.y) / d1;
  return Segmento{m, da.p.y - m * da.p.z, d1, a.z2 - da.z2, a.z3 - da.z3};
}

std::optional<SegmentoQuarto> SegmentoDi(const EstremoQuarto& da, const EstremoQuarto& a) {
  const auto s = SegmentoDi(static_cast<const Estremo&>(da), a);
  if (!s) return std::nullopt;
  return SegmentoQuarto{*s, a.z4 - da.z4};
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
