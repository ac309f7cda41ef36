// Where the rows come from: CSV files one after the other.
#pragma once

#include <fstream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "lotto/studio.h"

namespace tarvel::lotto {

struct Ingresso {
  std::vector<std::string> file;  // the host's paths, in UTF-8; "-": standard input
  bool virgola = false;

  std::size_t prossimo = 0;  // of `file`
  std::ifstream flusso;
  std::unique_ptr<LettoreCsv> lettore;  // of the file that is being read
  std::shared_ptr<const Tracciato> tracciato;
  std::optional<FormatoCsv> formato;  // of the first file that has a record
  long long righe = 0;                // read so far
};

/// Adds the next rows; false when there are none after them. A file that cannot be read, or has no proper
/// header, is fatal. Columns that are not used are told on standard error.
bool LeggiRighe(Ingresso& ingresso, std::vector<Riga>& righe);

}  // namespace tarvel::lotto
