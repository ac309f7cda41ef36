// A filter: rows of dimensions in, rows of properties out.
#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <iostream>
#include <new>

#include "base/errore.h"
#include "lotto/ingresso.h"
#include "lotto/piattaforma.h"
#include "lotto/riga_comando.h"
#include "lotto/rilettura.h"
#include "lotto/salva.h"
#include "model/archivio/file_sezioni.h"
#include "model/tabella_sezioni.h"
#include "platform/comune/argomenti.h"
#include "platform/comune/terminale.h"
#include "platform/ospite.h"

namespace {

using namespace tarvel;
using namespace tarvel::lotto;

enum Stato {
  kFinito = 0,
  kNonFinito = 1,
  kRigheConErrore = 3,
  kInterrotto = 130,  // as the shell counts an end by Ctrl+C
  kTuboChiuso = 141,  // and by a pipe that nobody reads
};

constexpr std::size_t kTestoMassimo = 1 << 16;  // rows are written in pieces of this size

std::atomic<bool> gInterrotto{false};
std::atomic<bool> gInAttesa{false};  // the program waits for its input, and every row is written
std::string gUltime;                 // the message of an end in that wait
static_assert(std::atomic<bool>::is_always_lock_free);

// The first signal lets the program finish its row, unless it is waiting; the second ends it at once.
void Interrompi(int segnale) {
  gInterrotto = true;
  if (gInAttesa) FinisciSubito(gUltime, kInterrotto);
  std::signal(segnale, SIG_DFL);
}

// The output takes no more rows: the pipe is closed, or the disk is full. No ErroreFatale, to which the
// reader of a file would add the file's name.
struct UscitaPersa {
  bool tubo;
  Testo motivo;
};

std::string Messaggio(const Testo& testo) {
  return std::string(kProgramma) + ": " + InUtf8(testo) + '\n';
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
  const char* Cancellazione() const { return acceso ? "\r\x1B[K" : ""; }
};

struct Lotto {
  Richieste richieste;
  Salvataggi salvataggi;
  Rilettura rilettura;
  Ingresso ingresso;
  Uscita uscita;
  std::string testo;  // rows to be written
  long long righe = 0, errori = 0;
  Avanzamento avanzamento;
};

void Dice(const Lotto& l, const Testo& testo) {
  std::cerr << l.avanzamento.Cancellazione() << Messaggio(testo);
}

Testo Interruzione(const Lotto& l) {
  return "interrotto dopo " + std::to_string(l.righe) + " righe";
}

void Scrivi(Lotto& l) {
  const bool scritto =
      std::fwrite(l.testo.data(), 1, l.testo.size(), stdout) == l.testo.size() && std::fflush(stdout) == 0;
  l.testo.clear();
  // Windows has no code of its own for a closed pipe.
  if (!scritto) throw UscitaPersa{errno == EPIPE || errno == EINVAL, MotivoOspite()};
}

// Around each wait for input, which may be long: a signal may end the program there.
void Attende(Lotto& l, bool comincia) {
  if (comincia) {
    Scrivi(l);
    gUltime = l.avanzamento.Cancellazione() + Messaggio(Interruzione(l));
  }
  gInAttesa = comincia;
  if (comincia && gInterrotto) FinisciSubito(gUltime, kInterrotto);
}

void Prepara(Lotto& l) {
  PrefissoNome = "U_PO_";
  ImpostaDecimale(l.richieste.virgola ? ',' : '.');
  l.salvataggi = PreparaSalvataggi(l.richieste);
  l.ingresso.file = l.richieste.ingressi;
  l.ingresso.attende = [&l](bool comincia) { Attende(l, comincia); };
  l.ingresso.virgola = l.uscita.formato.virgola = l.richieste.virgola;
  l.uscita.punti = l.richieste.punti;
  if (!l.richieste.da.empty()) l.rilettura = Rileggi(l.richieste);
  if (!l.rilettura.lasciato.empty()) Dice(l, l.rilettura.lasciato);
}

bool Prossima(Lotto& l, Riga& riga) {
  if (l.richieste.da.empty()) return ProssimaRiga(l.ingresso, riga);
  const auto i = static_cast<std::size_t>(l.righe);
  if (i == l.rilettura.sezioni.size()) return false;
  riga.riletta = &l.rilettura.sezioni[i];
  return true;
}

void Lavora(Lotto& l, Riga& riga) {
  const bool conserva = l.salvataggi.sezioni || !l.richieste.disegni.empty();
  Calcolata sezione;
  const bool calcolata = CalcolaRiga(riga, sezione, conserva);
  if (calcolata && conserva) riga.motivo = Salva(l.salvataggi, sezione);
  AccodaRigaCsv(l.testo, riga, calcolata ? &sezione.record : nullptr, l.uscita);
  ++l.righe;
  if (!riga.motivo.empty()) ++l.errori;
  l.avanzamento.Mostra(l.righe, l.errori);
  if (l.testo.size() > kTestoMassimo) Scrivi(l);
}

// Returns false when it was interrupted.
bool LavoraTutte(Lotto& l) {
  while (!gInterrotto) {
    Riga riga;
    const bool trovata = Prossima(l, riga);
    if (l.righe == 0) {
      l.uscita.formato = l.ingresso.formato.value_or(l.uscita.formato);
      l.testo += ComponiIntestazione(l.uscita);
    }
    if (!trovata) return true;
    Lavora(l, riga);
  }
  return false;
}

int Esegui(Lotto& l) {
  Prepara(l);
  bool tutte = false;
  try {
    tutte = LavoraTutte(l);
  } catch (const ErroreFatale&) {
    if (l.righe == 0) l.testo = ComponiIntestazione(l.uscita);
    Scrivi(l);
    throw;
  }
  Scrivi(l);
  if (!tutte) {
    Dice(l, Interruzione(l));
    return kInterrotto;
  }
  if (l.salvataggi.sezioni) ScriviSezioni(l.salvataggi, l.richieste.sezio);
  if (!l.richieste.da.empty() && !l.richieste.sezio.empty())
    CreaFileSezioni(l.richieste.sezio, l.rilettura.righe);
  if (l.righe == 0 && l.richieste.da.empty())
    throw ErroreFatale(TipoErrore::Formato, "nessuna riga da calcolare");
  std::cerr << l.avanzamento.Cancellazione();
  if (l.errori > 0)
    Dice(l, std::to_string(l.errori) + (l.errori == 1 ? " riga" : " righe") + " su " +
                std::to_string(l.righe) + " con errore");
  return l.errori > 0 || !l.rilettura.lasciato.empty() ? kRigheConErrore : kFinito;
}

}  // namespace

int main(int argc, char** argv) {
  PreparaFlussi();
  NonFinireColTubo();
  std::signal(SIGINT, Interrompi);
  std::signal(SIGTERM, Interrompi);
  Lotto lotto;
  try {
    const auto lette = LeggiRichieste(Argomenti(argc, argv));
    if (const auto* const congedo = std::get_if<Congedo>(&lette)) return Congeda(*congedo);
    lotto.richieste = *std::get_if<Richieste>(&lette);
    return Esegui(lotto);
  } catch (const UscitaPersa& persa) {
    std::cerr << lotto.avanzamento.Cancellazione();
    if (persa.tubo) return kTuboChiuso;
    Dice(lotto, "l'uscita non si scrive: " + persa.motivo);
  } catch (const ErroreFatale& errore) {
    if (errore.tipo == TipoErrore::Argomento)
      return Congeda(Sbagliato(kProgramma, InUtf8(errore.Messaggio())));
    Dice(lotto, errore.Messaggio());
  } catch (const std::bad_alloc&) {
    Dice(lotto, "memoria esaurita");
  }
  return kNonFinito;
}
