// A text box that tells the program of every change the user makes, and its user what it has no room for.
#include "platform/qt/casella.h"

#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QStyleOptionFrame>
#include <cmath>

#include "platform/qt/gestori.h"
#include "platform/qt/scala.h"
#include "platform/qt/testo_qt.h"

namespace tarvel {
namespace {

// Of the letters from the edges, in pixels: the style's own margin, one more before them or, where they need
// it, none; none behind them.
constexpr int kMargineStile = 2, kPrima = 1, kStretta = -1, kDopo = -1;
constexpr int kArrotondato = 2;  // pixels by which measures of the same text differ

// A small arrow at the left or right edge, apart from the letters that it covers.
void DisegnaSegno(QPainter& penna, const QRect& casella, bool aSinistra) {
  const double lungo = 3.5 * Scala(), mezzo = 4.5 * Scala(), verso = aSinistra ? 1 : -1;
  const QPointF punta((aSinistra ? casella.left() : casella.right() + 1) + verso, casella.center().y() + 0.5);
  const QPolygonF freccia{punta, punta + QPointF(verso * lungo, -mezzo),
                          punta + QPointF(verso * lungo, mezzo)};
  penna.setRenderHint(QPainter::Antialiasing);
  penna.setPen(QPen(Qt::white, 1.2 * Scala()));
  penna.drawPolygon(freccia);
  penna.setPen(Qt::NoPen);
  penna.setBrush(Casella::kSegno);
  penna.drawPolygon(freccia);
}

// What a box can hold: no control characters, and '?' for what the code page lacks.
QString Ripulito(QString testo) {
  testo.removeIf([](QChar c) { return c.category() == QChar::Other_Control; });
  return InQt(DaQt(testo));
}

}  // namespace

Casella::Casella(Controllo& controllo, QWidget* padre) : QLineEdit(padre), controllo_(controllo) {
  setMaxLength(int(kMassimoCasella));
  setFrame(false);  // the style's own frame leaves too little room in a small box
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
    if (evento->isAccepted()) Inquadra(!hasFocus());
  });
}

void Casella::inputMethodEvent(QInputMethodEvent* evento) {
  EseguiGestore([&] {
    const QScopedValueRollback<bool> cambio(annunciato_);
    Scrivi(evento->commitString());
    QLineEdit::inputMethodEvent(evento);
    if (!evento->preeditString().isEmpty()) Inquadra(!hasFocus());
  });
}

void Casella::dropEvent(QDropEvent* evento) {
  setFocus(Qt::MouseFocusReason);  // so that leaving the box takes what was dropped
  QLineEdit::dropEvent(evento);
}

void Casella::mousePressEvent(QMouseEvent* evento) {
  QLineEdit::mousePressEvent(evento);
  if (evento->button() == Qt::LeftButton) Inquadra(!hasFocus());
}

void Casella::focusOutEvent(QFocusEvent* evento) {
  QLineEdit::focusOutEvent(evento);
  if (evento->reason() != Qt::PopupFocusReason) Inquadra(true);
}

void Casella::paintEvent(QPaintEvent* evento) {
  QLineEdit::paintEvent(evento);
  QPainter penna(this);
  const Taglio taglio = Tagliato();
  if (taglio.inizio) DisegnaSegno(penna, rect(), true);
  if (taglio.fine) DisegnaSegno(penna, rect(), false);
  penna.setRenderHint(QPainter::Antialiasing, false);
  penna.setBrush(Qt::NoBrush);
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
  Misura();
  Inquadra(!hasFocus());
}

void Casella::Mostra() {
  setText(InQt(controllo_.testo));
  Misura();
  Inquadra(true);
}

// Where the letters have room.
QRect Casella::Riga() const {
  QStyleOptionFrame stile;
  initStyleOption(&stile);
  return style()
      ->subElementRect(QStyle::SE_LineEditContents, &stile, this)
      .adjusted(prima_ + kMargineStile, 0, -kDopo - kMargineStile, 0);
}

// The text is another one.
void Casella::Misura() {
  larghezzaTesto_ = fontMetrics().horizontalAdvance(text()) + 1;  // and the caret
  prima_ = kPrima;
  prima_ = std::clamp(kPrima - (larghezzaTesto_ - Riga().width()), kStretta, kPrima);
  setToolTip(InSuggerimento(Suggerimento(controllo_, larghezzaTesto_ <= Riga().width())));
}

// The toolkit keeps the caret in view unless the whole text fits: for a text that is shown from its
// beginning the line is as long as the text, beyond the box's edge.
void Casella::Inquadra(bool dallInizio) {
  dallInizio_ = dallInizio;
  const int oltre = larghezzaTesto_ - Riga().width();
  setTextMargins(prima_, 0, dallInizio && oltre > 0 ? kDopo - oltre - kArrotondato : kDopo, 0);
  update();
}

// As painted last.
Taglio Casella::Tagliato() const {
  const int larga = Riga().width();
  if (larghezzaTesto_ <= larga) return {};
  if (dallInizio_) return {.fine = true};
  const int cursore = fontMetrics().horizontalAdvance(text().left(cursorPosition()));
  const int scorso = cursore - (cursorRect().center().x() - Riga().left());
  return {scorso > kArrotondato, larghezzaTesto_ - scorso > larga + kArrotondato};
}

}  // namespace tarvel
