// The colours and line types that the numbers of a drawing file stand for, each with its counterpart in a DXF
// file.
#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "drawing/colori.h"

namespace ostrel {

using tarvel::disegno::IndiceColore;
using tarvel::disegno::kColori;

/// The nearest to each of kColori among the 255 colours of a DXF file; 7 is white on black and black on
/// white.
inline constexpr std::array<int, kColori.size()> kColoriDxf = {7, 7, 172, 1, 3, 2, 94, 6, 151, 30};

inline constexpr tarvel::Colore kCarta{255, 255, 255};
inline constexpr tarvel::Colore kSchermo{24, 26, 30};

/// A colour of the table as it can be read on this ground: on paper white turns black and light colours are
/// darkened, on the screen black turns grey; the others stay as they are.
tarvel::Colore ColoreSu(const tarvel::Colore& fondo, int colore);

/// A dash pattern: strokes and gaps in turn; empty for a continuous line.
struct TipoLinea {
  std::array<double, 6> misure;  // in pen widths
  std::size_t quante;
  // The nearest of the line types that every CAD program has, with its lengths in millimetres.
  const char *nome, *descrizione;
  std::array<double, 6> unificate;

  std::span<const double> Tratti() const { return std::span(misure).first(quante); }
};

inline constexpr std::array<TipoLinea, 6> kTipiLinea = {{
    {{}, 0, "CONTINUOUS", "Solid line", {}},
    {{8, 5}, 2, "DASHED", "Dashed __ __ __ __ __ __ __ __ __ __", {12.7, 6.35}},
    {{1.5, 3.5}, 2, "DOT", "Dot . . . . . . . . . . . . . . .", {0, 6.35}},
    {{12, 4, 1.5, 4}, 4, "DASHDOT", "Dash dot __ . __ . __ . __ . __ .", {12.7, 6.35, 0, 6.35}},
    {{12, 4, 1.5, 4, 1.5, 4},
     6,
     "DIVIDE",
     "Divide __ . . __ . . __ . . __ . .",
     {12.7, 6.35, 0, 6.35, 0, 6.35}},
    {{20, 6}, 2, "DASHEDX2", "Dashed (2x) ____  ____  ____  ____", {25.4, 12.7}},
}};

/// The place in kTipiLinea of a line type of the file; beyond the last one the patterns start anew.
constexpr std::size_t IndiceTipo(int tipo) {
  const int tratteggi = static_cast<int>(kTipiLinea.size()) - 1;
  return static_cast<std::size_t>(tipo <= 0 ? 0 : 1 + (tipo - 1) % tratteggi);
}

}  // namespace ostrel
