// The table as a whole; its records are lines of model/righe_sezione.h.
#include "model/file_sezioni.h"

#include <algorithm>

#include "base/errore.h"
#include "base/numeri.h"
#include "model/righe_sezione.h"
#include "model/tabella_sezioni.h"
#include "platform/desktop.h"
#include "platform/file.h"

namespace tarvel {

Testo FileSezioni;
Testo PrefissoNome;
Intero16 NumeroProposto = 1;

namespace {

// A file that was there and could not be opened when it was to be read: the table does not hold its
// sections, so it is not replaced until it has been read.
Testo gIntoccabile;

Testo FileCopia() {
  return FileSezioni + ".bak";
}

Testo DoveLaCopia() {
  return "la versione precedente è in "_t + FileCopia();
}

Testo ConConteggio(Intero16 sezioni, const Testo& record) {
  return FormatoNumero(static_cast<int>(sezioni)) + "\r\n" + record;
}

}  // namespace

void LeggiFileSezioni(bool mostraErrore) {
  auto file = FileInLettura::Apri(FileSezioni);
  gIntoccabile = file || GenereFile(FileSezioni) == TipoVoce::Assente ? Testo() : FileSezioni;
  if (!file) {
    if (mostraErrore) MostraMessaggio("File " + FileSezioni + " non trovato", "ERRORE", Icona::Stop);
    return;
  }
  try {
    NumeroSezioniFile = LeggiConteggio(*file, kMaxSezioni, "sezioni");
    NumeroSezioni = NumeroSezioniFile;
    for (int i = 1; i <= NumeroSezioni; ++i) LeggiSezione(*file, TabellaSezioni[i]);
    file->PretendiFine();
  } catch (ErroreFatale& errore) {
    if (GenereFile(FileCopia()) == TipoVoce::File) errore.dove += "; " + DoveLaCopia();
    throw;
  }
}

void ScriviFileSezioni() {
  Testo record;
  for (int i = 1; i <= NumeroSezioni; ++i)
    Durante([&] { return SullaSezione("salvataggio", TabellaSezioni[i].Nome); },
            [&] { AccodaSezione(record, TabellaSezioni[i]); });

  const TipoVoce vecchio = FileSezioni == gIntoccabile ? TipoVoce::Ignota : GenereFile(FileSezioni);
  const bool alSicuro =
      vecchio == TipoVoce::Assente || (vecchio == TipoVoce::File && CopiaFile(FileSezioni, FileCopia()));
  const auto esito = alSicuro ? ScriviFile(FileSezioni, ConConteggio(NumeroSezioni, record), true)
                              : EsitoScrittura::NonAperto;
  if (esito == EsitoScrittura::NonAperto)
    MostraMessaggio("Problemi nella scrittura del file " + FileSezioni, "ERRORE", Icona::Stop);
  if (esito == EsitoScrittura::Incompleto)
    throw ErroreFatale(TipoErrore::File, "scrittura del file non riuscita",
                       "il file " + FileSezioni + " può essere incompleto"_t +
                           (vecchio == TipoVoce::File ? "; " + DoveLaCopia() : ""));
}

Testo ComponiSezioniScrivibili() {
  Testo record;
  Intero16 scritte;
  for (int i = 1; i <= std::min<int>(NumeroSezioni, kMaxSezioni); ++i) {
    const std::size_t inizio = record.size();
    try {
      AccodaSezione(record, TabellaSezioni[i]);
      ++scritte;
    } catch (const ErroreFatale&) {
      record.resize(inizio);
    }
  }
  return ConConteggio(scritte, record);
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
