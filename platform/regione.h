// The user's regional number format. Only conversions that are called regional ask for it.
#pragma once

namespace tarvel {

/// One 8-bit character, '.' or ',' nearly everywhere; '.' where the region's is none of the code page.
char SeparatoreDecimale();
/// One 8-bit character, different from the decimal separator; 0 where the region has none.
char SeparatoreMigliaia();

}  // namespace tarvel
