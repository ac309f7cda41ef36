// A text box that tells the program of every change the user makes.
#include "platform/qt/casella.h"

#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include "platform/qt/gestori.h"
#include "platform/qt/testo_qt.h"

namespace tarvel {
namespace {

// What a box can hold: no control characters, and '?' for what the code page lacks.
QString Ripulito(QString testo) {
  testo.removeIf([](QChar c) { return c.category() == QChar::Other_Control; });
  return InQt(DaQt(testo));
}

}  // namespace

Casella::Casella(Controllo& controllo, QWidget* padre) : QLineEdit(padre), controllo_(controllo) {
  setMaxLength(int(kMassimoCasella));
  setFrame(false);  // the style's own frame leaves too little room in a small box
  setTextMargins(1, 0, 1, 0);
  connect(this, &QLineEdit::textEdited, this, &Casella::Modificato);
}

void Casella::keyPressEvent(QKeyEvent* evento) {
  const bool alt = evento->modifiers().testFlag(Qt::AltModifier);
  const bool ctrl = evento->modifiers().testFlag(Qt::ControlModifier);
  if (alt && !ctrl) return evento->ignore();  // Alt and a letter is no typing
  // The key is done before the control hears of anything else, of the loss of its focus for one.
  EseguiGestore([&] {
    const QScopedValueRollback<bool> cambio(annunciato_);
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) return Annuncia(kTastoInvio);
    const QString testo = evento->text();
    const bool cancella = evento->key() == Qt::Key_Delete
                              ? hasSelectedText() || cursorPosition() < text().size()
                              : evento->key() == Qt::Key_Backspace || evento->matches(QKeySequence::Cut);
    if (cancella)
      Annuncia(kTastoIndietro);
    else if (evento->key() == Qt::Key_Escape)
      Annuncia(kTastoEsc);
    else if (evento->matches(QKeySequence::Paste))
      Annuncia(kTastoIncolla);
    else if (!testo.isEmpty() && testo[0].isPrint() && alt == ctrl)
      Scrivi(testo);
    QLineEdit::keyPressEvent(evento);
  });
}

void Casella::inputMethodEvent(QInputMethodEvent* evento) {
  EseguiGestore([&] {
    const QScopedValueRollback<bool> cambio(annunciato_);
    Scrivi(evento->commitString());
    QLineEdit::inputMethodEvent(evento);
  });
}

void Casella::dropEvent(QDropEvent* evento) {
  setFocus(Qt::MouseFocusReason);  // so that leaving the box takes what was dropped
  QLineEdit::dropEvent(evento);
}

void Casella::paintEvent(QPaintEvent* evento) {
  QLineEdit::paintEvent(evento);
  QPainter penna(this);
  penna.setPen(hasFocus() ? palette().color(QPalette::Highlight) : QColor(96, 96, 96));
  penna.drawRect(rect().adjusted(0, 0, -1, -1));
}

void Casella::Annuncia(int codice) {
  annunciato_ = true;
  EseguiGestore([&] {
    if (controllo_.tasto) controllo_.tasto(codice);
  });
}

void Casella::Scrivi(const QString& testo) {
  for (const char c : DaQt(testo)) Annuncia(static_cast<unsigned char>(c));
}

void Casella::Modificato(const QString& testo) {
  const QString pulito = Ripulito(testo);
  if (pulito != testo) {
    const QSignalBlocker zitto(this);
    const auto cursore = Ripulito(testo.left(cursorPosition())).size();
    setText(pulito);
    setCursorPosition(int(cursore));
  }
  const Testo nuovo = DaQt(pulito);
  const QScopedValueRollback<bool> cambio(annunciato_);
  if (!annunciato_) Annuncia(nuovo.size() < controllo_.testo.size() ? kTastoIndietro : kTastoIncolla);
  controllo_.testo = DaQt(text());
}

}  // namespace tarvel
