// The colours of a drawing, for the program and for the viewer. An element holds an index.
#pragma once

#include <array>
#include <cstddef>

#include "platform/controlli.h"

namespace tarvel::disegno {

enum NomeColore {
  kNero,
  kBianco,
  kBlu,
  kRosso,
  kVerde,
  kGiallo,
  kVerdeScuro,
  kMagenta,
  kCeleste,
  kArancio,
};

/// By their index.
inline constexpr std::array<Colore, kArancio + 1> kColori = {{
    {0, 0, 0},        // kNero
    {255, 255, 255},  // kBianco
    {0, 0, 192},      // kBlu
    {255, 0, 0},      // kRosso
    {0, 255, 0},      // kVerde
    {255, 255, 0},    // kGiallo
    {0, 128, 0},      // kVerdeScuro
    {255, 0, 255},    // kMagenta
    {160, 197, 250},  // kCeleste
    {255, 163, 70},   // kArancio
}};

/// The index in kColori of the number that an element holds: a number beyond the table is white.
constexpr std::size_t IndiceColore(int colore) {
  const bool noto = colore >= 0 && colore < static_cast<int>(kColori.size());
  return static_cast<std::size_t>(noto ? colore : kBianco);
}

constexpr Colore ColoreRGB(int colore) {
  return kColori[IndiceColore(colore)];
}

}  // namespace tarvel::disegno
