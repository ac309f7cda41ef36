// The look-up of a path, component by component.
#include "platform/comune/percorso.h"

#include <algorithm>
#include <filesystem>
#include <vector>

#include "platform/file.h"
#include "platform/ospite.h"

namespace tarvel {
namespace {

namespace fs = std::filesystem;

using Componenti = std::vector<std::string>;

std::vector<Componenti> gGrafie;

Componenti Componi(const Testo& percorso) {
  std::string utf8 = InUtf8(percorso);
  std::replace(utf8.begin(), utf8.end(), '\\', '/');
  Componenti parti;
  for (const fs::path& parte : fs::path(utf8)) parti.push_back(parte.string());
  return parti;
}

// A name that the code page cannot hold reads like others with '?' in them: it is no name but its own.
bool DiversiSoloPerCaso(const std::string& a, const std::string& b) {
  const Testo x = DaUtf8(a), y = DaUtf8(b);
  return Minuscole(x) == Minuscole(y) && InUtf8(x) == a && InUtf8(y) == b;
}

// The spellings to be tried for component i before the folder is read, the best first.
Componenti GrafieDi(const Componenti& parti, std::size_t i) {
  Componenti grafie;
  for (const Componenti& g : gGrafie) {
    const auto n = static_cast<std::ptrdiff_t>(i + 1);
    if (g.size() > i && std::equal(g.begin(), g.begin() + n, parti.begin(), DiversiSoloPerCaso))
      grafie.push_back(g[i]);
  }
  grafie.push_back(parti[i]);
  return grafie;
}

enum class Esito { Trovato, Assente, Ignoto };

// Adds to `percorso` the entry that component i names, whatever its case. Of several, the first in
// alphabetical order: the same on every run.
Esito Accoda(fs::path& percorso, const Componenti& parti, std::size_t i) {
  const Ospite& ospite = OspiteDeiFile();
  for (const std::string& grafia : GrafieDi(parti, i)) {
    const TipoVoce voce = ospite.Genere((percorso / grafia).string());
    if (voce == TipoVoce::Ignota) return Esito::Ignoto;
    if (voce == TipoVoce::Assente) continue;
    percorso /= grafia;
    return Esito::Trovato;
  }
  const auto nomi = ospite.Elenco(percorso.empty() ? "." : percorso.string());
  if (!nomi) return Esito::Ignoto;
  const std::string* scelto = nullptr;
  for (const std::string& nome : *nomi)
    if (DiversiSoloPerCaso(nome, parti[i]) && (scelto == nullptr || nome < *scelto)) scelto = &nome;
  if (scelto == nullptr) return Esito::Assente;
  percorso /= *scelto;
  return Esito::Trovato;
}

}  // namespace

void RicordaGrafia(const Testo& percorso) {
  gGrafie.push_back(Componi(percorso));
}

std::optional<std::string> PercorsoHost(const Testo& percorso) {
  if constexpr (fs::path::preferred_separator != '/') return InUtf8(percorso);
  const Componenti parti = Componi(percorso);
  fs::path esito;
  bool cerca = true;
  for (std::size_t i = 0; i < parti.size(); ++i) {
    const std::string& parte = parti[i];
    const bool nome = !parte.empty() && parte != "/" && parte != "." && parte != "..";
    if (cerca && nome) {
      const Esito trovato = Accoda(esito, parti, i);
      if (trovato == Esito::Ignoto) return std::nullopt;
      cerca = trovato == Esito::Trovato;
      if (cerca) continue;
    }
    esito /= parte;
  }
  return esito.string();
}

std::string PercorsoReale(const std::string& host) {
  if constexpr (fs::path::preferred_separator != '/') return host;
  std::error_code guasto;
  const fs::path reale = fs::canonical(host, guasto);
  return guasto ? host : reale.string();
}

TipoVoce GenereFile(const Testo& percorso) {
  const auto host = PercorsoHost(percorso);
  return host ? OspiteDeiFile().Genere(*host) : TipoVoce::Ignota;
}

}  // namespace tarvel
