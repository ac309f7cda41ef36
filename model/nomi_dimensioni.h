// What the 21 dimensions are called.
#pragma once

#include "base/testo.h"

namespace tarvel {

/// In UTF-8.
struct NomiDimensione {
  const char* breve;  // by itself: a column's title
  const char* guida;  // beside its number, below its group's name
};

const NomiDimensione& Nomi(int dimensione);

/// Number, group and name of a dimension, as the guide's table has them: "8, altezza: raccordo inferiore".
Testo DescrizioneDimensione(int dimensione);

}  // namespace tarvel
