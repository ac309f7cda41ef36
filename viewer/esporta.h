// The drawing on paper and in files for other programs.
#pragma once

#include <QString>
#include <optional>

#include "viewer/disegno.h"
#include "viewer/scala.h"

class QPrinter;

namespace ostrel {

/// The kinds of file that can be written, as a file dialog lists them.
QString FiltriEsportazione();

/// Writes the file; its ending (.png, .svg, .pdf or .dxf, in any case) says the kind. Nothing on
/// success, otherwise an Italian message; an existing file is then as it was.
[[nodiscard]] std::optional<QString> Esporta(const Disegno& disegno, const QString& percorso,
                                             const Resa& resa = {});

/// One page, the drawing as large as the printable area allows. False when the printer refuses.
[[nodiscard]] bool Stampa(const Disegno& disegno, QPrinter& stampante);

}  // namespace ostrel
