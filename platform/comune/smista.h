// What every platform's event loop does around a handler.
#pragma once

#include <functional>

#include "base/errore.h"

namespace tarvel {

/// The text of the message that reports a fatal error: what failed and where.
Testo TestoErroreFatale(const ErroreFatale& errore);

/// Runs one handler; a fatal error is reported by one message and ends the program, status 1.
void Smista(const std::function<void()>& gestore);

}  // namespace tarvel
