// The texts of a drawing as a table for a spreadsheet.
#pragma once

#include <QString>
#include <QStringList>

#include "viewer/disegno/disegno.h"

namespace ostrel {

/// Each text "name: number" as a row of name, tab and number, the number with `decimale`. A drawing without
/// such texts gives all those that are not a dimension's value, one a row.
QStringList RigheTabella(const Disegno& disegno, const QString& decimale);

}  // namespace ostrel
