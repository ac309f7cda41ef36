// The title block of a sheet: what is drawn, at which scale, on which day, from which file.
#pragma once

#include <QDate>
#include <QPainter>
#include <QString>

#include "viewer/carta/foglio.h"

namespace ostrel {

/// What a sheet says that the drawing does not know.
struct Origine {
  QString file;  // of the drawing, with or without its folder
  QDate data = QDate::currentDate();
};

struct Cartiglio {
  QString titolo, scala, unita, data, file;
};

/// The drawing's title, cut where it becomes too long to be read at a glance; empty without one.
QString Titolo(const Disegno& disegno);

/// `foglio` is the one that Componi gives for `resa`.
Cartiglio Intesta(const Disegno& disegno, const Resa& resa, const Foglio& foglio, const Origine& origine);

/// `posto` is in painter units; a text too long for its cell is shortened.
void DipingiCartiglio(QPainter& pittore, const Cartiglio& cartiglio, const QRectF& posto);

}  // namespace ostrel
