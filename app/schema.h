// The main form as data: where each box stands and the lines of the schematic below them.
#pragma once

#include <span>

#include "model/parametri.h"
#include "platform/controlli.h"

namespace tarvel {

/// The box of a dimension; every box is 396 × 216 twips.
struct CasellaSchema {
  Dimensione dimensione;
  int sinistra, alto;
  Colore colore;  // of its text: heights, bases and slopes are told apart
};

/// In tab order: bases, slopes and heights as one reads the section from the top.
std::span<const CasellaSchema> CaselleSchema();

/// Outline of the section (black) and dimension lines (yellow).
std::vector<LineaForm> LineeSchema();

}  // namespace tarvel
