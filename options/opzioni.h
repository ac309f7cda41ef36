// The fifteen options of the section drawing, and the file that keeps them.
#pragma once

#include <array>

#include "base/reale.h"
#include "base/tabella.h"
#include "base/testo.h"

namespace tarvel {

constexpr int kNumOpzioni = 15;
using VettoreOpzioni = Tabella<"Opzioni", Reale, 1, kNumOpzioni>;

/// Read at start, changed afterwards only by the options form.
extern VettoreOpzioni Opzioni;

/// Indices of Opzioni.
enum Opzione {
  kColoreSezione = 1,
  kTipoLineaSezione,
  kScalaQuote,
  kDistanzaMassima,
  kEstensione,
  kColoreQuota,
  kColoreTestoQuota,
  kDimensionePallino,
  kBaseTestoQuota,
  kAltezzaTestoQuota,
  kDistanzaTesto,
  kSopraSotto,  // the sign counts: value above (1) or below (-1) the dimension line
  kColoreTesti,
  kBaseTesti,
  kAltezzaTesti,
};

struct VoceOpzione {
  const char* etichettaFile;
  const char* etichettaForm;
  double predefinito;
};

/// One entry an option, in order. 14 and 15 have the file labels of 9 and 10: only their place tells
/// them apart.
inline constexpr std::array<VoceOpzione, kNumOpzioni> kVociOpzioni = {{
    {"colore sezione", "Colore sezione", 3},
    {"tipo linea sezione", "Tipo linea sezione", 0},
    {"scala quote", "Scala quote", 1},
    {"distanza massima quote disegno", "Distanza massima quote-disegno", 130},
    {"lunghezza linee di estensione delle quote", "Lunghezza linee di estensione delle quote", 4},
    {"colore quota", "Colore linea di quota", 1},
    {"colore testo quota", "Colore testo della quota", 5},
    {"dimensione pallino", "Dimensione pallino della quota", 5},
    {"base testo", "Base testo quota", 10},
    {"altezza testo", "Altezza testo quota", 15},
    {"distanza testo quota", "Distanza testo- quota", 8},
    {"quote sup o inf", "Quote sup. / inf.", 1},
    {"colore testo", "Colore testi", 7},
    {"base testo", "Base testi", 20},
    {"altezza testo", "Altezza testi", 20},
}};

/// The options of "CapOpSez.txt" in DirCustom; the built-in defaults when it cannot be opened
/// (silently) or is short or spoiled (with a message that names the line).
void LeggiOpzioni();

/// Writes Opzioni to the file; a message when that fails, Opzioni are as they were.
void ScriviOpzioni();

/// The first word of a line; the line keeps the rest, from the separator (blank or tab) on.
Testo PrimaParola(Testo& riga);

}  // namespace tarvel
