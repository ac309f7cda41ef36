// The columns of a study: which dimension stands in which, by the names of its first row.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/reale.h"
#include "base/testo.h"
#include "model/parametri.h"

namespace tarvel::lotto {

constexpr int kNome = kNumParametri;  // a column's meaning beside the dimensions
constexpr int kAltra = -1;

struct Colonne {
  std::vector<int> significato;  // of each column: a dimension, kNome or kAltra
  std::vector<Testo> altre;      // names of the columns that are not used
};

/// The name of a dimension's column, as messages have it.
Testo NomeDimensione(int i);

/// Nothing where one of the cells is a number, with whichever decimal sign: then it is a row of values. A
/// dimension that is missing, named twice or ambiguously is fatal.
std::optional<Colonne> LeggiIntestazione(const std::vector<std::string>& celle);

/// The dimensions in order.
Colonne SenzaIntestazione();

/// The whole cell is one number with this decimal sign; no thousands separators, which would be somebody
/// else's decimal sign.
std::optional<Reale> NumeroCella(std::string_view cella, bool virgola);

}  // namespace tarvel::lotto
