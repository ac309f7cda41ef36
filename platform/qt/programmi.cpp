// Other programs: the tasks of this run, and how long their windows are waited for.
#include "platform/programmi.h"

#include <QFileInfo>
#include <vector>

#include "platform/comune/percorso.h"
#include "platform/qt/sistema.h"

namespace tarvel {
namespace {

using namespace std::chrono_literals;

constexpr auto kAttesaFinestra = 8s;     // after its start a program has so long to show a window
constexpr auto kAttesaAttivazione = 3s;  // and the desktop so long to bring one to the front

struct Compito {
  Processo processo;
  Orologio::time_point avvio = Orologio::now();
};

std::vector<Compito> compiti;                // task id - 1
std::optional<FinestraAltrui> destinataria;  // the main window that keys are for

}  // namespace

std::optional<std::int32_t> AvviaProgramma(const Testo& percorso, std::int16_t) {
  const auto trovato = PercorsoHost(percorso);
  if (!trovato) return std::nullopt;
  const QFileInfo programma(QString::fromStdString(*trovato));
  const auto processo =
      Lancia(programma.absoluteFilePath().toStdString(), programma.absolutePath().toStdString());
  if (!processo) return std::nullopt;
  compiti.push_back({*processo});
  return static_cast<std::int32_t>(compiti.size());
}

bool AttivaProgramma(std::int32_t id) {
  destinataria.reset();
  if (id < 1 || std::size_t(id) > compiti.size()) return false;
  const Compito& compito = compiti[std::size_t(id) - 1];
  const Processo& processo = compito.processo;
  if (Finito(processo) || !FinestreInVista()) return !Finito(processo);
  Aspetta(
      [&] {
        if (!Finito(processo)) destinataria = FinestraPrincipale(processo);
        return destinataria || Finito(processo);
      },
      compito.avvio + kAttesaFinestra, &processo);
  if (destinataria) ChiediAttivazione(*destinataria);
  return !Finito(processo);
}

void InviaTasti(const Testo& sequenza) {
  const std::vector<Tasto> tasti = LeggiSequenza(sequenza);
  if (!destinataria || tasti.empty()) return;
  Aspetta([] { return ColFuoco(*destinataria) || Bloccata(*destinataria); },
          Orologio::now() + kAttesaAttivazione);
  PremiTasti(*destinataria, tasti);
}

}  // namespace tarvel
