// One run of a program on the scripted desktop.
#pragma once

#include <istream>
#include <ostream>

#include "platform/controlli.h"

namespace tarvel::headless {

/// Runs the program whose main form is `principale`; the script plays the user. The transcript, its
/// last line `end STATUS`, goes to `verbale`; what is wrong with the script to `errori`. Returns
/// the status: the program's own (0 normal end, 1 start-up refused or fatal error), 2 for a
/// mistake of the script.
int Recita(Form& principale, std::istream& copione, std::ostream& verbale, std::ostream& errori);

}  // namespace tarvel::headless
