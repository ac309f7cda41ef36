// Points first, then torsion with the labels, then the two shear directions: the order in which the
// fields are written. One table for each, one row a point, in the order in which they are written too.
#include "sheartorsion/tau_punti.h"

#include "base/numeri.h"
#include "base/tronca.h"
#include "model/geometria.h"
#include "sheartorsion/asse.h"
#include "sheartorsion/larghezze.h"
#include "sheartorsion/tagli.h"

namespace tarvel {
namespace {

using namespace larghezza;  // for the tables

enum class TensioneT {
  Zero,
  Piu,           // qT by the width
  Meno,          // -qT by the width
  Del2,          // that of point 2
  Del10,         // that of point 10
  MinoreDi9e10,  // the smaller magnitude, negative
};

struct RigaTorsione {
  int punto;
  int tag;              // of the label; -1: none is written here
  Larghezza larghezza;  // in the label, and of the wall
  TensioneT tensione;
  int indicatore;
};

enum class TensioneVy {
  Zero,
  Intero,  // the flow by the width
  Meta,    // half of it: it parts to both sides
  OppostoDel2,
  OppostoDel6,
};

struct RigaVy {
  int punto;
  Larghezza larghezza;
  TensioneVy tensione;
  int indicatore;
};

struct RigaVz {
  int punto;
  Larghezza larghezza;
  int segno;  // of the flow; 0: no stress
  int indicatore;
};

// clang-format off

constexpr RigaTorsione kTorsione[] = {
    // point, TAG, width, stress, indicator
    { 1,  2, Nulla,                  TensioneT::Zero,         2},
    { 2,  0, SolettaAlColmoSinistro, TensioneT::Piu,          2},
    { 3,  2, SolettaInMezzeria,      TensioneT::Piu,          2},
    { 4,  0, SolettaAlColmoDestro,   TensioneT::Del2,         2},
    { 5,  2, Nulla,                  TensioneT::Zero,         2},
    { 8,  0, AnimaPerTorsione,       TensioneT::Meno,         1},
    { 9,  0, AnimaPerTorsione,       TensioneT::Meno,         1},
    {10,  2, SolettaInferiore,       TensioneT::Meno,         2},
    { 6, -1, Nulla,                  TensioneT::MinoreDi9e10, 2},
    { 7, -1, Nulla,                  TensioneT::MinoreDi9e10, 2},
    {11,  2, SolettaAlRaccordo,      TensioneT::Piu,          2},
    {12,  2, Fondo,                  TensioneT::Del10,        2},
    {13,  1, AttaccoSbalzo,          TensioneT::Zero,         1},
    {14,  1, AnimaSullAsse,          TensioneT::Piu,          1},
};

constexpr RigaVy kTaglioVy[] = {
    // point, width, stress, indicator
    { 1, Nulla,                          TensioneVy::Zero,        2},
    { 5, Nulla,                          TensioneVy::Zero,        2},
    { 8, Anima,                          TensioneVy::Intero,      1},
    { 9, Anima,                          TensioneVy::Intero,      1},
    {10, SolettaInferiore,               TensioneVy::Meta,        2},
    {12, Nulla,                          TensioneVy::Zero,        2},
    { 6, Piede,                          TensioneVy::Meta,        2},
    { 7, Piede,                          TensioneVy::OppostoDel6, 2},
    { 2, Modulo<SolettaAlColmoSinistro>, TensioneVy::Meta,        2},
    { 4, Nulla,                          TensioneVy::OppostoDel2, 2},
    { 3, Nulla,                          TensioneVy::Zero,        2},
    {11, Modulo<SolettaAlColmoSinistro>, TensioneVy::Meta,        2},  // the width of point 2, not its own
    {13, AttaccoSbalzo,                  TensioneVy::Intero,      2},
    {14, Modulo<AnimaSullAsse>,          TensioneVy::Intero,      1},
};

constexpr RigaVz kTaglioVzSuperiore[] = {
    // point, width, sign, indicator
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

constexpr RigaVz kTaglioVzInferiore[] = {
    { 9, Nulla,          0, 1},
    { 6, Nulla,          0, 1},
    { 7, Nulla,          0, 1},
    {10, Modulo<Fondo>, +1, 2},
    {12, Modulo<Fondo>, +1, 2},
};

// clang-format on

Reale Tensione(Reale flusso, Reale larghezza) {
  return larghezza > kTolleranza ? flusso / larghezza : Reale(kSenzaLarghezza);
}

// For torsion a negative width counts by its magnitude and divides with its sign.
Reale TensioneConSegno(Reale flusso, Reale larghezza) {
  return Assoluto(larghezza) > kTolleranza ? flusso / larghezza : Reale(kSenzaLarghezza);
}

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

void Torsione(RecordSezione& r, const Pareti& pareti, bool TrovatoAsse, Reale qT) {
  const auto tensione = [&](TensioneT quale, Reale larghezza) -> Reale {
    switch (quale) {
      case TensioneT::Zero:
        return 0;
      case TensioneT::Piu:
        return TensioneConSegno(qT, larghezza);
      case TensioneT::Meno:
        return TensioneConSegno(-qT, larghezza);
      case TensioneT::Del2:
        return r.TauT[2];
      case TensioneT::Del10:
        return r.TauT[10];
      case TensioneT::MinoreDi9e10:
        break;
    }
    return -Minimo(Assoluto(r.TauT[9]), Assoluto(r.TauT[10]));
  };
  for (const auto& riga : kTorsione) {
    if (riga.punto == 14 && !TrovatoAsse) continue;
    const Reale larghezza = riga.larghezza(pareti);
    if (riga.tag >= 0) ScriviEtichetta(r, riga.punto, riga.tag, larghezza);
    r.TauT[riga.punto] = tensione(riga.tensione, larghezza);
    r.IndicatoreTauT[riga.punto] = riga.indicatore;
  }
  r.NumPunti = TrovatoAsse ? 14 : 13;
}

void TaglioLungoY(RecordSezione& r, const Pareti& pareti, const Tagliabile& s) {
  const CoefficientiVy c = CoefficientiDi(s.copie.SezioneBaricentrica);
  const auto tensione = [&](TensioneVy quale, int punto, Reale larghezza) -> Reale {
    switch (quale) {
      case TensioneVy::Zero:
        return 0;
      case TensioneVy::Intero:
        return Tensione(FlussoVy(s, punto, c), larghezza);
      case TensioneVy::Meta:
        return Tensione(FlussoVy(s, punto, c) / 2, larghezza);
      case TensioneVy::OppostoDel2:
        return -r.TauVy[2];
      case TensioneVy::OppostoDel6:
        break;
    }
    return -r.TauVy[6];
  };
  for (const auto& riga : kTaglioVy) {
    if (riga.punto == 14 && !s.asse.TrovatoAsse) continue;
    const Reale larghezza = riga.larghezza(pareti);
    r.TauVy[riga.punto] = tensione(riga.tensione, riga.punto, larghezza);
    r.IndicatoreTauVy[riga.punto] = riga.indicatore;
    // Points 6 and 7 have no width of torsion to show.
    if (riga.larghezza == &Piede) ScriviEtichetta(r, riga.punto, 2, larghezza);
  }
}

void TaglioLungoZ(RecordSezione& r, const Pareti& pareti, const Tagliabile& s) {
  const CopiaLavoro& superiore = s.copie.ParteSuperiore;
  const CopiaLavoro& inferiore = s.copie.ParteInferiore;
  const Reale area = inferiore.An + superiore.An;
  if (Assoluto(area) <= kTolleranza) {
    for (int punto = 1; punto <= 14; ++punto) r.TauVz[punto] = 0;
    for (const int punto : {1, 5, 6, 7, 9}) r.IndicatoreTauVz[punto] = 1;
    for (const int punto : {2, 3, 4, 8, 10, 11, 12, 13, 14}) r.IndicatoreTauVz[punto] = 2;
    return;
  }
  const auto scrivi = [&](std::span<const RigaVz> righe, const CoefficientiVz& c) {
    for (const auto& [punto, larghezza, segno, indicatore] : righe) {
      r.TauVz[punto] = segno == 0 ? Reale(0) : Tensione(segno * FlussoVz(s, punto, c), larghezza(pareti));
      r.IndicatoreTauVz[punto] = indicatore;
    }
  };
  scrivi(kTaglioVzSuperiore, CoefficientiDi(superiore, superiore.An / area));
  scrivi(kTaglioVzInferiore, CoefficientiDi(inferiore, inferiore.An / area));
}

}  // namespace

void CalcolaTauPunti(RecordSezione& r, CopieLavoro& copie, const VettoreParametri& p, Reale qT) {
  CopiaLavoro& intera = copie.SezioneBaricentrica;
  ScriviPunti(r, p);
  const AsseBaricentrico asse = CercaAsseBaricentrico(r);
  for (const int punto : {9, 13, 14, 15}) intera.punti[punto] = {r.P(punto).z - r.ZG, r.P(punto).y - r.YG};

  const Pareti pareti{r, intera, p};
  const Tagliabile tagliabile{copie, p, asse};
  Torsione(r, pareti, asse.TrovatoAsse, qT);
  TaglioLungoY(r, pareti, tagliabile);
  TaglioLungoZ(r, pareti, tagliabile);
}

}  // namespace tarvel
