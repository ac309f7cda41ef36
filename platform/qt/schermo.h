// The toolkit's start, for both programs that show windows: where no display answers, one line says so.
#pragma once

#include <QApplication>
#include <QLibraryInfo>
#include <QStringList>
#include <QTranslator>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <utility>

namespace tarvel {

inline QStringList avvisiAvvio;

/// Makes the application object; the toolkit's own texts are Italian. Only the toolkit knows which
/// display systems it can reach; its way to say that there is none is to abort. In place of that and
/// of the warnings that lead to it: one line on the standard error, exit status 1.
inline std::unique_ptr<QApplication> ApreSchermo(int& argc, char** argv) {
  const QtMessageHandler solito =
      qInstallMessageHandler([](QtMsgType tipo, const QMessageLogContext&, const QString& testo) {
        avvisiAvvio += testo;
        if (tipo != QtFatalMsg) return;
        std::fputs(
            "Impossibile aprire una finestra: nessun ambiente grafico risponde (DISPLAY, WAYLAND_DISPLAY).\n",
            stderr);
        std::_Exit(1);
      });
  auto applicazione = std::make_unique<QApplication>(argc, argv);
  qInstallMessageHandler(solito);
  auto* const italiano = new QTranslator(applicazione.get());
  if (italiano->load("qtbase_it", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(italiano);
  // That a scheduled job or an administrator has no runtime folder is nothing to these programs.
  for (const QString& avviso : std::exchange(avvisiAvvio, {}))
    if (!avviso.startsWith("QStandardPaths: ")) qWarning("%s", qPrintable(avviso));
  return applicazione;
}

}  // namespace tarvel
