// The seam as a filter has it: the regional format of its drawings.
#pragma once

namespace tarvel::lotto {

/// Of the drawings, as the region of who looks at them has it.
void ImpostaDecimale(char decimale);

}  // namespace tarvel::lotto
