// Writes a DXF file as groups of a code and a value.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "base/testo.h"

namespace ostrel {

/// In the order of Livello.
inline constexpr std::array<const char*, 3> kLivelliDxf = {"CONTORNO", "QUOTE", "TESTI"};

struct Aspetto {
  int colore;        // of the 255 of the file
  std::size_t tipo;  // the place of the line type in kTipiLinea
  bool operator==(const Aspetto&) const = default;
};
using AspettiLivelli = std::array<Aspetto, kLivelliDxf.size()>;

struct Dxf {
  tarvel::Testo testo;
  AspettiLivelli livelli;  // an element says how it looks only where it differs from its layer
};

void Gruppo(Dxf& dxf, int codice, std::string_view valore);
void GruppoIntero(Dxf& dxf, int codice, int valore);
void GruppoReale(Dxf& dxf, int codice, double valore);
/// X, Y and Z, whose codes are ten apart.
void GruppoPunto(Dxf& dxf, int codice, double x, double y);

}  // namespace ostrel
