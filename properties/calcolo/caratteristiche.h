// All properties of one section, in their stated order.
#pragma once

#include "model/parametri.h"
#include "model/sezione.h"

namespace tarvel {

/// Fills the CaratteristicheSezione of a record from its outline (polygons 1 and 2, with the counts
/// `vertici`) and the dimensions `p`: extents, area and centroid, second moments about the centroidal
/// axes, torsion constant, shear areas, characteristic points with their unit stresses, Sigla. Lengths L
/// give areas in L², moments in L⁴. The outline is neither rebuilt nor judged; of the dimensions the
/// slopes of the outer top surface, the inclination of the webs and the thicknesses of the slabs count
/// beside it. Nothing else is read or written.
///
/// An arithmetic fault (overflow, an enclosed area or a moment of zero) is fatal: fields written before
/// it keep their new values.
void CalcolaCaratteristiche(RecordSezione& sezione, const VettoreParametri& p,
                            const ConteggiVertici& vertici);

/// The same with the program's own ParametriSezione and VerticiPoligono.
void CalcolaCaratteristiche(RecordSezione& sezione);

}  // namespace tarvel
