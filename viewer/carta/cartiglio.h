// The title block of a sheet: what is drawn, at which scale, when, from which file.
#pragma once

#include <QDate>
#include <QPainter>
#include <QString>

#include "viewer/carta/foglio.h"

namespace ostrel {

/// What the sheet cannot know from the drawing.
struct Origine {
  QString file;  // the drawing's, any path
  QDate data = QDate::currentDate();
};

struct Cartiglio {
  QString titolo, scala, unita, data, file;
};

/// The drawing's title, as far as it can be read at a glance; empty without one.
QString Titolo(const Disegno& disegno);

/// `foglio` as composed with `resa`.
Cartiglio Intesta(const Disegno& disegno, const Resa& resa, const Foglio& foglio, const Origine& origine);

/// Into `posto`, in painter units; what is too long for its cell is shortened.
void DipingiCartiglio(QPainter& pittore, const Cartiglio& cartiglio, const QRectF& posto);

}  // namespace ostrel
