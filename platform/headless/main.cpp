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
#include "platform/headless/avvio.h"
#include "platform/headless/regione.h"

namespace {

using namespace tarvel;

constexpr int kUsoErrato = 2;
constexpr char kUso[] = "usage: tarvel1-headless [--script FILE] [--decimal CHAR] [--] ARGUMENT...\n";

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
  if (argomenti.size() == 1 && argomenti[0] == "--version") {
    std::cout << "tarvel1-headless " VERSIONE "\n";
    return 0;
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
  headless::ImpostaRigaComando(opzioni->rigaComando);
  headless::ImpostaDecimale(opzioni->decimale);
  return headless::Recita(FormPrincipale(), opzioni->copione ? file : std::cin, std::cout, std::cerr);
}
