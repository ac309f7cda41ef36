// The script that plays the user: one event a line.
#pragma once

#include <deque>
#include <istream>
#include <optional>
#include <string>
#include <vector>

#include "platform/headless/desktop.h"

namespace tarvel::headless {

/// What is wrong with the script, and in which line (from 1).
struct ErroreCopione {
  int riga;
  std::string cosa;
};

/// Plays the events of a script. After the last one it takes leave: closes each modal form, then
/// the main form, and lets the clock run until the program ends. Its lines are UTF-8, ended by LF or
/// CR LF; a byte order mark is dropped. Whatever cannot be played is an ErroreCopione.
class Copione {
 public:
  Copione(std::istream& testo, Form& principale) : testo_(testo), principale_(principale) {}

  void Agisce();
  Risposta Risponde(const Messaggio& messaggio);

  /// Once the program has ended by itself nothing may be left, neither an event nor an answer.
  void ControllaResto();

 private:
  struct RispostaPronta {
    Risposta risposta;
    int riga;
  };

  bool Leggi(std::string& riga);
  std::optional<std::string> Prossima();
  void PreparaRisposte(const std::vector<std::string>& risposte);
  void ControllaRisposte() const;
  void Congeda();

  std::istream& testo_;
  int numero_ = 0;  // of the line read last
  Form& principale_;
  std::deque<RispostaPronta> risposte_;
  bool finito_ = false;
  long long attesaFinale_ = 0;
};

}  // namespace tarvel::headless
