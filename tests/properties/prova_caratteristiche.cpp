// Properties in rungs: closed forms, the worked example, an independent second method, invariances.
#include <gtest/gtest.h>

#include <latch>
#include <thread>
#include <vector>

#include "aiuti.h"
#include "base/errore.h"
#include "base/numeri.h"
#include "base/tronca.h"
#include "properties/caratteristiche.h"
#include "properties/integrali.h"

namespace tarvel {
namespace {

using prove::Casuale;
using prove::Costruita;
using prove::Esempio;

// Calculated twice: nothing of the first time may be left in the second.
RecordSezione Calcolata(const VettoreParametri& p) {
  RecordSezione r = Costruita(p);
  CalcolaCaratteristiche(r);
  CalcolaCaratteristiche(r);
  return r;
}

// Integrals over polygons by triangles fanned out from the origin, in long double: nothing in common
// with the edge formulas but the vertices.
struct Triangoli {
  long double A = 0, Sz = 0, Sy = 0, Izz = 0, Iyy = 0, Izy = 0;  // ∫dA, ∫z, ∫y, ∫z², ∫y², ∫zy

  void Aggiungi(const std::vector<Punto>& poligono, long double zG = 0, long double yG = 0) {
    for (std::size_t i = 0; i < poligono.size(); ++i) {
      const Punto &p = poligono[i], &q = poligono[(i + 1) % poligono.size()];
      const long double z1 = p.z.Valore() - zG, y1 = p.y.Valore() - yG, z2 = q.z.Valore() - zG,
                        y2 = q.y.Valore() - yG;
      const long double area = (z1 * y2 - z2 * y1) / 2;
      A += area;
      Sz += area * (z1 + z2) / 3;
      Sy += area * (y1 + y2) / 3;
      Izz += area * (z1 * z1 + z1 * z2 + z2 * z2) / 6;
      Iyy += area * (y1 * y1 + y1 * y2 + y2 * y2) / 6;
      Izy += area * (2 * z1 * y1 + 2 * z2 * y2 + z1 * y2 + z2 * y1) / 12;
    }
  }
};

std::vector<Punto> Poligono(const RecordSezione& r, int p) {
  std::vector<Punto> vertici;
  for (int v = 1; v <= r.NumVertici[p]; ++v) vertici.push_back(r.Vertice(p, v));
  return vertici;
}

TEST(Integrali, RettangoloInFormaChiusa) {
  const double b = 3, h = 2, y0 = -1.5;  // the axis y = 0 above it; lower edge at y0 - h
  const Estremo rettangolo[] = {{0, y0 - h}, {b, y0 - h}, {b, y0}, {0, y0}};
  Reale A, Sy, Sz, Iy, Iz, Izy;
  PerOgniLato<Estremo>(rettangolo, [&](const Estremo& da, const Estremo& a) {
    const auto s = SegmentoDi(da, a);
    if (!s) return;
    A -= AreaTrapezio(da, a);
    Sy -= MomStaticoY(*s);
    Sz -= MomStaticoZ(*s);
    Iy -= MomInerziaY(*s);
    Iz -= MomInerziaZ(*s);
    Izy -= MomCentrifugo(*s);
  });
  const double yG = y0 - h / 2;
  EXPECT_NEAR(A.Valore(), b * h, 1e-12);
  EXPECT_NEAR(Sy.Valore(), b * h * b / 2, 1e-12);
  EXPECT_NEAR(Sz.Valore(), b * h * yG, 1e-12);
  EXPECT_NEAR(Iy.Valore(), b * b * b * h / 3, 1e-12);
  EXPECT_NEAR(Iz.Valore(), b * h * h * h / 12 + b * h * yG * yG, 1e-12);
  EXPECT_NEAR(Izy.Valore(), b * h * yG * b / 2, 1e-12);
}

TEST(Integrali, TolleranzaDelLatoVerticale) {
  const auto contribuisce = [](double z1, double z2) { return SegmentoDi({z1, 0}, {z2, 5}).has_value(); };
  EXPECT_FALSE(contribuisce(1, 1.0000999));
  EXPECT_TRUE(contribuisce(1, 1.0001001));
  EXPECT_TRUE(contribuisce(1.0001001, 1));
}

TEST(Caratteristiche, Esempio) {
  const RecordSezione r = Calcolata(Esempio());
  EXPECT_EQ(r.BaseTotale, 1200);
  EXPECT_EQ(r.AltezzaTotale, 200);
  EXPECT_NEAR(r.An.Valore(), 60917.2, 1e-8);
  EXPECT_NEAR(r.ZG.Valore(), 600, 1e-9);
  EXPECT_NEAR(r.YG.Valore(), -61.2612, 5e-5);
  EXPECT_NEAR(r.Jyg.Valore(), 5212229845.03, 5e-3);
  EXPECT_NEAR(r.Jzg.Valore(), 307923297.41, 5e-3);
  EXPECT_NEAR(r.Aty.Valore(), 26402.2, 1e-9);
  EXPECT_NEAR(r.Atz.Valore(), 52633, 1e-9);
  EXPECT_EQ(r.NumPunti, 14);
  EXPECT_EQ(r.Sigla, "A");

  // On the edge of a hundredth: the last digit of the double decides.
  const RecordSezione sulFilo =
      Calcolata(prove::Vettore({299, 26,    15.2,  36.1, 76,  59,  35,   21.6, 23,  93.8, 24.9,
                                11,  28.78, 35.26, 19,   521, 1.3, 4.53, 1,    .16, 0}));
  EXPECT_EQ(FormatoNumero(Tronca(sulFilo.Atz, 2)), "31683.57");
}

// Relative tolerance: on a web of slope m = 50 the edge formula of Jzg subtracts terms of m³ z⁴, up to
// 1e15 for a result of 1e8, which costs seven of the sixteen digits.
TEST(Caratteristiche, SecondoMetodoSuCentoSezioni) {
  std::mt19937 caso(1961);
  for (int n = 0; n < 240; ++n) {
    const VettoreParametri p = Casuale(caso, n % 2 == 0);
    const RecordSezione r = Calcolata(p);
    Triangoli lordi, baricentrici;
    for (const int i : {1, 2}) lordi.Aggiungi(Poligono(r, i));
    const long double zG = lordi.Sz / lordi.A, yG = lordi.Sy / lordi.A;
    for (const int i : {1, 2}) baricentrici.Aggiungi(Poligono(r, i), zG, yG);
    const auto vicini = [&](Reale valore, long double atteso, const char* cosa) {
      EXPECT_NEAR(valore.Valore(), static_cast<double>(atteso), 1e-9 * std::fabs(static_cast<double>(atteso)))
          << cosa << ", caso " << n;
    };
    vicini(r.An, lordi.A, "An");
    vicini(r.ZG, zG, "ZG");
    vicini(r.YG, yG, "YG");
    vicini(r.Jyg, baricentrici.Izz, "Jyg");
    vicini(r.Jzg, baricentrici.Iyy, "Jzg");
    if (n % 2 == 0) vicini(r.ZG, p[kLarghezzaTotale].Valore() / 2, "ZG di una sezione simmetrica");

    // Moved as a whole, and in metres: what does not depend on the place or the unit stays.
    RecordSezione spostata = r;
    for (const int i : {1, 2})
      for (int v = 1; v <= r.NumVertici[i]; ++v)
        spostata.ImpostaVertice(i, v, {r.Vertice(i, v).z + 300, r.Vertice(i, v).y - 100});
    CalcolaCaratteristiche(spostata, p, r.NumVertici);
    vicini(spostata.YG, yG - 100, "YG spostato");
    vicini(spostata.Jyg, baricentrici.Izz, "Jyg spostato");
    VettoreParametri inMetri = p;
    for (int i = 0; i <= kLarghezzaTotale; ++i) inMetri[i] = p[i] / 100;
    const RecordSezione metri = Calcolata(inMetri);
    vicini(metri.Jt * 1e8, r.Jt.Valore(), "Jt in metri");
    vicini(metri.TauVy[8] / 1e4, r.TauVy[8].Valore(), "TauVy in metri");
  }
}

// Shear along y at the points whose part is cut off plainly, by the textbook formula on triangles.
TEST(Caratteristiche, TensioniPerSecondoMetodo) {
  std::mt19937 caso(2024);
  for (int n = 0; n < 120; ++n) {
    const VettoreParametri p = Casuale(caso, false);
    const RecordSezione r = Calcolata(p);
    const long double zG = r.ZG.Valore(), yG = r.YG.Valore();
    Triangoli tutto;
    for (const int i : {1, 2}) tutto.Aggiungi(Poligono(r, i), zG, yG);
    const auto flusso = [&](const std::vector<Punto>& parte) {
      Triangoli t;
      t.Aggiungi(parte, zG, yG);
      // The parts run clockwise where triangles count counter-clockwise.
      return static_cast<double>((tutto.Izz * t.Sy - tutto.Izy * t.Sz) /
                                 (tutto.Izz * tutto.Iyy - tutto.Izy * tutto.Izy));
    };
    const auto O = [&](int v) { return r.O(v); };
    const auto C = [&](int v) { return r.C(v); };
    const double p1 = p[kSolettaInferiore].Valore(), b2 = std::fabs((O(13).y - C(4).y).Valore());
    const double b8 =
        std::fabs((C(2).z - O(4).z).Valore()) * std::hypot(1, p[kInclinazioneAnime].Valore() / 100);
    const double tau10 = flusso({C(11), C(10), {C(10).z, O(5).y}, {C(11).z, O(5).y}}) / 2 / p1;
    const double tau2 = flusso({O(13), O(12), O(11), C(6), C(5), C(4)}) / 2 / b2;
    const double tau8 = flusso({O(4), C(2), C(1), C(11), {O(12).z, C(11).y}, {O(12).z, O(5).y}, O(5)}) / b8;
    const double scala = std::max({std::fabs(tau10), std::fabs(tau2), std::fabs(tau8)});
    EXPECT_NEAR(r.TauVy[10].Valore(), tau10, 1e-8 * scala) << "caso " << n;
    EXPECT_NEAR(r.TauVy[2].Valore(), tau2, 1e-8 * scala) << "caso " << n;
    EXPECT_NEAR(r.TauVy[8].Valore(), tau8, 1e-8 * scala) << "caso " << n;
    EXPECT_EQ(r.TauVy[4], -r.TauVy[2]);
    EXPECT_EQ(r.TauVy[7], -r.TauVy[6]);
  }
}

// Beyond a double is fatal and says where; what came before it stays, to the last edge.
TEST(Caratteristiche, OverflowLasciaICampiPrecedenti) {
  const struct {
    double scala, An;
    const char* dove;
  } casi[] = {{1e77, 60917.2, "momenti d'inerzia"}, {1e110, (20 + 28.75) / 2 * 250, "area e baricentro"}};
  for (const auto& c : casi) {
    VettoreParametri p = Esempio();
    for (int i = 0; i <= kLarghezzaTotale; ++i) p[i] = p[i] * c.scala;
    RecordSezione r = Costruita(p);
    r.Sigla = "prima";
    r.Aty = -7;
    try {
      CalcolaCaratteristiche(r);
      FAIL() << "nessun errore";
    } catch (const ErroreFatale& e) {
      EXPECT_EQ(e.tipo, TipoErrore::Overflow);
      EXPECT_EQ(e.dove, c.dove);
    }
    EXPECT_NEAR((r.BaseTotale / c.scala).Valore(), 1200, 1e-9);
    EXPECT_NEAR((r.An / c.scala / c.scala).Valore(), c.An, 1e-6);
    EXPECT_EQ(r.Aty, -7);
    EXPECT_EQ(r.Sigla, "prima");
  }
}

// Two threads on two sections, while the program's own state is of neither.
TEST(Caratteristiche, DiQualunqueSezioneDaOgniThread) {
  std::mt19937 caso(11);
  const auto riassunto = [](const RecordSezione& r) {
    return std::vector<Reale>{r.Jyg,     r.Jzg,       r.Jt,       r.Aty,      r.Atz,
                              r.TauT[9], r.TauVy[11], r.TauVz[8], r.PuntoY[9]};
  };
  std::latch insieme(2);
  const auto lavoro = [&](const VettoreParametri& p, const RecordSezione& attesa, int& diversi) {
    insieme.arrive_and_wait();
    for (int n = 0; n < 5000; ++n) {
      RecordSezione r = attesa;
      CalcolaCaratteristiche(r, p, attesa.NumVertici);
      diversi += riassunto(r) != riassunto(attesa);
    }
  };
  const VettoreParametri p1 = Casuale(caso, false), p2 = Casuale(caso, false);
  const RecordSezione r1 = Calcolata(p1), r2 = Calcolata(p2);
  ParametriSezione = {};
  VerticiPoligono = {};
  int diversi1 = 0, diversi2 = 0;
  std::thread altro([&] { lavoro(p2, r2, diversi2); });
  lavoro(p1, r1, diversi1);
  altro.join();
  EXPECT_EQ(diversi1 + diversi2, 0);
}

}  // namespace
}  // namespace tarvel
