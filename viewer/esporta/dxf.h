// Writes a drawing for other CAD programs, in the plain R12 form of a DXF file.
#pragma once

#include "base/testo.h"
#include "viewer/disegno/disegno.h"
#include "viewer/disegno/scala.h"

namespace ostrel {

/// The whole file, 8-bit text in code page 1252, units as drawn: a closed POLYLINE for each ring of the
/// outline, one LINE, ARC or CIRCLE, TEXT or POINT for each other element, in the drawing's order, on the
/// layers CONTORNO, QUOTE and TESTI.
tarvel::Testo ScriviDxf(const Disegno& disegno, Unita unita = Unita::Ignota);

}  // namespace ostrel
