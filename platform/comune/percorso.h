// From the paths of the program to the host's.
//
// Paths of the program use the backslash. Where the host separates by '/', a backslash becomes one
// and each component is looked up: exactly first, then without regard to case (the program lower-cases
// its folders, the host's may not be). From the first component that is not there on, a path is taken
// as given.
#pragma once

#include <optional>
#include <string>

#include "base/testo.h"

namespace tarvel {

/// The host's path (UTF-8) of a path of the program; nothing when a folder on the way cannot be
/// looked into: what is in it is then not known, and "not there" would be a guess.
std::optional<std::string> PercorsoHost(const Testo& percorso);

/// A path as the user wrote it, before it was lower-cased: where names differ by case alone, its
/// spelling is tried before any other.
void RicordaGrafia(const Testo& percorso);

}  // namespace tarvel
