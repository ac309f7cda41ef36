// All four polygons run clockwise, so that their trapezoid sums are positive.
#include "properties/aree_taglio.h"

#include "model/geometria.h"
#include "properties/integrali.h"

namespace tarvel {

Reale AreaAnime(const GeometriaSezione& g, const VettoreParametri& p) {
  const auto O = [&](int v) { return g.O(v); };
  const auto C = [&](int v) { return g.C(v); };
  const auto sopraSinistra = [&](Reale z) { return Punto{z, TettoSinistro(p, z)}; };
  const auto sopraDestra = [&](Reale z) { return Punto{z, TettoDestro(p, O(11), z)}; };

  const Punto sinistra[] = {
      O(3), sopraSinistra(O(3).z), sopraSinistra(C(3).z), C(3), C(2), C(1), C(11), {C(11).z, O(5).y}, O(5),
      O(4)};
  const Punto destra[] = {
      C(7), sopraDestra(C(7).z), sopraDestra(O(8).z), O(8), O(7), O(6), {C(10).z, O(6).y}, C(10), C(9), C(8)};
  return AreaPoligono(sinistra) + AreaPoligono(destra);
}

Reale AreaSolette(const GeometriaSezione& g) {
  const auto O = [&](int v) { return g.O(v); };
  const auto C = [&](int v) { return g.C(v); };
  const Reale yR = C(1).y;

  const Punto superiore[] = {O(1), O(13), O(12), O(11), O(10), O(9), O(8), O(7), C(8),
                             C(7), C(6),  C(5),  C(4),  C(3),  C(2), O(4), O(3), O(2)};
  // Verticals through the ends of the soffit bound the slab: the lean of the webs is left out. The nine
  // points that stay at (0, 0) add an edge there and one back. On paper both cancel, in a double not always
  // to the last digit, and the section file holds the digit with them.
  const Punto inferiore[18] = {{O(5).z, yR}, C(1), C(11), C(10),       C(9),
                               {O(6).z, yR}, O(6), O(5),  {O(5).z, yR}};
  return AreaPoligono(superiore) + AreaPoligono(inferiore);
}

}  // namespace tarvel
