// Lines and quoting of the transcript.
#include "platform/headless/verbale.h"

#include <utility>

namespace tarvel::headless {
namespace {

std::ostream* gUscita = nullptr;

std::string Sequenza(char c) {
  constexpr char kCifre[] = "0123456789ABCDEF";
  for (const auto& [segno, lettera] : {std::pair{'\r', 'r'}, {'\n', 'n'}, {'\t', 't'}})
    if (c == segno) return {'\\', lettera};
  return {'\\', 'x', kCifre[c >> 4], kCifre[c & 15]};
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
    if ((c >= 0 && c < ' ') || c == '\x7F')
      riga += Sequenza(c);
    else
      riga += c;
  }
  return riga + '"';
}

}  // namespace tarvel::headless
