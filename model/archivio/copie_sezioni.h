// Files written beside a section file so that no section is lost: the sections that could not be saved, and
// the file that another program had changed.
#pragma once

#include <span>
#include <vector>

#include "base/testo.h"

namespace tarvel {

/// The text of a section file. A section is given as its lines.
Testo ComponiFileSezioni(std::span<const Testo> sezioni);

/// The lines of each section of the table. A section that cannot be written is fatal.
std::vector<Testo> RigheSezioni();

/// The same without the sections that cannot be written.
std::vector<Testo> SezioniScrivibili();

/// Writes the text under the first free name of `file` + `coda`, + "2", + "3"..., unless one of the files
/// before it holds the text already. Returns that file's name, "" when it cannot be written.
Testo Conserva(const Testo& testo, const Testo& file, const char* coda);

/// Writes the sections as a section file in the same way, with the ending ".salvataggio". Returns "" also
/// when `file` itself is whole (`intero`) and holds them all.
Testo ConservaSezioni(const Testo& file, bool intero, std::span<const Testo> sezioni);

/// How the sections of another file compare with the table's.
struct Confronto {
  bool leggibile = true;  // the other file could be read to its end
  int mancanti = 0;       // its sections whose names the table lacks
  int diverse = 0;        // its sections that differ from the table's of the same name
};

/// `sezioni`: RigheSezioni.
Confronto ConfrontaSezioni(const Testo& altro, std::span<const Testo> sezioni);

}  // namespace tarvel
