// Where files live: the folders of the installation and of the current job.
#pragma once

#include "base/guasto.h"

namespace tarvel {

// All empty until InizializzaDirettori has run; they never change afterwards.
inline Testo DirRoot;     // root of the installation, lower-cased, no trailing backslash
inline Testo NomeLavoro;  // the job, exactly 6 characters
inline Testo DirLavori;   // folder of the job
inline Testo DirProgra;   // programs, the viewer among them
inline Testo DirDriver;   // of use to other programs of the installation
inline Testo DirCustom;   // defaults, drawing options, general section file

/// Derives the folders from the parent application's argument ("|diroot=…|") and the two settings files. A
/// fault is of the kind Argomento or File. The folders themselves are not tested for existence.
[[nodiscard]] std::optional<Guasto> InizializzaDirettori(const Testo& argomento);

}  // namespace tarvel
