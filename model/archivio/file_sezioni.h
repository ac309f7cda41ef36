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
inline Testo FileSezioni;
/// False once a write of a section file has stopped half-way: it may be read whole and not be on the disk.
inline bool FileSezioniIntero = true;
/// What proposed names begin with: "U_PO_" in the job's file, "G_PO_" in the general one.
inline Testo PrefissoNome;
/// Counter of proposed names, 1 at start.
inline Intero16 NumeroProposto = 1;

/// Reads the file into the table, once no other program is writing it; slots above its count stay as they
/// are. A file that is missing or cannot be opened changes nothing. A malformed file is fatal: the error has
/// file and line, and names the copy if there is one. The sections read before stay in the table.
[[nodiscard]] std::optional<Guasto> LeggiFileSezioni();

/// What became of writing the table.
struct EsitoSezioni {
  EsitoScrittura scritte{EsitoScrittura::NonAperto};
  Testo ostacolo;       // a sentence on what else could not be written; "" when it is the file itself
  Testo altro;          // file with the text that another program had written; "" when none had
  Testo copia;          // file with the old copy, where `altro` is no section file; "" when there was none
  Confronto confronto;  // of the sections in `altro` with the table's
};

/// Writes the whole table, on the disk when this returns. A record that cannot be written (a number too large
/// to be cut) is fatal before anything has changed. Only one program writes at a time; another one waits.
///
/// The old text is first copied to FileSezioni + ".bak", then the file is written in place; where no copy can
/// be made, the new file is written beside the old one and takes its name. A file that another program has
/// changed since it was last read or written here is copied to FileSezioni + ".altro" instead, and the old
/// copy with it where that is no section file. Nothing changes when this copy fails, the file cannot be
/// opened or could not be read. A failure in the middle of writing is fatal; the message names the copy.
[[nodiscard]] EsitoSezioni ScriviFileSezioni();

/// PrefissoNome and the last three digits of the number: 42 gives 'U_PO_042', 1000 'U_PO_000'.
Testo ProponiNome(Intero16 numero);

/// The name with the prefix `voluto` ("U_" or "G_") in place of `altro`, or before a name without either.
/// Prefixes are compared without regard to case.
Testo NormalizzaNome(const Testo& nome, const Testo& voluto, const Testo& altro);

}  // namespace tarvel
