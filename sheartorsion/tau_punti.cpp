// Points, torsion with the labels, shear along y and along z: the fields are written in this order, since a
// fault leaves what was written before it. The rows of a table, one a point, are in that order too.
#include "sheartorsion/tau_punti.h"

#include <algorithm>

#include "base/numeri.h"
#include "base/tronca.h"
#include "model/geometria.h"
#include "sheartorsion/asse.h"
#include "sheartorsion/larghezze.h"
#include "sheartorsion/tagli.h"

namespace tarvel {
namespace {

using namespace larghezza;  // for the tables

Reale Tensione(Reale flusso, Reale larghezza) {
  return larghezza > kTolleranza ? flusso / larghezza : Reale(kSenzaLarghezza);
}

// Torsion tests the magnitude of a width, and divides by the width with its sign.
Reale TensioneConSegno(Reale flusso, Reale larghezza) {
  return Assoluto(larghezza) > kTolleranza ? flusso / larghezza : Reale(kSenzaLarghezza);
}

struct RigaTorsione {
  int punto;
  int tag;              // in the label; -1: the label is written with the shear along y
  Larghezza larghezza;  // of the wall, also in the label
  Reale (*tensione)(const RecordSezione& r, Reale qT, Reale larghezza);
  int indicatore;
};

struct RigaTaglio {
  int punto;
  Larghezza larghezza;
  double quota;  // of the flow, with its sign: a half where it parts to both sides, 0 where there is none
  int indicatore;
  int opposto = 0;  // the point whose stress is taken, with the other sign
};

// clang-format off

constexpr auto Zero         = [](auto&, Reale, Reale) { return Reale(0); };
constexpr auto Piu          = [](auto&, Reale qT, Reale w) { return TensioneConSegno(qT, w); };
constexpr auto Meno         = [](auto&, Reale qT, Reale w) { return TensioneConSegno(-qT, w); };
constexpr auto Del2         = [](auto& r, Reale, Reale) { return r.TauT[2]; };
constexpr auto Del10        = [](auto& r, Reale, Reale) { return r.TauT[10]; };
constexpr auto MinoreDi9e10 = [](auto& r, Reale, Reale) {
  return -std::min(Assoluto(r.TauT[9]), Assoluto(r.TauT[10]));
};

// Point 14 is the last row of torsion and of shear along y, which leave it out where the axis crosses no web.
constexpr RigaTorsione kTorsione[] = {
    // point, TAG, width, stress, indicator
    { 1,  2, Nulla,                  Zero,         2},
    { 2,  0, SolettaAlColmoSinistro, Piu,          2},
    { 3,  2, SolettaInMezzeria,      Piu,          2},
    { 4,  0, SolettaAlColmoDestro,   Del2,         2},
    { 5,  2, Nulla,                  Zero,         2},
    { 8,  0, AnimaPerTorsione,       Meno,         1},
    { 9,  0, AnimaPerTorsione,       Meno,         1},
    {10,  2, SolettaInferiore,       Meno,         2},
    { 6, -1, Nulla,                  MinoreDi9e10, 2},
    { 7, -1, Nulla,                  MinoreDi9e10, 2},
    {11,  2, SolettaAlRaccordo,      Piu,          2},
    {12,  2, Fondo,                  Del10,        2},
    {13,  1, AttaccoSbalzo,          Zero,         1},
    {14,  1, AnimaSullAsse,          Piu,          1},
};

constexpr RigaTaglio kTaglioVy[] = {
    // point, width, share of the flow, indicator, opposite point
    { 1, Nulla,                          0,  2},
    { 5, Nulla,                          0,  2},
    { 8, Anima,                          1,  1},
    { 9, Anima,                          1,  1},
    {10, SolettaInferiore,               .5, 2},
    {12, Nulla,                          0,  2},
    { 6, Piede,                          .5, 2},
    { 7, Piede,                          0,  2, 6},
    { 2, Modulo<SolettaAlColmoSinistro>, .5, 2},
    { 4, Nulla,                          0,  2, 2},
    { 3, Nulla,                          0,  2},
    {11, Modulo<SolettaAlColmoSinistro>, .5, 2},  // the width of point 2, not its own
    {13, AttaccoSbalzo,                  1,  2},
    {14, Modulo<AnimaSullAsse>,          1,  1},
};

constexpr RigaTaglio kTaglioVzSuperiore[] = {
    // point, width, share of the flow, indicator
    { 1, Nulla,                           0, 1},
    { 5, Nulla,                           0, 1},
    { 2, Modulo<SolettaAlColmoSinistro>, -1, 2},
    {11, Modulo<SolettaAlRaccordo>,      +1, 2},
    { 3, Modulo<SolettaInMezzeria>,      -1, 2},
    { 4, Modulo<SolettaAlColmoDestro>,   -1, 2},
    { 8, SommitaAnima,                   +1, 2},
    {13, AttaccoSbalzo,                  +1, 2},  // cut from the whole section, with this part's coefficients
    {14, Nulla,                           0, 1},
};

constexpr RigaTaglio kTaglioVzInferiore[] = {
    { 9, Nulla,          0, 1},
    { 6, Nulla,          0, 1},
    { 7, Nulla,          0, 1},
    {10, Modulo<Fondo>, +1, 2},
    {12, Modulo<Fondo>, +1, 2},
};

// clang-format on

void ScriviEtichetta(RecordSezione& r, int punto, int tag, Reale larghezza) {
  r.EtichettaPunto[punto].Componi({"NODO ", std::to_string(punto), " TAG", std::to_string(tag), "_",
                                   FormatoNumero(Tronca(larghezza, 1))});
}

void ScriviPunti(RecordSezione& r, const VettoreParametri& p) {
  constexpr int daContorno[][2] = {{1, 1}, {2, 13}, {3, 12}, {4, 11}, {5, 10}, {6, 5}, {7, 6}, {8, 4}};
  for (const auto& [punto, v] : daContorno) r.ImpostaPunto(punto, r.O(v));
  const auto sulTetto = [&](Reale z) { return Punto{z, TettoSinistro(p, z)}; };
  const Reale d = r.C(2).z - r.O(4).z;
  r.ImpostaPunto(9, {r.C(1).z - d, r.C(1).y - d * p[kInclinazioneAnime] / 100});
  r.ImpostaPunto(10, {r.C(11).z, r.O(5).y});
  r.ImpostaPunto(11, sulTetto(r.C(3).z));
  r.ImpostaPunto(12, {(r.O(5).z + r.O(6).z) / 2, r.O(5).y});
  r.ImpostaPunto(13, sulTetto(r.O(3).z));
}

void Torsione(RecordSezione& r, const SezioneInEsame& s, Reale qT) {
  for (const auto& riga : std::span(kTorsione).first(s.asse.TrovatoAsse ? 14 : 13)) {
    const Reale larghezza = riga.larghezza(s);
    if (riga.tag >= 0) ScriviEtichetta(r, riga.punto, riga.tag, larghezza);
    r.TauT[riga.punto] = riga.tensione(r, qT, larghezza);
    r.IndicatoreTauT[riga.punto] = riga.indicatore;
  }
  r.NumPunti = s.asse.TrovatoAsse ? 14 : 13;
}

// `flusso` gives the flow of a unit shear at a point.
void Taglio(RecordSezione& r, const SezioneInEsame& s, std::span<const RigaTaglio> righe, auto& tau,
            auto& indicatori, const auto& flusso) {
  for (const auto& [punto, larghezza, quota, indicatore, opposto] : righe) {
    const Reale w = larghezza(s);
    tau[punto] = opposto > 0 ? -tau[opposto] : quota != 0 ? Tensione(quota * flusso(punto), w) : Reale(0);
    indicatori[punto] = indicatore;
    // The labels of points 6 and 7, whose torsion has no width.
    if (larghezza == Piede) ScriviEtichetta(r, punto, 2, w);
  }
}

void TaglioLungoY(RecordSezione& r, const SezioneInEsame& s) {
  const CoefficientiVy c = CoefficientiDi(s.copie.SezioneBaricentrica);
  Taglio(r, s, std::span(kTaglioVy).first(s.asse.TrovatoAsse ? 14 : 13), r.TauVy, r.IndicatoreTauVy,
         [&](int punto) { return FlussoVy(s, punto, c); });
}

void TaglioLungoZ(RecordSezione& r, const SezioneInEsame& s) {
  const CopiaLavoro& superiore = s.copie.ParteSuperiore;
  const CopiaLavoro& inferiore = s.copie.ParteInferiore;
  const Reale area = inferiore.An + superiore.An;
  if (Assoluto(area) <= kTolleranza) {
    for (int punto = 1; punto <= 14; ++punto) {
      r.TauVz[punto] = 0;
      r.IndicatoreTauVz[punto] = 2;
    }
    for (const int punto : {1, 5, 6, 7, 9}) r.IndicatoreTauVz[punto] = 1;
    return;
  }
  const auto scrivi = [&](std::span<const RigaTaglio> righe, const CoefficientiVz& c) {
    Taglio(r, s, righe, r.TauVz, r.IndicatoreTauVz, [&](int punto) { return FlussoVz(s, punto, c); });
  };
  scrivi(kTaglioVzSuperiore, CoefficientiDi(superiore, superiore.An / area));
  scrivi(kTaglioVzInferiore, CoefficientiDi(inferiore, inferiore.An / area));
}

}  // namespace

void CalcolaTauPunti(RecordSezione& r, CopieLavoro& copie, const VettoreParametri& p, Reale qT) {
  ScriviPunti(r, p);
  const AsseBaricentrico asse = CercaAsseBaricentrico(r);
  for (const int punto : {9, 13, 14, 15})
    copie.SezioneBaricentrica.punti[punto] = {r.P(punto).z - r.ZG, r.P(punto).y - r.YG};
  const SezioneInEsame s{r, copie, p, asse};
  Torsione(r, s, qT);
  TaglioLungoY(r, s);
  TaglioLungoZ(r, s);
}

}  // namespace tarvel
