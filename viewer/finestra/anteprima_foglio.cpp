#include "viewer/finestra/anteprima_foglio.h"

#include <QPainter>
#include <algorithm>

namespace ostrel {
namespace {

constexpr double kIntorno = 12;  // pixels
constexpr double kOmbra = 4;
const QColor kTavolo(120, 124, 130), kBuio(70, 73, 78);

}  // namespace

AnteprimaFoglio::AnteprimaFoglio(const Disegno& disegno, const Origine& origine, QWidget* genitore)
    : QWidget(genitore), disegno_(disegno), origine_(origine) {
  setMinimumSize(240, 240);
}

void AnteprimaFoglio::Mostra(const Resa& resa) {
  resa_ = resa;
  update();
}

void AnteprimaFoglio::paintEvent(QPaintEvent*) {
  const QPageLayout pagina = Pagina(disegno_, resa_);
  const QSizeF lati = pagina.fullRect(QPageLayout::Millimeter).size();
  const double mm =
      std::min((width() - 2 * kIntorno) / lati.width(), (height() - 2 * kIntorno) / lati.height());
  QRectF foglio({0, 0}, lati * mm);
  foglio.moveCenter(QRectF(rect()).center());

  QPainter pittore(this);
  pittore.fillRect(rect(), kTavolo);
  pittore.fillRect(foglio.translated(kOmbra, kOmbra), kBuio);
  pittore.fillRect(foglio, Qt::white);
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.translate(foglio.topLeft() + pagina.paintRect(QPageLayout::Millimeter).topLeft() * mm);
  DipingiFoglio(pittore, disegno_, resa_, origine_, pagina, mm);
}

}  // namespace ostrel
