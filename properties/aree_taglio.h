// Shear areas: strips of web and of slab, bounded by verticals. The strips overlap, which is
// intended: Aty + Atz exceeds An.
#pragma once

#include "model/parametri.h"
#include "model/sezione.h"

namespace tarvel {

/// Area of the two web strips, with the full depth of both slabs: the shear area along y. Their
/// top is the top surface recomputed from its two outer slopes.
Reale AreaAnime(const GeometriaSezione& g, const VettoreParametri& p);

/// Area of top and bottom slab: the shear area along z.
Reale AreaSolette(const GeometriaSezione& g);

}  // namespace tarvel
