// Which drawing file is generated next.
#pragma once

#include "base/testo.h"

namespace tarvel {

inline constexpr char kDisegnoTemporaneo[] = "\\SezTmpPO.dis";

/// The name inside DirLavori, with its leading backslash: the temporary drawing's, except while a section is
/// being saved.
inline Testo NomeFileDisegno = kDisegnoTemporaneo;

/// The name, in the same form, of a section's own drawing: the first 8 characters of the section's name.
/// Those that no file name may have become '_', so that the file stays inside DirLavori.
Testo DisegnoDellaSezione(const Testo& nomeSezione);

}  // namespace tarvel
