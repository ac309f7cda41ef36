// What is kept beside a section file so that no section is lost: sections that could not be saved, the file
// as another program has left it.
#pragma once

#include <span>
#include <vector>

#include "base/testo.h"

namespace tarvel {

/// The text of a section file; each section as its lines.
Testo ComponiFileSezioni(std::span<const Testo> sezioni);

/// The sections of the table, each as its lines; one that cannot be written is fatal.
std::vector<Testo> RigheSezioni();

/// Those that can be written.
std::vector<Testo> SezioniScrivibili();

/// Keeps the text as `file` + `coda`, + "2", + "3"...: in the first of these names that is free, or in the
/// one that holds it already. The name; "" where it cannot be kept.
Testo Conserva(const Testo& testo, const Testo& file, const char* coda);

/// Keeps the sections as a section file, `file` + ".salvataggio", ".salvataggio2"... The name of the one that
/// holds them all; "" where `file` itself does and is whole, and where they cannot be kept.
Testo ConservaSezioni(const Testo& file, bool intero, std::span<const Testo> sezioni);

/// What the sections of another section file are to these.
struct Confronto {
  bool leggibile = true;  // the other file, to its end
  int mancanti = 0;       // sections of names that these have not
  int diverse = 0;        // and of the same name that are not the same
};

/// `sezioni`: those of the table, in its order.
Confronto ConfrontaSezioni(const Testo& altro, std::span<const Testo> sezioni);

}  // namespace tarvel
