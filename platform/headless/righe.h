// The lines of a script.
#pragma once

#include <istream>
#include <optional>
#include <string>

namespace tarvel::headless {

/// What is wrong with the script, and in which line (from 1).
struct ErroreCopione {
  int riga;
  std::string cosa;
};

/// Reads the lines that hold an event, UTF-8, ended by LF or CR LF; a byte order mark is dropped.
class RigheCopione {
 public:
  explicit RigheCopione(std::istream& testo) : testo_(testo) {}

  /// The next line that is neither blank nor a remark, without the blanks before it; nothing at the
  /// end. A line nobody could have typed (too long, with a NUL) is an ErroreCopione.
  std::optional<std::string> Prossima();
  int Numero() const { return numero_; }

 private:
  bool Leggi(std::string& riga);

  std::istream& testo_;
  int numero_ = 0;
};

}  // namespace tarvel::headless
