#include "lotto/salva.h"

#include "base/errore.h"
#include "drawing/sezione/disegno_sezione.h"
#include "lavoro/cartelle.h"
#include "lavoro/nome_disegno.h"
#include "lotto/piattaforma.h"
#include "model/archivio/copie_sezioni.h"
#include "model/tabella_sezioni.h"
#include "options/opzioni.h"
#include "platform/scrittura.h"

namespace tarvel::lotto {
namespace {

// Whether a section file gives the name back: its reader drops quotes and stops at a comma.
bool SiRilegge(const Testo& nome) {
  return !nome.starts_with('"') && nome.find(',') == Testo::npos;
}

[[noreturn]] void Rifiuta(const Testo& percorso, const Testo& cosa) {
  throw ErroreFatale(TipoErrore::File, percorso + " non è scritto: "_t + cosa);
}

Testo Disegna(const Testo& nome) {
  NomeFileDisegno = DisegnoDellaSezione(nome);
  if (GenereFile(DirLavori + NomeFileDisegno) != TipoVoce::Assente)
    return "il disegno " + NomeFileDisegno.substr(1) +
           " esiste già: porta il nome dei primi 8 caratteri del nome della sezione"_t;
  try {
    GeneraDisegno(disegno::ModoAvviso::Errori);
  } catch (const ErroreFatale& errore) {
    return errore.Messaggio();
  }
  return PrendiMessaggio();
}

}  // namespace

Salvataggi PreparaSalvataggi(const Richieste& richieste) {
  Salvataggi s;
  s.sezioni = !richieste.sezio.empty() && richieste.da.empty();
  s.disegni = !richieste.disegni.empty();
  DirLavori = richieste.disegni;
  SezioneCalcolata = true;
  LeggiOpzioni(richieste.opzioni);
  if (const Testo detto = PrendiMessaggio(); !detto.empty()) throw ErroreFatale(TipoErrore::File, detto);
  return s;
}

Testo Salva(Salvataggi& s, const Calcolata& sezione) {
  const Testo& nome = sezione.record.Nome;
  SezioneCorrente = 1;
  if (s.sezioni) {
    if (!SiRilegge(nome)) return "un file di sezioni non tiene un nome con la virgola o le virgolette";
    if (!s.nomi.contains(nome) && s.nomi.size() == kMaxSezioni) {
      ++s.oltre;
    } else if (!s.nomi.insert(nome).second) {
      return "il nome è già di un'altra sezione"_t;
    }
    SezioneCorrente = static_cast<long long>(s.nomi.size());
  }
  TabellaSezioni[SezioneCorrente] = sezione.record;
  ParametriSezione = sezione.p;
  return s.disegni ? Disegna(nome) : Testo();
}

void CreaFileSezioni(const Testo& percorso, std::span<const Testo> sezioni) {
  if (sezioni.empty()) Rifiuta(percorso, "nessuna sezione da scrivere");
  if (!CreaFile(percorso, ComponiFileSezioni(sezioni))) Rifiuta(percorso, "il file non si crea");
}

void ScriviSezioni(const Salvataggi& s, const Testo& percorso) {
  if (s.oltre > 0)
    Rifiuta(percorso, "le sezioni sono " + std::to_string(kMaxSezioni + s.oltre) +
                          ", un file ne tiene al massimo " + std::to_string(kMaxSezioni));
  NumeroSezioni = static_cast<long long>(s.nomi.size());
  CreaFileSezioni(percorso, RigheSezioni());
}

}  // namespace tarvel::lotto
