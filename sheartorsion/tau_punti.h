// The characteristic points of a section with their labels and unit stresses.
#pragma once

#include "model/parametri.h"
#include "properties/copia_lavoro.h"

namespace tarvel {

/// Stands for a stress where the wall has no width: none greater than the tolerance.
inline constexpr double kSenzaLarghezza = 1e10;

/// Writes the points, labels, indicators and stresses of `r` for a unit torque (flow qT = 1/(2Ω)),
/// a unit shear along y and one along z; NumPunti is 14 when the centroidal axis crosses the left
/// web, else 13. Points 9, 13, 14 and 15 are copied into the working copy of the whole section. Faults
/// are fatal.
///
/// Shear flow of a section with unequal principal axes (Jourawski):
/// -(Jyg·Sz - Jyz·Sy)/(Jyg·Jzg - Jyz²) along y, -(Jzg·Sy - Jyz·Sz)/(Jyg·Jzg - Jyz²) along z.
void CalcolaTauPunti(RecordSezione& r, CopieLavoro& copie, const VettoreParametri& p, Reale qT);

}  // namespace tarvel
