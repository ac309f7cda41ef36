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

std::vector<Compito> compiti;           // task id - 1
std::optional<FinestraX> destinataria;  // the main window that keys are for

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
  destinataria.reset();
  if (id < 1 || std::size_t(id) > compiti.size()) return false;
  const Compito& compito = compiti[std::size_t(id) - 1];
  if (Finito(compito) || ConnessioneX() == nullptr) return !Finito(compito);
  Aspetta(
      [&] {
        if (!Finito(compito)) destinataria = FinestraPrincipale(compito.sessione);
        return destinataria || Finito(compito);
      },
      compito.avvio + kAttesaFinestra, compito.processo);
  if (destinataria) ChiediAttivazione(*destinataria);
  return !Finito(compito);
}

void InviaTasti(const Testo& sequenza) {
  if (!destinataria) return;
  const auto attiva = [] { return FinestraColFuoco() == *destinataria; };
  Aspetta([&] { return attiva() || Bloccata(*destinataria); }, Orologio::now() + kAttesaAttivazione, -1);
  // Between the look and the keys no other window may come to the front.
  const ServerFermo fermo;
  if (attiva()) PremiTasti(ConnessioneX(), LeggiSequenza(sequenza));
}

}  // namespace tarvel
