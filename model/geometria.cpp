// Single-cell box girder: deck of four slopes, two cantilevers, inclined webs, four fillets, flat
// soffit. The left side is measured from the left edge, the right side from the right edge.
#include "model/geometria.h"

#include <span>

#include "base/errore.h"
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

  const Reale L = p[kLarghezzaTotale];
  const Reale h = L / 2;
  const Reale sbalzo = p[kSbalzo];
  const Reale colmo = p[kDaColmoAMezzeria];
  const Reale raccordo = p[kRaccordoSuperiore];

  // Top surface: left break, crown, right break, right end.
  const auto sinistra = [&](Reale z) { return TettoSinistro(p, z); };
  const Reale yT1 = sinistra(h - colmo);
  const Reale yT2 = yT1 + p[kPendenzaColmoSinistra] * colmo / 100;
  const Reale yT3 = yT2 + p[kPendenzaColmoDestra] * colmo / 100;
  const Reale yT4 = yT3 + p[kPendenzaDestra] * (h - colmo) / 100;
  const auto destra = [&](Reale daDestra) { return yT4 - p[kPendenzaDestra] * daDestra / 100; };

  // Soffit, floor of the cell, bottom end of the inner web faces.
  const Reale yS = yT2 - p[kAltezzaTotale];
  const Reale yF = yS + p[kSolettaInferiore];
  const Reale yR = yF + p[kAltezzaRaccordo];

  // Outer web faces, top and bottom ends.
  const Reale zWL = sbalzo + p[kDaSbalzoAdAnima];
  const Reale yWL = sinistra(zWL) - p[kSommitaEsternaAnime];
  const Reale zWR = L - sbalzo - p[kDaSbalzoAdAnima];
  const Reale yWR = destra(zWL) - p[kSommitaEsternaAnime];
  const Reale inclinazione = p[kInclinazioneAnime] / 100;
  const Reale zBL = zWL + inclinazione * (yWL - yS);
  const Reale zBR = zWR - inclinazione * (yWR - yS);

  // Inner web faces: w is the width of the web at its top, not an input.
  const Reale w = h - (zWL + raccordo + p[kDaRaccordoAColmo] + colmo);
  const Reale zIL = zWL + w;
  const Reale yIL = sinistra(zIL) - p[kSommitaInternaAnime];
  const Reale zIR = zWR - w;
  const Reale yIR = destra(zWL + w) - p[kSommitaInternaAnime];

  // Both inner faces are parallel to the left outer one, whatever the right one does.
  const Reale s = Assoluto(yWL - yS) > kTolleranza ? (zBL - zWL) / (yWL - yS) : Reale(0);
  const Reale zRL = zIL + (yIL - yR) * s;
  const Reale zRR = zIR - (yIR - yR) * s;

  const Punto contorno[] = {
      {0, 0},
      {0, -p[kEstremitaSbalzi]},
      {sbalzo, sinistra(sbalzo) - p[kAttaccoSbalzi]},
      {zWL, yWL},
      {zBL, yS},
      {zBR, yS},
      {zWR, yWR},
      {L - sbalzo, destra(sbalzo) - p[kAttaccoSbalzi]},
      {L, yT4 - p[kEstremitaSbalzi]},
      {L, yT4},
      {h + colmo, yT3},
      {h, yT2},
      {h - colmo, yT1},
  };
  Scrivi(geometria, 1, contorno);

  const Reale t = p[kSolettaMezzeria];
  const Punto cella[] = {
      {zRL, yR},
      {zIL, yIL},
      {zIL + raccordo, sinistra(zIL + raccordo) - p[kSolettaFineRaccordo]},
      {h - colmo, yT1 - t},
      {h, yT2 - t},
      {h + colmo, yT3 - t},
      {zIR - raccordo, destra(zWL + w + raccordo) - p[kSolettaFineRaccordo]},
      {zIR, yIR},
      {zRR, yR},
      {zRR - p[kRaccordoInferiore], yF},
      {zRL + p[kRaccordoInferiore], yF},
  };
  Scrivi(geometria, 2, cella);
}

void RifaiContorno(GeometriaSezione& geometria, const VettoreParametri& p) {
  GeometriaSezione nuova = geometria;
  Durante("contorno", [&] { CostruisciGeometria(nuova, p); });
  geometria = nuova;
}

}  // namespace tarvel
