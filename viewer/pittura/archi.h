// Circles and arcs on any painter; many thousands of them on pixels, too.
#pragma once

#include "viewer/pittura/pittura.h"

namespace ostrel {

void DipingiArchi(QPainter& pittore, const Disegno& disegno, const Vista& vista, const QRectF& visibile,
                  const Fondo& fondo);

}  // namespace ostrel
