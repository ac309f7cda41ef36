// The sections of a section file, to be recalculated and copied. A copy has the lines of the file, unchanged.
#pragma once

#include <vector>

#include "lotto/riga_comando.h"
#include "lotto/studio.h"

namespace tarvel::lotto {

struct Rilettura {
  std::vector<Riletta> sezioni;
  std::vector<Testo> righe;  // the lines of each section in the file
  Testo lasciato;            // what else the file has, and why it is not taken; "" when nothing
};

/// Reads the sections of --da, leaves out those of --senza, and finds the dimensions of each as Leggi does. A
/// missing file is fatal; so is a malformed one without --fin-dove-si-legge. Uses the program's own table.
Rilettura Rileggi(const Richieste& richieste);

}  // namespace tarvel::lotto
