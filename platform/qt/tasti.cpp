// Key sequences, as the program writes them.
#include "platform/qt/tasti.h"

#include <charconv>

#include "base/testo.h"

namespace tarvel {

std::vector<Tasto> LeggiSequenza(std::string_view sequenza) {
  constexpr std::string_view kFunzione = "%{F";
  std::vector<Tasto> tasti;
  if (sequenza.starts_with(kFunzione)) {
    int numero = 0;
    std::from_chars(sequenza.data() + kFunzione.size(), sequenza.data() + sequenza.size(), numero);
    if (numero >= 1 && numero <= 12) tasti.push_back(kF1 + numero - 1);
  } else if (sequenza.starts_with("%(")) {
    for (const char c : sequenza)
      if (const char tasto = Minuscola(c); tasto >= 'a' && tasto <= 'z') tasti.push_back(tasto);
  }
  return tasti;
}

}  // namespace tarvel
