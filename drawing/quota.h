// Dimension lines: the line with its dots and witness lines, and the label that measures it.
#pragma once

#include <span>

#include "drawing/disegno.h"

namespace tarvel::disegno {

/// A dimension line of this colour, which the user may choose too, is not drawn: only its label is.
inline constexpr int kSolaEtichetta = -1;

enum class Lato { Sinistra, Destra };

/// How a dimension is drawn. Lengths in drawing units.
struct StileQuota {
  Intero16 coloreLinea;  // or kSolaEtichetta
  Intero16 coloreTesto;
  Reale diametroPallino;
  Reale base, altezza;  // of one character of the label
  Reale distanzaTesto;  // of the label from the line, to its left
  Reale scala;          // label value for a length of 1
  Reale estensione;     // of the line beyond its ends, and of the witness lines
  Lato lato;            // on which the witness lines reach twice as far
};

/// True while a chain is drawn: a label wider than its dimension then goes to the opposite side of the line,
/// unless the label before it did.
inline bool AlternaTestiQuote = false;
/// The last label went to the opposite side. A label that fits resets it.
inline bool LatoTestoAlternato = false;

/// A dimension line between two points, in either order: it runs to the right, or upwards where vertical. Its
/// label is the measured length, with DecimaliQuote decimals in the regional format. Nothing is drawn between
/// coinciding points.
void Quota(Coordinata p1, Coordinata p2, const StileQuota& stile);
/// The same with a label of its own.
void Quota(const Testo& testo, Coordinata p1, Coordinata p2, const StileQuota& stile);

enum class EtichetteCatena { Misure, Nessuna };

/// Horizontal dimensions between consecutive abscissas, all at ordinate y.
void CatenaQuote(EtichetteCatena etichette, std::span<const Reale> ascisse, Reale y, const StileQuota& stile);

}  // namespace tarvel::disegno
