// Key sequences, as the program writes them.
#include "platform/qt/tasti.h"

#include <algorithm>
#include <charconv>

namespace tarvel {
namespace {

// The key at the beginning of the sequence, taken off it; 0 for none.
Tasto PrendiTasto(std::string_view& sequenza) {
  const char primo = sequenza.front();
  sequenza.remove_prefix(1);
  if (primo != '{') {
    if (primo >= 'A' && primo <= 'Z') return 'a' + (primo - 'A');
    return (primo >= 'a' && primo <= 'z') || (primo >= '0' && primo <= '9') ? primo : 0;
  }
  const std::string_view nome = sequenza.substr(0, sequenza.find('}'));
  sequenza.remove_prefix(std::min(nome.size() + 1, sequenza.size()));
  int numero = 0;
  if (!nome.starts_with('F') ||
      std::from_chars(nome.data() + 1, nome.data() + nome.size(), numero).ptr != nome.data() + nome.size())
    return 0;
  return numero >= 1 && numero <= 12 ? kF1 + numero - 1 : 0;
}

}  // namespace

std::vector<GruppoTasti> LeggiSequenza(std::string_view sequenza) {
  std::vector<GruppoTasti> gruppi;
  while (!sequenza.empty()) {
    GruppoTasti gruppo;
    gruppo.alt = sequenza.starts_with('%');
    if (gruppo.alt) sequenza.remove_prefix(1);
    const bool insieme = sequenza.starts_with('(');
    if (insieme) sequenza.remove_prefix(1);
    do {
      if (insieme && sequenza.starts_with(')')) break;
      if (sequenza.empty()) break;
      if (const Tasto tasto = PrendiTasto(sequenza)) gruppo.tasti.push_back(tasto);
    } while (insieme);
    if (insieme && !sequenza.empty()) sequenza.remove_prefix(1);
    if (!gruppo.tasti.empty()) gruppi.push_back(gruppo);
  }
  return gruppi;
}

}  // namespace tarvel
