// Sequential text files of 8-bit text with CR LF line ends.
//
// Paths use the backslash. Where the host separates by '/', a backslash becomes one and each
// component is matched exactly first, then without regard to case (the program lower-cases its
// root folder, the host's folders may not be); a component that matches nothing is taken as given.
#pragma once

#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/intero.h"
#include "base/reale.h"
#include "base/testo.h"

namespace tarvel {

/// The host's path (UTF-8) of a path of the program.
std::string PercorsoHost(const Testo& percorso);

struct ChiudiFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

/// A file read line by line or item by item. A line ends with CR LF or LF. After an item, the
/// blanks that follow it, one comma or the line end belong to it; a whole line read after an item is
/// always the next one, what is left of the item's line is passed over. Reading past the end, a malformed
/// item and a fault of the host are fatal, with file and line.
class FileInLettura {
 public:
  /// Nothing when the file cannot be opened (a folder counts as such).
  static std::optional<FileInLettura> Apri(const Testo& percorso);

  /// The next whole line, without its end. The view holds until the next call.
  std::string_view LeggiRiga();
  /// Leading blanks skipped; ends at a comma or the line end; quotes around it are removed.
  Testo LeggiVoceTesto();
  /// A number in the invariant form; ends at a comma, a blank or the line end; quotes removed.
  Reale LeggiVoceNumero();
  /// A whole number of 16 bits; ends as a number does.
  Intero16 LeggiVoceIntero();

  /// "file, riga n" of the line last read from.
  Testo Luogo() const;
  [[noreturn]] void Malformato(const Testo& cosa) const;

 private:
  FileInLettura(const Testo& percorso, std::FILE* file) : percorso_(percorso), file_(file) {}
  bool Riempi();
  /// Makes the current line ready to be read from; fatal at the end of the file.
  void Prepara();
  std::string_view LeggiVoce(bool fineAlBlanco);

  Testo percorso_;
  std::unique_ptr<std::FILE, ChiudiFile> file_;
  Testo riga_;
  std::size_t letti_ = 0;    // characters of riga_ already taken
  bool rigaAperta_ = false;  // false: the next reading takes a new line
  int numero_ = 0;           // of riga_ in the file
  Testo buffer_;
  std::size_t posto_ = 0;  // of the next character in buffer_
};

/// A file written line by line; created, or replaced, when it is opened.
class FileInScrittura {
 public:
  /// Nothing when the file cannot be created; an existing one is then untouched.
  static std::optional<FileInScrittura> Crea(const Testo& percorso);

  /// The line and CR LF. A write that fails is fatal (TipoErrore::File); it may show only later, at
  /// the latest in Chiudi.
  void ScriviRiga(std::string_view riga);
  /// Everything is with the host when it returns. A file not closed so is closed without a check.
  void Chiudi();

 private:
  FileInScrittura(const Testo& percorso, std::FILE* file) : percorso_(percorso), file_(file) {}
  void Svuota();
  [[noreturn]] void Fallita() const;

  Testo percorso_;
  std::unique_ptr<std::FILE, ChiudiFile> file_;
  Testo buffer_;
};

}  // namespace tarvel
