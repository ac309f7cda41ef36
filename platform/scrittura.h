// Writing files. A file is composed in memory and handed to the host at once; what it held before stays whole
// until the host has the new one, wherever the host allows.
#pragma once

#include <string_view>

#include "platform/file.h"

namespace tarvel {

struct EsitoScrittura {
  enum Stato {
    Scritto,
    NonAperto,   // nothing has changed
    Incompleto,  // what the file held is gone
  };
  Stato stato = Scritto;
  Testo motivo = {};  // the system's, where the file is not written

  explicit operator bool() const { return stato == Scritto; }
  bool operator==(Stato altro) const { return stato == altro; }
};

/// The file becomes the text: a new one or one of the same rights is written beside it and takes its name;
/// where no file can be written beside it, it is emptied and written in place. `sulDisco`: it is on the disk,
/// not only with the host, when this returns.
[[nodiscard]] EsitoScrittura ScriviFile(const Testo& percorso, std::string_view testo, bool sulDisco = false);

/// The file becomes the text, on the disk when this returns, or stays as it was. A new file takes the rights
/// of the file `come`, where that is there.
[[nodiscard]] EsitoScrittura SostituisciFile(const Testo& percorso, std::string_view testo,
                                             const Testo& come);

/// A file of this name comes to be, as SostituisciFile writes one. Not where the name is taken: that file is
/// left alone.
[[nodiscard]] EsitoScrittura CreaFile(const Testo& percorso, std::string_view testo, const Testo& come = {});

/// A regular file that is read and written again by one program at a time: while it is open here, another
/// that opens it so waits.
class FileDaRiscrivere {
 public:
  /// Nothing where there is none, where it cannot be opened, and when another program has it for too long.
  [[nodiscard]] static std::optional<FileDaRiscrivere> Apri(const Testo& percorso);

  /// All that it holds, once; nothing for a fault.
  [[nodiscard]] std::optional<Testo> Contenuto();
  /// In place, on the disk; the file is closed.
  [[nodiscard]] EsitoScrittura Riscrivi(std::string_view testo);
  /// Another file of the same rights, written beside it, takes its name, or nothing has changed.
  [[nodiscard]] EsitoScrittura Sostituisci(std::string_view testo);

 private:
  FileDaRiscrivere(std::string host, FileAperto file) : host_(std::move(host)), file_(std::move(file)) {}

  std::string host_;
  FileAperto file_;
};

}  // namespace tarvel
