// Sequential text files of 8-bit text with CR LF line ends: paths and reading. Writing is
// platform/scrittura.h.
//
// Paths of the program use the backslash. Where the host separates by '/', a backslash becomes one
// and each component is looked up: exactly first, then without regard to case (the program lower-cases
// its folders, the host's may not be). From the first component that is not there on, a path is taken
// as given. A path that does not begin with a backslash begins in the program's working folder; a drive
// letter is the host's, and a folder's name like any other where the host has no drives.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

#include "base/intero.h"
#include "base/reale.h"
#include "base/testo.h"
#include "platform/ospite.h"

namespace tarvel {

/// A path as the user wrote it, before it was lower-cased: where names differ by case alone, its
/// spelling is tried before any other.
void RicordaGrafia(const Testo& percorso);

/// A file of the host that is closed, unchecked, when it goes.
class FileAperto {
 public:
  explicit FileAperto(Ospite::Maniglia file) : file_(file) {}
  FileAperto(FileAperto&& altro) noexcept : file_(std::exchange(altro.file_, std::nullopt)) {}
  FileAperto& operator=(FileAperto&&) = delete;
  ~FileAperto() {
    if (file_) OspiteDeiFile().Chiudi(*file_);
  }
  Ospite::Maniglia operator*() const { return *file_; }
  /// All that follows in it; nothing for a fault.
  [[nodiscard]] std::optional<Testo> Resto() const;
  [[nodiscard]] bool Chiudi() { return OspiteDeiFile().Chiudi(*std::exchange(file_, std::nullopt)); }

 private:
  std::optional<Ospite::Maniglia> file_;
};

/// Tells one text from another (FNV-1a, 64 bits); `prima`: of the text that this one continues.
std::uint64_t Impronta(std::string_view testo, std::uint64_t prima = 0xcbf29ce484222325);

/// The longest line of a file, in characters: what is longer is no text.
inline constexpr std::size_t kRigaMassima = 1 << 20;

/// A file read line by line or item by item. A line ends with CR LF or LF. After an item, the
/// blanks that follow it, one comma or the line end belong to it; a whole line read after an item is
/// always the next one, what is left of the item's line is passed over.
class FileInLettura {
 public:
  /// Nothing when the file is not there or cannot be opened, and the system's reason to `motivo`; anything
  /// but a regular file cannot be.
  [[nodiscard]] static std::optional<FileInLettura> Apri(const Testo& percorso, Testo* motivo = nullptr);

  // --- Of a file that may be short or spoiled: nothing past its end, for a line longer than
  // kRigaMassima and for a fault of the host. Views hold until the next call.

  /// The next whole line, without its end.
  [[nodiscard]] std::optional<std::string_view> ProssimaRiga();
  /// Leading blanks skipped; ends at a comma or the line end; quotes around it are removed.
  [[nodiscard]] std::optional<std::string_view> ProssimaVoceTesto();
  /// What stands up to a comma, a blank or the line end, quotes removed.
  [[nodiscard]] std::optional<std::string_view> ProssimaVoce();

  // --- Of a file without which the program cannot go on: the same readings; where they have nothing,
  // and for a malformed item, the error is fatal, with file and line.

  std::string_view LeggiRiga() { return Preteso(ProssimaRiga()); }
  Testo LeggiVoceTesto() { return Testo(Preteso(ProssimaVoceTesto())); }
  /// A number in the invariant form; ends as ProssimaVoce does.
  Reale LeggiVoceNumero();
  /// A whole number of 16 bits; ends as a number does.
  Intero16 LeggiVoceIntero();

  /// Nothing but blank lines follows, and the character 26 that some editors put last.
  void PretendiFine();

  /// The system's reason why the last reading had nothing; "" where the host did not fail.
  const Testo& MotivoGuasto() const { return guasto_; }
  /// Of all that was read, of the whole file once its end was.
  std::uint64_t ImprontaLetta() const { return impronta_; }
  /// Where the next item begins: its line, from 1, and how many characters of it belong to items before.
  struct Posto {
    int riga;
    std::size_t colonna;
  };
  Posto ProssimoPosto() const { return rigaAperta_ ? Posto{numero_, letti_} : Posto{numero_ + 1, 0}; }

  /// "file, riga n" of the line last read from.
  Testo Luogo() const;
  [[noreturn]] void Malformato(const Testo& cosa) const;

 private:
  enum class Mancanza { FineFile, RigaLunga };

  FileInLettura(const Testo& percorso, FileAperto file) : percorso_(percorso), file_(std::move(file)) {}
  /// Makes the current line ready to be read from; otherwise mancanza_ and guasto_ say why there is none.
  bool Prepara();
  bool Riempi();
  std::optional<std::string_view> Voce(bool fineAlBlanco);
  std::string_view Preteso(std::optional<std::string_view> letto) const;

  Testo percorso_;
  FileAperto file_;
  Testo riga_;
  std::size_t letti_ = 0;    // characters of riga_ already taken
  bool rigaAperta_ = false;  // false: the next reading takes a new line
  Mancanza mancanza_ = Mancanza::FineFile;
  Testo guasto_;
  int numero_ = 0;  // of riga_ in the file
  Testo buffer_;
  std::size_t posto_ = 0;  // of the next character in buffer_
  std::uint64_t impronta_ = Impronta({});
};

/// Adds a line and CR LF to the text of a file.
inline void AccodaRiga(Testo& testo, std::string_view riga) {
  (testo += riga) += "\r\n";
}

/// The whole file; nothing where it cannot be opened or read to its end.
[[nodiscard]] std::optional<Testo> LeggiTutto(const Testo& percorso);

/// What stands at a path of the program.
[[nodiscard]] TipoVoce GenereFile(const Testo& percorso);

}  // namespace tarvel
