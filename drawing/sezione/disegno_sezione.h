// The current section as a dimensioned drawing.
#pragma once

#include "drawing/salva_dis_cond.h"
#include "model/sezione.h"

namespace tarvel {

/// Draws the current section anew and writes the drawing file DirLavori + NomeFileDisegno. A section
/// that is not calculated has its outline rebuilt from ParametriSezione first. A file that cannot be
/// written is told as `avvisi` says and is no reason for the caller to stop.
void GeneraDisegno(disegno::ModoAvviso avvisi);

/// Adds a section to the drawing: outline, title, dimension chains, single dimensions and, when it
/// is calculated, the table of its properties. Sizes, colours and distances are those of Opzioni.
void DisegnaSezione(const RecordSezione& r);

}  // namespace tarvel
