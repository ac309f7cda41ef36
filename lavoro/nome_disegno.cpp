// Every host follows the rules of the strictest one, since an installation may be shared.
#include "lavoro/nome_disegno.h"

#include <algorithm>

namespace tarvel {
namespace {

constexpr std::size_t kLunghezza = 8;

bool Proibito(char c) {
  constexpr std::string_view kProibiti = "\\/:*?\"<>|\x7F";
  return static_cast<unsigned char>(c) < ' ' || kProibiti.find(c) != std::string_view::npos;
}

}  // namespace

Testo DisegnoDellaSezione(const Testo& nomeSezione) {
  Testo nome = nomeSezione.substr(0, kLunghezza);
  std::replace_if(nome.begin(), nome.end(), Proibito, '_');
  return "\\" + nome + ".dis";
}

}  // namespace tarvel
