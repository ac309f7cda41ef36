// The transcript: one line for everything a user would notice, UTF-8, in the order it happens.
#pragma once

#include <ostream>
#include <string>
#include <string_view>

#include "base/testo.h"

namespace tarvel::headless {

/// Where the lines go from now on; nullptr: nowhere. The stream must outlive the run.
void ApriVerbale(std::ostream* uscita);

/// Writes the line and flushes it.
void Annota(std::string_view riga);

/// The text in UTF-8 between double quotes; control characters as \r, \n, \t or \xNN, everything
/// else as it is (backslashes too: paths are full of them).
std::string TraVirgolette(std::string_view testo);

}  // namespace tarvel::headless
