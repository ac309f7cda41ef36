// The section file "sezio_ut": all sections of a job, or the general ones, for this program and for
// the one that started it.
#pragma once

#include <string_view>

#include "base/intero.h"
#include "base/testo.h"

namespace tarvel {

/// Full path of the current section file: the job's or the general one.
extern Testo FileSezioni;
/// What proposed names begin with: "U_PO_" in the job's file, "G_PO_" in the general one.
extern Testo PrefissoNome;
/// Counter of proposed names, 1 at start.
extern Intero16 NumeroProposto;

/// Replaces the table by the file's content; slots above the file's count keep theirs. A file that is
/// missing or cannot be opened leaves everything as it is, with a message when `mostraErrore`. A
/// malformed file is fatal, with file and line and the copy to go back to, if there is one; what was read
/// before stays in the table.
void LeggiFileSezioni(bool mostraErrore);

/// Writes the whole table. A record that cannot be written (a number too large to be cut) is fatal before
/// anything has changed. The file as it was is then kept whole beside it, as FileSezioni + ".bak"; where
/// that cannot be done, or the file cannot be created or has never been readable, a message says so and
/// nothing has changed. A failure in the middle of writing is fatal; the message names the copy. On the
/// disk when it returns.
void ScriviFileSezioni();

/// The text of a section file with the records of the table that can be written.
Testo ComponiSezioniScrivibili();

/// PrefissoNome and the last three digits of the number: 42 gives 'U_PO_042', 1000 'U_PO_000'.
Testo ProponiNome(Intero16 numero);

/// The name with the prefix `voluto` ("U_" or "G_") in place of `altro`; put before a name that has
/// neither. A prefix counts in either case; the rest of the name is kept.
Testo NormalizzaNome(const Testo& nome, const Testo& voluto, const Testo& altro);

}  // namespace tarvel
