// From the 21 dimensions to the outline and the cell.
#pragma once

#include "model/parametri.h"
#include "model/sezione.h"

namespace tarvel {

/// What a fault of arithmetic on an outline tells who typed its dimensions.
inline constexpr char kNonCassone[] = "Le dimensioni non formano una sezione a cassone.";

/// Writes polygons 1 (outline, 13 vertices) and 2 (cell, 11 vertices). It judges no shape: crossing
/// dimensions give crossing polygons. An arithmetic fault is fatal.
void CostruisciGeometria(GeometriaSezione& geometria, const VettoreParametri& p);

}  // namespace tarvel
