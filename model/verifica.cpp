// The inverse of the outline's construction.
#include "model/verifica.h"

#include "base/tronca.h"
#include "model/tabella_sezioni.h"

namespace tarvel {
namespace {

// Slope in percent, cut down to three decimals of the ratio; 0 over a run within the tolerance.
Reale Pendenza(Reale salita, Reale corsa) {
  return Assoluto(corsa) > kTolleranza ? Tronca(salita / corsa, 3) * 100 : Reale(0);
}

}  // namespace

std::optional<VettoreParametri> VerificaSezione(const RecordSezione& r) {
  if (r.NumVertici[1] != VerticiPoligono[1] || r.NumPoligoni != 2 || r.NumVertici[2] != VerticiPoligono[2])
    return std::nullopt;
  const auto O = [&](int v) { return r.O(v); };
  const auto C = [&](int v) { return r.C(v); };
  const auto pendenza = [](Punto da, Punto a) { return Pendenza(a.y - da.y, a.z - da.z); };
  VettoreParametri p;

  p[kAltezzaTotale] = O(12).y - O(5).y;
  p[kSolettaInferiore] = C(11).y - O(5).y;
  p[kEstremitaSbalzi] = O(1).y - O(2).y;
  p[kSbalzo] = O(3).z - O(1).z;
  p[kDaSbalzoAdAnima] = O(4).z - O(3).z;
  p[kRaccordoSuperiore] = C(3).z - C(2).z;
  p[kDaRaccordoAColmo] = C(4).z - C(3).z;
  p[kDaColmoAMezzeria] = C(5).z - C(4).z;
  p[kRaccordoInferiore] = C(11).z - C(1).z;
  p[kAltezzaRaccordo] = C(1).y - C(11).y;
  p[kLarghezzaTotale] = O(10).z - O(1).z;
  p[kSolettaMezzeria] = O(13).y - C(4).y;
  p[kPendenzaSinistra] = pendenza(O(1), O(13));
  p[kPendenzaColmoSinistra] = pendenza(O(13), O(12));
  p[kPendenzaColmoDestra] = pendenza(O(12), O(11));
  p[kPendenzaDestra] = pendenza(O(10), O(11));
  p[kInclinazioneAnime] = Pendenza(O(5).z - O(4).z, O(4).y - O(5).y);
  // Depths below the line of the left slope, as it has just been cut.
  p[kAttaccoSbalzi] = p[kPendenzaSinistra] / 100 * p[kSbalzo] - O(3).y;
  p[kSommitaEsternaAnime] = p[kPendenzaSinistra] / 100 * O(4).z - O(4).y;
  p[kSommitaInternaAnime] = p[kPendenzaSinistra] / 100 * C(2).z - C(2).y;
  p[kSolettaFineRaccordo] = p[kPendenzaSinistra] / 100 * C(3).z - C(3).y;
  return p;
}

}  // namespace tarvel
