// Finds the marked place of a drawing that a pointer near it means.
#pragma once

#include <optional>

#include "viewer/disegno/disegno.h"

namespace ostrel {

enum class Appiglio { Estremo, Centro, Incrocio };

struct Aggancio {
  Coordinata dove;
  Appiglio genere = Appiglio::Estremo;
};

/// The nearest end of a line or an arc, centre of an arc, marked point or crossing of two lines, within
/// `raggio` (drawing units) of a place. A crossing is taken before one of the drawing's own points only
/// where it is clearly nearer.
std::optional<Aggancio> Aggancia(const Disegno& disegno, const Coordinata& vicino, double raggio);

}  // namespace ostrel
