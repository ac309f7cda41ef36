// CSV as spreadsheets write it: its separator and code, records that a quoted cell may stretch over
// several lines, cells.
#pragma once

#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/testo.h"

namespace tarvel::lotto {

/// The byte order mark.
inline constexpr std::string_view kSegnoUtf8 = "\xEF\xBB\xBF";

enum class Codifica { Utf8, Utf8ConSegno, Windows1252 };

struct FormatoCsv {
  char separatore = ';';
  bool virgola = false;  // decimal sign
  Codifica codifica = Codifica::Utf8;
  std::string fineRiga = "\n";
};

struct RecordCsv {
  std::string testo;             // the bytes, without the line's end
  long long riga = 0;            // its first line in the file, from 1
  const char* guasto = nullptr;  // why it cannot be taken apart
};

/// A file that is being read, a block at a time.
struct LettoreCsv {
  explicit LettoreCsv(std::istream& flusso) : ingresso(flusso) {}

  std::istream& ingresso;
  std::string blocco;
  std::size_t posto = 0;   // of the next record in `blocco`
  bool finito = false;     // nothing follows the block
  long long riga = 1;      // of the next record
  char separatore = '\0';  // not known yet
};

/// Byte order mark, code and line ends, by the file's beginning; what is no CSV is fatal: a workbook,
/// UTF-16.
FormatoCsv RiconosciCodifica(LettoreCsv& lettore);

/// Tab, semicolon or comma: the first of these that stands outside quotes.
char RiconosciSeparatore(std::string_view testo);

/// The next record that is neither empty nor a comment (# at its very beginning); nothing at the end. Of
/// quotes that are never closed the first line is a record of its own, which says so, and the lines after
/// it are read as usual; one with a NUL says so too. A failure to read is fatal.
std::optional<RecordCsv> ProssimoRecord(LettoreCsv& lettore);

/// The cells of a record, without the quotes, and without the blanks around them.
void Celle(std::string_view testo, char separatore, std::vector<std::string>& celle);

/// A cell's 8-bit text: what is no UTF-8 is Windows-1252.
Testo TestoCella(std::string_view cella);

/// A name that a spreadsheet would run as a formula, with an apostrophe before it; any other as it is.
Testo NomeProtetto(const Testo& nome);
/// The name without that apostrophe. What NomeProtetto returns comes back as it was.
Testo NomeDiCella(const Testo& cella);

/// Appends an 8-bit text as a cell, in quotes where it needs them.
void AccodaCella(std::string& uscita, std::string_view testo, const FormatoCsv& formato);

}  // namespace tarvel::lotto
