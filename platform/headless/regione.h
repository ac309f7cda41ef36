// The regional number format of the scripted desktop.
#pragma once

namespace tarvel::headless {

/// In force until the next call; '.' at first. The thousands separator is '.' beside a decimal ',',
/// ',' beside '.', none beside any other.
void ImpostaDecimale(char decimale);

}  // namespace tarvel::headless
