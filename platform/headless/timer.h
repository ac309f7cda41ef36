// The virtual clock: time passes only when somebody lets it, and timers fire by it.
#pragma once

#include <optional>

namespace tarvel::headless {

/// Milliseconds.
using Durata = long long;

/// Lets so much time pass. The timers that fall due meanwhile fire as soon as the program waits
/// for its user, not inside this call.
void LasciaPassare(Durata durata);

/// The timers wait while this lives: of the firings that fall due meanwhile each timer has one left.
class PausaTimer {
 public:
  PausaTimer();
  ~PausaTimer();
  PausaTimer(const PausaTimer&) = delete;
  PausaTimer& operator=(const PausaTimer&) = delete;

 private:
  Durata inizio_;
};

/// Fires the timer that is due first; false when none is due.
bool ScattaProssimo();

/// How long until a timer falls due, nothing when all are stopped.
std::optional<Durata> AttesaProssimo();

/// Every timer stops, the clock stands at 0.
void AzzeraTempo();

}  // namespace tarvel::headless
