// Lines are clipped before the painter sees them.
#include "viewer/pittura/tratti.h"

#include <algorithm>
#include <cmath>

namespace ostrel {
namespace {

// The place nearest to v where a line covers whole pixels.
double SuPixel(double v, const Fondo& fondo) {
  const bool dispari = std::lround(fondo.spessore / fondo.pixel) % 2 != 0;
  return (dispari ? std::floor(v / fondo.pixel) + 0.5 : std::round(v / fondo.pixel)) * fondo.pixel;
}

}  // namespace

// Liang-Barsky.
bool Ritaglia(const QPointF& p, const QPointF& q, const QRectF& r, Parte& parte) {
  const auto bordo = [&](double verso, double distanza) {
    if (verso == 0) return distanza >= 0;
    const double t = distanza / verso;
    if (verso < 0)
      parte.da = std::max(parte.da, t);
    else
      parte.a = std::min(parte.a, t);
    return parte.da <= parte.a;
  };
  const double dx = q.x() - p.x(), dy = q.y() - p.y();
  return bordo(-dx, p.x() - r.left()) && bordo(dx, r.right() - p.x()) && bordo(-dy, p.y() - r.top()) &&
         bordo(dy, r.bottom() - p.y());
}

QPen Penna(const Fondo& fondo, int colore) {
  return {InQt(ColoreSu(fondo.colore, colore)), fondo.spessore, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin};
}

QLineF Segmento(QPointF p, QPointF q, const Parte& parte, const Fondo& fondo) {
  QLineF s(p + (q - p) * parte.da, p + (q - p) * parte.a);
  if (fondo.pixel > 0 && p.x() == q.x()) {
    const double x = SuPixel(p.x(), fondo);
    s.setLine(x, s.y1(), x, s.y2());
  } else if (fondo.pixel > 0 && p.y() == q.y()) {
    const double y = SuPixel(p.y(), fondo);
    s.setLine(s.x1(), y, s.x2(), y);
  }
  return s;
}

QRectF Campo(const QRectF& visibile, const Fondo& fondo) {
  return visibile.marginsAdded(QMarginsF(8, 8, 8, 8) * fondo.spessore);
}

}  // namespace ostrel
