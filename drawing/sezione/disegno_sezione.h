// A section as a dimensioned drawing.
#pragma once

#include "drawing/quota.h"
#include "model/parametri.h"
#include "model/sezione.h"
#include "options/opzioni.h"

namespace tarvel {

/// How a section is drawn: the drawing options in the terms of the drawing.
struct StileSezione {
  Intero16 colore, tipoLinea;  // of the outline; the type is that of every line
  Reale distanzaMassima;       // of the dimension lines from the outline
  disegno::StileQuota quota;   // of a dimension with its label on the standard side
  Reale distanzaOpposta;       // of a label on the other side
  Intero16 coloreTesti;        // of the title and the table of properties
  Reale baseTesti, altezzaTesti;
};

StileSezione StileDi(const VettoreOpzioni& opzioni);

/// Makes Disegno the drawing of a section: outline, title, dimension chains, single dimensions and, where it
/// is calculated, the table of its properties. `p`: the dimensions that its outline was built from.
void DisegnaSezione(const RecordSezione& r, const VettoreParametri& p, const StileSezione& stile,
                    bool calcolata);

}  // namespace tarvel
