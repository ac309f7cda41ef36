// The fifteen options of the section drawing, and the file that keeps them.
#pragma once

#include <array>

#include "base/guasto.h"
#include "base/reale.h"
#include "base/tabella.h"
#include "base/testo.h"
#include "drawing/colori.h"

namespace tarvel {

constexpr int kNumOpzioni = 15;
using VettoreOpzioni = Tabella<"delle opzioni", Reale, 1, kNumOpzioni>;

/// Read at start, changed afterwards only by the options form.
inline VettoreOpzioni Opzioni;

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

/// The values that an option may have. The drawing keeps `volte` times the value as a whole number of 16
/// bits; where `volte` is 0, the value as it is.
struct GenereOpzione {
  const char* cosa;
  double minimo, massimo;
  int volte;
};

inline constexpr GenereOpzione kCodice = {"un numero intero", -32768, 32767, 1};
inline constexpr GenereOpzione kCarattere = {"un numero", -3276.8, 3276.7, 10};
/// Far beyond any drawing, and far below the numbers whose squares overflow.
inline constexpr GenereOpzione kMisura = {"un numero", -1e15, 1e15, 0};

struct VoceOpzione {
  const char* etichettaFile;
  const char* etichettaForm;
  double predefinito;
  GenereOpzione genere;
};

/// One entry an option, in order. 14 and 15 have the file labels of 9 and 10; only their places differ.
// clang-format off
inline constexpr std::array<VoceOpzione, kNumOpzioni> kVociOpzioni = {{
    {"colore sezione",                            "Colore sezione",                            disegno::kRosso,   kCodice},
    {"tipo linea sezione",                        "Tipo linea sezione",                        0,                 kCodice},
    {"scala quote",                               "Scala quote",                               1,                 kMisura},
    {"distanza massima quote disegno",            "Distanza massima quote-disegno",            130,               kMisura},
    {"lunghezza linee di estensione delle quote", "Lunghezza linee di estensione delle quote", 4,                 kMisura},
    {"colore quota",                              "Colore linea di quota",                     disegno::kBianco,  kCodice},
    {"colore testo quota",                        "Colore testo della quota",                  disegno::kGiallo,  kCodice},
    {"dimensione pallino",                        "Dimensione pallino della quota",            5,                 kMisura},
    {"base testo",                                "Base testo quota",                          10,                kCarattere},
    {"altezza testo",                             "Altezza testo quota",                       15,                kCarattere},
    {"distanza testo quota",                      "Distanza testo- quota",                     8,                 kMisura},
    {"quote sup o inf",                           "Quote sup. / inf.",                         1,                 kMisura},
    {"colore testo",                              "Colore testi",                              disegno::kMagenta, kCodice},
    {"base testo",                                "Base testi",                                20,                kCarattere},
    {"altezza testo",                             "Altezza testi",                             20,                kCarattere},
}};
// clang-format on

/// "CapOpSez.txt" in DirCustom.
Testo FileOpzioni();

/// The options of a file; the built-in defaults when it cannot be opened, which is no fault, or is short or
/// spoiled: the fault then names the line, the option and what it may be.
[[nodiscard]] std::optional<Guasto> LeggiOpzioni(const Testo& percorso, VettoreOpzioni& opzioni);

[[nodiscard]] std::optional<Guasto> ScriviOpzioni(const Testo& percorso, const VettoreOpzioni& opzioni);

/// Whether a drawing can hold this value of option i.
bool Ammesso(int i, Reale valore);

/// Option i and what it may be, for the user: "Scala quote: un numero da … a …".
Testo ValoriAmmessi(int i);

}  // namespace tarvel
