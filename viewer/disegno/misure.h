// Measures of a drawing that screen, paper and export share.
#pragma once

#include <array>
#include <numbers>

#include "viewer/disegno/disegno.h"

namespace ostrel {

/// A rectangle in drawing units with sides along the axes; empty until it takes something in.
struct Riquadro {
  double x0 = 0, y0 = 0, x1 = -1, y1 = -1;

  bool Vuoto() const { return x1 < x0; }
  double Larghezza() const { return x1 - x0; }
  double Altezza() const { return y1 - y0; }
  /// The largest absolute value of its coordinates.
  double Massimo() const;
  void Comprendi(double x, double y);
};

/// What a drawing takes up, texts with all their cells.
Riquadro Ingombro(const Disegno& disegno);

/// The margin left free around a drawing, as a part of the page's shorter side.
inline constexpr double kMargine = 0.025;
/// The sides of a drawing that are smaller than this part of its coordinates come from their rounding.
inline constexpr double kArrotondamento = 1e-12;
inline constexpr double kMezzaCroce = 3;  // of a marked point, in pen widths

/// The page of a picture whose drawing takes up `tutto`: it adds the margin, and widens the page of a slender
/// drawing, so that no side is very much shorter than the other.
Riquadro ConMargine(const Riquadro& tutto);

/// The four corners of a text's cells, counter-clockwise from the start of the baseline.
std::array<Coordinata, 4> Angoli(const Disegno& disegno, const Scritta& scritta);

inline constexpr double kGradi = 180 / std::numbers::pi;  // degrees in a radian

/// Angles in radians from the X axis; `ampiezza` runs counter-clockwise, from above 0 to 2 pi.
struct ArcoPolare {
  double x = 0, y = 0, raggio = 0;
  double inizio = 0, ampiezza = 0;
  bool cerchio = false;
};
ArcoPolare Polare(const Disegno& disegno, const Arco& arco);

inline const Coordinata& Posto(const Disegno& disegno, int indice) {
  return disegno.coordinate[static_cast<std::size_t>(indice)];
}

}  // namespace ostrel
