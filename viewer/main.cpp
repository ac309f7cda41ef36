// The companion viewer shows the program's drawings in a window; with --esporta it converts drawings without
// one.
#include <QApplication>
#include <QLocale>
#include <QScreen>
#include <algorithm>
#include <variant>

#include "platform/comune/argomenti.h"
#include "platform/comune/scala.h"
#include "platform/qt/schermo.h"
#include "viewer/comando/avvio.h"
#include "viewer/comando/riga_comando.h"
#include "viewer/comando/senza_finestra.h"
#include "viewer/finestra/finestra.h"
#include "viewer/finestra/italiano.h"

namespace ostrel {
namespace {

constexpr char kFileAvvio[] = "ostrel.inp";

// The preview starts the viewer with the viewer's own folder as the working folder; others may not.
std::optional<Avvio> CercaAvvio() {
  if (auto avvio = LeggiAvvio(kFileAvvio)) return avvio;
  const std::string cartella = QCoreApplication::applicationDirPath().toStdString();
  return LeggiAvvio(tarvel::DaUtf8(cartella) + '\\' + kFileAvvio);
}

void Disponi(QWidget& finestra, const tarvel::Rettangolo& posto) {
  const QRect schermo = finestra.screen()->availableGeometry();
  const double scala = tarvel::PixelPerTwip(schermo.width(), schermo.height());
  const QSize misura =
      QSize(qRound(posto.larghezza * scala), qRound(posto.altezza * scala)).boundedTo(schermo.size());
  const QPoint angolo(qRound(posto.sinistra * scala), qRound(posto.alto * scala));
  finestra.resize(misura);
  finestra.move(schermo.topLeft() + QPoint(std::clamp(angolo.x(), 0, schermo.width() - misura.width()),
                                           std::clamp(angolo.y(), 0, schermo.height() - misura.height())));
}

int MostraInFinestra(const Richieste& richieste) {
  const auto avvio = CercaAvvio();
  Finestra finestra(richieste.sorveglia, QLocale::system().decimalPoint());
  Disponi(finestra, avvio.value_or(Avvio{}).posto);
  finestra.show();
  if (!richieste.disegni.isEmpty())
    finestra.Apri(richieste.disegni.front());
  else if (avvio)
    finestra.ApriAnteprima(QString::fromStdString(avvio->disegno));
  else
    finestra.Avvisa(
        "Nessun disegno: il file \"ostrel.inp\" manca o non ne nomina uno. Si apre dal menu File.");
  return QApplication::exec();
}

int Esegui(int argc, char** argv) {
  const auto lette = LeggiRichieste(tarvel::Argomenti(argc, argv));
  if (const auto* const congedo = std::get_if<tarvel::Congedo>(&lette)) {
    tarvel::PreparaFlussi();
    return tarvel::Congeda(*congedo);
  }
  const auto& richieste = *std::get_if<Richieste>(&lette);
  const bool esporta = !richieste.esporta.isEmpty();
  if (esporta) {
    // An export needs no display. A toolkit without the plugin for that uses its host's own.
    qputenv("QT_QPA_PLATFORM", "offscreen;windows");
    tarvel::PreparaFlussi();
  }
  const auto applicazione = tarvel::ApreSchermo(argc, argv);
  ParlaItaliano(*applicazione);
  return esporta ? EsportaTutti(richieste) : MostraInFinestra(richieste);
}

}  // namespace
}  // namespace ostrel

int main(int argc, char** argv) {
  return ostrel::Esegui(argc, argv);
}
