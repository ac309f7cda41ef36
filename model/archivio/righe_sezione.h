// One section as lines of the section file, written and read.
#pragma once

#include "model/sezione.h"
#include "platform/file.h"

namespace tarvel {

/// Adds the section's lines: figures cut to two decimals, stresses to fourteen and without their sign. A
/// number too large to be cut is fatal.
void AccodaSezione(Testo& testo, RecordSezione& r);

/// Reads them into the record. A missing line, a spoiled item or a number beyond a double's range is fatal,
/// with file and line; what was read before stays in the record.
void LeggiSezione(FileInLettura& file, RecordSezione& r);

/// A count from 0 to `massimo`, fatal otherwise; `cosa` are counted.
Intero16 LeggiConteggio(FileInLettura& file, int massimo, const char* cosa);

}  // namespace tarvel
