// What the controls hold and how the transcript shows it.
#pragma once

#include <string>

#include "platform/comune/desktop/casella.h"

namespace tarvel::headless {

/// A form has just been shown: a line for each box, label and list whose content is not the one it
/// was described with.
void MostraContenuti(const Form& form);

/// The line of a control: text C "TEXT" or list C "..." "..."; C is FORM.C on a visible form that
/// is not in front.
std::string RigaContenuto(const Controllo& controllo);

/// What a box cannot show of its text now, by the widths that letters have on average.
Taglio Tagliato(const Controllo& casella);
/// What the pointer would show over a box.
Testo SuggerimentoDi(const Controllo& casella);

}  // namespace tarvel::headless
