// The section file "sezio_ut": all sections of a job, or the general ones, for this program and for
// the one that started it.
#pragma once

#include <string_view>

#include "base/guasto.h"
#include "base/intero.h"
#include "base/testo.h"
#include "model/archivio/copie_sezioni.h"
#include "platform/scrittura.h"

namespace tarvel {

/// Full path of the current section file: the job's or the general one.
extern Testo FileSezioni;
/// No write of a section file has stopped half-way: one that did may be read whole and not be on the disk.
extern bool FileSezioniIntero;
/// What proposed names begin with: "U_PO_" in the job's file, "G_PO_" in the general one.
extern Testo PrefissoNome;
/// Counter of proposed names, 1 at start.
extern Intero16 NumeroProposto;

/// Replaces the table by the file's content, once nobody writes it; slots above the file's count keep theirs.
/// A file that is missing or cannot be opened leaves everything as it is. A malformed file is fatal, with
/// file and line and the copy to go back to, if there is one; what was read before stays in the table.
[[nodiscard]] std::optional<Guasto> LeggiFileSezioni();

/// What became of writing the table.
struct EsitoSezioni {
  EsitoScrittura scritte{EsitoScrittura::NonAperto};
  Testo ostacolo;       // what could not be made, in a sentence, where it is not the file itself
  Testo altro;          // where the file is kept as another program had left it; "" where none had
  Testo copia;          // where its copy is kept, if it is no section file; "" where there was none
  Confronto confronto;  // of that one's sections with the table's
};

/// Writes the whole table, on the disk when it returns. A record that cannot be written (a number too large
/// to be cut) is fatal before anything has changed. While one program writes, another one waits.
///
/// The file as it was is first kept whole, as FileSezioni + ".bak", then written in place; where there can be
/// no such copy, the new file is written whole beside the old one and takes its name. A file that is not any
/// more what was last read or written here is kept as FileSezioni + ".altro" instead, and where it is no
/// section file so is its copy. Nothing changes where that cannot be done, the file cannot be opened or has
/// never been readable. A failure in the middle of writing is fatal; the message names the copy.
[[nodiscard]] EsitoSezioni ScriviFileSezioni();

/// PrefissoNome and the last three digits of the number: 42 gives 'U_PO_042', 1000 'U_PO_000'.
Testo ProponiNome(Intero16 numero);

/// The name with the prefix `voluto` ("U_" or "G_") in place of `altro`; put before a name that has
/// neither. A prefix counts in either case; the rest of the name is kept.
Testo NormalizzaNome(const Testo& nome, const Testo& voluto, const Testo& altro);

}  // namespace tarvel
