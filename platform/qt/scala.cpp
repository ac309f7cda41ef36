// Twips into pixels by one factor for the whole program, and fonts that fit their controls.
#include "platform/qt/scala.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <cmath>

#include "platform/comune/scala.h"

namespace tarvel {
namespace {

constexpr double kTwipPerPixel = 15;
constexpr double kPixelPerPunto = 96.0 / 72;
constexpr double kParteSchermo = 2.0 / 3;

double scala = 1;

double PuntiPerPixel() {
  return 72 / QGuiApplication::primaryScreen()->logicalDotsPerInchY();
}

// Narrow faces with open shapes first: they stay readable at eight pixels. None that is a picture a
// size, as the smallest ones of Windows are: the scale asks for sizes between them.
QString Famiglia(const char* chiesta) {
  const QStringList presenti = QFontDatabase::families();
  for (const char* famiglia : {chiesta, "DejaVu Sans Condensed", "Liberation Sans Narrow", "DejaVu Sans",
                               "Tahoma", "Liberation Sans", "Noto Sans"})
    if (presenti.contains(QLatin1String(famiglia)) && QFontDatabase::isSmoothlyScalable(famiglia))
      return QLatin1String(famiglia);
  return QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
}

}  // namespace

void ScegliScala(const Form& principale) {
  const QSize schermo = QGuiApplication::primaryScreen()->availableSize();
  const double comoda =
      kParteSchermo * kTwipPerPixel *
      std::min(double(schermo.width()) / principale.larghezza, double(schermo.height()) / principale.altezza);
  const double colVisualizzatore = PixelPerTwip(schermo.width(), schermo.height()) * kTwipPerPixel;
  scala = std::max(1.0, std::min(comoda, colVisualizzatore));
}

double Scala() {
  return scala;
}

double Pixel(int twip) {
  return std::round(twip * scala / kTwipPerPixel);
}

QRect Pixel(const Rettangolo& posto) {
  const auto x = [](int twip) { return int(Pixel(twip)); };
  return {QPoint(x(posto.sinistra), x(posto.alto)),
          QPoint(x(posto.sinistra + posto.larghezza) - 1, x(posto.alto + posto.altezza) - 1)};
}

double Punti(const Carattere& carattere) {
  return carattere.punti * kPixelPerPunto * scala * PuntiPerPixel();
}

QFont CarattereAdatto(const Carattere& carattere, const QString& testo, QSize spazio, int modo,
                      double minimo) {
  static const QString famigliaPiccola = Famiglia(Carattere().famiglia);
  const bool solita = qstrcmp(carattere.famiglia, Carattere().famiglia) == 0;
  QFont font(solita ? famigliaPiccola : Famiglia(carattere.famiglia));
  font.setBold(carattere.grassetto);
  for (double parte = 1;; parte -= 0.025) {
    font.setPointSizeF(Punti(carattere) * parte);
    const QRectF occupato =
        QFontMetricsF(font).boundingRect(QRectF(QPointF(), QSizeF(spazio.width(), 1e6)), modo, testo);
    if (parte <= minimo || (occupato.width() <= spazio.width() && occupato.height() <= spazio.height()))
      return font;
  }
}

}  // namespace tarvel
