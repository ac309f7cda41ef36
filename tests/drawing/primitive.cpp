// The primitives and the dimension lines: what they record, where, and what they pass over.
#include <numbers>
#include <vector>

#include "base/errore.h"
#include "drawing/funz_disegno.h"
#include "tests/drawing/attrezzi.h"

namespace tarvel::disegno {
namespace {

using Primitive = ConDisegno;
using Quote = ConDisegno;

Coordinata Punto(std::int32_t i) {
  return Disegno.Coordinate[i];
}

// The lines as "x y x y; ".
std::string Linee() {
  std::ostringstream s;
  for (std::int32_t i = 0; i < Disegno.Linee.numero; ++i) {
    const Coordinata a = Punto(Disegno.Linee[i].primo), b = Punto(Disegno.Linee[i].secondo);
    s << a.x.Valore() << ' ' << a.y.Valore() << ' ' << b.x.Valore() << ' ' << b.y.Valore() << "; ";
  }
  return s.str();
}

TEST_F(Primitive, CoordinateVicineESegmentiCheSiVedono) {
  const struct {
    double dx, dy;
    int altre;  // coordinates stored in between
    bool stessoPunto, siVede;
  } casi[] = {
      {0, 0, 30, true, false},      {0, 0, 31, false, false},           {0.00009, -0.00009, 0, true, false},
      {0.0001, 0, 0, false, false}, {0, 0.0001, 0, false, false},       {0.0001, -0.0001, 0, false, false},
      {0.00011, 0, 0, false, true}, {0.00005, 0.00011, 0, false, true},
  };
  for (const auto& c : casi) {
    Azzera();
    AggiungiCoordinata({-5, -5});
    AggiungiCoordinata({0, 0});
    for (int i = 0; i < c.altre; ++i) AggiungiCoordinata({i, 100});
    EXPECT_EQ(AggiungiCoordinata({c.dx, c.dy}), c.stessoPunto ? 1 : c.altre + 2) << c.dx << ' ' << c.dy;
    Linea({0, 0}, {c.dx, c.dy});
    EXPECT_EQ(Disegno.Linee.numero, c.siVede ? 1 : 0) << c.dx << ' ' << c.dy;
  }
}

TEST_F(Primitive, TabellePiene) {
  const auto riempie = [](std::int32_t& numero, int capienza, const std::string& cosa, auto aggiungi) {
    Disegno.avvisi.clear();
    numero = capienza - 2;
    aggiungi();
    EXPECT_EQ(Disegno.avvisi.size(), 0u);
    for (int volte = 0; volte < 2; ++volte) aggiungi();
    ASSERT_EQ(Disegno.avvisi.size(), 1u);
    EXPECT_EQ(Disegno.avvisi[0], " Numero eccessivo di " + cosa + " ");
    EXPECT_EQ(numero, capienza) << cosa;
  };
  riempie(Disegno.Linee.numero, 50000, "elementi di disegno", [] { Linea({0, 0}, {1, 1}); });
  riempie(Disegno.Archi.numero, 15000, "elementi di disegno", [] { Cerchio({0, 0}, 1); });
  riempie(Disegno.Testi.numero, 15000, "testi", [] { ScriviTesto("a", {0, 0}, 0, 1, 1, 1); });
  Disegno.Coordinate.numero = 32768;
  Disegno.Coordinate[32767] = {3, 4};
  EXPECT_EQ(AggiungiCoordinata({3, 4}), 32767);
  EXPECT_THROW(AggiungiCoordinata({5, 6}), ErroreFatale);  // beyond 16-bit positions
  EXPECT_THROW(AggiungiCoordinata({5, 6}), ErroreFatale);
}

TEST_F(Primitive, RegistranoConOrigineColoreETipo) {
  OrigineX = 10;
  OrigineY = -1;
  ColoreCorrente = 4;
  TipoLineaCorrente = 2;
  Linea({1, 0}, {0, 0});  // coordinate 0 starts the first circle
  Linea({1, 2}, {1, 0}, 0);
  Cerchio({0, 0}, 2, 0);
  Cerchio({1, 2}, 2, {}, 0, std::numbers::pi / 2);
  Cerchio({0, 0}, 0.0001);
  ScriviTesto("x", {1, 2}, -90, 1.25, 0.04, 0);
  ScriviTesto("senza base", {0, 0}, 0, 0, 1, 1);
  EXPECT_EQ(Fotografia(),
            "0x1.6p+3 -0x1p+0 ; 0x1.4p+3 -0x1p+0 ; 0x1.6p+3 0x1p+0 ; 0x1.8p+3 0x1p+0 ; 0x1.6p+3 0x1p+1 ; \n\n"
            "0 1 4 2 ; 2 0 0 2 ; \n1 0 1 0 1 0 ; 2 3 2 4 4 0 ; \n2 -90 12 0 1 x ; \n");
  for (const auto& [misura, decimi] :
       {std::pair{0.05, 0}, {0.15, 2}, {0.25, 2}, {-3, -30}, {3276.74, 32767}}) {
    ScriviTesto("a", {0, 0}, 0, misura, 1, 1);
    EXPECT_EQ(Disegno.Testi[Disegno.Testi.numero - 1].base10, decimi) << misura;
  }
  EXPECT_THROW(ScriviTesto("a", {0, 0}, 0, 1, 3276.75, 1), ErroreFatale);
}

TEST_F(Primitive, SuUnaSuperficie) {
  std::ostringstream visto;
  const auto segna = [&](auto... v) { ((visto << v << ' '), ...); };
  const Superficie superficie{
      [&](Coordinata da, Coordinata a, Colore c) { segna(da.y.Valore(), a.x.Valore(), int{c.b}); },
      [&](Coordinata c, Reale r, Reale da, Reale a, Colore colore) {
        segna(c.y.Valore(), r.Valore(), da.Valore(), a.Valore(), int{colore.g});
      }};
  OrigineY = 5;
  ColoreCorrente = 5;
  Linea({1, 2}, {3, 4}, {}, &superficie);
  Cerchio({1, 2}, 3, 10, 0.5, {}, &superficie);
  Linea({1, 2}, {1, 2}, 9, &superficie);
  EXPECT_EQ(visto.str(), "2 3 0 2 1.5 0.5 0.5 255 ");
  EXPECT_EQ(Disegno.Coordinate.numero, 0);
}

TEST_F(Primitive, CaratteriATratti) {
  // Upright, the second character: glyph abscissas run up, ordinates to the left.
  FlagDisegno = false;
  SpaziaturaCaratteri = 50;
  FontPunti[0xE0] = 2;
  FontX[0xE0][1] = FontY[0xE0][1] = 99;
  FontY[0xE0][0] = 30;
  ScriviTesto("a\xE0", {100, 200}, 90, 10, 6, 3);
  EXPECT_EQ(Linee(), "100 210 94 215; ");
  FontPunti[0xE0] = 101;  // the last point has no partner
  EXPECT_THROW(ScriviTesto("\xE0", {0, 0}, 0, 10, 6, 3), ErroreFatale);
  FontPunti[0xE0] = SpaziaturaCaratteri = 0;
}

// Colours 1 and 5, dots of 5, characters 1 by 2, label at 3, scale 1, extension 4, long side right.
constexpr StileQuota kStile{1, 5, 5, 1, 2, 3, 1, 4, Lato::Destra};

std::string Etichetta(std::int32_t i) {
  const ElementoTesto& t = Disegno.Testi[i];
  std::ostringstream s;
  s << t.stringa << " @ " << Punto(t.posizione).x.Valore() << ' ' << Punto(t.posizione).y.Valore() << " ang "
    << t.angolo;
  return s.str();
}

TEST_F(Quote, LineaPalliniETestimoni) {
  Quota({0, 20}, {100, 20}, kStile);
  EXPECT_EQ(Linee(), "-4 20 104 20; 0 24 0 12; 100 24 100 12; ");
  EXPECT_EQ(Disegno.Archi.numero, 2);
  const std::string andata = Fotografia();
  Azzera();
  Quota({100, 20}, {0, 20}, kStile);
  EXPECT_EQ(Fotografia(), andata);

  Azzera();
  StileQuota stile = kStile;
  stile.lato = Lato::Sinistra;
  Quota({7, 50}, {7, 0}, stile);  // runs upwards: the left is at smaller x
  EXPECT_EQ(Linee(), "7 -4 7 54; -1 0 11 0; -1 50 11 50; ");

  Azzera();
  stile.coloreLinea = kSolaEtichetta;
  Quota("TITOLO", {0, 0}, {100, 0}, stile);
  Quota({3, 3}, {3.00009, 2.99991}, kStile);
  Quota({-2, 0.0001}, {-2, 0}, kStile);  // exactly the tolerance: a label alone
  EXPECT_EQ(Disegno.Linee.numero + Disegno.Archi.numero, 0);
  EXPECT_EQ(Disegno.Testi.numero, 2);
  EXPECT_EQ(Etichetta(0), "TITOLO @ 47 3 ang 0");
  EXPECT_EQ(Etichetta(1), "0 @ -5 -0.49995 ang 90");
}

TEST_F(Quote, ValorePostoEAngoloDellEtichetta) {
  const struct {
    double x1, x2, y1, y2, scala;
    int decimali;
    const char* attesa;
  } casi[] = {
      {5, 5, 0, 100, 100, 0, "10000 @ 2 47.5 ang 90"},
      {0, 30, 0, 40, -1, -7, "50 @ 12 21 ang 53"},
      {30, 0, 0, 40, 1, 0, "50 @ 16.8 22.6 ang -53"},
      {0, 40, 0, 40, 1, 2, "56.57 @ 16.1109 20.3536 ang 45"},
      {0, 0.0001, 9, 0, 1, 0, "9 @ 3.00004 5.00003 ang -90"},
      {0, 2.5, 0, 0, 1, 0, "2 @ 0.75 3 ang 0"},
      {0, 3.5, 0, 0, 1, 0, "4 @ 1.25 3 ang 0"},
      {0, 0.3, 0, 0, 1, 0, "0 @ -0.35 3 ang 0"},
      {0, 0.25, 0, 0, 1, 1, "0.2 @ -1.375 3 ang 0"},
  };
  for (const auto& c : casi) {
    Azzera();
    DecimaliQuote = c.decimali;
    StileQuota stile = kStile;
    stile.scala = c.scala;
    Quota({c.x1, c.y1}, {c.x2, c.y2}, stile);
    EXPECT_EQ(Etichetta(0), c.attesa);
  }
}

TEST_F(Quote, LeEtichetteLungheSiAlternano) {
  StileQuota stile = kStile;
  stile.base = 6;  // a label of two characters just fits a length of 12
  const std::vector<Reale> ascisse = {0, 10, 20, 30, 42, 52};
  for (int volte = 0; volte < 2; ++volte) CatenaQuote(EtichetteCatena::Misure, ascisse, 0, stile);
  Quota({0, 0}, {10, 0}, stile);  // outside a chain it stays on its side
  std::vector<double> ordinate;
  for (std::int32_t i = 0; i < Disegno.Testi.numero; ++i)
    ordinate.push_back(Punto(Disegno.Testi[i].posizione).y.Valore());
  EXPECT_EQ(ordinate, std::vector<double>({-5, 3, -5, 3, -5, -5, 3, -5, 3, -5, 3})) << "each chain anew";

  Azzera();
  CatenaQuote(EtichetteCatena::Nessuna, ascisse, 0, stile);
  EXPECT_EQ(Disegno.Testi.numero, 0);
  EXPECT_EQ(Disegno.Archi.numero, 10);
}

}  // namespace
}  // namespace tarvel::disegno
