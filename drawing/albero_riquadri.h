// Boxes in a balanced tree: finds those that hold a given box without looking at all of them.
//
// A box holds another when four bounds allow it, so a box is a point in four dimensions and the
// tree is a k-d tree over those; long thin boxes cost no more than small ones.
#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <span>
#include <vector>

namespace tarvel::disegno {

/// { xmin, ymin, -xmax, -ymax }: one holds another when none of its four numbers is greater.
using Riquadro = std::array<double, 4>;

class AlberoRiquadri {
 public:
  explicit AlberoRiquadri(std::span<const Riquadro> riquadri);

  /// Box i is found no more.
  void Togli(std::int32_t i);

  /// Offers accetta(i) every box i that holds `dentro`, in no particular order, until it answers
  /// true; true when it did.
  template <class Accetta>
  bool Trova(const Riquadro& dentro, Accetta accetta, std::size_t n = 1) const {
    const Nodo& nodo = nodi_[n];
    for (std::size_t k = 0; k < dentro.size(); ++k)
      if (nodo.limiti[k] > dentro[k]) return false;
    if (nodo.riquadro >= 0) return accetta(nodo.riquadro);
    return Trova(dentro, accetta, 2 * n) || Trova(dentro, accetta, 2 * n + 1);
  }

 private:
  static constexpr double kNessuno = std::numeric_limits<double>::infinity();

  /// Children of node n: 2n and 2n + 1. The bounds of a node are the lowest of what is below it.
  struct Nodo {
    Riquadro limiti{kNessuno, kNessuno, kNessuno, kNessuno};
    std::int32_t riquadro = -1;  // of a leaf
  };

  void Costruisci(std::span<const Riquadro> riquadri, std::span<std::int32_t> indici, std::size_t n);

  std::vector<Nodo> nodi_;
  std::vector<std::size_t> foglia_;  // node of each box
};

}  // namespace tarvel::disegno
