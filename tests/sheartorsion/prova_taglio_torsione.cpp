// Torsion against Bredt's closed form; where the axis crosses the web.
#include <gtest/gtest.h>

#include "base/errore.h"
#include "sheartorsion/asse.h"
#include "sheartorsion/tagli.h"
#include "sheartorsion/torsione.h"
#include "tests/aiuti.h"

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
    int esterno, interno;  // 0: not found
    double z14, z15;
  } casi[] = {
      {-61.25, 4, 1, 304.75, 343.95},                // both webs
      {-41.5, 4, 1, 300.8, 340},                     // exactly a vertex of the cell: the first edge wins
      {-37.5, 3, 2, 300, 340 + 4 * 60 / 21.5},       // exactly O4: the edge that ends there wins
      {-28.75, 2, 2, 250, 340 + 12.75 * 60 / 21.5},  // O3, and the upper fillet
      {-15, 1, 3, 0, 400 + 150. / 1.75},
      {-150, 4, 11, 322.5, 379.7},  // lower fillet: the closing edge of the cell
      {-170, 0, 0, 0, 0},           // bottom slab
      {-190, 0, 0, 0, 0},
  };
  for (const auto& c : casi) {
    RecordSezione r = esempio;
    r.YG = c.YG;
    r.PuntoY[14] = 1;
    const AsseBaricentrico asse = CercaAsseBaricentrico(r);
    ASSERT_EQ(asse.TrovatoAsse, c.esterno > 0) << c.YG;
    EXPECT_EQ(r.PuntoY[14], c.esterno > 0 ? c.YG : 1);
    EXPECT_EQ(asse.LatoEsterno, c.esterno) << c.YG;
    EXPECT_EQ(asse.LatoInterno, c.interno) << c.YG;
    EXPECT_NEAR(r.PuntoZ[14].Valore(), c.z14, 1e-9) << c.YG;
    EXPECT_NEAR(r.PuntoZ[15].Valore(), c.z15, 1e-9) << c.YG;
  }
}

// On an edge that lies on the axis an abscissa is compared with an ordinate.
TEST(Asse, LatiOrizzontali) {
  const struct { double YG, z14, z15; } casi[] = {{-30, 300, 250}, {400, 250, 300}, {300, 300, 300}};
  for (const auto& c : casi) {
    RecordSezione r;
    r.YG = c.YG;
    for (const int v : {1, 2}) r.ImpostaVertice(1, v, {0, c.YG - 20});
    for (const int v : {3, 4, 5, 6, 11}) r.ImpostaVertice(2, v, {0, c.YG - 20});
    for (const auto& [poligono, v] : {std::pair{1, 3}, {2, 1}}) {
      r.ImpostaVertice(poligono, v, {250, c.YG});
      r.ImpostaVertice(poligono, v + 1, {300, c.YG});
    }
    ASSERT_TRUE(CercaAsseBaricentrico(r).TrovatoAsse);
    EXPECT_EQ(r.PuntoZ[14], c.z14) << c.YG;
    EXPECT_EQ(r.PuntoZ[15], c.z15) << c.YG;
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
}  // namespace tarvel
