// Reads the bytes of a drawing file ".dis".
#pragma once

#include <cstddef>
#include <string_view>
#include <variant>

#include "viewer/disegno/disegno.h"

namespace ostrel {

struct ErroreDis {
  int riga = 0;  // from 1
  tarvel::Testo messaggio;
  /// The bytes end where more was expected: perhaps the file is still being written.
  bool incompleto = false;
};

/// Reads a whole drawing: lines that end with CR LF or LF, numbers with '.' or ',' as the decimal separator.
/// Anything else is refused, and so are lengths beyond 1E+9, tables larger than those of the program that
/// draws, and lines of more than 1 MB. A length below 1E-9 is 0. Memory stays in proportion to the bytes,
/// whatever counts they claim. A line whose first index is -1, or an arc with such an index, is passed over
/// and counted; every other index must be within the table. Control characters and codes that the code page
/// does not define become '?'. A text without breadth or height is left out.
std::variant<Disegno, ErroreDis> LeggiDis(std::string_view byte);

}  // namespace ostrel
