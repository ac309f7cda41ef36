// The window's commands that make files and sheets of its drawing: what they ask, what they remember.
#pragma once

#include <QString>

#include "viewer/disegno/disegno.h"

class QWidget;

namespace ostrel {

/// What became of an order; both empty: it was taken back.
struct Esito {
  QString errore;
  QString conferma;
};

// The drawing has to stay as it is until they return, whatever the windows they open let happen.

/// A drawing's own file, and what one made of it is proposed to be called, without ending.
struct FileDisegno {
  QString percorso;
  QString proposto;
};

/// Proposes the file's own name.
FileDisegno FileDi(const QString& percorso);
/// Proposes the drawing's title: a preview's own file always has the same name.
FileDisegno FileAnteprima(const Disegno& disegno, const QString& percorso);

/// Asks for the file and for what its kind needs, and writes it.
Esito EsportaDaFinestra(const Disegno& disegno, const FileDisegno& da, QWidget* finestra);

/// Shows the sheet, asks for unit, scale and printer, and prints.
Esito StampaDaFinestra(const Disegno& disegno, const FileDisegno& da, QWidget* finestra);

/// A name with the ending `finale`, where it has none of `finali`: "ponte.1.pdf".
QString ConFinale(const QString& percorso, const QStringList& finali, const QString& finale);

}  // namespace ostrel
