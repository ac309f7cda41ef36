// The companion viewer: started beside the program it shows its drawings in a window; with
// --esporta it converts one without a window.
#include <QApplication>
#include <QCommandLineParser>
#include <QScreen>
#include <algorithm>
#include <cstdio>
#include <cstring>

#include "platform/comune/argomenti.h"
#include "platform/comune/scala.h"
#include "platform/qt/schermo.h"
#include "viewer/avvio.h"
#include "viewer/caricamento.h"
#include "viewer/esporta.h"
#include "viewer/finestra.h"

namespace ostrel {
namespace {

constexpr char kFileAvvio[] = "ostrel.inp";

int Fallito(const QString& messaggio) {
  tarvel::PreparaFlussi();
  std::fprintf(stderr, "%s\n", qUtf8Printable(messaggio));
  return 1;
}

int EsportaSenzaFinestra(const QString& uscita, const QString& disegno) {
  const Caricato caricato = CaricaAttendendo(disegno.toStdString());
  if (!caricato.disegno) return Fallito(QString::fromStdString(caricato.messaggio));
  const auto errore = Esporta(*caricato.disegno, uscita);
  return errore ? Fallito(*errore) : 0;
}

// The working folder is the program's own where the preview starts it.
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

int MostraInFinestra(const QStringList& argomenti, bool sorveglia) {
  const auto avvio = CercaAvvio();
  Finestra finestra(sorveglia);
  Disponi(finestra, avvio.value_or(Avvio{}).posto);
  finestra.show();
  if (!argomenti.isEmpty())
    finestra.Apri(argomenti.front());
  else if (avvio)
    finestra.Apri(QString::fromStdString(avvio->disegno));
  else
    finestra.Avvisa(
        "Nessun disegno: il file \"ostrel.inp\" manca o non ne nomina uno. Si apre dal menu File.");
  return QApplication::exec();
}

int Esegui(int argc, char** argv) {
  // An export needs no display, nor does it look for one. Where the toolkit came without its plugin for
  // that, the host's own will do.
  const bool esporta = std::any_of(argv, argv + argc, [](const char* argomento) {
    return std::strncmp(argomento, "--esporta", std::strlen("--esporta")) == 0;
  });
  if (esporta) qputenv("QT_QPA_PLATFORM", "offscreen;windows");
  const auto applicazione = tarvel::ApreSchermo(argc, argv);

  QCommandLineParser riga;
  riga.addOptions(
      {{"esporta", "Scrive il disegno in un file .png, .svg, .pdf o .dxf, senza finestra.", "file"},
       {"senza-sorveglianza", "Ricarica il disegno soltanto a comando."},
       {"version", "Dice la versione."},
       {{"h", "help"}, "Mostra questo aiuto."}});
  riga.addPositionalArgument("disegno", "File .dis da mostrare; senza, quello nominato da \"ostrel.inp\".",
                             "[disegno]");
  if (!riga.parse(QCoreApplication::arguments())) return Fallito(riga.errorText());
  if (riga.isSet("help")) riga.showHelp();
  const QStringList argomenti = riga.positionalArguments();
  if (argomenti.size() > 1) return Fallito("Troppi argomenti: si mostra un disegno alla volta.");
  if (!esporta) return MostraInFinestra(argomenti, !riga.isSet("senza-sorveglianza"));
  if (argomenti.isEmpty()) return Fallito("Manca il disegno da esportare.");
  return EsportaSenzaFinestra(riga.value("esporta"), argomenti.front());
}

}  // namespace
}  // namespace ostrel

int main(int argc, char** argv) {
  if (argc == 2 && std::strcmp(argv[1], "--version") == 0) {
    tarvel::PreparaFlussi();
    return std::puts("ostrel " VERSIONE) < 0;
  }
  return ostrel::Esegui(argc, argv);
}
