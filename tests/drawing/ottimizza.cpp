// The compaction: what each of its phases drops, keeps and renumbers.
#include "drawing/ottimizza.h"

#include <vector>

#include "base/errore.h"
#include "tests/drawing/attrezzi.h"

namespace tarvel::disegno {
namespace {

using Ottimizza = ConDisegno;

TEST_F(Ottimizza, PuntoSuSegmento) {
  const std::tuple<double, double, double, double, bool> casi[] = {
      {0, 0, 8, 6, true},      {8, 6, 8, 6, true},           {8.00003, 6.00003, 8, 6, true},
      {4, 3.1, 8, 6, false},   {9, 6.75, 8, 6, false},       {8.00005, 6.00005, 8, 6, false},
      {4, 3.001, 8, 6, true},  {-3e-5, 0, 8, 6, true},       {500, .2236, 1000, 0, true},
      {-1, -.75, 8, 6, false}, {500, .2237, 1000, 0, false},
  };
  for (const auto& [x, y, fineX, fineY, atteso] : casi)
    EXPECT_EQ(disegno::PuntoSuSegmento({x, y}, {0, 0}, {fineX, fineY}), atteso) << x << ' ' << y;
}

template <class Voce, class Elenco>
void Poni(Elenco& elenco, const std::vector<Voce>& voci) {
  elenco.numero = 0;
  for (const Voce& voce : voci) elenco[elenco.numero++] = voce;
}

// The tables after the coordinates, a line each: points, lines, arcs and texts.
std::string Compattato() {
  OttimizzaDisegno();
  const std::string foto = Fotografia();
  return foto.substr(foto.find('\n') + 1);
}

// Each coordinate belongs to a point, so that none goes and the indices stay.
void PoniCoordinateFisse() {
  Poni<Coordinata>(Disegno.Coordinate, {{0, 0}, {10, 0}, {4, 0}, {20, 0}, {4, 5}});
  Poni<ElementoPunto>(Disegno.Punti, {{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0}, {4, 0, 0}});
}
const std::string kPuntiFissi = "0 0 0 ; 1 0 0 ; 2 0 0 ; 3 0 0 ; 4 0 0 ; \n";

TEST_F(Ottimizza, Linee) {
  const std::tuple<const char*, std::vector<ElementoLinea>, const char*> casi[] = {
      {"of equal ones the last", {{0, 1, 1, 1}, {0, 1, 1, 1}, {1, 0, 2, 1}}, "1 0 2 1 ; "},
      {"within a longer one", {{0, 1, 3, 1}, {0, 2, 3, 2}}, "0 1 3 1 ; "},
      {"colour 0 and type 0 stay, and hold others",
       {{0, 2, 0, 1}, {0, 2, 1, 0}, {2, 1, 1, 1}, {0, 1, 0, 0}},
       "0 2 0 1 ; 0 2 1 0 ; 0 1 0 0 ; "},
      {"negative", {{0, 1, -1, 1}, {2, 4, 1, -1}, {2, 3, 1, 0}}, "2 3 1 0 ; "},
      {"no more than an overlap", {{0, 1, 1, 1}, {2, 3, 1, 1}}, "0 1 1 1 ; 2 3 1 1 ; "},
      {"without a first point, never compared", {{-1, 1, 1, 0}, {0, 1, 0, 1}}, "-1 1 1 0 ; 0 1 0 1 ; "},
  };
  for (const auto& [caso, linee, restano] : casi) {
    PoniCoordinateFisse();
    Poni(Disegno.Linee, linee);
    EXPECT_EQ(Compattato(), kPuntiFissi + restano + "\n\n\n") << caso;
  }
  Poni<ElementoLinea>(Disegno.Linee, {{-1, 1, 1, 0}, {0, 1, 1, 1}});
  EXPECT_THROW(OttimizzaDisegno(), ErroreFatale);
}

TEST_F(Ottimizza, ArchiETesti) {
  PoniCoordinateFisse();
  Poni<ElementoArco>(
      Disegno.Archi,
      {{0, 1, 0, 1, 1, 0}, {0, 1, 0, 1, 1, 0}, {0, 1, 0, 1, 2, 0}, {0, 1, 0, 2, 1, 0}, {0, 1, 0, 1, 1, 0}});
  Poni<ElementoTesto>(Disegno.Testi, {{0, 0, 0, 1, 1, "a"}, {0, 0, 1, 1, 1, "b"}, {0, 0, 1, -1, 1, "c"}});
  EXPECT_EQ(Compattato(), kPuntiFissi + "\n0 1 0 1 1 0 ; 0 1 0 1 2 0 ; 0 1 0 2 1 0 ; \n0 0 1 1 1 b ; \n");
}

// A coordinate that has given its references away may still receive those of the next.
TEST_F(Ottimizza, Coordinate) {
  Poni<Coordinata>(Disegno.Coordinate, {{0, 0}, {0.00007, 0}, {0.00014, 0}, {9, 9}, {0, -0.00009}, {5, 6}});
  Poni<ElementoLinea>(Disegno.Linee, {{0, 1, 1, 0}, {2, 5, 1, 0}});
  Poni<ElementoTesto>(Disegno.Testi, {{4, 0, 1, 1, 1, "t"}});
  Poni<ElementoArco>(Disegno.Archi, {{1, 2, 1, 2, 1, 0}});
  Poni<ElementoPunto>(Disegno.Punti, {{1, 0, 0}});
  EXPECT_EQ(Compattato(), "1 0 0 ; \n0 0 1 0 ; 1 3 1 0 ; \n0 1 0 2 1 0 ; \n0 0 1 1 1 t ; \n");
  EXPECT_EQ(Disegno.Coordinate.numero, 4);
  EXPECT_EQ(Disegno.Coordinate[3].y, 6);
}

}  // namespace
}  // namespace tarvel::disegno
