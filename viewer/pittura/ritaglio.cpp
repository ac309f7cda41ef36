#include "viewer/pittura/ritaglio.h"

#include <algorithm>
#include <cmath>

namespace ostrel {
namespace {

// The place nearest to v where a line covers whole pixels.
double Accostato(double v, const Fondo& fondo) {
  const bool dispari = std::lround(fondo.spessore / fondo.pixel) % 2 != 0;
  return (dispari ? std::floor(v / fondo.pixel) + 0.5 : std::round(v / fondo.pixel)) * fondo.pixel;
}

}  // namespace

// By the method of Liang and Barsky.
std::optional<Parte> Ritaglia(const QPointF& p, const QPointF& q, const QRectF& r) {
  Parte parte;
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
  if (bordo(-dx, p.x() - r.left()) && bordo(dx, r.right() - p.x()) && bordo(-dy, p.y() - r.top()) &&
      bordo(dy, r.bottom() - p.y()))
    return parte;
  return std::nullopt;
}

QLineF SuPixel(QPointF p, QPointF q, const Parte& parte, const Fondo& fondo) {
  QLineF s(p + (q - p) * parte.da, p + (q - p) * parte.a);
  if (fondo.pixel > 0 && p.x() == q.x()) {
    const double x = Accostato(p.x(), fondo);
    s.setLine(x, s.y1(), x, s.y2());
  } else if (fondo.pixel > 0 && p.y() == q.y()) {
    const double y = Accostato(p.y(), fondo);
    s.setLine(s.x1(), y, s.x2(), y);
  }
  return s;
}

}  // namespace ostrel
