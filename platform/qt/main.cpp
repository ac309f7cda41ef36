// The program in a window.
#include <cstdio>
#include <string_view>

#include "app/tarvel1.h"
#include "platform/comune/argomenti.h"
#include "platform/qt/avvio.h"

namespace {

constexpr char kAiuto[] = R"(tarvel1 - caratteristiche di una sezione a cassone in cemento armato precompresso

uso:  tarvel1 "|diroot=CARTELLA|"

Apre la finestra del programma sulla CARTELLA di un'installazione. Di regola lo avvia un'altra applicazione, che
gli dice la cartella; tarvel1-avvia lo avvia su una dell'utente.

La finestra calcola area, baricentro, momenti d'inerzia, aree di taglio, costante di torsione e tensioni unitarie
della sezione, la conserva nel file delle sezioni e ne scrive il disegno, che ostrel mostra.

  --aiuto, --help  questo testo, da solo sulla riga
  --version        la versione, da sola sulla riga

file, nella cartella:
  impostazioni/dirlav   la cartella dei lavori; deve chiamarsi Lavori
  impostazioni/lavoro   il nome del lavoro, 6 caratteri
  custom/               le dimensioni iniziali, le opzioni dei disegni, le sezioni di tutti i lavori
  progra/ostrel.exe     il programma che mostra i disegni

stato d'uscita:
  0    il programma è stato chiuso
  1    la riga di comando o la cartella sono sbagliate, manca lo schermo, o un errore ha chiuso il programma
)";

}  // namespace

int main(int argc, char** argv) {
  const std::string_view solo = argc == 2 ? argv[1] : "";
  if (solo == "--version" || solo == "--aiuto" || solo == "--help") {
    tarvel::PreparaFlussi();
    return std::fputs(solo == "--version" ? "tarvel1 " VERSIONE "\n" : kAiuto, stdout) < 0;
  }
  return tarvel::EseguiProgramma(argc, argv, tarvel::FormPrincipale());
}
