// The outline from the dimensions, and the dimensions back from the outline.
#include <gtest/gtest.h>

#include "aiuti.h"
#include "model/verifica.h"

namespace tarvel {
namespace {

using prove::Costruita;
using prove::Esempio;

// Mirrored slopes give the mirrored outline: the right side is measured from the right end, except
// that the inner faces lean as the left web does.
TEST(Geometria, PendenzeOpposteDannoSimmetria) {
  std::mt19937 caso(7);
  for (int n = 0; n < 50; ++n) {
    const VettoreParametri p = prove::Casuale(caso, true);
    const RecordSezione r = Costruita(p);
    const double L = p[kLarghezzaTotale].Valore();
    for (const auto& [a, b] : {std::pair{1, 10}, {2, 9}, {3, 8}, {4, 7}, {5, 6}, {13, 11}, {12, 12}}) {
      EXPECT_NEAR(r.O(a).z.Valore() + r.O(b).z.Valore(), L, 1e-9) << "caso " << n << " O" << a;
      EXPECT_NEAR(r.O(a).y.Valore(), r.O(b).y.Valore(), 1e-9) << "caso " << n << " O" << a;
    }
    for (const auto& [a, b] : {std::pair{1, 9}, {2, 8}, {3, 7}, {4, 6}, {11, 10}})
      EXPECT_NEAR(r.C(a).z.Valore() + r.C(b).z.Valore(), L, 1e-9) << "caso " << n << " C" << a;
  }
}

// A left web of no height has no inclination to pass on to the inner faces.
TEST(Geometria, AnimaSenzaAltezza) {
  for (const auto& [altezza, inclinata] : {std::pair{0.00009, false}, {0.00011, true}}) {
    VettoreParametri p = Esempio();
    p[kPendenzaSinistra] = 0;
    p[kSommitaEsternaAnime] = 185 - altezza;  // top end of the web just above the soffit, at -185
    p[kPendenzaColmoSinistra] = 30;
    const RecordSezione r = Costruita(p);
    EXPECT_EQ(r.C(1).z != r.C(2).z, inclinata) << altezza;
  }
}

TEST(Geometria, LaVerificaRiportaIParametri) {
  const VettoreParametri p = Esempio();
  const RecordSezione r = Costruita(p);
  prove::Prepara({});
  ASSERT_TRUE(VerificaSezione(r));
  // Slopes are cut to three decimals of the ratio, downwards: .025 may come back as .024.
  for (int i = 0; i < kNumParametri; ++i) {
    const double atteso = p[i].Valore(), scarto = i >= 16 ? 0.1000001 : i >= 3 && i <= 6 ? 0.001 * 400 : 1e-9;
    EXPECT_NEAR(ParametriSezione[i].Valore(), atteso, scarto) << 'p' << i;
  }
}

TEST(Geometria, PendenzeTagliateInGiu) {
  RecordSezione r = Costruita(Esempio());
  r.ImpostaVertice(1, 1, {0, 0});
  r.ImpostaVertice(1, 13, {100, 12.345});
  r.ImpostaVertice(1, 12, {200, 11.095});
  ASSERT_TRUE(VerificaSezione(r));
  EXPECT_NEAR(ParametriSezione[kPendenzaSinistra].Valore(), 12.3, 1e-9);
  EXPECT_NEAR(ParametriSezione[kPendenzaColmoSinistra].Valore(), -1.3, 1e-9);

  r.ImpostaVertice(1, 13, {0.0001, 50});  // within the tolerance: no slope
  ASSERT_TRUE(VerificaSezione(r));
  EXPECT_EQ(ParametriSezione[kPendenzaSinistra], 0);
  EXPECT_EQ(ParametriSezione[kAttaccoSbalzi], -r.O(3).y);
}

}  // namespace
}  // namespace tarvel
