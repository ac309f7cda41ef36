// From the paths of the program (platform/file.h) to the host's.
#pragma once

#include <optional>
#include <string>

#include "base/testo.h"

namespace tarvel {

/// The host's path (UTF-8) of a path of the program; nothing when a folder on the way cannot be
/// looked into: what is in it is then not known, and "not there" would be a guess.
[[nodiscard]] std::optional<std::string> PercorsoHost(const Testo& percorso);

/// Of a host's path of a file that is there: where the links on it lead.
[[nodiscard]] std::string PercorsoReale(const std::string& host);

}  // namespace tarvel
