// Torsion of the single closed cell (Bredt).
#pragma once

#include "model/sezione.h"

namespace tarvel {

/// Jt = 4 Ω² / ∮ds/t, 0 where a wall has no thickness. Ω is the area enclosed by the median line of
/// the walls, with its sign. Reads the outline and the thicknesses p5, p6, p7 of ParametriSezione.
void CalcolaTorsione(const GeometriaSezione& g, Reale& omega, Reale& Jt);

/// Adds ∫ds/t of a wall of length s whose thickness varies linearly from t1 to t2:
/// s/(t2-t1)·ln(t2/t1), or s/t for an even wall. A wall of no thickness sets somma to 0 and
/// returns false; a segment of no length adds nothing.
bool TrattoSpessoreVariabile(Reale t1, Reale t2, Reale s, Reale& somma);

}  // namespace tarvel
