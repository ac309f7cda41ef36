// Why the host failed, in the user's words.
#pragma once

#include <system_error>

#include "base/testo.h"

namespace tarvel {

/// "disco pieno"; the system's own number for what has no words here.
Testo InParole(std::error_code motivo);

/// Of the last call to the host that failed; another call may change it.
Testo MotivoOspite();

}  // namespace tarvel
