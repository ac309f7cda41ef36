// Other programs: start one, bring its window to the front, send it keys.
#pragma once

#include <cstdint>
#include <optional>

#include "base/testo.h"

namespace tarvel {

/// Starts the program at `percorso` (translated as a file's path is) without arguments; its
/// working folder is the one it lives in. It outlives this one. `stile` is a wish that a host may pass
/// over; the program's only one is 1, a normal window with the focus. Returns a task id, never 0 and
/// never given twice in a run, or nothing when the program cannot be started (it is not there, is a
/// folder, the host refuses). Returns before the program has shown a window.
std::optional<std::int32_t> AvviaProgramma(const Testo& percorso, std::int16_t stile);

/// Brings the main window of a task to the front and gives it the keyboard; waits for it, some seconds
/// at most, where the task has only just been started. False when the id was never given (0 included)
/// or the task has ended. A task that lives counts as running: where it shows no window, or the host
/// lets no program see another's, the answer is true all the same.
bool AttivaProgramma(std::int32_t id);

/// Sends keys to the main window of the task activated last, once it is the active one. Waits for the
/// activation to take effect, some seconds at most, during which no event is taken. The keys are
/// dropped where they cannot be sent: the activation failed, the task has no window, or another window
/// has the keyboard, a dialog of the same task included.
///
///   sequence = "%" ( "(" { letter } ")" | "{F1}" ... "{F12}" )    Alt is held for the keys
///
/// A letter is its key, without Shift. Anything else is passed over.
void InviaTasti(const Testo& sequenza);

}  // namespace tarvel
