// A drawing on a sheet of paper: the room it has above the title block, at the scale asked for or as large as
// it goes.
#pragma once

#include <QPageLayout>
#include <QRectF>
#include <optional>

#include "viewer/disegno/disegno.h"
#include "viewer/disegno/scala.h"
#include "viewer/pittura/pittura.h"

namespace ostrel {

/// Millimetres, from the upper left corner of what can be printed on.
struct Foglio {
  QRectF campo;      // the drawing's
  QRectF cartiglio;  // the title block's
  Vista vista;       // from the drawing's units to millimetres
  QSizeF disegno;    // what the drawing takes up
  /// The drawing is one part in `rapporto` of the thing; 0 where its unit is not known.
  double rapporto = 0;
};

/// The least that printers leave free around a sheet, in millimetres.
inline constexpr double kMargineCarta = 5;

/// The drawing in what can be printed on, in millimetres. Without a unit it is as large as it goes.
Foglio Componi(const Disegno& disegno, const Resa& resa, const QSizeF& stampabile);

/// The page of `resa`, turned as it asks, otherwise as the drawing has more room.
QPageLayout Pagina(const Disegno& disegno, const Resa& resa);

/// What can be printed on of a page, in millimetres.
QSizeF Stampabile(const QPageLayout& pagina);

/// Why a drawing should not go to paper at the scale asked for.
struct Obiezione {
  QString testo;
  /// A usual scale at which the whole of it is on this page; 0: none.
  double ciSta = 0;
  /// Beyond anything paper could show: not to be painted at all.
  bool assurda = false;
};

/// Nothing where the whole drawing is on the page and can be seen.
std::optional<Obiezione> Esamina(const Disegno& disegno, const Resa& resa, const QPageLayout& pagina);

/// "A4 orizzontale".
QString InTesto(const QPageLayout& pagina);

/// The sheet and what the drawing takes up on it, in words.
QString Descrivi(const Disegno& disegno, const Resa& resa, const QPageLayout& pagina);

}  // namespace ostrel
