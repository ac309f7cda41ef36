// A process of its own for a case that ends its program. Defined twice, in posix/ and in windows/.
#pragma once

#include <filesystem>
#include <functional>
#include <string>

namespace tarvel::contratto {

struct Svolto {
  std::string diario;
  int stato = -1;  // of the process; -1 where it did not end by itself in some seconds
};

/// Does the work, which writes a diary into the file that it is given and does not come back, without a
/// screen. In the region that the suite asks for, where that is a program's own affair and not its user's.
Svolto InProcessoProprio(const std::function<void(const std::filesystem::path&)>& lavoro);

inline constexpr unsigned kTempoCaso = 20;  // seconds
inline constexpr int kTornato = 99;         // the status where the work has come back after all

}  // namespace tarvel::contratto
