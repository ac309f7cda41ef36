// Panning scrolls the pixels that are there and paints only what comes into sight.
#include "viewer/tela.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

namespace ostrel {
namespace {

constexpr double kPassoRotella = 1.2;
constexpr double kUnoScattoRotella = 120;
// How far the whole drawing may be shrunk or enlarged.
constexpr double kMinimoZoom = 0.01;
constexpr double kMassimoZoom = 2000;

}  // namespace

Tela::Tela(QWidget* padre) : QWidget(padre) {
  setObjectName("tela");
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setCursor(Qt::CrossCursor);
}

void Tela::Mostra(Disegno nuovo) {
  disegno_ = std::move(nuovo);
  tutto_ = Ingombro(disegno_);
  update();
}

void Tela::Adatta() {
  adattata_ = true;
  vista_ = VistaIntera(tutto_, rect());
  update();
}

void Tela::paintEvent(QPaintEvent* evento) {
  QPainter pittore(this);
  const Fondo fondo = FondoSchermo(devicePixelRatioF());
  for (const QRect& parte : evento->region()) {
    pittore.setClipRect(parte);
    pittore.fillRect(parte, InQt(fondo.colore));
    Dipingi(pittore, disegno_, vista_, parte, fondo);
  }
}

void Tela::resizeEvent(QResizeEvent*) {
  if (adattata_) Adatta();
}

void Tela::wheelEvent(QWheelEvent* evento) {
  const double intera = VistaIntera(tutto_, rect()).scala;
  const double chiesto = vista_.scala * std::pow(kPassoRotella, evento->angleDelta().y() / kUnoScattoRotella);
  const double scala = std::clamp(chiesto, std::min(vista_.scala, intera * kMinimoZoom),
                                  std::max(vista_.scala, intera * kMassimoZoom));
  vista_ = vista_.Ingrandita(scala / vista_.scala, evento->position());
  adattata_ = false;
  update();
}

void Tela::mousePressEvent(QMouseEvent* evento) {
  presa_ = evento->pos();
  setCursor(Qt::ClosedHandCursor);
}

void Tela::mouseMoveEvent(QMouseEvent* evento) {
  if (evento->buttons() != Qt::NoButton && evento->pos() != presa_) {
    const QPoint passo = evento->pos() - presa_;
    presa_ = evento->pos();
    adattata_ = false;
    vista_.x -= passo.x() / vista_.scala;
    vista_.y += passo.y() / vista_.scala;
    scroll(passo.x(), passo.y());
  }
  const QPointF punto = vista_.Da(evento->position());
  emit Puntato(punto.x(), punto.y());
}

void Tela::mouseReleaseEvent(QMouseEvent* evento) {
  if (evento->buttons() == Qt::NoButton) setCursor(Qt::CrossCursor);
}

}  // namespace ostrel
