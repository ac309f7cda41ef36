// The main window and the viewer's, two programs that stand one below the other: where, and at which
// scale.
#pragma once

#include <algorithm>

#include "platform/controlli.h"

namespace tarvel {

/// The viewer's window on the screen, in twips: left edges in line, the main window above it.
inline constexpr Rettangolo kPostoVisualizzatore{1350, 5250, 9500, 3900};

/// Pixels per twip for a screen of this size in pixels. A fifteenth at scale 1, enlarged on larger
/// screens, but never so far that the main window and the viewer below it fill more than nine tenths
/// of either side.
inline double PixelPerTwip(double larghezzaSchermo, double altezzaSchermo) {
  constexpr double kTwipPixel = 15;
  // Right end of the viewer's window and its lower end, with the title bars.
  constexpr Rettangolo p = kPostoVisualizzatore;
  constexpr double kLarghezza = (p.sinistra + p.larghezza) / kTwipPixel;
  constexpr double kAltezza = (p.alto + p.altezza) / kTwipPixel + 60;
  constexpr double kParteSchermo = 0.9, kMassimaScala = 3;
  const double scala = kParteSchermo * std::min(larghezzaSchermo / kLarghezza, altezzaSchermo / kAltezza);
  return std::clamp(scala, 1.0, kMassimaScala) / kTwipPixel;
}

}  // namespace tarvel
