// Writes the head of a DXF file in the R12 form: the drawing's unit, its first view, its line types and
// layers.
#pragma once

#include <vector>

#include "drawing/colori.h"
#include "viewer/disegno/disegno.h"
#include "viewer/disegno/livelli.h"
#include "viewer/disegno/misure.h"
#include "viewer/disegno/scala.h"
#include "viewer/esporta/gruppi_dxf.h"

namespace ostrel {

/// The colour of the drawing's points, which have none of their own.
inline constexpr int kColorePunti = tarvel::disegno::kBianco;

int ColoreDxf(int colore);
Aspetto AspettoLinea(const Linea& linea);

/// For each layer the colour and the line type that most of its elements have; `linee` is the layer of each
/// line.
AspettiLivelli AspettiComuni(const Disegno& disegno, const std::vector<Livello>& linee);

/// Writes the sections before the elements; `tutto` is what the drawing takes up.
void ScriviTesta(Dxf& dxf, const Riquadro& tutto, Unita unita);

}  // namespace ostrel
