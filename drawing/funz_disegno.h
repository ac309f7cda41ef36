// The drawing primitives: lines, circles and arcs, texts. Each records into Disegno or, where the
// caller hands it a surface, draws onto that one.
//
// Coordinates are in drawing units. What is too small to be seen (a segment within the tolerance,
// a circle of no diameter, a text without size) is passed over. A table announces its last place by
// one message; after it further elements are dropped in silence.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "drawing/disegno.h"

namespace tarvel::disegno {

/// Where primitives may draw instead of recording. Colours are RGB values, red in the low byte;
/// angles are radians, counter-clockwise; equal angles are a full circle.
struct Superficie {
  std::function<void(Coordinata da, Coordinata a, std::int32_t rgb)> segmento;
  std::function<void(Coordinata centro, Reale raggio, Reale angoloIniziale, Reale angoloFinale,
                     std::int32_t rgb)>
      arco;
};

/// The RGB value of a colour index; white for an unknown one.
std::int32_t ColoreRGB(Intero16 indice);

/// The index of a coordinate equal to (x, y) within the tolerance, among the last 31 stored; else
/// (x, y) is appended. -1 when the table is full. Positions are 16-bit: a drawing of more than
/// 32768 coordinates is a fatal overflow.
Intero16 AggiungiCoordinata(Reale x, Reale y);

/// Records a line of the current type; the points are taken as they are, without the origin shift.
void AggiungiLinea(Reale x1, Reale y1, Reale x2, Reale y2, Intero16 colore);

/// Without a colour: the current one when recorded, 0 on a surface.
void Linea(Reale x1, Reale y1, Reale x2, Reale y2, std::optional<Intero16> colore = {},
           const Superficie* superficie = nullptr);

/// A circle, or the arc between two angles (radians). A missing start is 0, a missing end equals
/// the start. Colour as for Linea, but colour 0 is recorded as 1.
void Cerchio(Reale x, Reale y, Reale diametro, std::optional<Intero16> colore = {},
             std::optional<Reale> angoloIniziale = {}, std::optional<Reale> angoloFinale = {},
             const Superficie* superficie = nullptr);

/// A text from (x, y) at whole degrees; `base` is the width of one character cell, `altezza` the
/// height of the characters. A recorded text of colour 0 takes colour 1, its sizes are kept in
/// tenths; a size that does not fit 16 bits so is a fatal overflow.
void Testo(const tarvel::Testo& testo, Reale x, Reale y, Intero16 angolo, Reale base, Reale altezza,
           Intero16 colore, const Superficie* superficie = nullptr);

}  // namespace tarvel::disegno
