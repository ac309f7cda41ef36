// The main form as data: where each box stands and the lines of the schematic below them.
#pragma once

#include <span>

#include "platform/controlli.h"

namespace tarvel {

/// The box of a dimension; every box is 396 × 216 twips.
struct CasellaSchema {
  int sinistra, alto;
  Colore colore;  // of its text: heights, bases and slopes are told apart
};

/// In the order of the dimensions.
std::span<const CasellaSchema> CaselleSchema();

/// The boxes in tab order: bases, slopes and heights as one reads the section from the top.
std::span<const int> OrdineCaselle();

/// Outline of the section (black) and dimension lines (yellow).
std::vector<LineaForm> LineeSchema();

}  // namespace tarvel
