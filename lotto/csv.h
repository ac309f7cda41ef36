// CSV as spreadsheets write it: separator and code, records, whose quoted cells may have several lines, and
// cells.
#pragma once

#include <functional>
#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
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

/// Called with true before a wait for input, which may be long, and with false after it.
using Attesa = std::function<void(bool)>;

/// A file that is being read, a block at a time.
struct LettoreCsv {
  LettoreCsv(std::istream& flusso, Attesa attesa) : ingresso(flusso), attende(std::move(attesa)) {}

  std::istream& ingresso;
  Attesa attende;
  std::string blocco;
  std::size_t posto = 0;   // of the next record in `blocco`
  bool finito = false;     // nothing follows the block
  long long riga = 1;      // of the next record
  char separatore = '\0';  // not known yet
};

/// Reads the beginning of a file, which tells code and line ends. A workbook and a text in UTF-16 are fatal.
FormatoCsv RiconosciCodifica(LettoreCsv& lettore);

/// The separator that the line "sep=;" declares; '\0' when the line is another one. Spreadsheets have that
/// line before all others.
char SeparatoreDichiarato(std::string_view testo);

/// Tab, semicolon or comma: the first of the three, in this order, that the text has outside quotes.
char RiconosciSeparatore(std::string_view testo);

/// Returns the next record, nothing at the end. Empty ones and comments (# as the first character) are
/// skipped. Where quotes are never closed, their first line is a record with that fault, and the next record
/// begins at the line after it. A record with a NUL has a fault too. A failure to read is fatal.
std::optional<RecordCsv> ProssimoRecord(LettoreCsv& lettore);

/// The cells of a record, without the quotes, and without the blanks around them.
void Celle(std::string_view testo, char separatore, std::vector<std::string>& celle);

/// A cell as 8-bit text. A cell that is no UTF-8 is taken for Windows-1252.
Testo TestoCella(std::string_view cella);

/// Puts an apostrophe before a name that a spreadsheet would run as a formula; other names stay.
Testo NomeProtetto(const Testo& nome);
/// Takes that apostrophe away: NomeDiCella(NomeProtetto(nome)) is `nome`.
Testo NomeDiCella(const Testo& cella);

/// Appends an 8-bit text as a cell, in quotes where the cell needs them.
void AccodaCella(std::string& uscita, std::string_view testo, const FormatoCsv& formato);

}  // namespace tarvel::lotto
