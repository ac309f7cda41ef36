// The main form of the program.
#pragma once

#include "platform/controlli.h"

namespace tarvel {

/// The form that a platform loads and shows at start; the program ends by itself after it.
Form& FormPrincipale();

}  // namespace tarvel
