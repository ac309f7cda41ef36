// Of the edges that the axis crosses, the first one counts.
#include "sheartorsion/asse.h"

namespace tarvel {
namespace {

constexpr int kUltimoLato = 5;
constexpr int kLatoDiChiusura = 11;

int Cerca(const auto& attraversato) {
  for (int lato = 1; lato <= kUltimoLato; ++lato)
    if (attraversato(lato)) return lato;
  return 0;
}

// Where the edge from a to b has the height y; of a horizontal edge its first or its second end.
Reale Ascissa(Punto a, Punto b, Reale y, bool secondo) {
  if (Assoluto(b.y - a.y) <= kTolleranza) return secondo ? b.z : a.z;
  return a.z + (b.z - a.z) / (b.y - a.y) * (y - a.y);
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
  // Comparing an abscissa with an ordinate to choose the end means nothing as geometry, but the stored
  // stresses of point 14 depend on it.
  const Punto o1 = r.O(esterno), o2 = r.O(esterno + 1);
  r.PuntoZ[14] = Ascissa(o1, o2, YG, o2.z >= o1.y);
  const Punto c1 = r.C(interno), c2 = r.C(interno == kLatoDiChiusura ? 1 : interno + 1);
  r.PuntoZ[15] = Ascissa(c1, c2, YG, c2.z <= c1.y);
  return {true, esterno, interno};
}

}  // namespace tarvel
