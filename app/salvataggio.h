// Sections that are not saved outlive a fatal error and a save that failed: they are written beside their
// section file, and the message says where.
#pragma once

#include "base/testo.h"

namespace tarvel {

/// From now on.
void PreparaSalvataggio();

/// After a save that failed: keeps the table's sections beside their file. Where they are, in a sentence; ""
/// where the file has them all, or they cannot be kept.
Testo ConservaNonSalvate();

/// Before the table is replaced by another file's sections: a fatal error on the way saves what it holds
/// now, beside the file it belongs to.
void MettiDaParteSezioni();
/// The table has been replaced.
void LasciaSezioniDaParte();

}  // namespace tarvel
