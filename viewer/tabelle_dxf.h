// The head of a DXF file, in the R12 form: what the drawing is measured in, its first view, its line types
// and layers.
#pragma once

#include <vector>

#include "drawing/colori.h"
#include "viewer/disegno.h"
#include "viewer/gruppi_dxf.h"
#include "viewer/livelli.h"
#include "viewer/misure.h"
#include "viewer/scala.h"

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
