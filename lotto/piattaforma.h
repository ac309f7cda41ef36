// The seam as a filter has it: no windows, nobody to answer. What a message box would have said is kept
// until somebody asks.
#pragma once

#include "base/testo.h"

namespace tarvel::lotto {

/// What was last said since the last call; "" when nothing was.
Testo PrendiMessaggio();

/// Of the drawings, as the region of who looks at them has it.
void ImpostaDecimale(char decimale);

}  // namespace tarvel::lotto
