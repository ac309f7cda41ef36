#include "viewer/tela/tela.h"

#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

namespace ostrel {
namespace {

constexpr double kPassoTasto = 1.5;
constexpr int kPartiScorrimento = 10;  // of the window
// How far the whole drawing may be shrunk or enlarged.
constexpr double kMinimoZoom = 0.01;
constexpr double kMassimoZoom = 2000;
constexpr double kFinezzaCopia = 2;

}  // namespace

Tela::Tela(QWidget* padre) : QWidget(padre) {
  setObjectName("tela");
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::CrossCursor);
}

void Tela::Mostra(Disegno nuovo, bool daCapo) {
  if (daCapo) {
    metro_ = {};
    storia_ = {};
    adattata_ = true;
  }
  disegno_ = std::move(nuovo);
  tutto_ = Ingombro(disegno_);
  MostraLivelli(livelli_);
  Inquadra({vista_, adattata_});
}

void Tela::MostraLivelli(const Livelli& livelli) {
  livelli_ = livelli;
  visibile_.reset();
  if (livelli != kTuttiLivelli) visibile_ = SoloLivelli(disegno_, livelli);
  update();
}

void Tela::MettiSu(const tarvel::Colore& fondo) {
  fondo_ = fondo;
  update();
}

void Tela::Annota(const Notazione& notazione) {
  notazione_ = notazione;
  update();
}

void Tela::Inquadra(const Inquadratura& nuova) {
  adattata_ = nuova.adattata;
  const Vista vista = adattata_ ? VistaIntera(tutto_, rect()) : nuova.vista;
  if (vista != std::exchange(vista_, vista)) angolo_.reset();
  update();
  if (underMouse()) Segui(puntatore_);
  emit Cambiata();
}

void Tela::Cambia(const Inquadratura& nuova, Gesto gesto) {
  storia_.Lascia({vista_, adattata_}, gesto);
  Inquadra(nuova);
}

void Tela::Adatta() {
  if (!adattata_) Cambia({vista_, true}, Gesto::Unico);
}

double Tela::ScalaLimitata(double chiesta) const {
  const double intera = VistaIntera(tutto_, rect()).scala;
  return std::clamp(chiesta, std::min(vista_.scala, intera * kMinimoZoom),
                    std::max(vista_.scala, intera * kMassimoZoom));
}

void Tela::Ingrandisci(double fattore, QPointF fermo) {
  const double scala = ScalaLimitata(vista_.scala * fattore);
  Cambia({vista_.Ingrandita(scala / vista_.scala, fermo), false}, Gesto::Zoom);
}

void Tela::Ingrandisci(int passi) {
  Ingrandisci(std::pow(kPassoTasto, passi), QRectF(rect()).center());
}

void Tela::ZoomSu(const QRectF& parte) {
  const QPointF alto = vista_.Da(parte.topLeft()), basso = vista_.Da(parte.bottomRight());
  const Vista chiesta = VistaIntera({alto.x(), basso.y(), basso.x(), alto.y()}, rect());
  const double scala = ScalaLimitata(chiesta.scala);
  Cambia({chiesta.Ingrandita(scala / chiesta.scala, QRectF(rect()).center()), false}, Gesto::Unico);
}

void Tela::Scorri(int destra, int basso) {
  Trascina(-QPoint(destra * width(), basso * height()) / kPartiScorrimento, Gesto::Scorrimento);
}

void Tela::Trascina(QPoint passo, std::optional<Gesto> gesto) {
  if (gesto) storia_.Lascia({vista_, adattata_}, *gesto);
  auto angolo = angolo_;
  if (angolo) *angolo += passo;  // the rectangle's corner stays on its point of the drawing
  Inquadra({{vista_.scala, vista_.x - passo.x() / vista_.scala, vista_.y + passo.y() / vista_.scala}, false});
  angolo_ = angolo;
}

void Tela::VistaPrecedente() {
  if (const auto vista = storia_.Precedente({vista_, adattata_})) Inquadra(*vista);
}

void Tela::VistaSuccessiva() {
  if (const auto vista = storia_.Successiva({vista_, adattata_})) Inquadra(*vista);
}

void Tela::DipingiDisegno(QPaintDevice& dove, const tarvel::Colore& colore) const {
  QPainter pittore(&dove);
  Fondo fondo = FondoSchermo(dove.devicePixelRatioF());
  fondo.colore = colore;
  pittore.fillRect(rect(), InQt(colore));
  ostrel::Dipingi(pittore, Visibile(), vista_, rect(), fondo);
}

void Tela::paintEvent(QPaintEvent*) {
  DipingiDisegno(*this, fondo_);
  QPainter pittore(this);
  DipingiStrumento(pittore);
}

void Tela::DipingiStrumento(QPainter& pittore) {
  const QRectF area = rect();
  const QColor colore = InQt(ColoreSu(fondo_, tarvel::disegno::kArancio));
  if (angolo_) {
    QColor velo = colore;
    velo.setAlpha(40);
    pittore.setPen(colore);
    pittore.setBrush(velo);
    pittore.drawRect(QRectF(*angolo_, puntatore_).normalized());
  }
  if (strumento_ == Strumento::Metro) ostrel::Dipingi(pittore, metro_, vista_, area, fondo_, Misura());
  if (const QString cosa = Istruzione(); !cosa.isEmpty()) Cartellino(pittore, cosa, {}, area, fondo_);
}

QString Tela::Istruzione() const {
  if (strumento_ == Strumento::Metro) return ostrel::Istruzione(metro_);
  if (strumento_ != Strumento::Rettangolo) return {};
  return angolo_ ? "Zoom: indicare l'angolo opposto. Esc termina."
                 : "Zoom: trascinare un rettangolo o indicarne un angolo. Esc termina.";
}

QImage Tela::Immagine() const {
  QImage immagine((QSizeF(size()) * kFinezzaCopia).toSize(), QImage::Format_RGB32);
  immagine.setDevicePixelRatio(kFinezzaCopia);
  DipingiDisegno(immagine, kCarta);
  return immagine;
}

void Tela::resizeEvent(QResizeEvent*) {
  if (adattata_) Inquadra({vista_, true});
}

}  // namespace ostrel
