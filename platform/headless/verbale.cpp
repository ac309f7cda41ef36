// Lines and quoting of the transcript.
#include "platform/headless/verbale.h"

#include <array>
#include <cstdio>

namespace tarvel::headless {
namespace {

std::ostream* gUscita = nullptr;

void AccodaControllo(std::string& riga, char c) {
  switch (c) {
    case '\r':
      riga += "\\r";
      break;
    case '\n':
      riga += "\\n";
      break;
    case '\t':
      riga += "\\t";
      break;
    default: {
      std::array<char, 5> codice{};
      std::snprintf(codice.data(), codice.size(), "\\x%02X", static_cast<unsigned>(c));
      riga += codice.data();
    }
  }
}

}  // namespace

void ApriVerbale(std::ostream* uscita) {
  gUscita = uscita;
}

void Annota(std::string_view riga) {
  if (gUscita != nullptr) *gUscita << riga << '\n' << std::flush;
}

std::string TraVirgolette(std::string_view testo) {
  std::string riga = "\"";
  for (const char c : InUtf8(testo)) {
    const bool diControllo = (c >= 0 && c < ' ') || c == '\x7F';
    if (diControllo)
      AccodaControllo(riga, c);
    else
      riga += c;
  }
  return riga + '"';
}

}  // namespace tarvel::headless
