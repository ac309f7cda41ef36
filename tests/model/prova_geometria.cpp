// The outline from the dimensions.
#include <gtest/gtest.h>

#include "tests/aiuti.h"

namespace tarvel {
namespace {

// Mirrored slopes give the mirrored outline: the right side is measured from the right end, except
// that the inner faces lean as the left web does.
TEST(Geometria, PendenzeOpposteDannoSimmetria) {
  std::mt19937 caso(7);
  for (int n = 0; n < 50; ++n) {
    const VettoreParametri p = prove::Casuale(caso, true);
    const RecordSezione r = prove::Costruita(p);
    const double L = p[kLarghezzaTotale].Valore();
    for (const auto& [a, b] : {std::pair{1, 10}, {2, 9}, {3, 8}, {4, 7}, {5, 6}, {13, 11}, {12, 12}}) {
      EXPECT_NEAR(r.O(a).z.Valore() + r.O(b).z.Valore(), L, 1e-9) << "caso " << n << " O" << a;
      EXPECT_NEAR(r.O(a).y.Valore(), r.O(b).y.Valore(), 1e-9) << "caso " << n << " O" << a;
    }
    for (const auto& [a, b] : {std::pair{1, 9}, {2, 8}, {3, 7}, {4, 6}, {11, 10}})
      EXPECT_NEAR(r.C(a).z.Valore() + r.C(b).z.Valore(), L, 1e-9) << "caso " << n << " C" << a;
  }
}

}  // namespace
}  // namespace tarvel
