// What the host hands a program when it starts it: its command line and its standard streams.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/testo.h"

namespace tarvel {

/// The arguments, in UTF-8, without the program's name; from those of `main`, or from the host where those
/// are not whole.
std::vector<std::string> Argomenti(int argc, char** argv);

/// What follows the program's name on the command line, as the parent program passed it: the text itself
/// where the host hands that over, otherwise the arguments with one blank between two of them.
Testo RigaComandoPassata(int argc, char** argv);

/// Standard input and output carry bytes, UTF-8 on a terminal. To be called before they are used.
void PreparaFlussi();

/// The arguments with one blank between two of them, empty ones included.
inline Testo UnisciArgomenti(std::span<const std::string> argomenti) {
  Testo riga;
  for (std::size_t i = 0; i < argomenti.size(); ++i) riga += (i > 0 ? " " : "") + DaUtf8(argomenti[i]);
  return riga;
}

}  // namespace tarvel
