// What lines and arcs share on their way to the painter: pen, clipping, whole pixels.
#pragma once

#include <QLineF>
#include <QPen>

#include "viewer/pittura/pittura.h"

namespace ostrel {

/// The part of a segment within a rectangle, as fractions of its length.
struct Parte {
  double da = 0, a = 1;
};
/// False where nothing of it is within.
bool Ritaglia(const QPointF& p, const QPointF& q, const QRectF& r, Parte& parte);

QPen Penna(const Fondo& fondo, int colore);

/// That part; upright and level lines on whole pixels.
QLineF Segmento(QPointF p, QPointF q, const Parte& parte, const Fondo& fondo);

/// What is visible, and enough around it that no pen's edge is cut.
QRectF Campo(const QRectF& visibile, const Fondo& fondo);

}  // namespace ostrel
