// Sheets of paper: a printer's and those of a PDF document.
#pragma once

#include <QByteArray>

#include "viewer/cartiglio.h"
#include "viewer/disegno.h"
#include "viewer/foglio.h"
#include "viewer/scala.h"

class QPrinter;

namespace ostrel {

/// Drawing and title block on a painter: `mm` painter units to a millimetre, `pagina` says what can be
/// printed on, whose upper left corner is the painter's origin.
void DipingiFoglio(QPainter& pittore, const Disegno& disegno, const Resa& resa, const Origine& origine,
                   const QPageLayout& pagina, double mm);

/// One page, written to the device. False when it refuses.
[[nodiscard]] bool ScriviPdf(const Disegno& disegno, const Resa& resa, const Origine& origine,
                             QIODevice& uscita);

/// One page of the paper and turned as the printer is set. False when the printer refuses.
[[nodiscard]] bool Stampa(const Disegno& disegno, const Resa& resa, const Origine& origine,
                          QPrinter& stampante);

}  // namespace ostrel
