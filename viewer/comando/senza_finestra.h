// Drawings exported one after the other, without a window.
#pragma once

#include "viewer/comando/riga_comando.h"

namespace ostrel {

/// Exports what is asked for; what fails is said on the standard error and passed over. The exit status: 0,
/// 1 where something failed, 2 where a file would be written twice or over a drawing; then none is.
int EsportaTutti(const Richieste& richieste);

/// Says on the standard error, under the program's name.
void Dice(const QString& testo);

}  // namespace ostrel
