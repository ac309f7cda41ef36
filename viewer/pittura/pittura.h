// Paints a drawing on a window, a printer, an image or a PDF page.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

#include "viewer/disegno/disegno.h"
#include "viewer/disegno/misure.h"
#include "viewer/pittura/tavolozza.h"

namespace ostrel {

/// Where a drawing lies on a painter: `scala` painter units to one of the drawing's, and the point of the
/// drawing at the painter's origin.
struct Vista {
  double scala = 1;
  double x = 0, y = 0;

  QPointF Verso(double dx, double dy) const { return {(dx - x) * scala, (y - dy) * scala}; }
  QPointF Da(QPointF p) const { return {x + p.x() / scala, y - p.y() / scala}; }
  /// Keeps the same point of the drawing under `fermo`.
  Vista Ingrandita(double fattore, QPointF fermo) const;

  friend bool operator==(const Vista&, const Vista&) = default;
};

/// Fits a drawing that takes up `tutto` into the middle of an area, with a margin around it.
Vista VistaIntera(const Riquadro& tutto, QRectF area);

/// The ground a drawing is painted on, and the width of its lines in painter units.
struct Fondo {
  tarvel::Colore colore;
  double spessore = 1;
  /// The size of a pixel, of which upright and level lines cover whole ones; 0 on paper.
  double pixel = 0;
};
Fondo FondoSchermo(double rapportoPixel);
Fondo FondoCarta(double spessore);

inline QColor InQt(const tarvel::Colore& c) {
  return {c.r, c.g, c.b};
}

/// Paints what falls on `visibile` (painter units); does not fill the ground.
void Dipingi(QPainter& pittore, const Disegno& disegno, const Vista& vista, const QRectF& visibile,
             const Fondo& fondo);

}  // namespace ostrel
