// The schematic is a drawing: a line that is out of place leaves a gap or leans.
#include "app/schema.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>

#include "app/tarvel1.h"

namespace tarvel {
namespace {

TEST(Schema, IlContornoSiChiudeELeQuoteSonoDritte) {
  constexpr int kDuePixel = 30;
  struct Estremo {
    int linea, x, y;
  };
  std::vector<Estremo> estremi;
  int contorno = 0, quote = 0, oblique = 0;
  for (const LineaForm& l : LineeSchema()) {
    if (l.colore == Colore{0, 0, 0}) {
      estremi.insert(estremi.end(), {{contorno, l.x1, l.y1}, {contorno, l.x2, l.y2}});
      ++contorno;
    } else if (l.colore == Colore{255, 255, 0}) {
      ++quote;
      oblique += l.x1 != l.x2 && l.y1 != l.y2;
    }
  }
  EXPECT_EQ(contorno, 24);
  EXPECT_EQ(quote, 34);
  EXPECT_EQ(oblique, 1) << "the slope of the web";
  for (const Estremo& e : estremi)
    EXPECT_TRUE(std::any_of(estremi.begin(), estremi.end(),
                            [&](const Estremo& altro) {
                              return altro.linea != e.linea && std::abs(altro.x - e.x) <= kDuePixel &&
                                     std::abs(altro.y - e.y) <= kDuePixel;
                            }))
        << "Line1(" << e.linea << ") at " << e.x << ", " << e.y;
}

TEST(Schema, AltezzeNereBasiBluPendenzeVerdi) {
  constexpr Colore kNero{0, 0, 0}, kBlu{0, 0, 255}, kVerde{0, 128, 0};
  const auto& caselle = dynamic_cast<const tarvel1&>(FormPrincipale()).Text1;
  for (std::size_t i = 0; i < caselle.size(); ++i)
    EXPECT_EQ(caselle[i].coloreTesto, i < 9 ? kNero : i < 16 ? kBlu : kVerde) << i;
}

}  // namespace
}  // namespace tarvel
