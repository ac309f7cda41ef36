// The drawing file: extents, compacted tables, one line an entry, for the external viewer.
#pragma once

#include "base/intero.h"
#include "base/reale.h"
#include "base/testo.h"

namespace tarvel::disegno {

/// Extents of the coordinates of Disegno; those of place 0 when there is none.
void EstremiDisegno(Reale& xmin, Reale& ymin, Reale& xmax, Reale& ymax);

/// Compacts Disegno and writes it, replacing the file; the extents are those before compaction.
/// `tipoIntestazione` 4 asks for header digit 4, anything else for 3; it comes back as 1 when the
/// file was written and 0 when not. `modoAvviso` 0 reports success and failure, 1 nothing, 2 failure
/// only. After a failure Disegno stays compacted and a partial file may remain.
void SalvaDisegno(const tarvel::Testo& nomeFile, Intero16& tipoIntestazione, const Intero16& modoAvviso);

}  // namespace tarvel::disegno
