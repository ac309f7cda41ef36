// Torsion against Bredt's closed form; axis crossings, labels and degenerate widths of the points.
#include <gtest/gtest.h>

#include "aiuti.h"
#include "base/errore.h"
#include "properties/caratteristiche.h"
#include "sheartorsion/asse.h"
#include "sheartorsion/tagli.h"
#include "sheartorsion/tau_punti.h"
#include "sheartorsion/torsione.h"

namespace tarvel {
namespace {

using prove::Costruita;
using prove::Esempio;

// A rectangular box of even thin walls, b × h on the median line: Jt = 4 (b h)² t / (2 (b + h)).
// The median line rounds the corners off, by about t on sides of 100: 1% of the result.
TEST(Torsione, CassoneSottile) {
  const double t = 0.2, b = 100, h = 80;
  const double web = (1000 - b) / 2;  // the cantilevers carry no torsion
  const VettoreParametri p = prove::Vettore(
      {h + t, t, t, t, t, t, t, t, 0, web - t / 2 - 1, 1, 0, b / 2 - t / 2 - 20, 20, 0, 1000, 0, 0, 0, 0, 0});
  const RecordSezione r = Costruita(p);
  Reale Jt;
  const Reale omega = CalcolaTorsione(r, p, Jt);
  EXPECT_NEAR(omega.Valore(), b * h, 0.01 * b * h);
  EXPECT_NEAR(Jt.Valore(), 4 * b * b * h * h * t / (2 * (b + h)), 0.01 * Jt.Valore());
}

TEST(Torsione, TrattoASpessoreVariabile) {
  const struct {
    double t1, t2, s, atteso;  // -1: no thickness
  } casi[] = {
      {2, 2, 10, 5},
      {1, 2, 10, 10 * std::log(2.0)},
      {2, 1, 10, 10 * std::log(2.0)},
      {2, 2.00005, 10, 5},  // even, within the tolerance
      {2, 2.00011, 10, 10 / 0.00011 * std::log1p(0.000055)},
      {0, 2, 10, -1},
      {2, 0.00009, 10, -1},
      {2, 2, 0.0001, 0},  // no length
      {0, 0, 0, 0},
      {0.0001, 2, 10, 0},  // exactly the tolerance
  };
  for (const auto& c : casi)
    EXPECT_NEAR(TrattoSpessoreVariabile(c.t1, c.t2, c.s).value_or(-1).Valore(), c.atteso, 1e-6)
        << c.t1 << ' ' << c.t2 << ' ' << c.s;
}

TEST(Asse, LatiAttraversati) {
  const RecordSezione esempio = Costruita(Esempio());
  const struct {
    double YG;
    bool trovato;
    int esterno, interno;
  } casi[] = {
      {-61.2612, true, 4, 1},                       // both webs
      {-41.5, true, 4, 1},                          // exactly a vertex of the cell: the first edge wins
      {-37.5, true, 3, 2},                          // exactly O4: the edge that ends there wins
      {-25, true, 2, 2},                            // cantilever and upper fillet
      {-15, true, 1, 3},      {-150, true, 4, 11},  // lower fillet: the closing edge of the cell
      {-170, false, 4, 0},                          // bottom slab
      {10, false, 0, 0},      {-190, false, 0, 0},
  };
  for (const auto& c : casi) {
    RecordSezione r = esempio;
    r.YG = c.YG;
    r.PuntoY[14] = 1;
    const AsseBaricentrico asse = CercaAsseBaricentrico(r);
    ASSERT_EQ(asse.TrovatoAsse, c.trovato) << c.YG;
    EXPECT_EQ(r.PuntoY[14], c.trovato ? c.YG : 1);
    if (!c.trovato) continue;
    EXPECT_EQ(asse.LatoEsterno, c.esterno) << c.YG;
    EXPECT_EQ(asse.LatoInterno, c.interno) << c.YG;
    EXPECT_GT(r.PuntoZ[15], r.PuntoZ[14]) << c.YG;
  }
}

// An abscissa is compared with an ordinate on horizontal edges: O3 -> O4 at the height YG, crossed by
// no other edge of the outline.
TEST(Asse, LatoOrizzontale) {
  for (const auto& [YG, z] : {std::pair{-30.0, 300.0}, {400.0, 250.0}}) {
    RecordSezione r;
    r.YG = YG;
    for (const int v : {1, 2}) r.ImpostaVertice(1, v, {0, YG - 20});
    r.ImpostaVertice(1, 3, {250, YG});
    r.ImpostaVertice(1, 4, {300, YG});
    r.ImpostaVertice(2, 1, {350, YG - 5});
    r.ImpostaVertice(2, 2, {340, YG + 5});
    ASSERT_TRUE(CercaAsseBaricentrico(r).TrovatoAsse);
    EXPECT_EQ(r.PuntoZ[14], z) << YG;
  }
}

TEST(Tagli, SegnoEdegeneri) {
  const std::vector<Estremo> orario = {{0, 0}, {0, 2}, {3, 2}, {3, 0}};
  const std::vector<Estremo> antiorario(orario.rbegin(), orario.rend());
  const auto m = MomentiStaticiPoligono(orario, 1);
  EXPECT_NEAR(m.MomStaticoParteZ.Valore(), 6, 1e-12);
  EXPECT_NEAR(m.MomStaticoParteY.Valore(), 9, 1e-12);
  EXPECT_EQ(MomentiStaticiPoligono(orario, -1).MomStaticoParteY, -m.MomStaticoParteY);
  EXPECT_NEAR(MomentiStaticiPoligono(antiorario, 1).MomStaticoParteZ.Valore(), -6, 1e-12);
  const std::vector<Estremo> verticale = {{1, 0}, {1.00005, 7}, {1.00003, 3}};
  EXPECT_EQ(MomentiStaticiPoligono(verticale, 1).MomStaticoParteZ, 0);
}

TEST(Tagli, TroppiPuntiAlPunto14) {
  CopieLavoro copie;
  CopiaLavoro& copia = copie.SezioneBaricentrica;
  copia.poligono1.n = 13;
  copia.poligono2.n = 11;
  copia.Jyg = copia.Jzg = 1;
  const auto flusso = [&](int esterno, int interno) {
    return FlussoVy({copie, {}, {true, esterno, interno}}, 14, {});
  };
  EXPECT_EQ(flusso(1, 4), 0);
  EXPECT_EQ(flusso(2, 5), 0);
  EXPECT_THROW(flusso(1, 5), ErroreFatale);
}

TEST(Punti, LarghezzeNulleSegnate) {
  VettoreParametri p = Esempio();
  p[kSolettaMezzeria] = 0;  // no top slab under the crown zone: points 2, 3 and 4 have no width
  RecordSezione r = Costruita(p);
  CalcolaCaratteristiche(r);
  EXPECT_EQ(r.TauVy[2], kSenzaLarghezza);
  EXPECT_EQ(r.TauVy[4], -kSenzaLarghezza);
  EXPECT_EQ(r.TauVy[11], kSenzaLarghezza) << "usa la larghezza del punto 2";
  EXPECT_EQ(r.TauVz[3], kSenzaLarghezza) << "positivo anche dove la formula ha il segno meno";
  EXPECT_EQ(r.TauT[4], kSenzaLarghezza);

  p = Esempio();
  p[kSolettaInferiore] = 0;
  r = Costruita(p);
  CalcolaCaratteristiche(r);
  EXPECT_EQ(r.TauVy[10], kSenzaLarghezza);
  EXPECT_EQ(r.TauT[10], kSenzaLarghezza);
  EXPECT_EQ(r.TauT[6], -Assoluto(r.TauT[9])) << "il minore dei due, negativo";
}

}  // namespace
}  // namespace tarvel
