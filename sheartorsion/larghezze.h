// The width of the wall at each characteristic point, by which its shear flow is divided.
#pragma once

#include "model/geometria.h"
#include "sheartorsion/tagli.h"

namespace tarvel {

using Larghezza = Reale (*)(const SezioneInEsame&);

namespace larghezza {

// The height of the triangle between O5 and the fillet's slope, as twice its area over its side; the distance
// of O5 from the fillet where the triangle has no area.
inline Reale AttraversoRaccordo(const CopiaLavoro& c) {
  const Punto triangolo[] = {c.O(5), c.C(1), c.C(11)};
  const Reale A = Assoluto(AreaPoligono(triangolo));
  return A > kTolleranza ? 2 * A / Distanza(c.C(1), c.C(11)) : Distanza(c.C(1), c.O(5));
}

// clang-format off

inline constexpr Larghezza
    // Points 1 and 5, at the tips.
    Nulla                  = [](auto&)   { return Reale(0); },
    // Points 2, 3 and 4, signed.
    SolettaAlColmoSinistro = [](auto& s) { return s.r.O(13).y - s.r.C(4).y; },
    SolettaInMezzeria      = [](auto& s) { return s.r.O(12).y - s.r.C(5).y; },
    SolettaAlColmoDestro   = [](auto& s) { return s.r.O(11).y - s.r.C(6).y; },
    // Points 6 and 7, across the fillet of the bottom slab.
    Piede                  = [](auto& s) { return AttraversoRaccordo(s.copie.SezioneBaricentrica); },
    // Points 8 and 9, across the lean of the web. The one for torsion lacks the root: the stored stresses and
    // labels depend on both.
    Anima                  = [](auto& s) {
      return Assoluto((s.r.C(2).z - s.r.O(4).z) * Radice(1 + Potenza(s.p[kInclinazioneAnime] / 100, 2)));
    },
    AnimaPerTorsione       = [](auto& s) {
      return Assoluto((1 + Potenza(s.p[kInclinazioneAnime] / 100, 2)) * (s.r.C(2).z - s.r.O(4).z));
    },
    // Point 8 along z, from the top surface down to O4.
    SommitaAnima           = [](auto& s) { return Assoluto(TettoSinistro(s.p, s.r.O(4).z) - s.r.O(4).y); },
    // Point 10, the dimension as it is, signed.
    SolettaInferiore       = [](auto& s) { return s.p[kSolettaInferiore]; },
    // Point 11, signed.
    SolettaAlRaccordo      = [](auto& s) { return s.r.P(11).y - s.r.C(3).y; },
    // Point 12, and 10 along z: the slab as built, signed.
    Fondo                  = [](auto& s) { return s.r.C(11).y - s.r.O(5).y; },
    // Point 13.
    AttaccoSbalzo          = [](auto& s) { return Assoluto(s.r.P(13).y - s.r.O(3).y); },
    // Point 14, at the height of the centroid, signed.
    AnimaSullAsse          = [](auto& s) { return s.r.P(15).z - s.r.P(14).z; };

// clang-format on

template <Larghezza L>
inline constexpr Larghezza Modulo = [](auto& s) { return Assoluto(L(s)); };

}  // namespace larghezza
}  // namespace tarvel
