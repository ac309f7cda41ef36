// The current section as a dimensioned drawing.
#pragma once

#include "base/intero.h"
#include "model/sezione.h"

namespace tarvel {

/// Report modes of the drawing file.
enum ModoAvviso { kAvvisiTutti = 0, kAvvisiNessuno = 1, kAvvisiErrori = 2 };

/// Draws the current section anew and writes the drawing file DirLavori + NomeFileDisegno. A section
/// that is not calculated has its outline rebuilt from ParametriSezione first.
void GeneraDisegno(ModoAvviso avvisi);

/// Adds a section to the drawing: outline, title, dimension chains, single dimensions and, when it
/// is calculated, the table of its properties. Sizes, colours and distances are those of Opzioni.
void DisegnaSezione(const RecordSezione& r);

}  // namespace tarvel
