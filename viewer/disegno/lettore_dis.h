// The reader of drawing files ".dis": a pure function of the file's bytes.
#pragma once

#include <cstddef>
#include <string_view>
#include <variant>

#include "viewer/disegno/disegno.h"

namespace ostrel {

struct ErroreDis {
  int riga = 0;  // from 1
  tarvel::Testo messaggio;
  /// The bytes end where more was expected: the file may still be being written.
  bool incompleto = false;
};

/// Numbers with '.' or ',' as the decimal separator; lines end with CR LF or LF. Anything else than
/// a whole drawing is refused, and so are tables larger than the drawing program's own and lines of
/// more than 1 MB. Memory stays in proportion to the bytes, whatever counts they claim. A line whose
/// first index is -1, or an arc with such an index, is passed over and counted; every other index must
/// be within the table. Control characters and codes that the code page does not define become '?'.
/// A text without breadth or height is left out. Every finite number is read: see Disegno::unita.
std::variant<Disegno, ErroreDis> LeggiDis(std::string_view byte);

}  // namespace ostrel
