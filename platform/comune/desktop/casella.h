// What all platforms say of a box beside its text.
#pragma once

#include "platform/controlli.h"

namespace tarvel {

/// The ends of a box's text that are out of sight.
struct Taglio {
  bool inizio = false, fine = false;
};

/// Text as it arrives in a box: control characters stay out.
inline Testo SenzaControlli(Testo testo) {
  std::erase_if(testo, [](char c) { return (c >= 0 && c < ' ') || c == '\x7F'; });
  return testo;
}

/// What a box is called to who cannot see it.
inline Testo NomeAccessibile(const Controllo& casella) {
  return casella.descrizione.empty() ? casella.nome : casella.descrizione;
}

/// The tool tip of a box: what it is and, where the text does not fit, the whole text, in lines that a
/// screen has room for.
inline Testo Suggerimento(const Controllo& casella, bool ciSta) {
  constexpr std::size_t kRiga = 80;
  Testo suggerimento = casella.descrizione;
  for (std::size_t i = 0; !ciSta && i < casella.testo.size(); i += kRiga) {
    if (!suggerimento.empty()) suggerimento += '\n';
    suggerimento.append(casella.testo, i, kRiga);
  }
  return suggerimento;
}

}  // namespace tarvel
