// Shear areas: strips of web and of slab, bounded by verticals. The strips are meant to overlap: Aty + Atz
// exceeds An.
#pragma once

#include "model/parametri.h"
#include "model/sezione.h"

namespace tarvel {

/// The shear area along y: both web strips, with the full depth of the slabs. The top of a strip is the top
/// surface, calculated anew from its outer slope.
Reale AreaAnime(const GeometriaSezione& g, const VettoreParametri& p);

/// The shear area along z: top and bottom slab.
Reale AreaSolette(const GeometriaSezione& g);

}  // namespace tarvel
