// What the numbers of a drawing file mean to the eye: the colour table and the line patterns, each
// with its counterpart in a DXF file.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace ostrel {

struct ColoreTabella {
  std::uint8_t r, g, b;
  int dxf;  // its like among the 255 of a DXF file; 7 is black or white, against the background
};

inline constexpr std::array<ColoreTabella, 10> kColori = {{
    {0, 0, 0, 7},          // black
    {255, 255, 255, 7},    // white
    {0, 0, 192, 172},      // blue
    {255, 0, 0, 1},        // red
    {0, 255, 0, 3},        // green
    {255, 255, 0, 2},      // yellow
    {0, 128, 0, 94},       // dark green
    {255, 0, 255, 6},      // magenta
    {160, 197, 250, 151},  // light blue
    {255, 163, 70, 30},    // orange
}};
inline constexpr int kNero = 0;
inline constexpr int kBianco = 1;

/// The place in kColori of a colour of the file: any number beyond the table is white.
constexpr std::size_t IndiceColore(int colore) {
  return static_cast<std::size_t>(colore < 0 || colore >= static_cast<int>(kColori.size()) ? kBianco
                                                                                           : colore);
}

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
