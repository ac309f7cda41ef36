// The head of a DXF file, in the R12 form: what the drawing is measured in, its first view, its line types
// and layers.
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

/// The colour and the line type that most of each layer's elements have; `linee`: the layer of each line.
AspettiLivelli AspettiComuni(const Disegno& disegno, const std::vector<Livello>& linee);

/// The sections before the elements; `tutto`: what the drawing takes up.
void ScriviTesta(Dxf& dxf, const Riquadro& tutto, Unita unita);

}  // namespace ostrel
