// The main form as data: where each box stands and the lines of the schematic below them.
#pragma once

#include <span>

#include "platform/controlli.h"

namespace tarvel {

struct PostoCasella {
  int sinistra, alto;
};

/// Left and top of box i, in twips; every box is 396 × 216.
std::span<const PostoCasella> PostiCaselle();

/// The boxes in tab order: bases, slopes and heights as one reads the section from the top.
std::span<const int> OrdineCaselle();

/// Outline of the section (black) and dimension lines (yellow).
std::vector<LineaForm> LineeSchema();

}  // namespace tarvel
