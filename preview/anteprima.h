// The section drawing in the viewer, a program of its own that is spoken to through an input file,
// the drawing file and key strokes.
#pragma once

#include <cstdint>

#include "base/guasto.h"

namespace tarvel {

/// Task id of the viewer when it was last started; 0 before any start.
inline std::int32_t IdVisualizzatore = 0;

/// Shows the current drawing file: a running viewer comes to the front and is sent the keys of its
/// reload command, otherwise it is started.
[[nodiscard]] std::optional<Guasto> Anteprima();

/// Sends Alt+F4 to the viewer, if it is running.
void ChiudiVisualizzatore();

}  // namespace tarvel
