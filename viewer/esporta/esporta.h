// Writes a drawing into a picture, a document or a file for other programs.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <span>

#include "viewer/carta/stampa.h"
#include "viewer/disegno/disegno.h"
#include "viewer/disegno/scala.h"

namespace ostrel {

/// Why something could not be done, in Italian; nothing where it was done.
using Errore = std::optional<QString>;

/// The endings of the kinds of file that can be written: "png" and so on.
QStringList FinaliEsportazione();
/// One of these kinds as a file dialog lists it: "Immagine PNG (*.png)".
QString FiltroEsportazione(const QString& finale);
/// The one of them that ends this name, in lower case; empty where none does.
QString FinaleDi(const QString& percorso);

/// Writes a drawing that is not empty; the ending (.png, .svg, .pdf or .dxf, in any case) says the kind. A
/// failure leaves an existing file as it was.
[[nodiscard]] Errore Esporta(const Disegno& disegno, const QString& percorso, const Resa& resa = {},
                             const Origine& origine = {});

/// Writes one PDF document with a page for each drawing; none of them may be empty.
[[nodiscard]] Errore EsportaFascicolo(std::span<const Tavola> tavole, const QString& percorso,
                                      const Resa& resa);

}  // namespace ostrel
