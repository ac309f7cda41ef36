// Terminals and pipes of a POSIX system.
#include "platform/comune/terminale.h"

#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

namespace tarvel {

bool SoltantoErroriSulTerminale() {
  return ::isatty(STDERR_FILENO) != 0 && ::isatty(STDOUT_FILENO) == 0;
}

bool UscitaNelFile(const std::string& percorso) {
  using Stato = struct stat;
  Stato file{}, uscita{};
  const int trovato = percorso == "-" ? ::fstat(STDIN_FILENO, &file) : ::stat(percorso.c_str(), &file);
  return trovato == 0 && ::fstat(STDOUT_FILENO, &uscita) == 0 && S_ISREG(uscita.st_mode) &&
         file.st_dev == uscita.st_dev && file.st_ino == uscita.st_ino;
}

void NonFinireColTubo() {
  std::signal(SIGPIPE, SIG_IGN);
}

void FinisciSubito(std::string_view messaggio, int stato) {
  static_cast<void>(!::write(STDERR_FILENO, messaggio.data(), messaggio.size()));
  ::_exit(stato);
}

}  // namespace tarvel
