// Where files live: the folders of the installation and of the current job.
#pragma once

#include "base/guasto.h"

namespace tarvel {

// All empty until InizializzaDirettori has run; they never change afterwards.
extern Testo DirRoot;     // root of the installation, lower-cased, no trailing backslash
extern Testo NomeLavoro;  // the job, exactly 6 characters
extern Testo DirLavori;   // folder of the job
extern Testo DirProgra;   // programs, the viewer among them
extern Testo DirDriver;   // of use to other programs of the installation
extern Testo DirCustom;   // defaults, drawing options, general section file

/// Derives the folders from the parent application's argument ("|diroot=…|") and the two settings files. A
/// fault is of the kind Argomento or File. The folders themselves are not tested for existence.
[[nodiscard]] std::optional<Guasto> InizializzaDirettori(const Testo& argomento);

}  // namespace tarvel
