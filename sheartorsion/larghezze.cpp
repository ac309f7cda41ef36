// Differences of coordinates, but for the foot of the web.
#include "sheartorsion/larghezze.h"

#include "model/geometria.h"

namespace tarvel::larghezza {

Reale Nulla(const Pareti&) {
  return 0;
}

Reale SolettaAlColmoSinistro(const Pareti& s) {
  return s.r.O(13).y - s.r.C(4).y;
}

Reale SolettaInMezzeria(const Pareti& s) {
  return s.r.O(12).y - s.r.C(5).y;
}

Reale SolettaAlColmoDestro(const Pareti& s) {
  return s.r.O(11).y - s.r.C(6).y;
}

// Twice the area of the triangle over its side; the fillet's own length where there is no area.
Reale Piede(const Pareti& s) {
  const CopiaLavoro& c = s.SezioneBaricentrica;
  const Punto triangolo[] = {c.O(5), c.C(1), c.C(11)};
  const Reale A = Assoluto(AreaPoligono(triangolo));
  return A > kTolleranza ? 2 * A / Distanza(c.C(1), c.C(11)) : Distanza(c.C(1), c.O(5));
}

Reale Anima(const Pareti& s) {
  return Assoluto((s.r.C(2).z - s.r.O(4).z) * Radice(1 + Potenza(s.p[kInclinazioneAnime] / 100, 2)));
}

// Without the root, unlike Anima: the stored stresses and labels depend on both.
Reale AnimaPerTorsione(const Pareti& s) {
  return Assoluto((1 + Potenza(s.p[kInclinazioneAnime] / 100, 2)) * (s.r.C(2).z - s.r.O(4).z));
}

Reale SommitaAnima(const Pareti& s) {
  return Assoluto(TettoSinistro(s.p, s.r.O(4).z) - s.r.O(4).y);
}

Reale SolettaInferiore(const Pareti& s) {
  return s.p[kSolettaInferiore];
}

Reale SolettaAlRaccordo(const Pareti& s) {
  return s.r.P(11).y - s.r.C(3).y;
}

Reale Fondo(const Pareti& s) {
  return s.r.C(11).y - s.r.O(5).y;
}

Reale AttaccoSbalzo(const Pareti& s) {
  return Assoluto(s.r.P(13).y - s.r.O(3).y);
}

Reale AnimaSullAsse(const Pareti& s) {
  return s.r.P(15).z - s.r.P(14).z;
}

}  // namespace tarvel::larghezza
