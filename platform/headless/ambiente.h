// What the host tells the program: its command line and the regional number format.
#pragma once

#include "base/testo.h"

namespace tarvel::headless {

/// Both are in force until the next call. The thousands separator is '.' beside a decimal ',',
/// ',' beside '.', none beside any other.
void ImpostaAmbiente(Testo rigaComando, char decimale);

}  // namespace tarvel::headless
