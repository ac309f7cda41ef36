#include "platform/comune/opzioni_comando.h"

#include <algorithm>
#include <cstdio>

#include "base/testo.h"

namespace tarvel {
namespace {

std::string Aiuto(const Comando& comando) {
  std::vector<OpzioneComando> opzioni = comando.opzioni;
  opzioni.push_back({"--aiuto, --help, -h", "", "questo testo", {}});
  opzioni.push_back({"--version", "", "la versione", {}});
  std::erase_if(opzioni, [](const OpzioneComando& o) { return o.aiuto.empty(); });
  const auto termine = [](const OpzioneComando& o) {
    return "  " + std::string(o.nome) + (o.valore.empty() ? "" : " ") + std::string(o.valore) + "  ";
  };
  const auto largo = [](const std::string& utf8) { return DaUtf8(utf8).size(); };
  std::size_t colonna = 0;
  for (const OpzioneComando& o : opzioni) colonna = std::max(colonna, largo(termine(o)));
  std::string testo(comando.prima);
  for (const OpzioneComando& o : opzioni) {
    testo += termine(o);
    testo.append(colonna - largo(termine(o)), ' ');
    for (const char c : o.aiuto) {
      testo += c;
      if (c == '\n') testo.append(colonna, ' ');
    }
    testo += '\n';
  }
  return testo.append(comando.dopo);
}

}  // namespace

ComandoLetto LeggiComando(const Comando& comando, std::span<const std::string> argomenti) {
  ComandoLetto letto;
  const auto sbagliato = [&](const std::string& errore) {
    letto.congedo = Sbagliato(comando.nome, errore);
    return letto;
  };
  bool opzioni = true, aiuto = false, versione = false;
  for (auto a = argomenti.begin(); a != argomenti.end(); ++a) {
    if (!opzioni || !a->starts_with('-') || *a == "-") {
      letto.argomenti.push_back(*a);
      continue;
    }
    const std::size_t uguale = a->find('=');
    const std::string nome = a->substr(0, uguale);
    if (*a == "--") {
      opzioni = false;
    } else if (*a == "--aiuto" || *a == "--help" || *a == "-h") {
      aiuto = true;
    } else if (*a == "--version") {
      versione = true;
    } else {
      const auto o = std::find_if(comando.opzioni.begin(), comando.opzioni.end(),
                                  [&](const OpzioneComando& sua) { return sua.nome == nome; });
      if (o == comando.opzioni.end()) return sbagliato("opzione sconosciuta: " + *a);
      const bool unito = uguale != std::string::npos;
      if (o->valore.empty() && unito) return sbagliato(nome + " non vuole un valore");
      if (!o->valore.empty() && !unito && ++a == argomenti.end())
        return sbagliato("dopo " + nome + " manca il valore");
      const std::string valore = unito ? a->substr(uguale + 1) : *a;
      if (const std::string atteso = o->prendi(valore); !atteso.empty())
        return sbagliato(nome + ": " + atteso + ", non \"" + valore + '"');
      letto.dette.push_back(nome);
    }
  }
  if (aiuto)
    letto.congedo = {Aiuto(comando), 0};
  else if (versione)
    letto.congedo = {std::string(comando.nome) + ' ' + std::string(comando.versione) + '\n', 0};
  return letto;
}

Congedo Sbagliato(std::string_view programma, const std::string& errore) {
  const std::string nome(programma);
  return {nome + ": " + errore + "\nCome si usa: " + nome + " --aiuto\n", 2};
}

int Congeda(const Congedo& congedo) {
  std::FILE* const dove = congedo.stato == 0 ? stdout : stderr;
  const bool detto = std::fputs(congedo.testo.c_str(), dove) >= 0 && std::fflush(dove) == 0;
  return congedo.stato == 0 && !detto ? 1 : congedo.stato;
}

}  // namespace tarvel
