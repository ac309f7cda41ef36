// The first edge that qualifies wins; horizontal edges take one of their ends.
#include "sheartorsion/asse.h"

namespace tarvel {
namespace {

constexpr int kUltimoLato = 5;
constexpr int kLatoDiChiusura = 11;

Reale Interpola(Punto a, Punto b, Reale y) {
  return a.z + (b.z - a.z) / (b.y - a.y) * (y - a.y);
}

bool Orizzontale(Punto a, Punto b) {
  return Assoluto(b.y - a.y) <= kTolleranza;
}

int Cerca(const auto& attraversato) {
  for (int lato = 1; lato <= kUltimoLato; ++lato)
    if (attraversato(lato)) return lato;
  return 0;
}

// On horizontal edges the choice of the end compares an abscissa with an ordinate. As geometry it means
// nothing, but the stored stresses of point 14 depend on it.
Reale AscissaEsterna(Punto a, Punto b, Reale y) {
  if (Orizzontale(a, b)) return b.z >= a.y ? b.z : a.z;
  return Interpola(a, b, y);
}

Reale AscissaInterna(Punto a, Punto b, Reale y) {
  if (Orizzontale(a, b)) return b.z <= a.y ? b.z : a.z;
  return Interpola(a, b, y);
}

Reale AscissaChiusura(Punto c11, Punto c1, Reale y) {
  if (Orizzontale(c11, c1)) return c1.z > c11.y ? c11.z : c1.z;
  return Interpola(c11, c1, y);
}

}  // namespace

AsseBaricentrico CercaAsseBaricentrico(RecordSezione& r) {
  const Reale YG = r.YG;
  const int esterno = Cerca([&](int i) { return r.O(i + 1).y <= YG && YG <= r.O(i).y; });
  if (esterno == 0) return {};
  int interno = Cerca([&](int j) { return r.C(j).y <= YG && YG <= r.C(j + 1).y; });
  if (interno == 0 && YG <= r.C(1).y && YG >= r.C(11).y) interno = kLatoDiChiusura;
  if (interno == 0) return {};

  r.PuntoY[14] = YG;
  r.PuntoY[15] = YG;
  r.PuntoZ[14] = AscissaEsterna(r.O(esterno), r.O(esterno + 1), YG);
  r.PuntoZ[15] = interno == kLatoDiChiusura ? AscissaChiusura(r.C(11), r.C(1), YG)
                                            : AscissaInterna(r.C(interno), r.C(interno + 1), YG);
  return {true, esterno, interno};
}

}  // namespace tarvel
