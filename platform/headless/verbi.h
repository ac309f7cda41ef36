// A line of the script: a verb and what it is done to.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarvel::headless {

/// What is wrong with the script, and in which line (from 1).
struct ErroreCopione {
  int riga;
  std::string cosa;
};

struct Evento {
  int riga;
  std::string verbo;
  std::vector<std::string> argomenti;
  std::string testo;  // what follows the first argument and one blank, as it is

  [[noreturn]] void Errore(const std::string& cosa) const { throw ErroreCopione{riga, cosa}; }
  void Esigi(bool riuscito) const {
    if (!riuscito) Errore(argomenti.front() + " cannot be used so now");
  }
};

/// A script may hold anything: only the beginning of what is not understood is shown again.
std::string Citazione(std::string_view parola);

/// Of a line that begins with its verb.
Evento LeggiEvento(int numero, const std::string& riga);

/// What cannot be done is an ErroreCopione.
void EseguiEvento(const Evento& evento);

}  // namespace tarvel::headless
