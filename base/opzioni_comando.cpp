#include "base/opzioni_comando.h"

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
    return o.nome + (o.valore.empty() ? "" : " ") + o.valore;
  };
  const auto largo = [&](const OpzioneComando& o) { return DaUtf8(termine(o)).size(); };
  std::size_t colonna = 0;
  for (const OpzioneComando& o : opzioni) colonna = std::max(colonna, largo(o));
  std::string testo = comando.prima;
  for (const OpzioneComando& o : opzioni)
    testo += "  " + termine(o) + std::string(colonna - largo(o) + 2, ' ') + o.aiuto + '\n';
  return testo + comando.dopo;
}

}  // namespace

ComandoLetto LeggiComando(const Comando& comando, std::span<const std::string> argomenti) {
  ComandoLetto letto;
  bool opzioni = true, aiuto = false, versione = false;
  std::string errore;
  for (auto a = argomenti.begin(); a != argomenti.end() && errore.empty(); ++a) {
    const std::size_t uguale = a->find('=');
    const bool unito = uguale != std::string::npos;
    const std::string nome = a->substr(0, uguale);
    const auto o = std::find_if(comando.opzioni.begin(), comando.opzioni.end(),
                                [&](const OpzioneComando& sua) { return sua.nome == nome; });
    if (!opzioni || !a->starts_with('-') || *a == "-") {
      letto.argomenti.push_back(*a);
    } else if (*a == "--") {
      opzioni = false;
    } else if (*a == "--aiuto" || *a == "--help" || *a == "-h") {
      aiuto = true;
    } else if (*a == "--version") {
      versione = true;
    } else if (o == comando.opzioni.end()) {
      errore = "opzione sconosciuta: " + *a;
    } else if (o->valore.empty() && unito) {
      errore = nome + " non vuole un valore";
    } else if (!o->valore.empty() && !unito && a + 1 == argomenti.end()) {
      errore = "dopo " + nome + " manca il valore";
    } else {
      const std::string valore = unito ? a->substr(uguale + 1) : o->valore.empty() ? "" : *++a;
      if (const std::string atteso = o->prendi(valore); !atteso.empty())
        errore.append(nome).append(": ").append(atteso).append(", non \"").append(valore) += '"';
      letto.dette.push_back(nome);
    }
  }
  if (!errore.empty())
    letto.congedo = Sbagliato(comando.nome, errore);
  else if (aiuto)
    letto.congedo = {Aiuto(comando), 0};
  else if (versione)
    letto.congedo = {comando.nome + ' ' + comando.versione + '\n', 0};
  return letto;
}

Congedo Sbagliato(const std::string& programma, const std::string& errore) {
  return {programma + ": " + errore + "\nCome si usa: " + programma + " --aiuto\n", 2};
}

int Congeda(const Congedo& congedo) {
  std::FILE* const dove = congedo.stato == 0 ? stdout : stderr;
  const bool detto = std::fputs(congedo.testo.c_str(), dove) >= 0 && std::fflush(dove) == 0;
  return congedo.stato == 0 && !detto ? 1 : congedo.stato;
}

}  // namespace tarvel
