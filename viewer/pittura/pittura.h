// The drawing on any painter: window, printer, image or PDF.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

#include "viewer/disegno/disegno.h"
#include "viewer/disegno/misure.h"
#include "viewer/pittura/tavolozza.h"

namespace ostrel {

/// How drawing units fall on the painter: `scala` painter units to one of the drawing's, and the
/// drawing's point that lies at the painter's origin.
struct Vista {
  double scala = 1;
  double x = 0, y = 0;

  QPointF Verso(double dx, double dy) const { return {(dx - x) * scala, (y - dy) * scala}; }
  QPointF Da(QPointF p) const { return {x + p.x() / scala, y - p.y() / scala}; }
  /// The same drawing point stays under `fermo`.
  Vista Ingrandita(double fattore, QPointF fermo) const;

  friend bool operator==(const Vista&, const Vista&) = default;
};

/// The view that fits the whole of a drawing's extents into an area, centred, a margin around it.
Vista VistaIntera(const Riquadro& tutto, QRectF area);

/// The ground a drawing is painted on and the width of its lines in painter units.
struct Fondo {
  tarvel::Colore colore;
  double spessore = 1;
  /// Upright and level lines are put on whole pixels of this size; 0 on paper.
  double pixel = 0;
};
Fondo FondoSchermo(double rapportoPixel);
Fondo FondoCarta(double spessore);

inline QColor InQt(const tarvel::Colore& c) {
  return {c.r, c.g, c.b};
}

/// Paints what falls on `visibile` (painter units); fills no background.
void Dipingi(QPainter& pittore, const Disegno& disegno, const Vista& vista, const QRectF& visibile,
             const Fondo& fondo);

}  // namespace ostrel
