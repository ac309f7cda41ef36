// Key sequences and the keyboard of an X server.
#pragma once

#include <string_view>
#include <vector>

// X11's headers rewrite many common names; only the files that talk to the server include them.
using Display = struct _XDisplay;

namespace tarvel {

/// Keys to press one after the other, with Alt held for all of them or not.
struct GruppoTasti {
  bool alt = false;
  std::vector<unsigned long> simboli;  // X11 keysyms
  friend bool operator==(const GruppoTasti&, const GruppoTasti&) = default;
};

/// "%(fg)": Alt held for the group; "%{F4}": for the key. What is no key is passed over.
std::vector<GruppoTasti> LeggiSequenza(std::string_view sequenza);

/// Presses and releases keys of the server's keyboard, as the user would.
void PremiTasti(Display* display, const std::vector<GruppoTasti>& sequenza);

}  // namespace tarvel
