// Sheets of paper: a printer's and those of a PDF document.
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

/// Drawing and title block on a painter: `mm` painter units to a millimetre, `pagina` says what can be
/// printed on, whose upper left corner is the painter's origin.
void DipingiFoglio(QPainter& pittore, const Disegno& disegno, const Resa& resa, const Origine& origine,
                   const QPageLayout& pagina, double mm);

struct Tavola {
  const Disegno* disegno;
  Origine origine;
};

/// One page a drawing, each turned as suits it. False when the device refuses.
[[nodiscard]] bool ScriviPdf(std::span<const Tavola> tavole, const Resa& resa, QIODevice& uscita);

/// One page of the paper and turned as the printer is set. False when the printer refuses.
[[nodiscard]] bool Stampa(const Disegno& disegno, const Resa& resa, const Origine& origine,
                          QPrinter& stampante);

}  // namespace ostrel
