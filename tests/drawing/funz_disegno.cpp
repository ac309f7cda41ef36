// The primitives that record, and those that draw onto a surface.
#include "drawing/funz_disegno.h"

#include <functional>
#include <numbers>
#include <vector>

#include "base/errore.h"
#include "tests/drawing/attrezzi.h"

namespace tarvel::disegno {
namespace {

using Primitive = ConDisegno;

TEST_F(Primitive, CoordinateRicordateSoloDaVicino) {
  for (const int altre : {0, 30, 31}) {
    Azzera();
    AggiungiCoordinata(-5, -5);
    const int prima = AggiungiCoordinata(7, 8);
    for (int i = 0; i < altre; ++i) AggiungiCoordinata(i, 100);
    EXPECT_EQ(AggiungiCoordinata(7, 8), altre < 31 ? prima : prima + altre + 1) << altre;
  }
}

TEST_F(Primitive, TolleranzaDiCoordinateESegmenti) {
  const struct {
    double dx, dy;
    bool stessoPunto, siVede;
  } casi[] = {
      {0, 0, true, false},
      {0.00009, -0.00009, true, false},
      {0.0001, 0, false, false},
      {0, 0.0001, false, false},
      {0.0001, -0.0001, false, false},
      {0.00011, 0, false, true},
      {0.00005, 0.00011, false, true},
  };
  for (const auto& c : casi) {
    Azzera();
    Linea(0, 0, c.dx, c.dy);
    EXPECT_EQ(Disegno.Linee.numero, c.siVede ? 1 : 0) << c.dx << ' ' << c.dy;
    Azzera();
    AggiungiCoordinata(0, 0);
    EXPECT_EQ(AggiungiCoordinata(c.dx, c.dy), c.stessoPunto ? 0 : 1) << c.dx << ' ' << c.dy;
  }
}

TEST_F(Primitive, TabellePiene) {
  constexpr char kElementi[] =
      R"(message exclamation "Problema" " Numero eccessivo di elementi di disegno ")";
  constexpr char kTesti[] = R"(message exclamation "Problema" " Numero eccessivo di testi ")";
  const struct {
    std::int32_t& numero;
    int capienza;
    std::function<void()> aggiungi;
    std::string avviso;
  } casi[] = {
      {Disegno.Linee.numero, 50000, [] { Linea(0, 0, 1, 1); }, kElementi},
      {Disegno.Archi.numero, 15000, [] { Cerchio(0, 0, 1); }, kElementi},
      {Disegno.Testi.numero, 15000, [] { Testo("a", 0, 0, 0, 1, 1, 1); }, kTesti},
  };
  for (const auto& c : casi) {
    c.numero = c.capienza - 2;
    EXPECT_EQ(Mostrato(c.aggiungi), "");
    EXPECT_EQ(Mostrato(c.aggiungi), c.avviso + " -> ok\n");
    EXPECT_EQ(c.numero, c.capienza);
    EXPECT_EQ(Mostrato(c.aggiungi), "");
    EXPECT_EQ(c.numero, c.capienza);
  }
}

TEST_F(Primitive, PosizioniDiSediciBit) {
  Disegno.Coordinate.numero = 32768;
  Disegno.Coordinate[32767] = {3, 4};
  EXPECT_EQ(AggiungiCoordinata(3, 4), 32767);
  EXPECT_THROW(AggiungiCoordinata(5, 6), ErroreFatale);
  EXPECT_THROW(AggiungiCoordinata(5, 6), ErroreFatale);
}

TEST_F(Primitive, RegistranoConOrigineColoreETipo) {
  OrigineX = 10;
  OrigineY = -1;
  ColoreCorrente = 4;
  TipoLineaCorrente = 2;
  Linea(0, 0, 1, 0);
  Linea(1, 0, 1, 2, 0);
  Cerchio(0, 0, 2, 0);
  Cerchio(1, 2, 2, {}, 0, std::numbers::pi / 2);
  Cerchio(0, 0, 0.0001);
  Testo("x", 1, 2, -90, 1.25, 0.04, 0);
  Testo("senza base", 0, 0, 0, 0, 1, 1);
  EXPECT_EQ(
      Fotografia(),
      "C0 0x1.4p+3 -0x1p+0\nC1 0x1.6p+3 -0x1p+0\nC2 0x1.6p+3 0x1p+0\nC3 0x1.8p+3 0x1p+0\n"
      "C4 0x1.6p+3 0x1p+1\nL0 0 1 4 2\nL1 1 2 0 2\nA0 0 1 0 1 1 0\nA1 2 3 2 4 4 0\nT0 2 -90 12 0 1 x\n");
}

TEST_F(Primitive, DimensioniDiUnTesto) {
  for (const auto& [misura, decimi] :
       {std::pair{0.05, 0}, {0.15, 2}, {0.25, 2}, {-3, -30}, {3276.74, 32767}}) {
    Testo("a", 0, 0, 0, misura, 1, 1);
    EXPECT_EQ(Disegno.Testi[Disegno.Testi.numero - 1].base10, decimi) << misura;
  }
  EXPECT_THROW(Testo("a", 0, 0, 0, 3276.75, 1, 1), ErroreFatale);
  EXPECT_THROW(Testo("a", 0, 0, 0, 1, -3276.9, 1), ErroreFatale);
}

TEST_F(Primitive, SuUnaSuperficie) {
  std::vector<std::string> visto;
  const auto riga = [&](auto... v) {
    std::ostringstream s;
    ((s << v << ' '), ...);
    visto.push_back(s.str());
  };
  const Superficie superficie{[&](Coordinata da, Coordinata a, std::int32_t rgb) {
                                riga(da.x.Valore(), da.y.Valore(), a.x.Valore(), a.y.Valore(), rgb);
                              },
                              [&](Coordinata c, Reale r, Reale da, Reale a, std::int32_t rgb) {
                                riga(c.x.Valore(), c.y.Valore(), r.Valore(), da.Valore(), a.Valore(), rgb);
                              }};
  OrigineX = 5;
  ColoreCorrente = 5;
  Linea(1, 2, 3, 4, {}, &superficie);
  Linea(1, 2, 3, 4, 9, &superficie);
  Cerchio(1, 2, 3, 10, 0.5, {}, &superficie);
  Cerchio(1, 2, 0, 10, 0.5, {}, &superficie);
  EXPECT_EQ(visto, (std::vector<std::string>{"1 2 3 4 0 ", "1 2 3 4 4629503 ", "1 2 1.5 0.5 0.5 16777215 "}));
  EXPECT_EQ(Fotografia(), "");
}

TEST_F(Primitive, CaratteriATratti) {
  // The second character, turned upright: glyph abscissas run up, ordinates to the left.
  FlagDisegno = "";
  SpaziaturaCaratteri = 50;
  FontPunti[0xE0] = 2;
  FontX[0xE0][1] = 99;
  FontY[0xE0][0] = 30;
  FontY[0xE0][1] = 99;
  Testo("a\xE0", 100, 200, 90, 10, 6, 3);
  ASSERT_EQ(Disegno.Linee.numero, 1);
  const auto& linea = Disegno.Linee[0];
  EXPECT_EQ(linea.colore, 3);
  // The sine and cosine of a right angle are good to an ulp of 1, lengths here are below 1000.
  EXPECT_NEAR(Disegno.Coordinate[linea.primo].x.Valore(), 100, 1e-12);
  EXPECT_NEAR(Disegno.Coordinate[linea.primo].y.Valore(), 210, 1e-12);
  EXPECT_NEAR(Disegno.Coordinate[linea.secondo].x.Valore(), 94, 1e-12);
  EXPECT_NEAR(Disegno.Coordinate[linea.secondo].y.Valore(), 215, 1e-12);
  FontPunti[0xE0] = 101;  // the last point has no partner
  EXPECT_THROW(Testo("\xE0", 0, 0, 0, 10, 6, 3), ErroreFatale);
  FontPunti[0xE0] = SpaziaturaCaratteri = 0;
}

}  // namespace
}  // namespace tarvel::disegno
