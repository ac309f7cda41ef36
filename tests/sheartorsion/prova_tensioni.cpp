// Area, moments, shear areas and stresses by an independent second method.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "base/numeri.h"
#include "base/tronca.h"
#include "properties/calcolo/caratteristiche.h"
#include "sheartorsion/tau_punti.h"
#include "tests/aiuti.h"

namespace tarvel {
namespace {

using prove::Costruita;
using prove::Esempio;

// Integrals over what lies between two broken lines that run to the right, slice by slice in long double.
// They share nothing with the edge formulas but the vertices. Between the breaks the integrands are cubics at
// most, for which two points of Gauss are exact.
using Spezzata = std::vector<Punto>;

struct Fette {
  long double zG = 0, yG = 0;                                // the origin
  long double A = 0, Sz = 0, Sy = 0, Jz = 0, Jy = 0, P = 0;  // ∫dA, ∫z, ∫y, ∫z², ∫y², ∫zy

  static long double Ordinata(const Spezzata& s, long double z) {
    std::size_t i = 1;
    while (i + 1 < s.size() && s[i].z.Valore() < z) ++i;
    const long double z1 = s[i - 1].z.Valore(), y1 = s[i - 1].y.Valore(), z2 = s[i].z.Valore();
    return y1 + (s[i].y.Valore() - y1) / (z2 - z1) * (z - z1);
  }

  /// What lies between the lines counts negative where `sopra` is the lower one, and not at all above `cima`.
  Fette& Aggiungi(const Spezzata& sopra, const Spezzata& sotto, Reale da, Reale a, Reale cima = 1e9) {
    std::vector<long double> tagli = {da.Valore(), a.Valore()};
    const auto taglia = [&](double z) { tagli.push_back(std::clamp(z, da.Valore(), a.Valore())); };
    for (const Spezzata* s : {&sopra, &sotto})
      for (std::size_t i = 0; i < s->size(); ++i) {
        const Punto q = (*s)[i], p = (*s)[i > 0 ? i - 1 : 0];
        taglia(q.z.Valore());
        if ((p.y < cima) != (q.y < cima)) taglia((p.z + (q.z - p.z) / (q.y - p.y) * (cima - p.y)).Valore());
      }
    std::sort(tagli.begin(), tagli.end());
    for (std::size_t i = 1; i < tagli.size(); ++i)
      for (const int lato : {-1, 1}) {
        const long double h = (tagli[i] - tagli[i - 1]) / 2,
                          x = tagli[i - 1] + h + lato * h / std::sqrt(3.0L);
        const long double z = x - zG, alto = cima.Valore();
        const long double t = std::min(Ordinata(sopra, x), alto) - yG,
                          u = std::min(Ordinata(sotto, x), alto) - yG;
        A += h * (t - u);
        Sz += h * (t - u) * z;
        Sy += h * (t * t - u * u) / 2;
        Jz += h * (t - u) * z * z;
        Jy += h * (t * t * t - u * u * u) / 3;
        P += h * (t * t - u * u) / 2 * z;
      }
    return *this;
  }
};

Fette InAssiBaricentrici(const auto& aggiungi) {
  Fette lorde;
  aggiungi(lorde);
  Fette f{lorde.Sz / lorde.A, lorde.Sy / lorde.A};
  aggiungi(f);
  return f;
}

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
    VettoreParametri p = n == 0 ? Esempio() : prove::Casuale(caso, false);
    if (n % 4 == 0) {  // the axis crosses the lower fillet
      p[kAltezzaTotale] = std::max(p[kAltezzaTotale], Reale(200));
      p[kSolettaInferiore] = p[kAltezzaTotale] * 0.3;
      p[kAltezzaRaccordo] = p[kAltezzaTotale] * 0.4;
      if (n > 0) p[kInclinazioneAnime] = 5;
    }
    RecordSezione r = Costruita(p);
    for (const Dimensione d : {kPendenzaSinistra, kPendenzaDestra, kSolettaInferiore, kInclinazioneAnime})
      if (n % 2 == 1) p[d] = p[d] * 1.1 + 0.1;
    CalcolaCaratteristiche(r, p, r.NumVertici);

    const auto O = [&](int v) { return r.O(v); };
    const auto C = [&](int v) { return r.C(v); };
    const Spezzata tetto = {O(1), O(13), O(12), O(11), O(10)}, soffitto = {O(5), O(6)};
    const Spezzata intradosso = {O(2), O(3), O(4), O(5), O(6), O(7), O(8), O(9)};
    const Spezzata volta = {C(2), C(3), C(4), C(5), C(6), C(7), C(8)};
    const Spezzata pavimento = {C(2), C(1), C(11), C(10), C(9), C(8)};
    const Spezzata fondo = {O(5), C(1), C(11), C(10), C(9), O(6)};
    Spezzata soletta = {O(2), O(3), O(4), O(7), O(8), O(9)};
    soletta.insert(soletta.begin() + 3, volta.begin(), volta.end());
    const auto netta = [&](Fette& f, Reale fino, Reale cima = 1e9) {
      f.Aggiungi(tetto, intradosso, 0, fino, cima);
      f.Aggiungi(pavimento, volta, C(2).z, std::min(fino, C(8).z), cima);
    };
    const Fette intera = InAssiBaricentrici([&](Fette& f) { netta(f, O(10).z); });
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
    netta(sottoAsse, mezzo, reale(intera.yG));
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

// The signs of stresses on negative and missing widths, which the section file, with its magnitudes, does not
// show.
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

TEST(Tensioni, PartiSenzaArea) {
  RecordSezione r = Costruita(Esempio());
  CopieLavoro copie;
  copie.SezioneBaricentrica.Jyg = copie.SezioneBaricentrica.Jzg = 1;
  CalcolaTauPunti(r, copie, Esempio(), 1);
  Testo indicatori;
  for (int punto = 1; punto <= 14; ++punto) indicatori += std::to_string(r.IndicatoreTauVz[punto]);
  EXPECT_EQ(indicatori, "12221112122222");
  EXPECT_TRUE(std::ranges::all_of(r.TauVz, [](Reale tensione) { return tensione == 0; }));
}

}  // namespace
}  // namespace tarvel
