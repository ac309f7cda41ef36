// The few calls that files need of the host, one table a system. Files are read and written by
// platform/file.h, once for all systems; a test may put calls that fail in the place of these when it
// is linked. Paths here are the host's own, in UTF-8.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "base/testo.h"

namespace tarvel {

/// What stands under a name, links followed. Ignota: the host does not tell (a folder that cannot be
/// entered, say), which is never taken for Assente.
enum class TipoVoce { Assente, File, Cartella, Altro, Ignota };

struct Ospite {
  using Maniglia = std::intptr_t;

  TipoVoce (*Genere)(const std::string& percorso);
  /// Names of a folder's entries; nothing when they cannot be had, all of them.
  std::optional<std::vector<std::string>> (*Elenco)(const std::string& cartella);

  /// Regular files only: what has no end, or waits for another program, cannot be opened.
  std::optional<Maniglia> (*ApriLettura)(const std::string& percorso);
  /// A file that is there, to be read and written; what it holds stays, and so do owner, permissions and
  /// links. Regular files and, where devices are files of a folder, those that take characters. While one
  /// program has a file so, another one waits, some seconds at most, and then has nothing; where the host
  /// does not tell, nobody waits.
  std::optional<Maniglia> (*ApriRiscrittura)(const std::string& percorso);
  /// A new file, to be written; nothing where the name is taken, be it by a link that leads nowhere. It has
  /// the rights of the file `come`, as far as they can be given; of an empty name, those of any new file.
  std::optional<Maniglia> (*Crea)(const std::string& percorso, const std::string& come);

  /// How many bytes were read, 0 at the end; nothing for a fault.
  std::optional<std::size_t> (*Leggi)(Maniglia file, std::span<char> posto);
  /// All of it, in as few calls as the host allows; a limit to the size of files is a fault as a full
  /// disk is.
  bool (*Scrivi)(Maniglia file, std::string_view byte);
  /// Nothing is left of it, and the next byte is its first.
  bool (*Svuota)(Maniglia file);
  /// Returns when what was written is on the disk.
  bool (*SulDisco)(Maniglia file);
  bool (*Chiudi)(Maniglia file);

  /// The file takes the new name; at every moment a whole file has it, where one had. Without `sostituisci` a
  /// name that is taken is left alone, and the call fails.
  bool (*Rinomina)(const std::string& da, const std::string& a, bool sostituisci);
  /// Returns when the file's name, an entry of its folder, is on the disk.
  bool (*NomeSulDisco)(const std::string& percorso);
  bool (*Togli)(const std::string& percorso);

  /// Why the last of these calls that failed did so; another call may change it.
  std::error_code (*Motivo)();
};

/// The system's own calls.
extern const Ospite kOspiteSistema;

/// The calls in use.
const Ospite& OspiteDeiFile();

/// Motivo in the user's words: "disco pieno"; the system's own number for what has none here.
Testo MotivoOspite();
/// The same of any reason of the system; "" for what has no words here.
Testo InParole(const std::error_code& motivo);

}  // namespace tarvel
