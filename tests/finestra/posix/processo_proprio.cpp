// The work goes on in a copy of the process.
#include "tests/finestra/processo_proprio.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "tests/cartella.h"

namespace tarvel::contratto {

Svolto InProcessoProprio(const std::function<void(const std::filesystem::path&)>& lavoro) {
  const prove::Cartella cartella;
  const auto diario = cartella / "diario";
  std::fflush(nullptr);
  const pid_t figlio = fork();
  if (figlio == 0) {
    alarm(kTempoCaso);
    setenv("LC_ALL", "it_IT.UTF-8", 1);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    unsetenv("DISPLAY");
    lavoro(diario);
    std::_Exit(kTornato);
  }
  int stato = 0;
  waitpid(figlio, &stato, 0);
  return {prove::Contenuto(diario), WIFEXITED(stato) ? WEXITSTATUS(stato) : -1};
}

}  // namespace tarvel::contratto
