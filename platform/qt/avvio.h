// The start of the program in a window.
#pragma once

#include "platform/controlli.h"

namespace tarvel {

/// Readies the toolkit for a program whose main form is this one: look, scale, language, and the C
/// number format, which the toolkit changes. Call once, before anything of the seam.
void PreparaDesktop(int argc, char** argv, const Form& principale);

/// Shows the main form and runs until the program ends itself.
int EseguiProgramma(int argc, char** argv, Form& principale);

}  // namespace tarvel
