// The columns of a CSV: the names of the first row tell which dimension each column holds.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/reale.h"
#include "base/testo.h"
#include "model/parametri.h"

namespace tarvel::lotto {

// What a column may hold that is no dimension.
constexpr int kNome = kNumParametri;
constexpr int kAltra = -1;

struct Colonne {
  std::vector<int> significato;  // of each column: a dimension, kNome or kAltra
  std::size_t servono = 0;       // columns up to the last dimension
  Testo altre;                   // names of the columns that are not used
};

/// The name of a dimension's column, for messages.
Testo NomeDimensione(int i);

/// Reads a first row. Returns nothing when one of its cells is a number, with either decimal sign: then it
/// is a row of values. A dimension that is missing, or named twice or ambiguously, is fatal.
std::optional<Colonne> LeggiIntestazione(const std::vector<std::string>& celle);

/// The columns of a file that has no names: the dimensions in order.
Colonne SenzaIntestazione();

/// The number that the whole cell is, with this decimal sign and perhaps a % after it. A thousands separator
/// makes it no number: elsewhere it is the decimal sign.
std::optional<Reale> NumeroCella(std::string_view cella, bool virgola);

/// Whether that % has a sense: slopes are in percent.
constexpr bool InPercento(int dimensione) {
  return dimensione >= kPendenzaSinistra;
}

}  // namespace tarvel::lotto
