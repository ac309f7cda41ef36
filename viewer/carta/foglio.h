// Places a drawing on a sheet of paper above the title block, at the scale asked for or as large as it goes.
#pragma once

#include <QPageLayout>
#include <QRectF>
#include <optional>

#include "viewer/disegno/disegno.h"
#include "viewer/disegno/scala.h"
#include "viewer/pittura/pittura.h"

namespace ostrel {

/// All in millimetres from the upper left corner of the printable part.
struct Foglio {
  QRectF campo;      // room for the drawing
  QRectF cartiglio;  // room for the title block
  Vista vista;       // from the drawing's units to millimetres
  QSizeF disegno;    // what the drawing takes up
  /// The thing is `rapporto` times as large as the drawing of it; 0 where the unit is not known.
  double rapporto = 0;
};

/// How many millimetres around a sheet no printer can print on.
inline constexpr double kMargineCarta = 5;

/// `stampabile` is the printable part in millimetres. A drawing without a unit is as large as it goes.
Foglio Componi(const Disegno& disegno, const Resa& resa, const QSizeF& stampabile);

/// The page that `resa` asks for; where it leaves the choice, turned so that the drawing has more room.
QPageLayout Pagina(const Disegno& disegno, const Resa& resa);

/// The printable part of a page, in millimetres.
QSizeF Stampabile(const QPageLayout& pagina);

/// Why a drawing should not go to paper at the scale asked for.
struct Obiezione {
  QString testo;
  /// A usual scale at which the whole drawing is on this page; 0 where there is none.
  double ciSta = 0;
  /// No paper could show it: the drawing must not be painted at all.
  bool assurda = false;
};

/// Nothing where the whole drawing is on the page and can be seen.
std::optional<Obiezione> Esamina(const Disegno& disegno, const Resa& resa, const QPageLayout& pagina);

/// "A4 orizzontale".
QString InTesto(const QPageLayout& pagina);

/// The sheet and what the drawing takes up on it, in words.
QString Descrivi(const Disegno& disegno, const Resa& resa, const QPageLayout& pagina);

}  // namespace ostrel
