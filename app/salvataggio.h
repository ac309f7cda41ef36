// Sections that are not saved outlive a fatal error and a save that failed: they are written beside their
// section file, and the message says where.
#pragma once

#include "base/guasto.h"

namespace tarvel {

/// A fatal error keeps them from now on.
void PreparaSalvataggio();

/// After a save that failed: keeps the table's sections beside their file. Where they are, in a sentence; ""
/// where the file has them all, or they cannot be kept.
Testo ConservaNonSalvate();

/// From now on the section file is another one, whose sections are read into the table. A fatal error on the
/// way keeps what the table held before, beside the file it belongs to.
[[nodiscard]] std::optional<Guasto> CambiaFileSezioni(const Testo& file);

}  // namespace tarvel
