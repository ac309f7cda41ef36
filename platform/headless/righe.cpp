// Reading a script whose lines may be anything.
#include "platform/headless/righe.h"

#include <string_view>

namespace tarvel::headless {
namespace {

constexpr std::size_t kRigaMassima = 1 << 20;
constexpr std::string_view kSegnoUtf8 = "\xEF\xBB\xBF";

}  // namespace

bool RigheCopione::Leggi(std::string& riga) {
  riga.clear();
  ++numero_;
  for (char c = 0; testo_.get(c);) {
    if (c == '\n') return true;
    if (c == '\0') throw ErroreCopione{numero_, "the line holds a NUL character"};
    if (riga.size() == kRigaMassima) throw ErroreCopione{numero_, "the line is too long"};
    riga += c;
  }
  if (!riga.empty()) return true;
  --numero_;
  return false;
}

std::optional<std::string> RigheCopione::Prossima() {
  for (std::string riga; Leggi(riga);) {
    if (numero_ == 1 && riga.starts_with(kSegnoUtf8)) riga.erase(0, kSegnoUtf8.size());
    if (riga.ends_with('\r')) riga.pop_back();
    riga.erase(0, riga.find_first_not_of(" \t"));
    if (!riga.empty() && riga.front() != '#') return riga;
  }
  return std::nullopt;
}

}  // namespace tarvel::headless
