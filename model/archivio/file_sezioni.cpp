// The table as a whole; its records are lines of model/archivio/righe_sezione.h.
#include "model/archivio/file_sezioni.h"

#include <optional>
#include <vector>

#include "base/errore.h"
#include "base/numeri.h"
#include "model/archivio/righe_sezione.h"
#include "model/tabella_sezioni.h"
#include "platform/scrittura.h"

namespace tarvel {

namespace {

// The section file that existed and could not be opened for reading. The table does not hold its sections, so
// it is not replaced until it has been read.
Testo gIntoccabile;

Testo FileCopia() {
  return FileSezioni + ".bak";
}

Testo DoveLaCopia(const Testo& copia) {
  return "la versione precedente è in "_t + copia;
}

// Fingerprint of the file as this program last read or wrote it; another one betrays another program.
std::optional<std::uint64_t> gImpronta;

// Replaces the text of an existing file, after copying the old text to another file. A text that another
// program has written may be half of what it meant, so it never replaces the copy.
void Riscrivi(const Testo& testo, EsitoSezioni& esito) {
  auto file = FileDaRiscrivere::Apri(FileSezioni);
  const auto vecchio = file ? file->Contenuto() : std::nullopt;
  if (!vecchio) return;
  const bool nostro = Impronta(*vecchio) == gImpronta || *vecchio == testo;
  if (!nostro) esito.altro = Conserva(*vecchio, FileSezioni, ".altro");
  if (!nostro && esito.altro.empty()) {
    esito.ostacolo =
        "Un altro programma ha cambiato il file, che non si può conservare come "_t + FileSezioni + ".altro.";
    return;
  }
  if (nostro && !SostituisciFile(FileCopia(), *vecchio, FileSezioni)) {
    esito.scritte = file->Sostituisci(testo);
    if (!esito.scritte)
      esito.ostacolo = "Non si può fare né la copia "_t + FileCopia() + " né un file nuovo accanto: "_t +
                       esito.scritte.motivo + ".";
    return;
  }
  esito.scritte = file->Riscrivi(testo);
  FileSezioniIntero = esito.scritte != EsitoScrittura::Incompleto;
  if (!FileSezioniIntero)
    throw ErroreFatale(TipoErrore::File, "scrittura del file non riuscita: " + esito.scritte.motivo,
                       "il file " + FileSezioni + " può essere incompleto; "_t +
                           DoveLaCopia(nostro ? FileCopia() : esito.altro));
}

}  // namespace

std::optional<Guasto> LeggiFileSezioni() {
  // Waits for a program that is writing the file. Without the right to write, it is read without waiting.
  const auto daSoli = FileDaRiscrivere::Apri(FileSezioni);
  Testo motivo;
  auto file = FileInLettura::Apri(FileSezioni, &motivo);
  gImpronta.reset();
  gIntoccabile = file || GenereFile(FileSezioni) == TipoVoce::Assente ? Testo() : FileSezioni;
  if (!file) return Guasto{TipoErrore::File, "File " + FileSezioni + " non trovato", motivo};
  try {
    NumeroSezioniFile = LeggiConteggio(*file, kMaxSezioni, "sezioni");
    NumeroSezioni = NumeroSezioniFile;
    for (int i = 1; i <= NumeroSezioni; ++i) LeggiSezione(*file, TabellaSezioni[i]);
    file->PretendiFine();
    gImpronta = file->ImprontaLetta();
    return {};
  } catch (ErroreFatale& errore) {
    if (GenereFile(FileCopia()) == TipoVoce::File) errore.dove += "; " + DoveLaCopia(FileCopia());
    throw;
  }
}

EsitoSezioni ScriviFileSezioni() {
  const std::vector<Testo> sezioni = RigheSezioni();
  EsitoSezioni esito;
  if (FileSezioni == gIntoccabile) return esito;
  const Testo testo = ComponiFileSezioni(sezioni);
  // CreaFile fails where another program makes the file at the same moment; it is then rewritten.
  if (GenereFile(FileSezioni) == TipoVoce::Assente) esito.scritte = CreaFile(FileSezioni, testo);
  if (!esito.scritte) Riscrivi(testo, esito);
  if (esito.scritte) gImpronta = Impronta(testo);
  if (esito.altro.empty()) return esito;
  esito.confronto = ConfrontaSezioni(esito.altro, sezioni);
  // The other program stopped half-way: its sections are whole only in the copy, which the next save
  // replaces.
  const auto copia = esito.confronto.leggibile ? std::nullopt : LeggiTutto(FileCopia());
  if (copia) esito.copia = Conserva(*copia, FileSezioni, ".altro");
  return esito;
}

Testo ProponiNome(Intero16 numero) {
  const Testo cifre = "000" + FormatoNumero(static_cast<int>(numero));
  return Testo(SenzaBlanchi(PrefissoNome + cifre.substr(cifre.size() - 3)));
}

Testo NormalizzaNome(const Testo& nome, const Testo& voluto, const Testo& altro) {
  const Testo inizio = Maiuscole(nome.substr(0, 2));
  if (inizio == voluto) return nome;
  if (inizio == altro) return voluto + nome.substr(2);
  return voluto + Testo(SenzaBlanchi(nome));
}

}  // namespace tarvel
