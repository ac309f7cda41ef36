// What the numbers of a drawing file mean to the eye: the colours of the program that draws, the line
// patterns, each with its counterpart in a DXF file; what of a colour can be seen on a ground.
#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "drawing/colori.h"

namespace ostrel {

using tarvel::disegno::IndiceColore;
using tarvel::disegno::kColori;

/// The like of each of kColori among the 255 of a DXF file; 7 is black or white, against the background.
inline constexpr std::array<int, kColori.size()> kColoriDxf = {7, 7, 172, 1, 3, 2, 94, 6, 151, 30};

inline constexpr tarvel::Colore kCarta{255, 255, 255};
inline constexpr tarvel::Colore kSchermo{24, 26, 30};

/// The table's colour, moved only as far as the ground demands: on paper white turns black and
/// light colours are darkened until they can be read, on the screen black turns grey.
tarvel::Colore ColoreSu(const tarvel::Colore& fondo, int colore);

/// A dash pattern: strokes and gaps in turn, in pen widths; empty for a continuous line.
struct TipoLinea {
  const char* nome;
  std::array<double, 6> misure;
  std::size_t quante;

  std::span<const double> Tratti() const { return std::span(misure).first(quante); }
};

inline constexpr std::array<TipoLinea, 6> kTipiLinea = {{
    {"CONTINUOUS", {}, 0},
    {"TRATTI", {8, 5}, 2},
    {"PUNTI", {1.5, 3.5}, 2},
    {"TRATTO_PUNTO", {12, 4, 1.5, 4}, 4},
    {"TRATTO_DUE_PUNTI", {12, 4, 1.5, 4, 1.5, 4}, 6},
    {"TRATTI_LUNGHI", {20, 6}, 2},
}};

/// The place in kTipiLinea of a line type of the file; beyond the last the patterns start anew.
constexpr std::size_t IndiceTipo(int tipo) {
  const int tratteggi = static_cast<int>(kTipiLinea.size()) - 1;
  return static_cast<std::size_t>(tipo <= 0 ? 0 : 1 + (tipo - 1) % tratteggi);
}

}  // namespace ostrel
