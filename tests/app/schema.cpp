// The schematic is a drawing: a line that is out of place leaves a gap or leans.
#include "app/schema.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "app/tarvel1.h"

namespace tarvel {
namespace {

TEST(Schema, IlContornoSiChiudeELeQuoteSonoDritte) {
  constexpr int kDuePixel = 30;
  std::vector<std::pair<int, int>> estremi;  // of the outline, two a line
  int quote = 0, oblique = 0;
  for (const LineaForm& l : LineeSchema()) {
    if (l.colore == Colore{0, 0, 0}) {
      estremi.insert(estremi.end(), {{l.x1, l.y1}, {l.x2, l.y2}});
    } else if (l.colore == Colore{255, 255, 0}) {
      ++quote;
      oblique += l.x1 != l.x2 && l.y1 != l.y2;
    }
  }
  EXPECT_EQ(estremi.size(), 48u);
  EXPECT_EQ(quote, 34);
  EXPECT_EQ(oblique, 1) << "the slope of the web";
  for (std::size_t i = 0; i < estremi.size(); ++i) {
    int vicini = 0;
    for (std::size_t j = 0; j < estremi.size(); ++j)
      vicini += i / 2 != j / 2 && std::abs(estremi[i].first - estremi[j].first) <= kDuePixel &&
                std::abs(estremi[i].second - estremi[j].second) <= kDuePixel;
    EXPECT_GT(vicini, 0) << "line " << i / 2 << " of the outline";
  }
}

TEST(Schema, AltezzeNereBasiBluPendenzeVerdi) {
  constexpr Colore kNero{0, 0, 0}, kBlu{0, 0, 255}, kVerde{0, 128, 0};
  const auto& caselle = dynamic_cast<const tarvel1&>(FormPrincipale()).Text1;
  for (std::size_t i = 0; i < caselle.size(); ++i)
    EXPECT_EQ(caselle[i].coloreTesto, i < 9 ? kNero : i < 16 ? kBlu : kVerde) << i;
}

}  // namespace
}  // namespace tarvel
