// What has gone wrong where the program goes on: a work that may fail returns it to whoever asked for the
// work, who tells the user. A fatal error is base/errore.h.
#pragma once

#include <optional>

#include "base/errore.h"

namespace tarvel {

struct Guasto {
  TipoErrore tipo;
  Testo testo;        // for the user, with file and line
  Testo motivo = {};  // the system's own, "" where it gave none

  Testo ConMotivo() const { return motivo.empty() ? testo : testo + ": " + motivo; }
};

}  // namespace tarvel
