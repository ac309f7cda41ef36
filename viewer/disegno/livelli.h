// The use of each element, read from the drawing itself: a drawing file names no layers.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "viewer/disegno/disegno.h"

namespace ostrel {

enum class Livello { Contorno, Quote, Testi };

/// The closed rings that the line list begins with, as one past the last line of each: each line begins
/// where the one before it ended, and the last ends where the first began.
std::vector<std::size_t> FiniAnelli(const Disegno& disegno);

/// One layer a line, in the file's order. The outline is the closed rings that the line list begins
/// with: a dimension's lines never meet end to end. What follows the rings is a dimension. A drawing
/// that begins with no closed ring takes the colour of its first line for that of the outline.
std::vector<Livello> LivelliLinee(const Disegno& disegno);

/// Full circles are the dots at the ends of dimensions; other arcs belong to the outline.
Livello LivelloArco(const Disegno& disegno, const Arco& arco);

/// A text that is nothing but a number is the value of a dimension.
Livello LivelloScritta(const Scritta& scritta);

/// The kinds of elements that are wanted, by Livello; marked points go with the outline.
using Livelli = std::array<bool, 3>;
inline constexpr Livelli kTuttiLivelli = {true, true, true};

/// The drawing with nothing but these; they are still what they were.
Disegno SoloLivelli(Disegno disegno, const Livelli& voluti);

}  // namespace ostrel
