// The command line, as every platform hands it to the program.
#pragma once

#include <string_view>
#include <vector>

#include "base/testo.h"

namespace tarvel {

/// The arguments, UTF-8, with one blank between two of them, empty ones included.
inline Testo UnisciArgomenti(const std::vector<std::string_view>& argomenti) {
  Testo riga;
  for (std::size_t i = 0; i < argomenti.size(); ++i) riga += (i > 0 ? " " : "") + DaUtf8(argomenti[i]);
  return riga;
}

}  // namespace tarvel
