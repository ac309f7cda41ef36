// Compaction of the drawing: what adds nothing to the picture is dropped before the file is written.
#pragma once

#include "drawing/disegno.h"

namespace tarvel::disegno {

/// Drops, in this order: lines of negative type or colour and coloured, typed lines that lie within
/// another line; arcs equal to an earlier one; texts without size. Then lets coinciding coordinates
/// be one (arc ends and points keep theirs) and drops those that nothing refers to. What remains
/// keeps its order. A line without its first point, index -1, is fatal once it is compared.
void OttimizzaDisegno();

/// Whether A lies on segment BC: the detour over A is shorter than the tolerance.
bool PuntoSuSegmento(Coordinata a, Coordinata b, Coordinata c);

}  // namespace tarvel::disegno
