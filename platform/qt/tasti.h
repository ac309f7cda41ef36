// Key sequences, as the program writes them.
#pragma once

#include <string_view>
#include <vector>

namespace tarvel {

/// A letter in small or a function key, kF1 and those that follow it.
using Tasto = int;
inline constexpr Tasto kF1 = 0x100;

/// The keys of a sequence, to be pressed one after the other while Alt is held: "%(fg)", "%{F4}". What is no
/// key is passed over.
std::vector<Tasto> LeggiSequenza(std::string_view sequenza);

}  // namespace tarvel
