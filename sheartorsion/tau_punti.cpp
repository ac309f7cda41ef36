// Points first, then torsion with the labels, then the two shear directions: the order in which the
// fields are written.
#include "sheartorsion/tau_punti.h"

#include "base/numeri.h"
#include "model/parametri.h"
#include "properties/integrali.h"
#include "properties/utilita.h"
#include "sheartorsion/asse.h"
#include "sheartorsion/tagli.h"

namespace tarvel {
namespace {

Reale Tensione(Reale flusso, Reale larghezza) {
  return larghezza > kTolleranza ? flusso / larghezza : Reale(kSenzaLarghezza);
}

// For torsion a negative width counts by its magnitude and divides with its sign.
Reale TensioneConSegno(Reale flusso, Reale larghezza) {
  return Assoluto(larghezza) > kTolleranza ? flusso / larghezza : Reale(kSenzaLarghezza);
}

Reale InclinazioneAnime() {
  return ParametriSezione[20] / 100;
}

// Height of the line of slope p16 through the top of the left tip.
Reale Tetto(Reale z) {
  return ParametriSezione[16] * z / 100;
}

void ScriviEtichetta(RecordSezione& r, int punto, int tag, Reale larghezza) {
  r.EtichettaPunto[punto] = "NODO " + std::to_string(punto) + " TAG" + std::to_string(tag) + "_" +
                            FormatoNumero(Tronca(larghezza, 1));
}

void ScriviPunti(RecordSezione& r) {
  const int daContorno[][2] = {{1, 1}, {2, 13}, {3, 12}, {4, 11}, {5, 10}, {6, 5}, {7, 6}, {8, 4}};
  for (const auto& [punto, v] : daContorno) r.ImpostaPunto(punto, r.O(v));
  const Reale d = r.C(2).z - r.O(4).z;
  r.ImpostaPunto(9, {r.C(1).z - d, r.C(1).y - d * ParametriSezione[20] / 100});
  r.ImpostaPunto(10, {r.C(11).z, r.O(5).y});
  r.ImpostaPunto(11, {r.C(3).z, Tetto(r.C(3).z)});
  r.ImpostaPunto(12, {(r.O(5).z + r.O(6).z) / 2, r.O(5).y});
  r.ImpostaPunto(13, {r.O(3).z, Tetto(r.O(3).z)});
}

void Torsione(RecordSezione& r, const AsseBaricentrico& asse, Reale qT) {
  const auto etichetta = [&](int punto, int tag, Reale larghezza) {
    ScriviEtichetta(r, punto, tag, larghezza);
  };
  const auto tau = [&](int punto, Reale valore, int indicatore) {
    r.TauT[punto] = valore;
    r.IndicatoreTauT[punto] = indicatore;
  };

  etichetta(1, 2, 0);
  tau(1, 0, 2);
  const Reale w2 = r.O(13).y - r.C(4).y;
  etichetta(2, 0, w2);
  tau(2, TensioneConSegno(qT, w2), 2);
  const Reale w3 = r.O(12).y - r.C(5).y;
  etichetta(3, 2, w3);
  tau(3, TensioneConSegno(qT, w3), 2);
  etichetta(4, 0, r.O(11).y - r.C(6).y);
  tau(4, r.TauT[2], 2);
  etichetta(5, 2, 0);
  tau(5, 0, 2);

  // No square root here, unlike the width that shear divides by: both are wanted so.
  const Reale b8T = Assoluto((1 + Potenza(InclinazioneAnime(), 2)) * (r.C(2).z - r.O(4).z));
  for (const int punto : {8, 9}) {
    etichetta(punto, 0, b8T);
    tau(punto, TensioneConSegno(-qT, b8T), 1);
  }
  etichetta(10, 2, ParametriSezione[1]);
  tau(10, TensioneConSegno(-qT, ParametriSezione[1]), 2);
  const Reale piede = -Minimo(Assoluto(r.TauT[9]), Assoluto(r.TauT[10]));
  tau(6, piede, 2);
  tau(7, piede, 2);

  const Reale w11 = r.P(11).y - r.C(3).y;
  etichetta(11, 2, w11);
  tau(11, TensioneConSegno(qT, w11), 2);
  etichetta(12, 2, r.C(11).y - r.O(5).y);
  tau(12, r.TauT[10], 2);
  etichetta(13, 1, Assoluto(r.P(13).y - r.O(3).y));
  tau(13, 0, 1);
  if (asse.Trovato) {
    const Reale w14 = r.P(15).z - r.P(14).z;
    etichetta(14, 1, w14);
    tau(14, TensioneConSegno(qT, w14), 1);
  }
  r.NumPunti = asse.Trovato ? 14 : 13;
}

// Multipliers of ∫y dA / Jzg and ∫z dA / Jyg.
struct Coefficienti {
  Reale z, y;
};

Reale Determinante(const RecordSezione& s) {
  return 1 - Potenza(s.Jt, 2) / s.Jzg / s.Jyg;
}

Coefficienti CoefficientiVy(const RecordSezione& s) {
  const Reale D = Determinante(s);
  return {1 / D, (-s.Jt / s.Jzg) / D};
}

// r: the part's share of the area.
Coefficienti CoefficientiVz(const RecordSezione& parte, Reale r) {
  const Reale D = Determinante(parte);
  return {(-r * parte.Jt / parte.Jyg) / D, r / D};
}

Reale Flusso(const Coefficienti& c, const RecordSezione& s, const MomentiStatici& m) {
  return -(c.y / s.Jyg * m.MomStaticoParteY + c.z / s.Jzg * m.MomStaticoParteZ);
}

// Thickness of the left end of the bottom slab across its fillet; the fillet's own length where it
// has no area.
Reale LarghezzaPiede(const RecordSezione& s) {
  const Punto triangolo[] = {s.O(5), s.C(1), s.C(11)};
  const Reale A = Assoluto(AreaPoligono(triangolo));
  return A > kTolleranza ? 2 * A / Distanza(s.C(1), s.C(11)) : Distanza(s.C(1), s.O(5));
}

void TaglioLungoY(RecordSezione& r, const RecordSezione& s, const AsseBaricentrico& asse) {
  const Coefficienti c = CoefficientiVy(s);
  const auto flusso = [&](int punto) { return Flusso(c, s, TaglioVy(s, punto)); };
  const auto tau = [&](int punto, Reale valore, int indicatore) {
    r.TauVy[punto] = valore;
    r.IndicatoreTauVy[punto] = indicatore;
  };

  tau(1, 0, 2);
  tau(5, 0, 2);
  const Reale b8 = Assoluto((r.C(2).z - r.O(4).z) * Radice(1 + Potenza(InclinazioneAnime(), 2)));
  tau(8, Tensione(flusso(8), b8), 1);
  tau(9, Tensione(flusso(9), b8), 1);
  tau(10, Tensione(flusso(10) / 2, ParametriSezione[1]), 2);
  tau(12, 0, 2);

  const Reale b6 = LarghezzaPiede(s);
  tau(6, Tensione(flusso(6) / 2, b6), 2);
  ScriviEtichetta(r, 6, 2, b6);
  ScriviEtichetta(r, 7, 2, b6);
  tau(7, -r.TauVy[6], 2);

  const Reale b2 = Assoluto(r.O(13).y - r.C(4).y);
  tau(2, Tensione(flusso(2) / 2, b2), 2);
  tau(4, -r.TauVy[2], 2);
  tau(3, 0, 2);
  tau(11, Tensione(flusso(11) / 2, b2), 2);  // the width of point 2, not its own: wanted
  tau(13, Tensione(flusso(13), Assoluto(r.P(13).y - r.O(3).y)), 2);
  if (asse.Trovato) tau(14, Tensione(Flusso(c, s, TaglioAsse(s, asse)), Assoluto(r.P(15).z - r.P(14).z)), 1);
}

void TaglioLungoZ(RecordSezione& r, const RecordSezione& s, const RecordSezione& superiore,
                  const RecordSezione& inferiore) {
  const auto tau = [&](int punto, Reale valore, int indicatore) {
    r.TauVz[punto] = valore;
    r.IndicatoreTauVz[punto] = indicatore;
  };
  const Reale area = inferiore.An + superiore.An;
  if (Assoluto(area) <= kTolleranza) {
    for (const int punto : {1, 5, 6, 7, 9}) tau(punto, 0, 1);
    for (const int punto : {2, 3, 4, 8, 10, 11, 12, 13, 14}) tau(punto, 0, 2);
    return;
  }

  Coefficienti c = CoefficientiVz(superiore, superiore.An / area);
  const auto flusso = [&](const RecordSezione& copia, int punto) {
    return Flusso(c, copia, TaglioVz(copia, punto));
  };
  tau(1, 0, 1);
  tau(5, 0, 1);
  tau(2, Tensione(-flusso(superiore, 2), Assoluto(r.O(13).y - r.C(4).y)), 2);
  tau(11, Tensione(flusso(superiore, 11), Assoluto(Tetto(r.C(3).z) - r.C(3).y)), 2);
  tau(3, Tensione(-flusso(superiore, 3), Assoluto(r.O(12).y - r.C(5).y)), 2);
  tau(4, Tensione(-flusso(superiore, 4), Assoluto(r.O(11).y - r.C(6).y)), 2);
  tau(8, Tensione(flusso(superiore, 8), Assoluto(Tetto(r.O(4).z) - r.O(4).y)), 2);
  // Whole section's moments with the upper part's coefficients: this mixture is wanted.
  tau(13, Tensione(flusso(s, 13), Assoluto(r.P(13).y - r.O(3).y)), 2);
  tau(14, 0, 1);

  c = CoefficientiVz(inferiore, inferiore.An / area);
  for (const int punto : {9, 6, 7}) tau(punto, 0, 1);
  const Reale fondo = Assoluto(r.C(11).y - r.O(5).y);
  for (const int punto : {10, 12}) tau(punto, Tensione(flusso(inferiore, punto), fondo), 2);
}

}  // namespace

void CalcolaTauPunti(RecordSezione& r, RecordSezione& baricentrica, const RecordSezione& superiore,
                     const RecordSezione& inferiore, Reale qT) {
  ScriviPunti(r);
  const AsseBaricentrico asse = CercaAsseBaricentrico(r);
  for (const int punto : {9, 13, 14, 15})
    baricentrica.ImpostaPunto(punto, {r.P(punto).z - r.ZG, r.P(punto).y - r.YG});
  Torsione(r, asse, qT);
  TaglioLungoY(r, baricentrica, asse);
  TaglioLungoZ(r, baricentrica, superiore, inferiore);
}

}  // namespace tarvel
