// Programs under test, and patience with them.
#include "tests/finestra/processo.h"

#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace tarvel::prove {

Processo::Processo(const std::vector<std::string>& comando, const Ambiente& ambiente) : pid_(fork()) {
  if (pid_ != 0) return;
  for (const auto& [variabile, valore] : ambiente) setenv(variabile.c_str(), valore.c_str(), 1);
  std::vector<char*> argomenti;
  for (const std::string& argomento : comando) argomenti.push_back(const_cast<char*>(argomento.c_str()));
  argomenti.push_back(nullptr);
  execvp(argomenti[0], argomenti.data());
  _exit(127);
}

Processo::~Processo() {
  if (Finito()) return;
  kill(pid_, SIGKILL);
  waitpid(pid_, nullptr, 0);
}

bool Processo::Finito() {
  if (!finito_) finito_ = waitpid(pid_, &stato_, WNOHANG) == pid_;
  return finito_;
}

int Processo::Stato() {
  return Attendi([this] { return Finito(); }) && WIFEXITED(stato_) ? WEXITSTATUS(stato_) : -1;
}

bool Attendi(const std::function<bool()>& condizione) {
  using namespace std::chrono;
  constexpr seconds kPazienza{20};
  constexpr milliseconds kRiprova{5};
  for (const auto fine = steady_clock::now() + kPazienza; !condizione();) {
    if (steady_clock::now() > fine) return false;
    poll(nullptr, 0, kRiprova.count());
  }
  return true;
}

std::string Contenuto(const std::string& file) {
  std::ifstream flusso(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(flusso), {}};
}

}  // namespace tarvel::prove
