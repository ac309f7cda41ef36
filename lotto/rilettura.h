// The sections of a section file, recalculated and copied: in a copy each stands as it stood, nothing of it
// is written anew.
#pragma once

#include <vector>

#include "lotto/riga_comando.h"
#include "lotto/studio.h"

namespace tarvel::lotto {

struct Rilettura {
  std::vector<Riletta> sezioni;
  std::vector<Testo> righe;  // of each, as they stand in the file
  Testo lasciato;            // what the file has besides, and why it was not taken; "" when nothing
};

/// The sections of --da but those of --senza, each with the dimensions that Leggi would bring back. A file
/// that is missing is fatal, a malformed one too, unless as much is asked for as can be read. Uses the
/// program's own table.
Rilettura Rileggi(const Richieste& richieste);

}  // namespace tarvel::lotto
