// The layer of each element. A drawing file names no layers; they follow from the order and kind of the
// elements.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "viewer/disegno/disegno.h"

namespace ostrel {

enum class Livello { Contorno, Quote, Testi };

/// The closed rings that the list of lines begins with, each given by one past its last line. In a ring each
/// line begins where the one before it ended, and the last ends where the first began.
std::vector<std::size_t> FiniAnelli(const Disegno& disegno);

/// The layer of each line, in the file's order. The closed rings that the list begins with are the outline,
/// the lines after them are dimensions, which never meet end to end. In a drawing that begins with no closed
/// ring, the lines of the first line's colour are the outline.
std::vector<Livello> LivelliLinee(const Disegno& disegno);

/// Full circles are the dots at the ends of dimensions; other arcs belong to the outline.
Livello LivelloArco(const Disegno& disegno, const Arco& arco);

/// A text that is nothing but a number is the value of a dimension.
Livello LivelloScritta(const Scritta& scritta);

/// Which layers are wanted, in the order of Livello; marked points belong to the outline.
using Livelli = std::array<bool, 3>;
inline constexpr Livelli kTuttiLivelli = {true, true, true};

/// The drawing with the elements of these layers alone, each still in its layer.
Disegno SoloLivelli(Disegno disegno, const Livelli& voluti);

}  // namespace ostrel
