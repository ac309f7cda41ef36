// All properties of one section, in their stated order.
#pragma once

#include "model/sezione.h"

namespace tarvel {

/// Fills the CaratteristicheSezione of a record from its outline (polygons 1 and 2, with the counts
/// of VerticiPoligono): extents, area and centroid, second moments about the centroidal axes,
/// torsion constant, shear areas, characteristic points with their unit stresses, Sigla. Lengths L
/// give areas in L², moments in L⁴. The outline is neither rebuilt nor judged. An arithmetic fault
/// (overflow, an enclosed area or a moment of zero) is fatal: fields written before it keep their
/// new values.
void CalcolaCaratteristiche(RecordSezione& sezione);

}  // namespace tarvel
