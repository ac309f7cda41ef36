// Dimension lines: what is drawn, how it is measured, where the label goes.
#include "drawing/quota.h"

#include <algorithm>
#include <vector>

#include "platform/regione.h"
#include "tests/drawing/attrezzi.h"

namespace tarvel::disegno {
namespace {

using Quote = ConDisegno;

constexpr StileQuota kStile{.coloreLinea = 1,
                            .coloreTesto = 5,
                            .diametroPallino = 5,
                            .base = 1,
                            .altezza = 2,
                            .distanzaTesto = 3,
                            .scala = 1,
                            .estensione = 4,
                            .lato = 0};

// The lines as "x y x y", one a row.
std::string Linee() {
  std::ostringstream s;
  for (std::int32_t i = 0; i < Disegno.Linee.numero; ++i) {
    const Coordinata a = Disegno.Coordinate[Disegno.Linee[i].primo];
    const Coordinata b = Disegno.Coordinate[Disegno.Linee[i].secondo];
    s << a.x.Valore() << ' ' << a.y.Valore() << ' ' << b.x.Valore() << ' ' << b.y.Valore() << '\n';
  }
  return s.str();
}

std::string Etichetta(std::int32_t i) {
  const ElementoTesto& t = Disegno.Testi[i];
  const Coordinata p = Disegno.Coordinate[t.posizione];
  std::ostringstream s;
  s << t.stringa << " @ " << p.x.Valore() << ' ' << p.y.Valore() << " ang " << t.angolo;
  return s.str();
}

TEST_F(Quote, LineaPalliniETestimoni) {
  Quota("", 0, 100, 20, 20, kStile);
  EXPECT_EQ(Linee(), "-4 20 104 20\n0 24 0 12\n100 24 100 12\n");
  EXPECT_EQ(Disegno.Archi.numero, 2);
  const std::string andata = Fotografia();
  Azzera();
  Quota("", 100, 0, 20, 20, kStile);
  EXPECT_EQ(Fotografia(), andata);

  Azzera();
  StileQuota aSinistra = kStile;
  aSinistra.lato = 1;
  Quota(" ", 7, 7, 50, 0, aSinistra);  // runs upwards: the left is at smaller x
  EXPECT_EQ(Linee(), "7 -4 7 54\n-1 0 11 0\n-1 50 11 50\n");
  EXPECT_EQ(Disegno.Testi.numero, 0);

  Azzera();
  StileQuota soloTesto = kStile;
  soloTesto.coloreLinea = -1;
  Quota("TITOLO", 0, 100, 0, 0, soloTesto);
  Quota("", 3, 3.00009, 3, 2.99991, kStile);
  EXPECT_EQ(Linee(), "");
  EXPECT_EQ(Disegno.Archi.numero, 0);
  EXPECT_EQ(Etichetta(0), "TITOLO @ 47 3 ang 0");
}

TEST_F(Quote, PostoEAngoloDellEtichetta) {
  const struct {
    double x1, x2, y1, y2;
    const char* atteso;
  } casi[] = {
      {0, 100, 0, 0, "100 @ 48.5 3 ang 0"},
      {5, 5, 0, 100, "100 @ 2 48.5 ang 90"},
      {5, 5, 100, 0, "100 @ 2 48.5 ang 90"},
      {0, 30, 0, 40, "50 @ 12 21 ang 53"},
      {30, 0, 0, 40, "50 @ 16.8 22.6 ang -53"},
      {0, 40, 0, 40, "57 @ 17.1716 21.4142 ang 45"},
      {0, 0.0001, 9, 0, "9 @ 3.00004 5.00003 ang -90"},
  };
  for (const auto& c : casi) {
    Azzera();
    Quota("", c.x1, c.x2, c.y1, c.y2, kStile);
    EXPECT_EQ(Etichetta(0), c.atteso);
  }
}

TEST_F(Quote, ValoreMisurato) {
  const struct {
    double lunghezza, scala;
    int decimali;
    std::string atteso;
  } casi[] = {
      {2.5, 1, 0, "2"},    {3.5, 1, 0, "4"},       {2.5, -1, -7, "2"},
      {0.3, 1, 0, "0"},    {12, 0.5, 0, "6"},      {0.5, 1, 1, "0,5"},
      {1.25, 1, 1, "1,2"}, {120, 100, 0, "12000"}, {12.3456, 1, 2, "12,35"},
  };
  for (const auto& c : casi) {
    Azzera();
    DecimaliQuote = c.decimali;
    StileQuota stile = kStile;
    stile.scala = c.scala;
    Quota("", 0, c.lunghezza, 0, 0, stile);
    std::string atteso = c.atteso;
    std::replace(atteso.begin(), atteso.end(), ',', SeparatoreDecimale());
    EXPECT_EQ(Disegno.Testi[0].stringa, atteso);
  }
}

TEST_F(Quote, LeEtichetteLungheSiAlternano) {
  // Widths 2 and 3 against lengths 10 and 100: with base 6 a label of 10 does not fit, 100 does.
  StileQuota stile = kStile;
  stile.base = 6;
  const std::vector<Reale> ascisse = {0, 10, 20, 30, 130, 140, 240, 250};
  CatenaQuote(1, ascisse, 0, stile);
  ASSERT_EQ(Disegno.Testi.numero, 7);
  const double attese[] = {-5, 3, -5, 3, -5, 3, -5};
  for (std::int32_t i = 0; i < 7; ++i)
    EXPECT_EQ(Disegno.Coordinate[Disegno.Testi[i].posizione].y, attese[i]) << i;
  // Outside a chain a long label stays on its side.
  Quota("", 0, 10, 50, 50, stile);
  EXPECT_EQ(Disegno.Coordinate[Disegno.Testi[7].posizione].y, 53);

  Azzera();
  CatenaQuote(0, ascisse, 0, stile);
  EXPECT_EQ(Disegno.Testi.numero, 0);
  EXPECT_EQ(Disegno.Archi.numero, 14);
}

}  // namespace
}  // namespace tarvel::disegno
