// The drawing file: extents, compacted tables, one line an entry, for the external viewer.
#pragma once

#include "base/guasto.h"
#include "base/reale.h"

namespace tarvel::disegno {

/// The digit in the first line of the file. The viewer reads both; this program writes Tre.
enum class Intestazione { Tre = 3, Quattro = 4 };

struct Estremi {
  Reale xmin, ymin, xmax, ymax;
};

/// Extents of the coordinates of Disegno; those of place 0 when there is none.
Estremi EstremiDisegno();

/// Compacts Disegno and writes it, replacing the file; the extents are those before compaction. After a
/// failure Disegno stays compacted and a partial file may remain.
[[nodiscard]] std::optional<Guasto> SalvaDisegno(const Testo& nomeFile,
                                                 Intestazione intestazione = Intestazione::Tre);

}  // namespace tarvel::disegno
