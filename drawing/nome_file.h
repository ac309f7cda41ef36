// Which drawing file is generated next.
#pragma once

#include "base/testo.h"

namespace tarvel {

inline constexpr char kDisegnoTemporaneo[] = "\\SezTmpPO.dis";

/// The name inside DirLavori, with its leading backslash: the temporary drawing, but while a section
/// is being saved.
extern Testo NomeFileDisegno;

}  // namespace tarvel
