// Dimension lines: the line with its dots and witness lines, and the label that measures it.
#pragma once

#include <span>

#include "drawing/disegno.h"

namespace tarvel::disegno {

/// What the dimension lines of one drawing have in common. Lengths in drawing units.
struct StileQuota {
  Intero16 coloreLinea;  // -1: the label alone
  Intero16 coloreTesto;
  Reale diametroPallino;
  Reale base, altezza;  // of one character of the label
  Reale distanzaTesto;  // of the label from the line, to its left
  Reale scala;          // label value for a length of 1
  Reale estensione;     // of the line beyond its ends; witness lines reach twice as far on their long side
  Intero16 lato;        // 1: witness lines are long on the left, otherwise on the right
};

/// On while a chain is drawn: a label wider than its dimension goes to the opposite side of the
/// line, unless the one before it is there.
extern bool AlternaTestiQuote;
/// 1 while the last label went to the opposite side; a label that fits sets it back to 0.
extern Intero16 LatoTestoAlternato;

/// A dimension line between (x1, y1) and (x2, y2), in either order: it always runs to the right, or
/// upwards where vertical. An empty text stands for the measured length, with DecimaliQuote decimals
/// in the regional format; one blank for no label. Nothing is drawn between coinciding points.
void Quota(const tarvel::Testo& testo, Reale x1, Reale x2, Reale y1, Reale y2, const StileQuota& stile);

/// Horizontal dimensions between consecutive abscissas, all at ordinate y. Measured when
/// `conValori` is 1, otherwise without labels.
void CatenaQuote(Intero16 conValori, std::span<const Reale> ascisse, Reale y, const StileQuota& stile);

}  // namespace tarvel::disegno
