// The stresses of shear by an independent second method.
#include <gtest/gtest.h>

#include "base/numeri.h"
#include "base/tronca.h"
#include "properties/caratteristiche.h"
#include "sheartorsion/tau_punti.h"
#include "tests/properties/fette.h"

namespace tarvel {
namespace {

using namespace prove;

// The unit shear stress at a point is the flow of all that its wall's width cuts off, by the textbook
// formula, half of it where it parts to both sides; the shear areas are sums of slices too. The outline is
// as stored; slopes, bottom slab and inclinata of the webs count as they are when it is calculated.
TEST(Tensioni, TaglioPerSecondoMetodo) {
  std::mt19937 caso(2024);
  int sulRaccordo = 0;
  for (int n = 0; n < 120; ++n) {
    VettoreParametri p = n == 0 ? Esempio() : Casuale(caso, false);
    if (n % 4 == 0) {  // the axis crosses the lower fillet
      p[kAltezzaTotale] = std::max(p[kAltezzaTotale], Reale(200));
      p[kSolettaInferiore] = p[kAltezzaTotale] * 0.3;
      p[kAltezzaRaccordo] = p[kAltezzaTotale] * 0.4;
      p[kInclinazioneAnime] = 5;
    }
    RecordSezione r = Costruita(p);
    for (const Dimensione d : {kPendenzaSinistra, kPendenzaDestra, kSolettaInferiore, kInclinazioneAnime})
      if (n % 2 == 1) p[d] = p[d] * 1.1 + 0.1;
    CalcolaCaratteristiche(r, p, r.NumVertici);

    const auto O = [&](int v) { return r.O(v); };
    const auto C = [&](int v) { return r.C(v); };
    const Linee linee(r);
    const auto& [tetto, intradosso, volta, pavimento] = linee;
    const Spezzata fondo = {O(5), C(1), C(11), C(10), C(9), O(6)}, soffitto = {O(5), O(6)};
    Spezzata soletta = {O(2), O(3), O(4), O(7), O(8), O(9)};
    soletta.insert(soletta.begin() + 3, volta.begin(), volta.end());
    const Fette intera = InAssiBaricentrici([&](Fette& f) { linee.Aggiungi(f, O(10).z); });
    const Fette superiore = InAssiBaricentrici([&](Fette& f) { f.Aggiungi(tetto, soletta, 0, O(10).z); });
    const Fette inferiore =
        InAssiBaricentrici([&](Fette& f) { f.Aggiungi(fondo, soffitto, O(5).z, O(6).z); });
    const long double area = superiore.A + inferiore.A;

    // The top surface by the slopes: on the left through the origin, which may be the centroid.
    const auto aSinistra = [&](Punto a, const Fette& assi = {}) {
      const Reale zG = static_cast<double>(assi.zG), yG = static_cast<double>(assi.yG);
      return Punto{a.z, yG + (a.z - zG) * p[kPendenzaSinistra] / 100};
    };
    const auto aDestra = [&](Punto a) {
      return Punto{a.z, O(11).y + (a.z - O(11).z) * p[kPendenzaDestra] / 100};
    };
    const Reale inclinata = p[kInclinazioneAnime] / 100, d = C(2).z - O(4).z;
    const Punto P9 = {C(1).z - d, C(1).y - d * inclinata};
    const Reale b2 = O(13).y - C(4).y, b8 = d * std::hypot(1, inclinata.Valore()),
                b13 = aSinistra(O(3)).y - O(3).y, b12 = C(11).y - O(5).y, mezzo = O(12).z;
    // The height of the triangle between O5 and the fillet.
    const Reale b6 =
        Assoluto((C(1).z - O(5).z) * (C(11).y - O(5).y) - (C(11).z - O(5).z) * (C(1).y - O(5).y)) /
        Distanza(C(1), C(11));
    const struct {
      int punto;
      const Fette& J;
      Spezzata sopra, sotto;
      Reale da, a, larghezza;
    } tagli[] = {
        {2, intera, tetto, volta, O(13).z, O(11).z, 2 * b2},
        {6, intera, fondo, soffitto, O(5).z, O(6).z, 2 * b6},
        {8, intera, {O(4), C(2), C(1), C(11), C(10)}, {O(4), O(5), O(6)}, O(4).z, mezzo, b8},
        {9, intera, {P9, C(1), C(11), C(10)}, {P9, O(5), O(6)}, P9.z, mezzo, b8},
        {10, intera, fondo, soffitto, C(11).z, C(10).z, 2 * p[kSolettaInferiore]},
        {11,
         intera,
         {aSinistra(C(3), intera), O(13), O(12), O(11), aDestra(C(7))},
         volta,
         C(3).z,
         C(7).z,
         2 * b2},
        {13, intera, {O(1), aSinistra(O(3))}, intradosso, 0, O(3).z, b13},
        {2, superiore, tetto, soletta, 0, O(13).z, b2},
        {3, superiore, tetto, soletta, 0, O(12).z, O(12).y - C(5).y},
        {4, superiore, tetto, soletta, 0, O(11).z, O(11).y - C(6).y},
        {8, superiore, {O(1), aSinistra(O(4), superiore)}, soletta, 0, O(4).z, aSinistra(O(4)).y - O(4).y},
        {11, superiore, {O(1), aSinistra(C(3), superiore)}, soletta, 0, C(3).z, aSinistra(C(3)).y - C(3).y},
        {10, inferiore, fondo, soffitto, O(5).z, C(11).z, b12},
        {12, inferiore, fondo, soffitto, O(5).z, (O(5).z + O(6).z) / 2, b12},
    };
    const auto vicino = [&](Reale valore, long double atteso, const char* cosa, int punto) {
      EXPECT_NEAR(valore.Valore(), static_cast<double>(atteso), 1e-8 * std::fabs(static_cast<double>(atteso)))
          << cosa << ' ' << punto << ", caso " << n;
    };
    const auto lungoY = [&](const Fette& J, const Fette& S) {
      return -(J.Jz * S.Sy - J.P * S.Sz) / (J.Jz * J.Jy - J.P * J.P);
    };
    const auto lungoZ = [&](const Fette& J, const Fette& S) {
      return -(J.Jy * S.Sz - J.P * S.Sy) / (J.Jz * J.Jy - J.P * J.P) * J.A / area;
    };
    for (const auto& t : tagli) {
      Fette S{t.J.zG, t.J.yG};
      S.Aggiungi(t.sopra, t.sotto, t.da, t.a);
      if (&t.J == &intera)
        vicino(r.TauVy[t.punto], lungoY(t.J, S) / t.larghezza.Valore(), "lungo y", t.punto);
      else
        vicino(r.TauVz[t.punto], lungoZ(t.J, S) / t.larghezza.Valore(), "lungo z", t.punto);
      // Along z this one mixes: coefficients of the upper part, moments of the whole section.
      if (t.punto == 13)
        vicino(
            r.TauVz[13],
            lungoZ(superiore, {0, 0, 0, S.Sz * superiore.Jz / intera.Jz, S.Sy * superiore.Jy / intera.Jy}) /
                b13.Valore(),
            "lungo z", 13);
    }
    Fette sottoAsse{intera.zG, intera.yG};
    linee.Aggiungi(sottoAsse, mezzo, static_cast<double>(intera.yG));
    ASSERT_EQ(r.NumPunti, 14) << "caso " << n;
    vicino(r.TauVy[14], lungoY(intera, sottoAsse) / (r.P(15).z - r.P(14).z).Valore(), "lungo y", 14);
    sulRaccordo += r.P(15).y < C(1).y ? 1 : 0;
    for (const auto& [a, b] : {std::pair{4, 2}, {7, 6}}) EXPECT_EQ(r.TauVy[a], -r.TauVy[b]);

    // The flow of torsion is the same all around the cell.
    const Reale qT = r.TauT[2] * b2, b8T = d * (1 + inclinata * inclinata);
    EXPECT_GT(qT, 0);
    for (const auto& [punto, larghezza] : {std::pair{3, O(12).y - C(5).y},
                                           {11, aSinistra(C(3)).y - C(3).y},
                                           {14, r.P(15).z - r.P(14).z},
                                           {8, -b8T},
                                           {9, -b8T},
                                           {10, -p[kSolettaInferiore]},
                                           {12, -p[kSolettaInferiore]},
                                           {4, b2}})
      vicino(r.TauT[punto], (qT / larghezza).Valore(), "torsione", punto);
    for (const int punto : {6, 7}) EXPECT_EQ(r.TauT[punto], std::max(r.TauT[9], r.TauT[10]));
    for (const auto& [punto, altezza] : {std::pair{10, p[kSolettaInferiore]}, {12, b12}})
      EXPECT_EQ(r.EtichettaPunto[punto].Rifilato(),
                "NODO " + std::to_string(punto) + " TAG2_" + FormatoNumero(Tronca(altezza, 1)));

    const Spezzata cimaSinistra = {aSinistra(O(3)), aSinistra(C(3))},
                   cimaDestra = {aDestra(C(7)), aDestra(O(8))};
    Fette anime;
    anime.Aggiungi(cimaSinistra, intradosso, O(3).z, C(2).z).Aggiungi(cimaSinistra, volta, C(2).z, C(3).z);
    anime.Aggiungi(cimaDestra, volta, C(7).z, C(8).z).Aggiungi(cimaDestra, intradosso, C(8).z, O(8).z);
    anime.Aggiungi(pavimento, intradosso, C(2).z, C(11).z).Aggiungi(pavimento, intradosso, C(10).z, C(8).z);
    vicino(r.Aty, anime.A, "Aty", 0);
    const Spezzata aLivello = {{O(5).z, C(1).y}, C(1), C(11), C(10), C(9), {O(6).z, C(1).y}};
    vicino(r.Atz, superiore.A + Fette{}.Aggiungi(aLivello, soffitto, O(5).z, O(6).z).A, "Atz", 0);
  }
  EXPECT_GT(sulRaccordo, 20);
}

// The section file holds magnitudes; a stress that another point takes over keeps its sign here.
TEST(Tensioni, SegniDoveManca) {
  const struct {
    Dimensione quale;
    double misura;
    decltype(&RecordSezione::TauT) tensione;
    int punto;
    double segno;
  } casi[] = {
      {kSolettaMezzeria, 0, &RecordSezione::TauVy, 4, -kSenzaLarghezza},
      {kSolettaMezzeria, 0, &RecordSezione::TauVz, 3, kSenzaLarghezza},
      {kSolettaInferiore, 0, &RecordSezione::TauT, 12, kSenzaLarghezza},
      {kSolettaInferiore, -5, &RecordSezione::TauVy, 10, kSenzaLarghezza},
      {kSolettaInferiore, -5, &RecordSezione::TauT, 10, 1.03186768e-6},
  };
  for (const auto& c : casi) {
    VettoreParametri p = Esempio();
    p[c.quale] = c.misura;
    RecordSezione r = Costruita(p);
    CalcolaCaratteristiche(r);
    EXPECT_NEAR((r.*c.tensione)[c.punto].Valore(), c.segno, 1e-14) << c.punto;
  }
}

}  // namespace
}  // namespace tarvel
