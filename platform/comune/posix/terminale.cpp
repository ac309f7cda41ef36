// Terminals and pipes of a POSIX system.
#include "platform/comune/terminale.h"

#include <unistd.h>

#include <csignal>

namespace tarvel {

bool SoltantoErroriSulTerminale() {
  return ::isatty(STDERR_FILENO) != 0 && ::isatty(STDOUT_FILENO) == 0;
}

void NonFinireColTubo() {
  std::signal(SIGPIPE, SIG_IGN);
}

}  // namespace tarvel
