// Other programs on Linux: each in a session of its own, by which its windows are known.
#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QProcess>

#include "platform/qt/sistema.h"

namespace tarvel {

void ScegliAmbiente() {
  // Keys for the viewer go through X11, natively or by the X server that Wayland desktops run.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") && !qEnvironmentVariableIsEmpty("DISPLAY"))
    qputenv("QT_QPA_PLATFORM", "xcb;wayland");
}

std::optional<Processo> Lancia(const std::string& programma, const std::string& cartella) {
  QProcess avvio;
  avvio.setProgram(QString::fromStdString(programma));
  avvio.setWorkingDirectory(QString::fromStdString(cartella));
  qint64 numero = 0;
  if (!avvio.startDetached(&numero)) return std::nullopt;
  const auto pid = static_cast<pid_t>(numero);
  // A descriptor that becomes readable when the process ends, and its session.
  return Processo{syscall(SYS_pidfd_open, pid, 0), getsid(pid)};
}

bool Finito(const Processo& processo) {
  pollfd stato{static_cast<int>(processo.stesso), POLLIN, 0};
  return processo.stesso < 0 || poll(&stato, 1, 0) > 0;
}

}  // namespace tarvel
