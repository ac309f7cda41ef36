// The marked places of a drawing that a pointer near them means.
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
/// `raggio` (drawing units) of a place. One of the drawing's own points is preferred to a crossing that is
/// hardly nearer. Among very many lines so near to the place, crossings are not looked for.
std::optional<Aggancio> Aggancia(const Disegno& disegno, const Coordinata& vicino, double raggio);

}  // namespace ostrel
