// Other programs: started free of this one, so that they outlive it and leave nothing behind.
#include "platform/programmi.h"

#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QFileInfo>
#include <QProcess>
#include <vector>

#include "platform/comune/percorso.h"
#include "platform/qt/finestre_x11.h"
#include "platform/qt/tasti.h"

namespace tarvel {
namespace {

using namespace std::chrono_literals;

constexpr auto kAttesaFinestra = 8s;     // after its start a program has so long to show a window
constexpr auto kAttesaAttivazione = 3s;  // and the window manager so long to activate one

struct Compito {
  int processo = 0;  // a descriptor that becomes readable when the process ends
  int sessione = 0;  // of processes, its own: whatever it starts belongs to it
  Orologio::time_point avvio = Orologio::now();
};

std::vector<Compito> compiti;  // task id - 1
std::int32_t attivazione = 0;  // asked for, its effect not yet seen

bool Finito(const Compito& compito) {
  pollfd stato{compito.processo, POLLIN, 0};
  return compito.processo < 0 || poll(&stato, 1, 0) > 0;
}

}  // namespace

std::optional<std::int32_t> AvviaProgramma(const Testo& percorso, std::int16_t) {
  const auto trovato = PercorsoHost(percorso);
  if (!trovato) return std::nullopt;
  const QString host = QString::fromStdString(*trovato);
  QProcess avvio;
  avvio.setProgram(QFileInfo(host).absoluteFilePath());
  avvio.setWorkingDirectory(QFileInfo(host).absolutePath());
  qint64 processo = 0;
  if (!avvio.startDetached(&processo)) return std::nullopt;
  const auto pid = static_cast<pid_t>(processo);
  compiti.push_back({static_cast<int>(syscall(SYS_pidfd_open, pid, 0)), getsid(pid)});
  return static_cast<std::int32_t>(compiti.size());
}

bool AttivaProgramma(std::int32_t id) {
  attivazione = 0;
  if (id < 1 || std::size_t(id) > compiti.size() || ConnessioneX() == nullptr) return false;
  const Compito& compito = compiti[std::size_t(id) - 1];
  std::optional<FinestraX> finestra;
  Aspetta(
      [&] {
        if (Finito(compito)) return true;
        finestra = FinestraPrincipale(compito.sessione);
        return finestra.has_value();
      },
      compito.avvio + kAttesaFinestra, compito.processo);
  if (!finestra) return false;
  ChiediAttivazione(*finestra);
  attivazione = id;
  return true;
}

void InviaTasti(const Testo& sequenza) {
  if (ConnessioneX() == nullptr) return;
  // Keys meant for a program that did not come to the front are not for the one that is there.
  if (const std::int32_t id = std::exchange(attivazione, 0)) {
    const Compito& compito = compiti[std::size_t(id) - 1];
    const auto attiva = [&] { return DellaSessione(FinestraColFuoco(), compito.sessione); };
    Aspetta([&] { return Finito(compito) || attiva(); }, Orologio::now() + kAttesaAttivazione,
            compito.processo);
    if (!attiva()) return;
  }
  PremiTasti(ConnessioneX(), LeggiSequenza(sequenza));
}

}  // namespace tarvel
