// Sections that are not saved survive a fatal error and a save that failed: they are written beside their
// section file, and the message says where.
#pragma once

#include "base/guasto.h"

namespace tarvel {

/// From now on a fatal error writes them.
void PreparaSalvataggio();

/// Writes the table's sections beside their file, after a save that failed. Returns a sentence that says
/// where;
/// "" when the file has them all, or they cannot be written.
Testo ConservaNonSalvate();

/// Makes `file` the section file and reads its sections into the table. A fatal error meanwhile writes the
/// unsaved sections that the table held before, beside the file they belong to.
[[nodiscard]] std::optional<Guasto> CambiaFileSezioni(const Testo& file);

}  // namespace tarvel
