// The characteristic points of a section with their labels and unit stresses.
#pragma once

#include "model/sezione.h"

namespace tarvel {

/// A stress whose width is within the tolerance of zero.
inline constexpr double kSenzaLarghezza = 1e10;

/// Writes the points, labels, indicators and stresses of `r` for a unit torque (flow qT = 1/(2Ω)),
/// a unit shear along y and one along z; NumPunti is 14 when the centroidal axis crosses the left
/// web, else 13. `baricentrica` is the section referred to its centroid, `superiore` (polygon of 18)
/// and `inferiore` (of 6) its two parts referred to theirs, each with its Jyg, Jzg and, in Jt, its
/// product moment; points 9, 13, 14 and 15 are copied into `baricentrica`. Faults are fatal.
///
/// Shear flow of a section with unequal principal axes (Jourawski):
/// -(Jyg·Sz - Jyz·Sy)/(Jyg·Jzg - Jyz²) along y, -(Jzg·Sy - Jyz·Sz)/(Jyg·Jzg - Jyz²) along z.
void CalcolaTauPunti(RecordSezione& r, RecordSezione& baricentrica, const RecordSezione& superiore,
                     const RecordSezione& inferiore, Reale qT);

}  // namespace tarvel
