// Thirteen segments of median line, clockwise from the top of the left web.
#include "sheartorsion/torsione.h"

#include "model/geometria.h"
#include "properties/integrali.h"

namespace tarvel {
namespace {

constexpr int kPuntiMediana = 13;
using LineaMediana = Tabella<"della linea mediana", Punto, 1, kPuntiMediana>;

LineaMediana Mediana(const GeometriaSezione& g, const VettoreParametri& p) {
  const auto O = [&](int v) { return g.O(v); };
  const auto C = [&](int v) { return g.C(v); };
  const auto sinistra = [&](Reale z) { return TettoSinistro(p, z); };
  const auto destra = [&](Reale z) { return (z - O(11).z) * p[kPendenzaDestra] / 100; };  // above O11

  LineaMediana M;
  M[1] = {C(2).z, (sinistra(C(2).z) + C(2).y) / 2};
  M[2] = {C(3).z, (sinistra(C(3).z) + C(3).y) / 2};
  M[3] = {O(13).z, (O(13).y + C(4).y) / 2};
  M[4] = {O(12).z, (O(12).y + C(5).y) / 2};
  M[5] = {O(11).z, (C(6).y + O(11).y) / 2};
  M[6] = {C(7).z, (destra(C(7).z) + C(7).y + O(11).y) / 2};
  M[7] = {C(8).z, (destra(C(8).z) + O(11).y + C(8).y) / 2};
  M[8] = {(C(8).z + O(7).z) / 2, (O(7).y + C(8).y) / 2};
  M[9] = {(O(7).z - C(8).z) / 2 + C(9).z, C(9).y};
  M[10] = {C(10).z, (O(6).y + C(10).y) / 2};
  M[11] = {C(11).z, M[10].y};  // the bottom slab is level: both ends have the ordinate of the right one
  M[12] = {C(1).z - (C(2).z - O(4).z) / 2, C(1).y};
  M[13] = {(O(4).z + C(2).z) / 2, (O(4).y + C(2).y) / 2};
  return M;
}

// ∮ds/t around the median line.
Reale IntegraleSpessori(const LineaMediana& M, const GeometriaSezione& g, const VettoreParametri& p) {
  const Reale t5 = Assoluto(p[kSommitaInternaAnime]);
  const Reale t6 = Assoluto(p[kSolettaFineRaccordo]);
  const Reale t7 = Assoluto(p[kSolettaMezzeria]);
  const Reale destra = Distanza(g.O(7), g.C(8));
  const Reale fondo = Assoluto(g.C(10).y - g.O(6).y);
  const Reale sinistra = Distanza(g.O(4), g.C(2));

  const struct {
    int da, a;
    Reale t1, t2;
  } tratti[] = {
      {1, 2, t5, t6},
      {2, 3, t6, t7},
      {4, 3, t7, t7},
      {5, 4, t7, t7},
      {6, 5, t7, t6},
      {7, 6, t6, t5},
      {7, 8, t5, destra},
      {8, 9, destra, destra},
      {9, 10, destra, fondo},
      {10, 11, fondo, fondo},
      {11, 12, fondo, sinistra},
      {12, 13, sinistra, sinistra},
      {1, 13, sinistra, t5},
  };
  Reale somma;
  for (const auto& t : tratti) {
    const auto tratto = TrattoSpessoreVariabile(t.t1, t.t2, Distanza(M[t.da], M[t.a]));
    if (!tratto) return 0;
    somma += *tratto;
  }
  return somma;
}

}  // namespace

std::optional<Reale> TrattoSpessoreVariabile(Reale t1, Reale t2, Reale s) {
  if (s <= kTolleranza) return 0;
  if (t1 < kTolleranza || t2 < kTolleranza) return std::nullopt;
  const Reale salto = Assoluto(t2 - t1);
  // A thickness of exactly the tolerance, or such a difference of both, belongs to neither case and adds
  // nothing.
  if (t1 == kTolleranza || t2 == kTolleranza || salto == kTolleranza) return 0;
  return salto > kTolleranza ? s / (t2 - t1) * Logaritmo(t2 / t1) : s / t1;
}

Reale CalcolaTorsione(const GeometriaSezione& g, const VettoreParametri& p, Reale& Jt) {
  const LineaMediana M = Mediana(g, p);
  const Reale omega = AreaPoligono({M.begin(), M.end()});
  const Reale L = IntegraleSpessori(M, g, p);
  Jt = L;
  Jt = Assoluto(L) > kTolleranza ? 4 * Potenza(omega, 2) / L : Reale(0);
  return omega;
}

}  // namespace tarvel
