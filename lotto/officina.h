// Rows in work: read by one thread, worked on by several, delivered in the order in which they were read.
// Only a window of them is there at a time.
#pragma once

#include <exception>
#include <functional>
#include <vector>

#include "lotto/studio.h"

namespace tarvel::lotto {

/// Some rows, which one thread works on at a time.
struct Blocco {
  std::vector<Riga> righe;
  std::exception_ptr guasto;  // what stopped the reading, or the work, after these rows
  bool pronto = false;
};

struct Mestieri {
  std::function<bool(Blocco&)> leggi;     // false when nothing follows; the block counts all the same
  std::function<void(Blocco&)> lavora;    // on any thread
  std::function<bool(Blocco&)> consegna;  // on the caller's; false to stop
  std::function<bool()> smetti;           // asked again and again while the caller waits
};

/// Returns true when all is delivered. False when it was stopped: threads may then still wait for what they
/// read, and nothing that they use may go; the process is to be left without ado. What was thrown is thrown
/// after the rows before it have been delivered.
[[nodiscard]] bool Lavora(int processi, Mestieri mestieri);

}  // namespace tarvel::lotto
