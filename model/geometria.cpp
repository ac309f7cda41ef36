// Single-cell box girder: deck of four slopes, two cantilevers, inclined webs, four fillets, flat
// soffit. The left side is measured from the left edge, the right side from the right edge.
#include "model/geometria.h"

#include <span>

#include "model/tabella_sezioni.h"

namespace tarvel {
namespace {

void Scrivi(GeometriaSezione& g, int poligono, std::span<const Punto> vertici) {
  int v = 0;
  for (const Punto& p : vertici) g.ImpostaVertice(poligono, ++v, p);
}

}  // namespace

void CostruisciGeometria(GeometriaSezione& geometria, const VettoreParametri& p) {
  geometria.NumPoligoni = 2;
  geometria.NumVertici[1] = VerticiPoligono[1];
  geometria.NumVertici[2] = VerticiPoligono[2];

  const Reale L = p[15];
  const Reale h = L / 2;

  // Top surface: left break, crown, right break, right end.
  const Reale yT1 = p[16] * (h - p[13]) / 100;
  const Reale yT2 = yT1 + p[17] * p[13] / 100;
  const Reale yT3 = yT2 + p[18] * p[13] / 100;
  const Reale yT4 = yT3 + p[19] * (h - p[13]) / 100;

  // Soffit, floor of the cell, bottom end of the inner web faces.
  const Reale yS = yT2 - p[0];
  const Reale yF = yS + p[1];
  const Reale yR = yF + p[8];

  // Outer web faces, top and bottom ends.
  const Reale zWL = p[9] + p[10];
  const Reale yWL = p[16] * zWL / 100 - p[4];
  const Reale zWR = L - p[9] - p[10];
  const Reale yWR = yT4 - p[19] * (p[9] + p[10]) / 100 - p[4];
  const Reale zBL = zWL + (p[20] / 100) * (yWL - yS);
  const Reale zBR = zWR - (p[20] / 100) * (yWR - yS);

  // Inner web faces: w is the width of the web at its top, not an input.
  const Reale w = h - (p[9] + p[10] + p[11] + p[12] + p[13]);
  const Reale zIL = zWL + w;
  const Reale yIL = p[16] * zIL / 100 - p[5];
  const Reale zIR = zWR - w;
  const Reale yIR = yT4 - p[19] * (p[9] + p[10] + w) / 100 - p[5];

  // Both inner faces are parallel to the left outer one, whatever the right one does.
  const Reale s = Assoluto(yWL - yS) > kTolleranza ? (zBL - zWL) / (yWL - yS) : Reale(0);
  const Reale zRL = zIL + (yIL - yR) * s;
  const Reale zRR = zIR - (yIR - yR) * s;

  const Punto contorno[] = {
      {0, 0},
      {0, -p[2]},
      {p[9], p[16] * p[9] / 100 - p[3]},
      {zWL, yWL},
      {zBL, yS},
      {zBR, yS},
      {zWR, yWR},
      {L - p[9], yT4 - p[19] * p[9] / 100 - p[3]},
      {L, yT4 - p[2]},
      {L, yT4},
      {h + p[13], yT3},
      {h, yT2},
      {h - p[13], yT1},
  };
  Scrivi(geometria, 1, contorno);

  const Punto cella[] = {
      {zRL, yR},
      {zIL, yIL},
      {zIL + p[11], p[16] * (zIL + p[11]) / 100 - p[6]},
      {h - p[13], yT1 - p[7]},
      {h, yT2 - p[7]},
      {h + p[13], yT3 - p[7]},
      {zIR - p[11], yT4 - p[19] * (p[9] + p[10] + w + p[11]) / 100 - p[6]},
      {zIR, yIR},
      {zRR, yR},
      {zRR - p[14], yF},
      {zRL + p[14], yF},
  };
  Scrivi(geometria, 2, cella);
}

}  // namespace tarvel
