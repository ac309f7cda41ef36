// Shear areas: strips of web and of slab, bounded by verticals. The strips overlap, which is
// intended: Aty + Atz exceeds An.
#pragma once

#include "model/sezione.h"

namespace tarvel {

/// Area of the two web strips, with the full depth of both slabs: the shear area along y. Reads the
/// outline and the slopes p16 and p19 of ParametriSezione.
Reale AreaAnime(const GeometriaSezione& g);

/// Area of top and bottom slab: the shear area along z.
Reale AreaSolette(const GeometriaSezione& g);

}  // namespace tarvel
