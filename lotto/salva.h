// Saving the rows: the section file and the drawings. Drawings are made in the program's own tables.
#pragma once

#include <span>
#include <unordered_set>

#include "drawing/sezione/disegno_sezione.h"
#include "lotto/riga_comando.h"
#include "lotto/studio.h"

namespace tarvel::lotto {

struct Salvataggi {
  bool sezioni = false;
  Testo disegni;  // their folder; "": none are made
  StileSezione stile;
  std::unordered_set<Testo> nomi = {};  // of the sections for the file
  long long oltre = 0;                  // sections that the file has no room for
};

/// Sets the folder and the options of the drawings. Malformed options are fatal.
Salvataggi PreparaSalvataggi(const Richieste& richieste);

/// Puts a calculated section into the table and draws it. Returns why not, or "".
Testo Salva(Salvataggi& salvataggi, const Calcolata& sezione);

/// Creates a section file of these sections, given as their lines. It is fatal when there are none, or when
/// the file cannot be created; a file that somebody else has made there meanwhile stays.
void CreaFileSezioni(const Testo& percorso, std::span<const Testo> sezioni);

/// Creates the section file of the table's sections. It is fatal also when a file has no room for them all.
void ScriviSezioni(const Salvataggi& salvataggi, const Testo& percorso);

}  // namespace tarvel::lotto
