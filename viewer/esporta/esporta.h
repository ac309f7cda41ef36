// The drawing on paper and in files for other programs.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <span>

#include "viewer/carta/stampa.h"
#include "viewer/disegno/disegno.h"
#include "viewer/disegno/scala.h"

namespace ostrel {

/// The endings of the kinds of file that can be written: "png" and so on.
QStringList FinaliEsportazione();
/// One of these kinds as a file dialog lists it: "Immagine PNG (*.png)".
QString FiltroEsportazione(const QString& finale);
/// Which of them ends this name, in lower case; empty: none.
QString FinaleDi(const QString& percorso);

/// Writes a drawing that is not empty; the ending (.png, .svg, .pdf or .dxf, in any case) says the kind.
/// Nothing on success, otherwise an Italian message; an existing file is then as it was.
[[nodiscard]] std::optional<QString> Esporta(const Disegno& disegno, const QString& percorso,
                                             const Resa& resa = {}, const Origine& origine = {});

/// One PDF document, a page for each drawing; none of them may be empty.
[[nodiscard]] std::optional<QString> EsportaFascicolo(std::span<const Tavola> tavole, const QString& percorso,
                                                      const Resa& resa);

}  // namespace ostrel
