// Key sequences, as the program writes them.
#pragma once

#include <string_view>
#include <vector>

namespace tarvel {

/// A letter in small, a digit, or a function key, kF1 and those that follow it.
using Tasto = int;
inline constexpr Tasto kF1 = 0x100;

/// Keys to press one after the other, with Alt held for all of them or not.
struct GruppoTasti {
  bool alt = false;
  std::vector<Tasto> tasti;
  friend bool operator==(const GruppoTasti&, const GruppoTasti&) = default;
};

/// "%(fg)": Alt held for the group; "%{F4}": for the key. What is no key is passed over.
std::vector<GruppoTasti> LeggiSequenza(std::string_view sequenza);

}  // namespace tarvel
