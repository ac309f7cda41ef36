// The window's commands that make files and sheets of its drawing, and what they ask for that.
#pragma once

#include <QString>

#include "viewer/disegno/disegno.h"
#include "viewer/documento/preferenze.h"

class QWidget;

namespace ostrel {

/// What became of an order; with neither an error nor a confirmation the user took it back.
struct Esito {
  QString errore;
  QString conferma;
  std::optional<SceltaResa> scelta = std::nullopt;  // what he chose, to be remembered
  bool unitaDetta = false;                          // the drawing's unit was among it
};

/// A drawing's own file, and the name, without ending, proposed for a file made of it.
struct FileDisegno {
  QString percorso;
  QString proposto;
};

/// Proposes the file's own name.
FileDisegno FileDi(const QString& percorso);
/// Proposes the drawing's title: a preview's own file always has the same name.
FileDisegno FileAnteprima(const Disegno& disegno, const QString& percorso);

/// A command opens windows that let other things happen: the drawing has to stay as it is until it returns.
/// `scelta` is what it proposes at first.
using ComandoCarta = Esito (*)(const Disegno& disegno, const FileDisegno& da, SceltaResa scelta,
                               QWidget* finestra);

/// Asks for the file and for what its kind needs, and writes it.
Esito EsportaDaFinestra(const Disegno& disegno, const FileDisegno& da, SceltaResa scelta, QWidget* finestra);

/// Shows the sheet, asks for unit, scale and printer, and prints.
Esito StampaDaFinestra(const Disegno& disegno, const FileDisegno& da, SceltaResa scelta, QWidget* finestra);

/// Adds the ending `finale` to a name that has none of `finali`: "ponte.1.pdf".
QString ConFinale(const QString& percorso, const QStringList& finali, const QString& finale);

}  // namespace ostrel
