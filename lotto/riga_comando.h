// What the user asks for on the command line.
#pragma once

#include <span>
#include <string>
#include <variant>
#include <vector>

#include "base/opzioni_comando.h"
#include "base/testo.h"

namespace tarvel::lotto {

inline constexpr char kProgramma[] = "tarvel1-lotto";

struct Richieste {
  std::vector<std::string> ingressi;  // the host's paths, in UTF-8; "-": standard input
  bool virgola = false;
  bool punti = false;
  // Paths of the program; "": not asked for.
  Testo da;
  Testo sezio;
  Testo disegni;
  Testo opzioni;
  std::vector<std::string> senza;  // names of sections, in UTF-8
  bool finDoveSiLegge = false;
};

std::variant<Richieste, Congedo> LeggiRichieste(std::span<const std::string> argomenti);

}  // namespace tarvel::lotto
