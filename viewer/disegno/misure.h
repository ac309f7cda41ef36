// Measures of a drawing that screen, paper and export share.
#pragma once

#include <array>

#include "viewer/disegno/disegno.h"

namespace ostrel {

/// An upright rectangle in drawing units; empty until something is taken in.
struct Riquadro {
  double x0 = 0, y0 = 0, x1 = -1, y1 = -1;

  bool Vuoto() const { return x1 < x0; }
  double Larghezza() const { return x1 - x0; }
  double Altezza() const { return y1 - y0; }
  /// The largest of its coordinates.
  double Massimo() const;
  void Comprendi(double x, double y);
};

/// Everything drawn, texts with all their cells.
Riquadro Ingombro(const Disegno& disegno);

/// The drawing's free margin, a part of the page's shorter side.
inline constexpr double kMargine = 0.025;
/// Sides of a drawing this much smaller than its coordinates are their rounding.
inline constexpr double kArrotondamento = 1e-12;
inline constexpr double kMezzaCroce = 3;  // of a marked point, in pen widths

/// The page of a picture whose drawing takes up `tutto`: the margin around it, and no side very much
/// shorter than the other, however slender the drawing.
Riquadro Pagina(const Riquadro& tutto);

/// The four corners of a text's cells, counter-clockwise from the start of the baseline.
std::array<Coordinata, 4> Angoli(const Disegno& disegno, const Scritta& scritta);

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
