// From the 21 dimensions to the outline and the cell, and the lines of the top surface beside the crown.
#pragma once

#include "model/parametri.h"
#include "model/sezione.h"

namespace tarvel {

/// What an arithmetic fault in an outline means to the user who typed its dimensions.
inline constexpr char kNonCassone[] = "Le dimensioni non formano una sezione a cassone.";

/// Writes polygons 1 (outline) and 2 (cell). The shape is not judged: crossing dimensions give crossing
/// polygons. An arithmetic fault is fatal.
void CostruisciGeometria(GeometriaSezione& geometria, const VettoreParametri& p);

/// Rebuilds the outline of a section. After a fatal fault the old outline is still there, and the error names
/// the outline as its place.
void RifaiContorno(GeometriaSezione& geometria, const VettoreParametri& p);

/// Height at z of the line through the left tip's top with the left slope.
inline Reale TettoSinistro(const VettoreParametri& p, Reale z) {
  return p[kPendenzaSinistra] * z / 100;
}
/// The same with the right slope, through the right break of the top surface.
inline Reale TettoDestro(const VettoreParametri& p, Punto O11, Reale z) {
  return (z - O11.z) * p[kPendenzaDestra] / 100 + O11.y;
}

}  // namespace tarvel
