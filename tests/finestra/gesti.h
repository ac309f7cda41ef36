// A user's gestures at a window, handed to the toolkit where a screen hands them over: the same on every
// system.
#pragma once

#include <QGuiApplication>
#include <QPointer>
#include <QTextDocumentFragment>
#include <QWindow>
#include <initializer_list>
#include <utility>

// The toolkit's own entries for tests, in none of its headers.
Q_GUI_EXPORT void qt_handleMouseEvent(QWindow*, const QPointF& qui, const QPointF& schermo, Qt::MouseButtons,
                                      Qt::MouseButton, QEvent::Type, Qt::KeyboardModifiers, int istante);
Q_GUI_EXPORT void qt_handleKeyEvent(QWindow*, QEvent::Type, int tasto, Qt::KeyboardModifiers,
                                    const QString& testo, bool ripetuto, ushort volte);

namespace tarvel {

/// The left button at a point of the window. Two gestures are never a double click.
inline void Mouse(QWindow* finestra, QPoint punto, std::initializer_list<QEvent::Type> eventi,
                  Qt::KeyboardModifiers con = {}) {
  static int istante = 0;
  static Qt::MouseButtons giu;
  const QPointer<QWindow> resta(finestra);
  istante += 1000;
  for (const QEvent::Type evento : eventi) {
    if (resta.isNull()) return;
    if (evento != QEvent::MouseMove) giu = evento == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
    qt_handleMouseEvent(resta, punto, resta->mapToGlobal(punto), giu,
                        evento == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, evento, con, ++istante);
  }
  QCoreApplication::processEvents();
}

/// A tool tip as its window shows it, which decides by itself what is markup.
inline QString Letto(const QString& suggerimento) {
  return Qt::mightBeRichText(suggerimento) ? QTextDocumentFragment::fromHtml(suggerimento).toPlainText()
                                           : suggerimento;
}

/// A key pressed and released, with Ctrl held where it is asked for.
inline void Batti(QWindow* finestra, int tasto, const QString& testo, Qt::KeyboardModifiers con = {}) {
  const QPointer<QWindow> resta(finestra);
  const auto evento = [&](QEvent::Type tipo, int quale, const QString& scritto,
                          Qt::KeyboardModifiers tenuti) {
    if (resta.isNull()) return;
    qt_handleKeyEvent(resta, tipo, quale, tenuti, scritto, false, 1);
    QCoreApplication::processEvents();
  };
  const bool ctrl = con.testFlag(Qt::ControlModifier);
  if (ctrl) evento(QEvent::KeyPress, Qt::Key_Control, {}, {});
  for (const auto tipo : {QEvent::KeyPress, QEvent::KeyRelease}) evento(tipo, tasto, testo, con);
  if (ctrl) evento(QEvent::KeyRelease, Qt::Key_Control, {}, con);
}

/// The key of a character: a letter, a digit, or one of the control characters that are keys.
inline void Batti(QWindow* finestra, char carattere) {
  const std::pair<char, int> altri[] = {
      {'\b', Qt::Key_Backspace}, {'\t', Qt::Key_Tab}, {'\r', Qt::Key_Return}, {'\x1B', Qt::Key_Escape}};
  const QChar c = QLatin1Char(carattere);
  int tasto = c.toUpper().unicode();
  for (const auto& [segno, suo] : altri)
    if (segno == carattere) tasto = suo;
  Batti(finestra, tasto, QString(c));
}

}  // namespace tarvel
