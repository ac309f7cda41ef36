// Compaction of the drawing: what adds nothing to the picture is dropped before the file is written.
#pragma once

#include "base/intero.h"
#include "base/reale.h"

namespace tarvel::disegno {

Reale Distanza(Reale x1, Reale y1, Reale x2, Reale y2);

/// 1 when A lies on segment BC, 0 otherwise: the detour over A is shorter than the tolerance.
Intero16 PuntoSuSegmento(Reale ax, Reale ay, Reale bx, Reale by, Reale cx, Reale cy);

/// Drops, in this order: lines of negative type or colour and coloured, typed lines that lie within
/// another line; arcs equal to an earlier one; texts without size. Then lets coinciding coordinates
/// be one (arc ends and points keep theirs) and drops those that nothing refers to. What remains
/// keeps its order. A line without its first point, index -1, is fatal once lines are compared.
void OttimizzaDisegno();

}  // namespace tarvel::disegno
