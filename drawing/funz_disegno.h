// The drawing primitives: lines, circles and arcs, texts. Each records into Disegno or, where the
// caller hands it a surface, draws onto that one.
//
// Coordinates are in drawing units. What is too small to be seen (a segment within the tolerance,
// a circle of no diameter, a text without size) is passed over. An element that takes the last place of
// its table leaves a warning in Disegno; after it further elements are dropped in silence.
#pragma once

#include <functional>
#include <optional>

#include "drawing/colori.h"
#include "drawing/disegno.h"

namespace tarvel::disegno {

/// Primitives may draw on a surface, a form's picture or a printer, instead of recording; this program has
/// none. Angles are radians, counter-clockwise; equal angles are a full circle.
struct Superficie {
  std::function<void(Coordinata da, Coordinata a, Colore colore)> segmento;
  std::function<void(Coordinata centro, Reale raggio, Reale angoloIniziale, Reale angoloFinale,
                     Colore colore)>
      arco;
};

/// The index of a coordinate that coincides with p among the last 31 stored, or that of p, appended; -1 when
/// the table is full. Indices are 16-bit: more than 32768 coordinates are a fatal overflow.
Intero16 AggiungiCoordinata(Coordinata p);

/// Records a line of the current type; the points are taken as they are, without the origin shift.
void AggiungiLinea(Coordinata da, Coordinata a, Intero16 colore);

/// Without a colour: the current one when recorded, black on a surface.
void Linea(Coordinata da, Coordinata a, std::optional<Intero16> colore = {},
           const Superficie* superficie = nullptr);

/// A circle, or the arc between two angles (radians). A missing start is 0, a missing end equals
/// the start. Colour as for Linea, but black is recorded as white.
void Cerchio(Coordinata centro, Reale diametro, std::optional<Intero16> colore = {},
             std::optional<Reale> angoloIniziale = {}, std::optional<Reale> angoloFinale = {},
             const Superficie* superficie = nullptr);

/// A text that begins at `posto`, at whole degrees; `base` is the width of one character cell,
/// `altezza` the height of the characters. A black text is recorded as white, its sizes as 16-bit tenths: a
/// size that does not fit is a fatal overflow.
void ScriviTesto(const Testo& testo, Coordinata posto, Intero16 angolo, Reale base, Reale altezza,
                 Intero16 colore, const Superficie* superficie = nullptr);

}  // namespace tarvel::disegno
