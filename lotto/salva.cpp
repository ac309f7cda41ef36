#include "lotto/salva.h"

#include "base/errore.h"
#include "drawing/salva_dis_cond.h"
#include "lavoro/nome_disegno.h"
#include "model/archivio/copie_sezioni.h"
#include "model/geometria.h"
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

Testo Disegna(const Salvataggi& s, const Calcolata& sezione) {
  const Testo& nome = sezione.record.Nome;
  const Testo file = DisegnoDellaSezione(nome);
  if (GenereFile(s.disegni + file) != TipoVoce::Assente)
    return "il disegno " + file.substr(1) +
           " esiste già: porta il nome dei primi 8 caratteri del nome della sezione"_t;
  const auto disegna = [&] {
    DisegnaSezione(sezione.record, sezione.p, s.stile, true);
    return disegno::SalvaDisegno(s.disegni + file);
  };
  try {
    const auto guasto = Durante([&] { return SullaSezione("disegno", nome); }, disegna, kNonCassone);
    return guasto ? guasto->ConMotivo() : Testo();
  } catch (const ErroreFatale& errore) {
    return errore.Messaggio();
  }
}

}  // namespace

Salvataggi PreparaSalvataggi(const Richieste& richieste) {
  VettoreOpzioni opzioni;
  if (const auto guasto = LeggiOpzioni(richieste.opzioni, opzioni))
    throw ErroreFatale(guasto->tipo, guasto->ConMotivo());
  return {.sezioni = !richieste.sezio.empty() && richieste.da.empty(),
          .disegni = richieste.disegni,
          .stile = StileDi(opzioni)};
}

Testo Salva(Salvataggi& s, const Calcolata& sezione) {
  const Testo& nome = sezione.record.Nome;
  if (s.sezioni) {
    if (!SiRilegge(nome)) return "un file di sezioni non tiene un nome con la virgola o le virgolette";
    if (!s.nomi.contains(nome) && s.nomi.size() == kMaxSezioni) {
      ++s.oltre;
    } else if (s.nomi.insert(nome).second) {
      TabellaSezioni[static_cast<long long>(s.nomi.size())] = sezione.record;
    } else {
      return "il nome è già di un'altra sezione"_t;
    }
  }
  return s.disegni.empty() ? Testo() : Disegna(s, sezione);
}

void CreaFileSezioni(const Testo& percorso, std::span<const Testo> sezioni) {
  if (sezioni.empty()) Rifiuta(percorso, "nessuna sezione da scrivere");
  if (const auto esito = CreaFile(percorso, ComponiFileSezioni(sezioni)); !esito)
    Rifiuta(percorso, "il file non si crea: " + esito.motivo);
}

void ScriviSezioni(const Salvataggi& s, const Testo& percorso) {
  if (s.oltre > 0)
    Rifiuta(percorso, "le sezioni sono " + std::to_string(kMaxSezioni + s.oltre) +
                          ", un file ne tiene al massimo " + std::to_string(kMaxSezioni));
  NumeroSezioni = static_cast<long long>(s.nomi.size());
  CreaFileSezioni(percorso, RigheSezioni());
}

}  // namespace tarvel::lotto
