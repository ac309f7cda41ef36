// The few calls that files need of the host, one table a system. Files are read and written by
// platform/file.h, once for all systems; a test may put calls that fail in the place of these when it
// is linked. Paths here are the host's own, in UTF-8.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

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
  /// Created, or truncated in place: owner, permissions and links stay. Regular files and, where devices
  /// are files of a folder, those that take characters; never waits.
  std::optional<Maniglia> (*ApriScrittura)(const std::string& percorso);

  /// How many bytes were read, 0 at the end; nothing for a fault.
  std::optional<std::size_t> (*Leggi)(Maniglia file, std::span<char> posto);
  /// All of it, in as few calls as the host allows; a limit to the size of files is a fault as a full
  /// disk is.
  bool (*Scrivi)(Maniglia file, std::string_view byte);
  /// Returns when what was written is on the disk.
  bool (*SulDisco)(Maniglia file);
  bool (*Chiudi)(Maniglia file);

  /// The file takes the new name, in place of a file that has it; at every moment one of the two is
  /// there, whole. On the disk when it returns.
  bool (*Rinomina)(const std::string& da, const std::string& a);
  bool (*Togli)(const std::string& percorso);
};

/// The system's own calls.
extern const Ospite kOspiteSistema;

/// The calls in use.
const Ospite& OspiteDeiFile();

}  // namespace tarvel
