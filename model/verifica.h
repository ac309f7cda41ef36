// A stored section brought back to the 21 dimensions.
#pragma once

#include <optional>

#include "model/parametri.h"
#include "model/sezione.h"

namespace tarvel {

/// What the user is told of a section of another shape.
inline constexpr char kSezioneNonValida[] = "Sezione non valida";

/// The dimensions, derived from the vertices, slopes cut down to three decimals of the ratio. Nothing for a
/// record of another shape than this program builds: two polygons with the vertex counts of VerticiPoligono.
[[nodiscard]] std::optional<VettoreParametri> VerificaSezione(const RecordSezione& r);

}  // namespace tarvel
