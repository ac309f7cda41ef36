// What wheel, buttons and keys do to the drawing and its tools.
#include <QApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "viewer/tela/tela.h"

namespace ostrel {
namespace {

constexpr double kPassoRotella = 1.2;
constexpr double kUnoScattoRotella = 120;
constexpr int kPassoPuntatore = 10;

// The direction of an arrow key, y downward; zero for another key.
QPoint Freccia(int tasto) {
  switch (tasto) {
    case Qt::Key_Left:
      return {-1, 0};
    case Qt::Key_Right:
      return {1, 0};
    case Qt::Key_Up:
      return {0, -1};
    case Qt::Key_Down:
      return {0, 1};
    default:
      return {};
  }
}

}  // namespace

void Tela::Usa(Strumento strumento) {
  strumento_ = strumento;
  metro_ = {};
  angolo_.reset();
  const QPoint qui = mapFromGlobal(QCursor::pos());
  puntatore_ = rect().contains(qui) ? qui : rect().center();
  if (strumento_ != Strumento::Mano) setFocus();
  Segui(puntatore_);
  update();
  emit Cambiata();
}

void Tela::Segui(QPointF dove) {
  puntatore_ = dove.toPoint();
  if (strumento_ == Strumento::Metro) Punta(metro_, Visibile(), vista_, dove);
  if (strumento_ != Strumento::Mano || angolo_) update();
  const QPointF punto = vista_.Da(dove);
  emit Puntato(punto.x(), punto.y());
}

// A rectangle's second corner is one far enough from the first, whether the user drags to it or clicks there.
void Tela::Indica() {
  update();
  if (strumento_ == Strumento::Metro && !angolo_) return Prendi(metro_);
  if (!angolo_) {
    angolo_ = puntatore_;
    return;
  }
  const QRectF parte = QRectF(*angolo_, puntatore_).normalized();
  const bool ampia = std::max(parte.width(), parte.height()) > QApplication::startDragDistance();
  if (ampia || strumento_ != Strumento::Rettangolo) angolo_.reset();
  if (!ampia) return;
  if (strumento_ == Strumento::Rettangolo) Usa(Strumento::Mano);
  ZoomSu(parte);
}

void Tela::MuoviPuntatore(QPoint passo) {
  const QPoint dove(std::clamp(puntatore_.x() + passo.x(), 0, width() - 1),
                    std::clamp(puntatore_.y() + passo.y(), 0, height() - 1));
  QCursor::setPos(mapToGlobal(dove));
  Segui(dove);
}

void Tela::wheelEvent(QWheelEvent* evento) {
  const int scatti = evento->angleDelta().y();
  if (scatti == 0) return QWidget::wheelEvent(evento);  // the wheel turned sideways
  emit Toccata();
  Ingrandisci(std::pow(kPassoRotella, scatti / kUnoScattoRotella), evento->position());
  Segui(evento->position());
}

void Tela::mousePressEvent(QMouseEvent* evento) {
  emit Toccata();
  presa_ = evento->pos();
  mosso_ = false;
  Segui(presa_);
  const bool rettangolo =
      strumento_ == Strumento::Rettangolo || (evento->modifiers() & Qt::ShiftModifier) != 0;
  if (evento->button() == Qt::LeftButton && rettangolo && !angolo_) angolo_ = presa_;
  if (strumento_ == Strumento::Mano && !angolo_ && evento->button() != Qt::RightButton)
    setCursor(Qt::ClosedHandCursor);
}

// While a tool is in use, a drag begins only some pixels away: the hand may tremble while it clicks.
void Tela::mouseMoveEvent(QMouseEvent* evento) {
  const QPoint passo = evento->pos() - presa_;
  const bool centrale = (evento->buttons() & Qt::MiddleButton) != 0;
  const bool trascina = centrale || ((evento->buttons() & Qt::LeftButton) != 0 && !angolo_);
  const int soglia = strumento_ == Strumento::Mano || mosso_ ? 1 : QApplication::startDragDistance();
  if (trascina && passo.manhattanLength() >= soglia) {
    presa_ = evento->pos();
    Trascina(passo, mosso_ ? std::nullopt : std::optional(Gesto::Unico));
    mosso_ = true;
  }
  Segui(evento->position());
}

void Tela::mouseReleaseEvent(QMouseEvent* evento) {
  if (evento->buttons() == Qt::NoButton) setCursor(Qt::CrossCursor);
  if (evento->button() == Qt::LeftButton && (angolo_ || !mosso_) &&
      (angolo_ || strumento_ == Strumento::Metro))
    Indica();
}

void Tela::mouseDoubleClickEvent(QMouseEvent* evento) {
  if (evento->button() == Qt::MiddleButton)
    Adatta();
  else
    mousePressEvent(evento);
}

void Tela::leaveEvent(QEvent*) {
  metro_.sotto.reset();
  metro_.genere.reset();
  update();
}

void Tela::keyPressEvent(QKeyEvent* evento) {
  emit Toccata();
  const bool strumento = strumento_ != Strumento::Mano || angolo_;
  const QPoint freccia = Freccia(evento->key());
  if (!freccia.isNull() && strumento)
    MuoviPuntatore(freccia * (evento->modifiers() & Qt::ShiftModifier ? 1 : kPassoPuntatore));
  else if (!freccia.isNull())
    Scorri(freccia.x(), freccia.y());
  else if (strumento && (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter))
    Indica();
  else if (strumento && evento->key() == Qt::Key_Escape)
    Usa(Strumento::Mano);
  else
    QWidget::keyPressEvent(evento);
}

}  // namespace ostrel
