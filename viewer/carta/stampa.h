// Puts drawings on the sheets of a printer and of a PDF document.
#pragma once

#include <QIODevice>
#include <QPainter>
#include <span>

#include "viewer/carta/cartiglio.h"
#include "viewer/carta/foglio.h"
#include "viewer/disegno/disegno.h"
#include "viewer/disegno/scala.h"

class QPrinter;

namespace ostrel {

/// Paints drawing and title block on the printable part of `pagina`, whose upper left corner is the painter's
/// origin; `mm` is the painter units to a millimetre.
void DipingiFoglio(QPainter& pittore, const Disegno& disegno, const Resa& resa, const Origine& origine,
                   const QPageLayout& pagina, double mm);

struct Tavola {
  const Disegno* disegno;
  Origine origine;
};

/// Writes one page for each drawing, each page turned as `resa` and its drawing ask. False when the device
/// refuses.
[[nodiscard]] bool ScriviPdf(std::span<const Tavola> tavole, const Resa& resa, QIODevice& uscita);

/// Prints one page on the paper that the printer is set to. False when the printer refuses.
[[nodiscard]] bool Stampa(const Disegno& disegno, const Resa& resa, const Origine& origine,
                          QPrinter& stampante);

}  // namespace ostrel
