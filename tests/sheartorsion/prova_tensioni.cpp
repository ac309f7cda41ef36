// Area, moments, shear areas and stresses by an independent second method.
#include <gtest/gtest.h>

#include "base/numeri.h"
#include "base/tronca.h"
#include "properties/caratteristiche.h"
#include "sheartorsion/tau_punti.h"
#include "tests/properties/fette.h"

namespace tarvel {
namespace {

using namespace prove;

// Relative tolerance: on a web of slope m = 50 the edge formula of Jzg subtracts terms of m³ z⁴, up to
// 1e15 for a result of 1e8, which costs seven of the sixteen digits.
//
// The unit shear stress at a point is the flow of all that its wall's width cuts off, by the textbook
// formula, half of it where it parts to both sides; the shear areas are sums of slices too. The outline is
// as stored; slopes, bottom slab and lean of the webs count as they are when it is calculated.
TEST(Tensioni, SecondoMetodo) {
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

    const auto reale = [](long double x) { return Reale(static_cast<double>(x)); };
    // Flows of the part between two broken lines: along y, and along z with the share of each part.
    const auto y = [&](const Fette& S) {
      return reale(-(intera.Jz * S.Sy - intera.P * S.Sz) / (intera.Jz * intera.Jy - intera.P * intera.P));
    };
    const auto z = [&](const Fette& J, const Fette& S) {
      return reale(-(J.Jy * S.Sz - J.P * S.Sy) / (J.Jz * J.Jy - J.P * J.P) * J.A /
                   (superiore.A + inferiore.A));
    };
    const auto tra = [](const Fette& assi, const Spezzata& sopra, const Spezzata& sotto, Reale da, Reale a) {
      return Fette{assi.zG, assi.yG}.Aggiungi(sopra, sotto, da, a);
    };
    // The top surface by the slopes: on the left through the origin, which may be the centroid.
    const auto aSinistra = [&](Punto a, const Fette& assi = {}) {
      return Punto{a.z, reale(assi.yG) + (a.z - reale(assi.zG)) * p[kPendenzaSinistra] / 100};
    };
    const auto aDestra = [&](Punto a) {
      return Punto{a.z, O(11).y + (a.z - O(11).z) * p[kPendenzaDestra] / 100};
    };
    const Reale inclinata = p[kInclinazioneAnime] / 100, d = C(2).z - O(4).z, mezzo = O(12).z,
                p1 = p[kSolettaInferiore];
    const Punto P9 = {C(1).z - d, C(1).y - d * inclinata};
    const Reale b2 = O(13).y - C(4).y, b3 = O(12).y - C(5).y, b4 = O(11).y - C(6).y;
    const Reale b8 = d * std::hypot(1, inclinata.Valore()), b8T = d * (1 + inclinata * inclinata),
                b8z = aSinistra(O(4)).y - O(4).y;
    const Reale b11 = aSinistra(C(3)).y - C(3).y, b12 = C(11).y - O(5).y, b13 = aSinistra(O(3)).y - O(3).y;
    // The height of the triangle between O5 and the fillet.
    const Reale b6 =
        Assoluto((C(1).z - O(5).z) * b12 - (C(11).z - O(5).z) * (C(1).y - O(5).y)) / Distanza(C(1), C(11));
    const Reale b14 = r.P(15).z - r.P(14).z, qT = r.TauT[2] * b2;

    const Spezzata tetto11 = {aSinistra(C(3), intera), O(13), O(12), O(11), aDestra(C(7))};
    const Fette sbalzo = tra(intera, {O(1), aSinistra(O(3))}, intradosso, 0, O(3).z);
    // Along z this one mixes: coefficients of the upper part, moments of the whole section.
    const Fette misto{0, 0, 0, sbalzo.Sz * superiore.Jz / intera.Jz, sbalzo.Sy * superiore.Jy / intera.Jy};
    Fette sottoAsse{intera.zG, intera.yG}, anime;
    linee.Aggiungi(sottoAsse, mezzo, reale(intera.yG));
    const Spezzata cimaSinistra = {aSinistra(O(3)), aSinistra(C(3))},
                   cimaDestra = {aDestra(C(7)), aDestra(O(8))};
    anime.Aggiungi(cimaSinistra, intradosso, O(3).z, C(2).z).Aggiungi(cimaSinistra, volta, C(2).z, C(3).z);
    anime.Aggiungi(cimaDestra, volta, C(7).z, C(8).z).Aggiungi(cimaDestra, intradosso, C(8).z, O(8).z);
    anime.Aggiungi(pavimento, intradosso, C(2).z, C(11).z).Aggiungi(pavimento, intradosso, C(10).z, C(8).z);
    const Spezzata aLivello = {{O(5).z, C(1).y}, C(1), C(11), C(10), C(9), {O(6).z, C(1).y}};

    const std::tuple<const char*, Reale, Reale> casi[] = {
        {"An", r.An, reale(intera.A)},
        {"ZG", r.ZG, reale(intera.zG)},
        {"YG", r.YG, reale(intera.yG)},
        {"Jyg", r.Jyg, reale(intera.Jz)},
        {"Jzg", r.Jzg, reale(intera.Jy)},
        {"Aty", r.Aty, reale(anime.A)},
        {"Atz", r.Atz, reale(superiore.A + tra({}, aLivello, soffitto, O(5).z, O(6).z).A)},
        {"Vy 2", r.TauVy[2], y(tra(intera, tetto, volta, O(13).z, O(11).z)) / (2 * b2)},
        {"Vy 6", r.TauVy[6], y(tra(intera, fondo, soffitto, O(5).z, O(6).z)) / (2 * b6)},
        {"Vy 8", r.TauVy[8],
         y(tra(intera, {O(4), C(2), C(1), C(11), C(10)}, {O(4), O(5), O(6)}, O(4).z, mezzo)) / b8},
        {"Vy 9", r.TauVy[9], y(tra(intera, {P9, C(1), C(11), C(10)}, {P9, O(5), O(6)}, P9.z, mezzo)) / b8},
        {"Vy 10", r.TauVy[10], y(tra(intera, fondo, soffitto, C(11).z, C(10).z)) / (2 * p1)},
        {"Vy 11", r.TauVy[11], y(tra(intera, tetto11, volta, C(3).z, C(7).z)) / (2 * b2)},
        {"Vy 13", r.TauVy[13], y(sbalzo) / b13},
        {"Vy 14", r.TauVy[14], y(sottoAsse) / b14},
        {"Vz 2", r.TauVz[2], z(superiore, tra(superiore, tetto, soletta, 0, O(13).z)) / b2},
        {"Vz 3", r.TauVz[3], z(superiore, tra(superiore, tetto, soletta, 0, O(12).z)) / b3},
        {"Vz 4", r.TauVz[4], z(superiore, tra(superiore, tetto, soletta, 0, O(11).z)) / b4},
        {"Vz 8", r.TauVz[8],
         z(superiore, tra(superiore, {O(1), aSinistra(O(4), superiore)}, soletta, 0, O(4).z)) / b8z},
        {"Vz 11", r.TauVz[11],
         z(superiore, tra(superiore, {O(1), aSinistra(C(3), superiore)}, soletta, 0, C(3).z)) / b11},
        {"Vz 10", r.TauVz[10], z(inferiore, tra(inferiore, fondo, soffitto, O(5).z, C(11).z)) / b12},
        {"Vz 12", r.TauVz[12],
         z(inferiore, tra(inferiore, fondo, soffitto, O(5).z, (O(5).z + O(6).z) / 2)) / b12},
        {"Vz 13", r.TauVz[13], z(superiore, misto) / b13},
        // The flow of torsion is the same all around the cell.
        {"T 3", r.TauT[3], qT / b3},
        {"T 4", r.TauT[4], qT / b2},
        {"T 8", r.TauT[8], -qT / b8T},
        {"T 9", r.TauT[9], -qT / b8T},
        {"T 10", r.TauT[10], -qT / p1},
        {"T 11", r.TauT[11], qT / b11},
        {"T 12", r.TauT[12], -qT / p1},
        {"T 14", r.TauT[14], qT / b14},
    };
    for (const auto& [cosa, valore, atteso] : casi)
      EXPECT_NEAR(valore.Valore(), atteso.Valore(), 1e-8 * Assoluto(atteso).Valore())
          << cosa << ", caso " << n;
    EXPECT_GT(qT, 0);
    for (const auto& [a, b] : {std::pair{4, 2}, {7, 6}}) EXPECT_EQ(r.TauVy[a], -r.TauVy[b]);
    for (const int punto : {6, 7}) EXPECT_EQ(r.TauT[punto], std::max(r.TauT[9], r.TauT[10]));
    EXPECT_EQ(r.EtichettaPunto[10].Rifilato(), "NODO 10 TAG2_" + FormatoNumero(Tronca(p1, 1)));
    EXPECT_EQ(r.EtichettaPunto[12].Rifilato(), "NODO 12 TAG2_" + FormatoNumero(Tronca(b12, 1)));
    ASSERT_EQ(r.NumPunti, 14) << "caso " << n;
    sulRaccordo += r.P(15).y < C(1).y ? 1 : 0;
  }
  EXPECT_GT(sulRaccordo, 20);
}

// The section file holds magnitudes only: the signs of what is negative or missing.
TEST(Tensioni, Segni) {
  const auto con = [](Dimensione quale, double misura) {
    VettoreParametri p = Esempio();
    p[quale] = misura;
    RecordSezione r = Costruita(p);
    CalcolaCaratteristiche(r);
    return r;
  };
  const RecordSezione senzaSoletta = con(kSolettaMezzeria, 0), negativa = con(kSolettaInferiore, -5);
  EXPECT_EQ(senzaSoletta.TauVy[4], -kSenzaLarghezza);
  EXPECT_EQ(senzaSoletta.TauVz[3], kSenzaLarghezza);
  EXPECT_EQ(negativa.TauVy[10], kSenzaLarghezza);
  EXPECT_NEAR((negativa.TauT[10] / negativa.TauT[2]).Valore(), 25 / 5., 1e-9);
}

}  // namespace
}  // namespace tarvel
