// The drawing file: extents, compacted tables, one line an entry, for the external viewer.
#pragma once

#include "base/reale.h"
#include "base/testo.h"

namespace tarvel::disegno {

/// What the user is told of a drawing file: all, nothing, or that it could not be written. This program
/// asks for nothing: a section is saved, and the viewer shown, all the same.
enum class ModoAvviso { Tutti, Nessuno, Errori };

/// The digit that the file begins with. The viewer reads both; this program writes the first.
enum class Intestazione { Tre = 3, Quattro = 4 };

struct Estremi {
  Reale xmin, ymin, xmax, ymax;
};

/// Extents of the coordinates of Disegno; those of place 0 when there is none.
Estremi EstremiDisegno();

/// Compacts Disegno and writes it, replacing the file; the extents are those before compaction. Whether
/// it was written: after a failure Disegno stays compacted and a partial file may remain.
[[nodiscard]] bool SalvaDisegno(const tarvel::Testo& nomeFile, ModoAvviso avvisi,
                                Intestazione intestazione = Intestazione::Tre);

}  // namespace tarvel::disegno
