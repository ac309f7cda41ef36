// A drawing file of the host, read whole and checked; one still being written is told apart.
#pragma once

#include <optional>
#include <string>

#include "viewer/disegno/disegno.h"

namespace ostrel {

/// More than the fullest drawing takes, a few texts as long as a line may be among them.
inline constexpr long long kMassimoFile = 64LL << 20;

/// A file being written is tried again this often before it is refused.
inline constexpr int kTentativi = 40;
inline constexpr int kAttesaMs = 50;

struct Caricato {
  std::optional<Disegno> disegno;
  std::string messaggio;  // UTF-8: file, line and what was expected; empty with a drawing
  /// The file changed while it was read, or ends too early and was written a moment ago.
  bool riprova = false;
};

/// One attempt. `percorso` is the host's, UTF-8; only regular files are opened.
Caricato Carica(const std::string& percorso);

/// Attempts until the file stands still; blocks for two seconds at most.
Caricato CaricaAttendendo(const std::string& percorso);

}  // namespace ostrel
