// A text box that tells the program of every change the user makes, and its user what it has no room for.
#include "platform/qt/casella.h"

#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QStyleOptionFrame>
#include <algorithm>
#include <cmath>

#include "platform/comune/desktop/scrivania.h"
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

// A character typed is a code, '?' where the code page lacks it.
std::vector<int> Codici(const QString& testo) {
  std::vector<int> codici;
  for (const char c : DaQt(testo)) codici.push_back(static_cast<unsigned char>(c));
  return codici;
}

// The text after a change: of what has come between what stays a box takes what it can hold.
Testo Preso(const Testo& prima, const Testo& dopo) {
  const auto meno = std::min(prima.size(), dopo.size());
  const auto inizio = std::mismatch(prima.begin(), prima.begin() + std::ptrdiff_t(meno), dopo.begin()).second;
  const auto fine =
      std::mismatch(prima.rbegin(), prima.rbegin() + std::ptrdiff_t(meno) - (inizio - dopo.begin()),
                    dopo.rbegin())
          .second.base();
  return Testo(dopo.begin(), inizio) + SenzaControlli(Testo(inizio, fine)) + Testo(fine, dopo.end());
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
  if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) return Batti({kTastoInvio}, [] {});
  std::vector<int> codici;
  if (evento->key() == Qt::Key_Delete
          ? hasSelectedText() || cursorPosition() < text().size()
          : evento->key() == Qt::Key_Backspace || evento->matches(QKeySequence::Cut))
    codici = {kTastoIndietro};
  else if (evento->key() == Qt::Key_Escape)
    codici = {kTastoEsc};
  else if (evento->matches(QKeySequence::Paste))
    codici = {kTastoIncolla};
  else if (alt == ctrl && !evento->text().isEmpty() && evento->text()[0].isPrint())
    codici = Codici(evento->text());
  Batti(codici, [&] {
    QLineEdit::keyPressEvent(evento);
    if (evento->isAccepted()) Inquadra(!hasFocus());
  });
}

void Casella::inputMethodEvent(QInputMethodEvent* evento) {
  Batti(Codici(evento->commitString()), [&] {
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

void Casella::Batti(const std::vector<int>& codici, const std::function<void()>& agisce) {
  PremiInCasella(controllo_, codici, [&] {
    const QScopedValueRollback<bool> cambio(annunciato_, !codici.empty());
    agisce();
  });
}

void Casella::Modificato(const QString& testo) {
  const Testo nuovo = Preso(controllo_.testo, DaQt(testo));
  if (InQt(nuovo) != testo) {
    const QSignalBlocker zitto(this);
    const auto dopo = testo.size() - cursorPosition();
    setText(InQt(nuovo));
    setCursorPosition(int(std::ssize(nuovo) - dopo));
  }
  const auto prende = [this] {
    controllo_.testo = DaQt(text());
    Misura();
    Inquadra(!hasFocus());
  };
  if (annunciato_) return prende();
  Batti({nuovo.size() < controllo_.testo.size() ? kTastoIndietro : kTastoIncolla}, prende);
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
