// The cut-off parts of the section, whose static moments give the shear flows.
#pragma once

#include <span>

#include "model/sezione.h"
#include "sheartorsion/asse.h"

namespace tarvel {

struct MomentiStatici {
  Reale MomStaticoParteZ;  // ∫ y dA
  Reale MomStaticoParteY;  // ∫ z dA
};

/// Static moments of a closed polygon times the sign k, by the edge integrals; vertical edges
/// contribute nothing.
MomentiStatici MomentiStaticiPoligono(std::span<const Punto> vertici, int k);

/// The part cut off at a characteristic point for shear along y; all from the centroidal copy of
/// the whole section. Points 2, 6, 8, 9, 10, 11 and 13.
MomentiStatici TaglioVy(const RecordSezione& baricentrica, int punto);

/// The same at point 14, from the crossings of the centroidal axis. Crossings that need more than
/// 13 points are a fatal index error.
MomentiStatici TaglioAsse(const RecordSezione& baricentrica, const AsseBaricentrico& asse);

/// The part cut off for shear along z, from the working copy that the point belongs to: the upper
/// part for 2, 3, 4, 8 and 11, the lower one for 10 and 12, the whole section for 13.
MomentiStatici TaglioVz(const RecordSezione& copia, int punto);

}  // namespace tarvel
