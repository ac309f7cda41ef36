// Running the forms' handlers from the toolkit's events: one at a time, their fatal errors
// reported, and what has to wait until none runs.
#pragma once

#include <functional>

namespace tarvel {

/// Runs one handler (an empty one is passed over); a fatal error ends the program here.
void EseguiGestore(const std::function<void()>& gestore);

/// A handler runs that is not waiting in a modal form.
bool Occupato();

/// Runs this now or, while Occupato(), when that is over, before any other event.
void QuandoLibero(std::function<void()> lavoro);
/// Runs this as soon as no handler and no modal showing is on the stack, waiting ones included.
void FinitiTutti(std::function<void()> lavoro);

/// A modal form waits for its user: while this lives its caller waits and other handlers may run.
class AttesaModale {
 public:
  AttesaModale();
  ~AttesaModale();
  AttesaModale(const AttesaModale&) = delete;
  AttesaModale& operator=(const AttesaModale&) = delete;

 private:
  int salvato_;
};

}  // namespace tarvel
