// Measuring between two places of the drawing: what has been pointed at, and how it is shown.
#pragma once

#include <QPainter>
#include <QRectF>
#include <QString>
#include <optional>

#include "viewer/pittura/pittura.h"
#include "viewer/tela/aggancio.h"

namespace ostrel {

struct Metro {
  std::optional<Coordinata> da, a;
  /// The marked place that the pointer means, otherwise the place under it.
  std::optional<Coordinata> sotto;
  std::optional<Appiglio> genere;  // of a marked place
};

/// Takes the place under the pointer as the first point, the second, or the first of the next measure; not as
/// a second point where it is the first.
void Prendi(Metro& metro);

/// Finds the place under the pointer, which is at `dove` on the painter.
void Punta(Metro& metro, const Disegno& disegno, const Vista& vista, QPointF dove);

/// How a measure is written.
struct Notazione {
  QString decimale = ".";
  QString unita;  // of the drawing's lengths; empty where it is not known
};

/// Distance, its parts along the axes and the angle, one a line; a length has as many decimals as it needs,
/// four at most. Nothing before there are two places.
QString Risultato(const Metro& metro, const Notazione& notazione);

/// Says in a line what the user is to do now.
QString Istruzione(const Metro& metro);

/// Paints line, marks and result over the drawing, within `area`.
void Dipingi(QPainter& pittore, const Metro& metro, const Vista& vista, const QRectF& area,
             const tarvel::Colore& fondo, const QString& risultato);

/// Paints a text on a box of its own, wholly within `area` and, if there is room, beside `dove`.
void Cartellino(QPainter& pittore, const QString& testo, QPointF dove, const QRectF& area,
                const tarvel::Colore& fondo);

}  // namespace ostrel
