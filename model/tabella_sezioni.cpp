// The table and its lookup by name.
#include "model/tabella_sezioni.h"

namespace tarvel {

Tabella<"delle sezioni", RecordSezione, 1, kMaxSezioni> TabellaSezioni;
Intero16 NumeroSezioni;
Intero16 NumeroSezioniFile;
Intero16 SezioneCorrente = 1;
bool SezioneCalcolata = false;
bool SezioneSalvata = true;
ConteggiVertici VerticiPoligono = kVerticiCassone;

Intero16 CercaSezione(std::string_view nome) {
  for (int i = 1; i <= NumeroSezioni; ++i)
    if (TabellaSezioni[i].Nome == nome) return i;
  return 0;
}

Testo SullaSezione(const char* operazione, const Testo& nome) {
  return Testo(operazione) + " della sezione " + (nome.empty() ? "senza nome" : nome);
}

}  // namespace tarvel
