// Which drawing file is generated next.
#pragma once

#include "base/testo.h"

namespace tarvel {

inline constexpr char kDisegnoTemporaneo[] = "\\SezTmpPO.dis";

/// The name inside DirLavori, with its leading backslash: the temporary drawing, but while a section
/// is being saved.
extern Testo NomeFileDisegno;

/// The name, in the same form, of a section's own drawing: the first 8 characters of its name, '_' for
/// those that no file name holds, so that it stays inside DirLavori.
Testo DisegnoDellaSezione(const Testo& nomeSezione);

}  // namespace tarvel
