// Torsion against Bredt's closed form; where the axis crosses the web.
#include <gtest/gtest.h>

#include "base/errore.h"
#include "sheartorsion/asse.h"
#include "sheartorsion/tagli.h"
#include "sheartorsion/torsione.h"
#include "tests/aiuti.h"

namespace tarvel::prove {
namespace {

// A rectangular box of even thin walls, b × h on the median line: Jt = 4 (b h)² t / (2 (b + h)).
// The median line rounds the corners off, by about t on sides of 100: 1% of the result.
TEST(Torsione, CassoneSottile) {
  const double t = 0.2, b = 100, h = 80;
  const double web = (1000 - b) / 2;  // the cantilevers carry no torsion
  const VettoreParametri p = Vettore(
      {h + t, t, t, t, t, t, t, t, 0, web - t / 2 - 1, 1, 0, b / 2 - t / 2 - 20, 20, 0, 1000, 0, 0, 0, 0, 0});
  const RecordSezione r = Costruita(p);
  Reale Jt;
  const Reale omega = CalcolaTorsione(r, p, Jt);
  EXPECT_NEAR(omega.Valore(), b * h, 0.01 * b * h);
  EXPECT_NEAR(Jt.Valore(), 4 * b * b * h * h * t / (2 * (b + h)), 0.01 * Jt.Valore());
}

TEST(Torsione, TrattoASpessoreVariabile) {
  const std::tuple<double, double, double, double> casi[] = {
      // both thicknesses, length, ∫ds/t; -1: no thickness
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
  for (const auto& [t1, t2, s, atteso] : casi)
    EXPECT_NEAR(TrattoSpessoreVariabile(t1, t2, s).value_or(-1).Valore(), atteso, 1e-6) << t1 << ' ' << t2;
}

TEST(Asse, LatiAttraversati) {
  const RecordSezione esempio = Costruita(Esempio());
  const std::tuple<double, int, int, double, double> casi[] = {
      // YG, outer and inner edge (0: not found), abscissas of points 14 and 15
      {-61.25, 4, 1, 304.75, 343.95},                // both webs
      {-41.5, 4, 1, 300.8, 340},                     // exactly a vertex of the cell: the first edge wins
      {-37.5, 3, 2, 300, 340 + 4 * 60 / 21.5},       // exactly O4: the edge that ends there wins
      {-28.75, 2, 2, 250, 340 + 12.75 * 60 / 21.5},  // O3, and the upper fillet
      {-15, 1, 3, 0, 400 + 150. / 1.75},
      {-150, 4, 11, 322.5, 379.7},  // lower fillet: the closing edge of the cell
      {-170, 0, 0, 0, 0},           // bottom slab
      {-190, 0, 0, 0, 0},
  };
  for (const auto& [YG, esterno, interno, z14, z15] : casi) {
    RecordSezione r = esempio;
    r.YG = YG;
    r.PuntoY[14] = 1;
    const AsseBaricentrico asse = CercaAsseBaricentrico(r);
    EXPECT_EQ(std::tuple(asse.TrovatoAsse, asse.LatoEsterno, asse.LatoInterno),
              std::tuple(esterno > 0, esterno, interno))
        << YG;
    EXPECT_EQ(r.PuntoY[14], esterno > 0 ? YG : 1);
    EXPECT_NEAR(r.PuntoZ[14].Valore(), z14, 1e-9) << YG;
    EXPECT_NEAR(r.PuntoZ[15].Valore(), z15, 1e-9) << YG;
  }
}

// On an edge that lies on the axis an abscissa is compared with an ordinate.
TEST(Asse, LatiOrizzontali) {
  for (const auto& [YG, z14, z15] : {std::tuple{-30, 300, 250}, {400, 250, 300}, {300, 300, 300}}) {
    RecordSezione r;
    r.YG = YG;
    for (const int v : {1, 2}) r.ImpostaVertice(1, v, {0, YG - 20});
    for (const int v : {3, 4, 5, 6, 11}) r.ImpostaVertice(2, v, {0, YG - 20});
    for (const auto& [poligono, v] : {std::pair{1, 3}, {2, 1}}) {
      r.ImpostaVertice(poligono, v, {250, YG});
      r.ImpostaVertice(poligono, v + 1, {300, YG});
    }
    ASSERT_TRUE(CercaAsseBaricentrico(r).TrovatoAsse);
    EXPECT_EQ(r.PuntoZ[14], z14) << YG;
    EXPECT_EQ(r.PuntoZ[15], z15) << YG;
  }
}

TEST(Tagli, TroppiPuntiAlPunto14) {
  CopieLavoro copie;
  CopiaLavoro& copia = copie.SezioneBaricentrica;
  copia.poligono1.n = 13;
  copia.poligono2.n = 11;
  copia.Jyg = copia.Jzg = 1;
  const auto flusso = [&](int esterno, int interno) {
    return FlussoVy({{}, copie, {}, {true, esterno, interno}}, 14, {});
  };
  EXPECT_EQ(flusso(1, 4), 0);
  EXPECT_EQ(flusso(2, 5), 0);
  EXPECT_THROW(flusso(1, 5), ErroreFatale);
}

}  // namespace
}  // namespace tarvel::prove
