// The start of the program in a window.
#include "platform/qt/avvio.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <clocale>
#include <cstdio>
#include <cstdlib>

#include "platform/comune/argomenti.h"
#include "platform/comune/desktop/scrivania.h"
#include "platform/qt/scala.h"
#include "platform/qt/schermo.h"
#include "platform/qt/sistema.h"

namespace tarvel {
namespace {

// The forms choose their own colours for a light desktop, so the rest has to be light as well.
QPalette Chiara() {
  QPalette colori(QColor(236, 236, 236), QColor(236, 236, 236));
  colori.setColor(QPalette::Highlight, QColor(0, 84, 166));
  colori.setColor(QPalette::HighlightedText, Qt::white);
  colori.setColor(QPalette::ToolTipBase, QColor(255, 255, 225));
  colori.setColor(QPalette::ToolTipText, Qt::black);
  return colori;
}

}  // namespace

void PreparaDesktop(int argc, char** argv, const Form& principale) {
  ImpostaRigaComando(RigaComandoPassata(argc, argv));

  ScegliAmbiente();
  // The arguments are the program's own: the toolkit sees the program's name only. Both outlive it,
  // and so does the application object, which the process's end takes away.
  static int solo = 1;
  static_cast<void>(ApreSchermo(solo, argv).release());
  std::setlocale(LC_NUMERIC, "C");

  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setStyle("Fusion");
  QApplication::setPalette(Chiara());

  ScegliScala(principale);
  QFont messaggi = QApplication::font();
  messaggi.setPointSizeF(std::max(messaggi.pointSizeF(), Punti(Carattere())));
  QApplication::setFont(messaggi);
}

int EseguiProgramma(int argc, char** argv, Form& principale) {
  PreparaDesktop(argc, argv, principale);
  Esegui([&] { MostraForm(principale); });
  return QApplication::exec();
}

void TerminaProgramma(int stato) {
  std::fflush(nullptr);
  std::_Exit(stato);
}

}  // namespace tarvel
