// The script that plays the user: one event a line.
#pragma once

#include <deque>
#include <istream>
#include <string>
#include <vector>

#include "platform/headless/orologio.h"
#include "platform/headless/righe.h"
#include "platform/headless/scrivania.h"

namespace tarvel::headless {

/// Plays the events of a script. After the last one it takes leave: closes each modal form, then
/// the main form, and lets the clock run until the program ends. Whatever cannot be played is an
/// ErroreCopione.
class Copione {
 public:
  Copione(std::istream& testo, Form& principale) : righe_(testo), principale_(principale) {}

  void Agisce();
  Risposta Risponde(const Messaggio& messaggio);

  /// Once the program has ended by itself nothing may be left, neither an event nor an answer.
  void ControllaResto();

 private:
  struct RispostaPronta {
    Risposta risposta;
    int riga;
  };

  void PreparaRisposte(const std::vector<std::string>& risposte);
  void ControllaRisposte() const;
  void Congeda();

  RigheCopione righe_;
  Form& principale_;
  std::deque<RispostaPronta> risposte_;
  bool finito_ = false;
  Durata attesaFinale_ = 0;
};

}  // namespace tarvel::headless
