// Where the rows come from: CSV files one after the other.
#pragma once

#include <fstream>
#include <optional>
#include <string>
#include <vector>

#include "lotto/studio.h"

namespace tarvel::lotto {

struct Ingresso {
  std::vector<std::string> file;  // the host's paths, in UTF-8; "-": standard input
  Attesa attende;                 // called around each wait for a file
  bool virgola = false;

  std::size_t prossimo = 0;  // of `file`
  std::ifstream flusso;
  std::optional<LettoreCsv> lettore;  // of the file that is being read
  Tracciato tracciato;                // of the same
  std::optional<FormatoCsv> formato;  // of the first file that has a record
  long long righe = 0;                // read so far
};

/// Reads the next row, which refers to `ingresso`; returns false when there is none. A file that cannot be
/// read, or has no proper header, is fatal. Columns that are not used are told on standard error.
bool ProssimaRiga(Ingresso& ingresso, Riga& riga);

}  // namespace tarvel::lotto
