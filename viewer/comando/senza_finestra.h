// Exports drawings one after the other, without a window.
#pragma once

#include "viewer/comando/riga_comando.h"

namespace ostrel {

/// Exports what is asked for; a drawing that fails is reported on the standard error and passed over. Returns
/// the exit status: 1 where something failed; 2, with nothing written, where a file would be written twice or
/// over a drawing; otherwise 0.
int EsportaTutti(const Richieste& richieste);

/// Writes a line on the standard error, after the program's name.
void Dice(const QString& testo);

}  // namespace ostrel
