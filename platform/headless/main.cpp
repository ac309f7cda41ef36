// The program on the scripted desktop.
#include <cctype>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "app/tarvel1.h"
#include "platform/comune/argomenti.h"
#include "platform/comune/desktop/scrivania.h"
#include "platform/headless/ambiente.h"
#include "platform/headless/copione.h"

namespace {

using namespace tarvel;

constexpr int kUsoErrato = 2;
constexpr char kUso[] = "usage: tarvel1-headless [--script FILE] [--decimal CHAR] [--] ARGUMENT...\n";
constexpr char kAiuto[] = R"(tarvel1-headless - il programma tarvel1 senza finestra, mosso da un copione

uso:  tarvel1-headless [--script FILE] [--decimal C] [--] "|diroot=CARTELLA|"

Esegue tarvel1 sulla CARTELLA di un'installazione, come farebbe un utente che segue il copione: una riga per ogni
gesto. Scrive una riga per ogni cosa che l'utente vedrebbe: finestre, messaggi, caselle che cambiano.

  --script FILE    il copione; senza, lo standard input
  --decimal C      il separatore dei decimali dell'utente; senza, il punto
  --aiuto, --help  questo testo, da solo sulla riga
  --version        la versione, da sola sulla riga

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

struct Opzioni {
  std::optional<std::string> copione;
  char decimale = '.';
  Testo rigaComando;
};

// Such a character would leave numbers in the regional format unreadable.
bool PuoStareInNumero(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '+' || c == '-' || c == '&' || c == ' ';
}

std::optional<Opzioni> LeggiArgomenti(std::span<const std::string> argomenti) {
  Opzioni opzioni;
  auto a = argomenti.begin();
  for (; a != argomenti.end() && a->starts_with('-'); ++a) {
    const std::string& nome = *a;
    if (nome == "--") {
      ++a;
      break;
    }
    if ((nome != "--script" && nome != "--decimal") || ++a == argomenti.end()) return std::nullopt;
    if (nome == "--script") {
      opzioni.copione = *a;
    } else {
      const Testo decimale = DaUtf8(*a);
      if (decimale.size() != 1 || PuoStareInNumero(decimale[0])) return std::nullopt;
      opzioni.decimale = decimale[0];
    }
  }
  opzioni.rigaComando = UnisciArgomenti({a, argomenti.end()});
  return opzioni;
}

}  // namespace

int main(int argc, char** argv) {
  PreparaFlussi();
  const std::vector<std::string> argomenti = Argomenti(argc, argv);
  const std::string solo = argomenti.size() == 1 ? argomenti[0] : "";
  if (solo == "--version" || solo == "--aiuto" || solo == "--help") {
    std::cout << (solo == "--version" ? "tarvel1-headless " VERSIONE "\n" : kAiuto) << std::flush;
    return std::cout ? 0 : 1;
  }
  const auto opzioni = LeggiArgomenti(argomenti);
  if (!opzioni) {
    std::cerr << kUso;
    return kUsoErrato;
  }
  std::ifstream file;
  if (opzioni->copione) {
    file.open(std::filesystem::path(std::u8string(opzioni->copione->begin(), opzioni->copione->end())),
              std::ios::binary);
    file.peek();
    if (!file.is_open() || file.bad()) {
      std::cerr << "tarvel1-headless: cannot read the script " << *opzioni->copione << '\n';
      return kUsoErrato;
    }
    file.clear();  // an empty script is one too
  }
  ImpostaRigaComando(opzioni->rigaComando);
  headless::ImpostaDecimale(opzioni->decimale);
  return headless::Recita(FormPrincipale(), opzioni->copione ? file : std::cin, std::cout, std::cerr);
}
