// What the controls hold and how the transcript shows it.
#pragma once

#include <string>

#include "platform/controlli.h"

namespace tarvel::headless {

/// Remembers the content the form's controls were designed with; the first call counts.
void RicordaProgetto(const Form& form);
void DimenticaContenuti();

/// A form has just been shown: a line for each box, label and list whose content is not the one it
/// was designed with.
void MostraContenuti(const Form& form);

/// The line of a control: text C "TEXT" or list C "..." "..."; C is FORM.C on a visible form that
/// is not in front.
std::string RigaContenuto(const Controllo& controllo);

}  // namespace tarvel::headless
