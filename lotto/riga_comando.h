// What the user asks for on the command line.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "base/testo.h"

namespace tarvel::lotto {

struct Richieste {
  std::vector<std::string> ingressi;  // the host's paths, in UTF-8; "-": standard input
  bool virgola = false;
  bool punti = false;
  int processi = 0;
  // Paths of the program; "": not asked for.
  Testo da;
  Testo sezio;
  Testo disegni;
  Testo opzioni;
  std::vector<std::string> senza;  // names of sections, in UTF-8
  bool finDoveSiLegge = false;
  bool aiuto = false;
  bool versione = false;
};

/// A mistake is an ErroreFatale of kind Argomento.
Richieste LeggiRichieste(std::span<const std::string> argomenti);

extern const char* const kAiuto;

}  // namespace tarvel::lotto
