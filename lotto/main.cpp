// A filter: rows of dimensions in, rows of properties out.
#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <new>

#include "base/errore.h"
#include "lotto/ingresso.h"
#include "lotto/officina.h"
#include "lotto/piattaforma.h"
#include "lotto/riga_comando.h"
#include "lotto/rilettura.h"
#include "lotto/salva.h"
#include "model/archivio/file_sezioni.h"
#include "model/tabella_sezioni.h"
#include "platform/comune/argomenti.h"
#include "platform/comune/terminale.h"

namespace {

using namespace tarvel;
using namespace tarvel::lotto;

enum Stato {
  kFinito = 0,
  kNonFinito = 1,
  kUsoErrato = 2,
  kRigheConErrore = 3,
  kInterrotto = 130,  // as the shell counts an end by Ctrl+C
  kTuboChiuso = 141,  // and by a pipe that nobody reads
};

std::atomic<bool> gInterrotto{false};
static_assert(std::atomic<bool>::is_always_lock_free);

// The first time the program stops by itself, the second time at once.
void Interrompi(int segnale) {
  gInterrotto = true;
  std::signal(segnale, SIG_DFL);
}

void Dice(const Testo& testo) {
  std::cerr << "tarvel1-lotto: " << InUtf8(testo) << '\n';
}

// One line, written over and over, where somebody is watching.
struct Avanzamento {
  using Orologio = std::chrono::steady_clock;

  bool acceso = SoltantoErroriSulTerminale();
  Orologio::time_point ultimo = Orologio::now();

  void Mostra(long long righe, long long errori) {
    constexpr std::chrono::milliseconds kPasso{200};
    if (!acceso || Orologio::now() - ultimo < kPasso) return;
    ultimo = Orologio::now();
    std::cerr << '\r' << righe << " righe, " << errori << " con errore" << std::flush;
  }
  void Cancella() const {
    if (acceso) std::cerr << "\r\x1B[K" << std::flush;
  }
};

struct Lotto {
  Richieste richieste;
  Salvataggi salvataggi;
  Rilettura rilettura;
  Ingresso ingresso;
  Uscita uscita;
  bool conserva = false;    // of each row its section, to be saved or drawn
  bool deciso = false;      // the output is as the first file is
  bool cominciato = false;  // its header is written
  bool tuboChiuso = false;
  long long righe = 0, errori = 0;
  Avanzamento avanzamento;
};

// What became of a write; a closed pipe is for whoever asked to end.
void Controlla(Lotto& l, bool scritto) {
  if (scritto) return;
  // Windows has no code of its own for a closed pipe.
  l.tuboChiuso = errno == EPIPE || errno == EINVAL;
  if (!l.tuboChiuso) throw ErroreFatale(TipoErrore::File, "l'uscita non si scrive");
}

// On the reader's thread; what it decides on the output is settled before any row is worked on.
bool Leggi(Lotto& l, std::vector<Riga>& righe) {
  if (!l.richieste.da.empty()) {
    for (const Riletta& riletta : l.rilettura.sezioni) righe.emplace_back().riletta = &riletta;
    return false;
  }
  const bool altre = LeggiRighe(l.ingresso, righe);
  // A block of rows may be of several files.
  if (!l.deciso && l.ingresso.formato) {
    l.uscita.formato = *l.ingresso.formato;
    l.deciso = true;
  }
  return altre;
}

void Calcola(const Lotto& l, std::vector<Riga>& righe) {
  for (Riga& riga : righe) CalcolaRiga(riga, l.uscita, l.conserva);
}

bool Consegna(Lotto& l, std::vector<Riga>& righe) {
  std::string testo;
  if (!l.cominciato) testo = ComponiIntestazione(l.uscita);
  l.cominciato = true;
  for (Riga& riga : righe) {
    if (riga.calcolata) {
      riga.motivo = Salva(l.salvataggi, *riga.calcolata);
      if (!riga.motivo.empty()) ComponiRiga(riga, &riga.calcolata->record, l.uscita);
    }
    testo += riga.testo;
    ++l.righe;
    if (!riga.motivo.empty()) ++l.errori;
  }
  Controlla(l, std::fwrite(testo.data(), 1, testo.size(), stdout) == testo.size());
  l.avanzamento.Mostra(l.righe, l.errori);
  return !l.tuboChiuso;
}

int Esegui(Lotto& l) {
  PrefissoNome = "U_PO_";
  ImpostaDecimale(l.richieste.virgola ? ',' : '.');
  l.salvataggi = PreparaSalvataggi(l.richieste);
  l.ingresso.file = l.richieste.ingressi;
  l.ingresso.virgola = l.uscita.formato.virgola = l.richieste.virgola;
  l.uscita.punti = l.richieste.punti;
  const bool copia = !l.richieste.da.empty() && !l.richieste.sezio.empty();
  if (!l.richieste.da.empty()) l.rilettura = Rileggi(l.richieste);
  if (!l.rilettura.lasciato.empty()) Dice(l.rilettura.lasciato);

  l.conserva = l.salvataggi.sezioni || !l.salvataggi.disegni.empty();
  // Threads may outlive this call: what they use is the Lotto's.
  const bool tutto =
      Lavora(l.richieste.processi, {.leggi = [&l](Blocco& b) { return Leggi(l, b.righe); },
                                    .lavora = [&l](Blocco& b) { Calcola(l, b.righe); },
                                    .consegna = [&l](Blocco& b) { return Consegna(l, b.righe); },
                                    .smetti = [] { return gInterrotto.load(); }});
  if (!tutto && !l.tuboChiuso) return kInterrotto;
  if (!l.tuboChiuso) Controlla(l, std::fflush(stdout) == 0);
  if (l.tuboChiuso) return kTuboChiuso;
  if (l.salvataggi.sezioni) ScriviSezioni(l.salvataggi, l.richieste.sezio);
  if (copia) CreaFileSezioni(l.richieste.sezio, l.rilettura.righe);
  return l.errori > 0 || !l.rilettura.lasciato.empty() ? kRigheConErrore : kFinito;
}

// Leaves at once: a thread may wait for a line that never comes.
[[noreturn]] void Esci(const Lotto& l, int stato) {
  l.avanzamento.Cancella();
  std::fflush(stdout);
  if (stato == kInterrotto) Dice("interrotto dopo " + std::to_string(l.righe) + " righe");
  if (stato == kRigheConErrore && l.errori > 0)
    Dice(std::to_string(l.errori) + (l.errori == 1 ? " riga" : " righe") + " su " + std::to_string(l.righe) +
         " con errore");
  std::cerr.flush();
  std::_Exit(stato);
}

}  // namespace

int main(int argc, char** argv) {
  PreparaFlussi();
  NonFinireColTubo();
  std::signal(SIGINT, Interrompi);
  std::signal(SIGTERM, Interrompi);
  static Lotto lotto;
  int stato = kUsoErrato;
  try {
    lotto.richieste = LeggiRichieste(Argomenti(argc, argv));
    if (lotto.richieste.aiuto || lotto.richieste.versione) {
      std::cout << (lotto.richieste.aiuto ? kAiuto : "tarvel1-lotto " VERSIONE "\n") << std::flush;
      return std::cout ? kFinito : kNonFinito;
    }
    stato = Esegui(lotto);
  } catch (const ErroreFatale& errore) {
    lotto.avanzamento.Cancella();
    Dice(errore.Messaggio());
    if (errore.tipo == TipoErrore::Argomento)
      std::cerr << "Come si usa: tarvel1-lotto --aiuto\n";
    else
      stato = kNonFinito;
  } catch (const std::bad_alloc&) {
    Dice("memoria esaurita");
    stato = kNonFinito;
  }
  Esci(lotto, stato);
}
