// Reads the file "ostrel.inp", in which the program that starts the viewer names a drawing and the place of
// the window.
#pragma once

#include <optional>
#include <string>

#include "platform/comune/scala.h"

namespace ostrel {

struct Avvio {
  std::string disegno;                                      // the host's path, UTF-8
  tarvel::Rettangolo posto = tarvel::kPostoVisualizzatore;  // in twips
};

/// Line 2 is the drawing's path, lines 3 to 6 are the window's left, top, width and height; the usual place
/// stands in for one that is missing or makes no sense. Nothing when the file cannot be read or names no
/// drawing.
[[nodiscard]] std::optional<Avvio> LeggiAvvio(const tarvel::Testo& file);

}  // namespace ostrel
