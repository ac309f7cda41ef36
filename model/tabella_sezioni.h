// The sections of the job in memory, and the state of the user's work on them.
#pragma once

#include <string_view>

#include "model/sezione.h"

namespace tarvel {

constexpr int kMaxSezioni = 500;

/// Slots above NumeroSezioni keep what they last held and are never read. No record is deleted.
inline Tabella<"delle sezioni", RecordSezione, 1, kMaxSezioni> TabellaSezioni;
inline Intero16 NumeroSezioni;
/// How many records the section file held when it was last read.
inline Intero16 NumeroSezioniFile;
/// The record shown and drawn; 1 at start, even while the table is empty.
inline Intero16 SezioneCorrente = 1;

/// The boxes have not changed since the current record was calculated or read back.
inline bool SezioneCalcolata = false;
/// Nothing was changed since the last save or since the start.
inline bool SezioneSalvata = true;

/// Vertices of each polygon of an outline; the main form's load sets those of a box girder.
inline ConteggiVertici VerticiPoligono = kVerticiCassone;

/// 1-based index of the first record with exactly this name, 0 when there is none.
Intero16 CercaSezione(std::string_view nome);

/// What is done to which section, for a message: "calcolo della sezione U_PO_001".
Testo SullaSezione(const char* operazione, const Testo& nome);

}  // namespace tarvel
