// The file "ostrel.inp" by which the program that starts the viewer names a drawing and the place
// of the window.
#pragma once

#include <optional>
#include <string>

namespace ostrel {

/// A window's rectangle in twips.
struct PostoFinestra {
  int sinistra = 1350, alto = 5250, larghezza = 9500, altezza = 3900;
};

struct Avvio {
  std::string disegno;  // the host's path, UTF-8
  PostoFinestra posto;
};

/// Line 2 is the drawing's path, lines 3 to 6 the window's left, top, width and height; a place
/// that is missing or makes no sense is the usual one. Nothing when the file cannot be read or
/// names no drawing. `file` is the host's path, UTF-8.
std::optional<Avvio> LeggiAvvio(const std::string& file);

}  // namespace ostrel
