// The texts of a drawing as a table for a spreadsheet.
#pragma once

#include <QString>
#include <QStringList>

#include "viewer/disegno/disegno.h"

namespace ostrel {

/// The properties that the drawing lists, its texts "name: number", as rows of name, tab and number, the
/// number with `decimale`. Where it lists none, every text that is not a dimension's value, one a row.
QStringList RigheTabella(const Disegno& disegno, const QString& decimale);

}  // namespace ostrel
