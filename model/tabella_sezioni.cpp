// The table and its lookup by name.
#include "model/tabella_sezioni.h"

namespace tarvel {

Intero16 CercaSezione(std::string_view nome) {
  for (int i = 1; i <= NumeroSezioni; ++i)
    if (TabellaSezioni[i].Nome == nome) return i;
  return 0;
}

Testo SullaSezione(const char* operazione, const Testo& nome) {
  return Testo(operazione) + " della sezione " + (nome.empty() ? "senza nome" : nome);
}

}  // namespace tarvel
