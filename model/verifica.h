// A stored section brought back to the 21 dimensions.
#pragma once

#include "model/sezione.h"

namespace tarvel {

/// True when the record has the shape that this program builds: two polygons with the vertex counts
/// of VerticiPoligono. ParametriSezione is then derived from its vertices, slopes cut down to three
/// decimals of the ratio. Otherwise a message, and nothing changes.
[[nodiscard]] bool VerificaSezione(const RecordSezione& r);

}  // namespace tarvel
