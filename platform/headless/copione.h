// The script that plays the user: one event a line, and the run of a program under it.
#pragma once

#include <istream>
#include <ostream>

#include "platform/controlli.h"

namespace tarvel::headless {

/// Runs the program whose main form is `principale`. The script plays the user; after its last event it takes
/// leave: closes each modal form, then the main form, and lets the clock run until the program ends. Its
/// lines are UTF-8, ended by LF or CR LF; a byte order mark is dropped. The transcript, its last line `end
/// STATUS`, goes to `verbale`; what is wrong with the script, an event or an answer that is left included, to
/// `errori`. Returns the status: the program's own (0 normal end, 1 start-up refused or fatal error), 2 for a
/// mistake of the script.
int Recita(Form& principale, std::istream& copione, std::ostream& verbale, std::ostream& errori);

}  // namespace tarvel::headless
