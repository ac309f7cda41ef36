// Properties: figures that a last bit decides, invariances, faults.
#include <gtest/gtest.h>

#include <functional>

#include "base/errore.h"
#include "base/tronca.h"
#include "properties/calcolo/caratteristiche.h"
#include "properties/integrali.h"
#include "tests/aiuti.h"

namespace tarvel {
namespace {

using prove::Casuale;
using prove::Costruita;
using prove::Esempio;
using prove::Vettore;

// Calculated twice, since nothing of the first time may be left in the second.
RecordSezione Calcolata(const VettoreParametri& p) {
  RecordSezione r = Costruita(p);
  CalcolaCaratteristiche(r);
  CalcolaCaratteristiche(r);
  return r;
}

TEST(Integrali, TolleranzaDelLatoVerticale) {
  const auto contribuisce = [](double z1, double z2) { return SegmentoDi({z1, 0}, {z2, 5}).has_value(); };
  EXPECT_FALSE(contribuisce(1, 1.0000999));
  EXPECT_TRUE(contribuisce(1, 1.0001001));
  EXPECT_TRUE(contribuisce(1.0001001, 1));
}

TEST(Caratteristiche, LarghezzaDelFondoSeSporge) {
  VettoreParametri larga = Esempio();
  EXPECT_EQ(Calcolata(larga).BaseTotale, 1200);
  larga[kInclinazioneAnime] = -400;
  EXPECT_EQ(Calcolata(larga).BaseTotale, 1780);
}

// Sections where the last bit of a square decides the digits that remain of a figure when it is cut.
TEST(Caratteristiche, TagliSulFilo) {
  const RecordSezione a = Calcolata(Vettore({229.1, 24.7, 53.4, 98.6, 57.1, 81, 35.3, 45.1, 68.4, 314.7, 84.7,
                                             25.4,  44.6, 98,   51.4, 1200, .4, 1.1,  -1.1, -.4,  -2.9}));
  EXPECT_EQ(Tronca(a.ZG, 2), 600);
  const RecordSezione b =
      Calcolata(Vettore({54, 16, 8, 8, 8, 8, 8, 8, 5, 10, 3, 0, 0, 0, 3, 40, 0, 0, 0, 0, 20}));
  EXPECT_EQ(b.EtichettaPunto[14].Rifilato(), "NODO 14 TAG1_6.9");
}

// Mirrored slopes give the mirrored outline: the right side is measured from the right end, except that the
// inner faces lean as the left web does. A section that is moved as a whole, or measured in metres, keeps the
// properties that do not depend on the place or the unit.
TEST(Caratteristiche, Invarianze) {
  std::mt19937 caso(1962);
  for (int n = 0; n < 240; ++n) {
    const VettoreParametri p = Casuale(caso, n % 2 == 0);
    const RecordSezione r = Calcolata(p);
    const auto vicini = [&](Reale valore, Reale atteso, const char* cosa) {
      EXPECT_NEAR(valore.Valore(), atteso.Valore(), 1e-9 * Assoluto(atteso).Valore())
          << cosa << ", caso " << n;
    };
    const Reale L = p[kLarghezzaTotale];
    for (int v = 1; v <= 13 && n % 2 == 0; ++v) {
      const int altro = v <= 10 ? 11 - v : 24 - v;
      vicini(r.O(altro).z, L - r.O(v).z, "z specchiata");
      EXPECT_NEAR(r.O(altro).y.Valore(), r.O(v).y.Valore(), 1e-9) << "caso " << n << " O" << v;
      if (v <= 11) vicini(r.C(v <= 9 ? 10 - v : 21 - v).z, L - r.C(v).z, "z specchiata della cella");
    }
    if (n % 2 == 0) vicini(r.ZG, L / 2, "ZG");

    RecordSezione spostata = r;
    for (const int i : {1, 2})
      for (int v = 1; v <= r.NumVertici[i]; ++v)
        spostata.ImpostaVertice(i, v, {r.Vertice(i, v).z + 300, r.Vertice(i, v).y - 100});
    CalcolaCaratteristiche(spostata, p, r.NumVertici);
    vicini(spostata.YG, r.YG - 100, "YG spostato");
    vicini(spostata.Jyg, r.Jyg, "Jyg spostato");
    VettoreParametri inMetri = p;
    for (int i = 0; i <= kLarghezzaTotale; ++i) inMetri[i] = p[i] / 100;
    const RecordSezione metri = Calcolata(inMetri);
    vicini(metri.Jt * 1e8, r.Jt, "Jt in metri");
    vicini(metri.TauVy[8] / 1e4, r.TauVy[8], "TauVy in metri");
  }
}

// A fault is fatal and names its step; what was calculated before it stays, to the last edge.
TEST(Caratteristiche, OgniPassoDiceIlSuoNomeELasciaICampiPrecedenti) {
  using Conteggi = ConteggiVertici;
  const auto ingrandita = [](double scala) {
    return [scala](RecordSezione& r, VettoreParametri& p, Conteggi&) {
      for (int i = 0; i <= kLarghezzaTotale; ++i) p[i] = p[i] * scala;
      CostruisciGeometria(r, p);
    };
  };
  const struct {
    const char* dove;
    double An;
    std::function<void(RecordSezione&, VettoreParametri&, Conteggi&)> guasta;
  } casi[] = {
      {"ingombri", -7, [](auto& r, auto&, auto&) { r.VerticeY(1, 1) = -(r.VerticeY(1, 5) = 1e308); }},
      {"area e baricentro", (20 + 28.75) / 2 * 250 * 1e220, ingrandita(1e110)},
      {"momenti d'inerzia", 60917.2 * 1e154, ingrandita(1e77)},
      {"costante di torsione", 60917.2, [](auto&, auto& p, auto&) { p[kPendenzaSinistra] = 1e307; }},
      {"aree a taglio", 0, [](auto& r, auto&, auto& n) { n = {}, r.VerticeY(1, 3) = 1e308; }},
      // The lower part has an edge that is very high and nearly upright, O5 to C1.
      {"parti superiore e inferiore", (600 + 541) / 2. * 1e99,
       [](auto& r, auto&, auto&) {
         r.VerticeY(1, 5) = r.VerticeY(1, 6) = -1e99;
         r.VerticeZ(2, 1) = r.O(5).z + 0.00011;
       }},
      {"tensioni nei punti caratteristici", 0, [](auto&, auto&, auto& n) { n = {}; }},
  };
  for (const auto& c : casi) {
    VettoreParametri p = Esempio();
    RecordSezione r = Costruita(p);
    Conteggi vertici = r.NumVertici;
    c.guasta(r, p, vertici);
    r.Sigla = "prima";
    r.An = r.TauVz[14] = -7;
    Testo dove;
    try {
      CalcolaCaratteristiche(r, p, vertici);
    } catch (const ErroreFatale& e) {
      dove = e.dove;
    }
    EXPECT_EQ(dove, c.dove);
    EXPECT_NEAR(r.An.Valore(), c.An, std::fabs(c.An) * 1e-10) << c.dove;
    EXPECT_EQ(r.TauVz[14], -7) << c.dove;
    EXPECT_EQ(r.Sigla, "prima") << c.dove;
  }
}

}  // namespace
}  // namespace tarvel
