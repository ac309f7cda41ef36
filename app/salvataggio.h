// Unsaved sections outlive a fatal error: they are written to FileSezioni + ".salvataggio", and its
// message says so.
#pragma once

namespace tarvel {

/// From now on.
void PreparaSalvataggio();

/// Before the table is replaced by another file's sections: a fatal error on the way saves what it holds
/// now, beside the file it belongs to.
void MettiDaParteSezioni();
/// The table has been replaced.
void LasciaSezioniDaParte();

}  // namespace tarvel
