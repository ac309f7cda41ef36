// Writes a drawing for browsers and drawing programs, as an SVG file.
#pragma once

#include <QByteArray>

#include "viewer/disegno/disegno.h"

namespace ostrel {

/// The whole file, UTF-8, of a drawing that has something in it. Units as drawn, y downward; the picture's
/// nominal size is a power of ten of pixels to the unit. The groups are "quote", "contorno", "valori" (of the
/// dimensions) and "testi": one line, circle, path or text for each element of the drawing, coloured as on
/// paper.
QByteArray ScriviSvg(const Disegno& disegno);

}  // namespace ostrel
