// Saving the rows: the section file and the drawings. Drawings are made in the program's own tables.
#pragma once

#include <span>
#include <unordered_set>

#include "lotto/riga_comando.h"
#include "lotto/studio.h"

namespace tarvel::lotto {

struct Salvataggi {
  bool sezioni = false, disegni = false;
  std::unordered_set<Testo> nomi;  // of the sections for the file
  long long oltre = 0;             // sections that the file has no room for
};

/// Folders and options; options that are malformed are fatal.
Salvataggi PreparaSalvataggi(const Richieste& richieste);

/// Puts a calculated section into the table and draws it. Returns why not, or "".
Testo Salva(Salvataggi& salvataggi, const Calcolata& sezione);

/// A new section file of these sections, each as its lines. Fatal where there are none or it cannot be
/// created; then there is no file, or somebody else's.
void CreaFileSezioni(const Testo& percorso, std::span<const Testo> sezioni);

/// The same of all that were put into the table; fatal also where a file has no room for them.
void ScriviSezioni(const Salvataggi& salvataggi, const Testo& percorso);

}  // namespace tarvel::lotto
