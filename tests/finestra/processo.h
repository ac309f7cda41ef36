// A program that a test starts and that does not outlive it.
#pragma once

#include <sys/types.h>

#include <functional>
#include <string>
#include <vector>

namespace tarvel::prove {

using Ambiente = std::vector<std::pair<std::string, std::string>>;  // variable, value

class Processo {
 public:
  /// `uscita` is a descriptor the program inherits, -1 for none.
  Processo(const std::vector<std::string>& comando, const Ambiente& ambiente);
  ~Processo();
  Processo(const Processo&) = delete;
  Processo& operator=(const Processo&) = delete;

  /// Its exit status; -1 when a signal ended it, or when it does not end in good time.
  int Stato();
  bool Finito();

 private:
  pid_t pid_;
  int stato_ = 0;
  bool finito_ = false;
};

/// Until the condition holds; false when it does not in good time.
bool Attendi(const std::function<bool()>& condizione);

/// The content of a file, "" where there is none.
std::string Contenuto(const std::string& file);

}  // namespace tarvel::prove
