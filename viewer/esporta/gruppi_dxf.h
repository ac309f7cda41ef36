// A DXF file while it is written: groups of a code and a value, and what an element leaves to its layer.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "base/testo.h"

namespace ostrel {

/// By Livello.
inline constexpr std::array<const char*, 3> kNomiLivelli = {"CONTORNO", "QUOTE", "TESTI"};

/// Colour, of kColoriDxf, and place of the line type in kTipiLinea.
struct Aspetto {
  int colore;
  std::size_t tipo;
  bool operator==(const Aspetto&) const = default;
};
using AspettiLivelli = std::array<Aspetto, kNomiLivelli.size()>;

struct Dxf {
  tarvel::Testo testo;
  AspettiLivelli livelli;
};

void Gruppo(Dxf& dxf, int codice, std::string_view valore);
void GruppoIntero(Dxf& dxf, int codice, int valore);
void GruppoReale(Dxf& dxf, int codice, double valore);
/// X, Y and Z, whose codes are ten apart.
void GruppoPunto(Dxf& dxf, int codice, double x, double y);

}  // namespace ostrel
