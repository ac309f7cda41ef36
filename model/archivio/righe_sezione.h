// One section as lines of the section file, written and read.
#pragma once

#include "model/sezione.h"
#include "platform/file.h"

namespace tarvel {

/// Appends the section's lines: figures cut to two decimals, stresses to fourteen and without their sign. A
/// number too large to be cut is fatal.
void AccodaSezione(Testo& testo, RecordSezione& r);

/// Reads them into the record. A missing line, a spoiled item or a number beyond a double's range is fatal,
/// with file and line; what was read before stays in the record.
void LeggiSezione(FileInLettura& file, RecordSezione& r);

/// A count of `cosa`; one below 0 or above `massimo` is fatal.
Intero16 LeggiConteggio(FileInLettura& file, int massimo, const char* cosa);

}  // namespace tarvel
