// Other programs: start one, bring its window to the front, send it keys.
#pragma once

#include <cstdint>
#include <optional>

#include "base/testo.h"

namespace tarvel {

/// Starts the program at `percorso` (translated as a file's path is) without arguments; its
/// working folder is the one it lives in. Style 1: a normal window with the focus. Returns a task
/// id, never 0 and never given twice in a run, or nothing when the program cannot be started.
/// Returns before the program has shown a window.
std::optional<std::int32_t> AvviaProgramma(const Testo& percorso, std::int16_t stile);

/// Brings the main window of a task to the front and gives it the keyboard; waits for it where the
/// task has only just been started. False when the id was never given (0 included), the task has
/// ended, or it shows no window.
bool AttivaProgramma(std::int32_t id);

/// Sends keys to the active window, whatever it is: '%' is Alt held for the key, or the
/// parenthesised group, that follows; "{F4}" a function key; letters stand for their keys. Waits
/// for an activation asked just before to take effect. Where keys cannot be sent, nothing happens.
void InviaTasti(const Testo& sequenza);

}  // namespace tarvel
