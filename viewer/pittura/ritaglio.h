// Cuts lines to what is visible and puts them on whole pixels.
#pragma once

#include <QLineF>
#include <optional>

#include "viewer/pittura/pittura.h"

namespace ostrel {

/// The part of a segment within a rectangle, as fractions of its length.
struct Parte {
  double da = 0, a = 1;
};
/// Nothing where no part of it is within.
std::optional<Parte> Ritaglia(const QPointF& p, const QPointF& q, const QRectF& r);

/// That part of a segment; an upright or level one covers whole pixels.
QLineF SuPixel(QPointF p, QPointF q, const Parte& parte, const Fondo& fondo);

}  // namespace ostrel
