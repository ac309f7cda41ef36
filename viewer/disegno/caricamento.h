// Reads a drawing file of the host, and tells a file that is still being written from one that is wrong.
#pragma once

#include <optional>
#include <string>

#include "viewer/disegno/disegno.h"

namespace ostrel {

/// The fullest drawing takes less, even with a few texts as long as a line may be.
inline constexpr long long kMassimoFile = 64LL << 20;

/// How often a file that is being written is tried before it is refused, and how long to wait in between.
inline constexpr int kTentativi = 40;
inline constexpr int kAttesaMs = 50;

struct Caricato {
  std::optional<Disegno> disegno;
  std::string messaggio;  // UTF-8: file, line and what was expected; empty with a drawing
  /// The file changed while it was read, or ends too early and was written a moment ago.
  bool riprova = false;
};

/// Tries once. `percorso` is the host's, UTF-8; only a regular file is opened.
Caricato Carica(const std::string& percorso);

/// Tries until the file stands still; blocks for two seconds at most.
Caricato CaricaAttendendo(const std::string& percorso);

}  // namespace ostrel
