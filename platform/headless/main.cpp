// The program on the scripted desktop.
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <string>

#include "app/tarvel1.h"
#include "base/opzioni_comando.h"
#include "platform/comune/argomenti.h"
#include "platform/comune/desktop/scrivania.h"
#include "platform/headless/ambiente.h"
#include "platform/headless/copione.h"

namespace {

using namespace tarvel;

constexpr char kProgramma[] = "tarvel1-headless";
constexpr char kPrima[] = R"(tarvel1-headless - il programma tarvel1 senza finestra, mosso da un copione

uso:  tarvel1-headless [--script FILE] [--decimal C] [--] "|diroot=CARTELLA|"

Esegue tarvel1 sulla CARTELLA di un'installazione, come farebbe un utente che segue il copione: una riga per ogni
gesto. Scrive una riga per ogni cosa che l'utente vedrebbe: finestre, messaggi, caselle che cambiano.

)";
constexpr char kDopo[] = R"(
righe del copione:
  type C TESTO            scrive il testo nella casella C, al posto di quello che ha
  focus C, enter C        va nella casella C; vi preme Invio
  click C                 fa clic su C
  press TASTO             backspace, delete, down, enter, escape, tab o up, dove si trova
  paste C TESTO           incolla il testo nella casella C
  select C N..., dblclick C N  sceglie voci di un elenco, da 1
  answer R...             le risposte ai prossimi messaggi: ok, yes o no
  close [FORM]            chiude una finestra
  print C, layout [FORM]  scrive che cosa mostra C; la disposizione di una finestra
  tick MS, endtask ID     fa passare il tempo; chiude un programma avviato

stato d'uscita:
  0    il programma è stato chiuso
  1    l'avvio è stato rifiutato, o un errore ha chiuso il programma
  2    la riga di comando o il copione sono sbagliati

esempi:
  tarvel1-headless --script sessione.txt "|diroot=$HOME/ponti|"
)";

// Such a character would leave numbers in the regional format unreadable.
bool PuoStareInNumero(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '+' || c == '-' || c == '&' || c == ' ';
}

struct Richieste {
  std::optional<std::string> copione;
  char decimale = '.';
};

Comando ComandoHeadless(Richieste& r) {
  const auto copione = [&r](const std::string& file) {
    r.copione = file;
    return std::string();
  };
  const auto decimale = [&r](const std::string& carattere) {
    const Testo letto = DaUtf8(carattere);
    if (letto.size() != 1 || PuoStareInNumero(letto[0]))
      return std::string("un carattere che nei numeri non c'è");
    r.decimale = letto[0];
    return std::string();
  };
  return {kProgramma,
          VERSIONE,
          kPrima,
          kDopo,
          {{"--script", "FILE", "il copione; senza, lo standard input", copione},
           {"--decimal", "C", "il separatore dei decimali dell'utente; senza, il punto", decimale}}};
}

}  // namespace

int main(int argc, char** argv) {
  PreparaFlussi();
  Richieste richieste;
  const ComandoLetto letto = LeggiComando(ComandoHeadless(richieste), Argomenti(argc, argv));
  if (letto.congedo) return Congeda(*letto.congedo);
  std::ifstream file;
  if (const auto& copione = richieste.copione) {
    file.open(std::filesystem::path(std::u8string(copione->begin(), copione->end())), std::ios::binary);
    file.peek();
    if (!file.is_open() || file.bad())
      return Congeda(Sbagliato(kProgramma, "il copione " + *copione + " non si legge"));
    file.clear();  // an empty script is one too
  }
  ImpostaRigaComando(UnisciArgomenti(letto.argomenti));
  headless::ImpostaDecimale(richieste.decimale);
  return headless::Recita(FormPrincipale(), richieste.copione ? file : std::cin, std::cout, std::cerr);
}
