// What the shared desktop shows here: lines of the transcript, and the user who is played.
#include "platform/headless/desktop.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>

#include "platform/headless/ambiente.h"
#include "platform/headless/contenuto.h"
#include "platform/headless/verbale.h"

namespace tarvel {
namespace headless {
namespace {

// Thrown by TerminaProgramma: unwinds every nested loop and handler.
struct FineProgramma {
  int stato;
};

struct Tavolo {
  Attore attore;
  Puntatore puntatore = Puntatore::Predefinito;
  long long adesso = 0, traguardo = 0;  // the clock, and how far it may go before the user's next event
  std::set<const Controllo*> scelte;    // boxes whose text was selected when they were reached
  const Controllo* cursore = nullptr;   // the box in which the user types
};

Tavolo tavolo;

bool ScattaEntroTraguardo() {
  const auto prossima = ProssimaScadenza();
  tavolo.adesso = std::max(tavolo.adesso, std::min(prossima.value_or(tavolo.traguardo), tavolo.traguardo));
  return ScattaProssimo();
}

}  // namespace

int Avvia(Form& principale, Attore attore) {
  // However it ends.
  const struct Sgombero {
    ~Sgombero() {
      Sgombera();
      AzzeraProgrammi();
      tavolo = {};
    }
  } sgombero;
  tavolo.attore = std::move(attore);
  try {
    Esegui([&] { MostraForm(principale); });
    Attende(false);
  } catch (const FineProgramma& fine) {
    return fine.stato;
  }
  return 0;
}

void LasciaPassare(long long durata) {
  tavolo.traguardo += durata;
}

std::optional<long long> AttesaProssimo() {
  const auto prossima = ProssimaScadenza();
  if (!prossima) return std::nullopt;
  return *prossima - tavolo.traguardo;
}

bool Clessidra() {
  return tavolo.puntatore == Puntatore::Clessidra && !MessaggioAperto();
}

bool TuttoScelto(const Controllo& casella) {
  return tavolo.scelte.count(&casella) != 0;
}

void ScegliTutto(const Controllo& casella, bool scelto) {
  tavolo.scelte.erase(&casella);
  if (scelto) tavolo.scelte.insert(&casella);
}

bool CursoreInVista(const Controllo& casella) {
  return Fuoco() == &casella && tavolo.cursore == &casella;
}

void MettiCursoreInVista(const Controllo* casella) {
  tavolo.cursore = casella == Fuoco() ? casella : nullptr;
}

}  // namespace headless

using namespace headless;

void PortaDavanti(Form& form, Form* davanti, bool nuova, bool modale) {
  if (!nuova && !modale && davanti == &form) return;
  tavolo.cursore = nullptr;
  Annota("show " + InUtf8(form.nome) + (modale ? " modal" : ""));
  if (!nuova) return;
  if (Fuoco() != nullptr) ScegliTutto(*Fuoco(), true);
  MostraContenuti(form);
}

void Togli(Form& form, bool scaricata) {
  Annota((scaricata ? "unload " : "hide ") + InUtf8(form.nome));
}

void Aggiorna(Controllo& controllo, bool diverso) {
  ScegliTutto(controllo, false);
  if (tavolo.cursore == &controllo) tavolo.cursore = nullptr;
  if (diverso && FormDi(controllo) != nullptr) Annota(RigaContenuto(controllo));
}

void Attende(const bool& finito) {
  while (!finito)
    if (!ScattaEntroTraguardo()) tavolo.attore.agisce();
}

// Time may pass meanwhile: the timers wait, and of the firings that fall due each has one left.
Risposta Chiede(const Messaggio& m) {
  static constexpr const char* kIcone[] = {"none", "stop", "exclamation", "information"};
  static constexpr const char* kRisposte[] = {"ok", "yes", "no"};
  const long long inizio = tavolo.traguardo;
  tavolo.cursore = nullptr;
  Risposta risposta = m.bottoni == Bottoni::SiNo ? Risposta::No : Risposta::Ok;
  if (tavolo.attore.risponde) risposta = tavolo.attore.risponde(m);
  tavolo.adesso += tavolo.traguardo - inizio;
  Annota(std::string("message ") + kIcone[static_cast<int>(m.icona)] + ' ' + TraVirgolette(m.titolo) + ' ' +
         TraVirgolette(m.testo) + " -> " + kRisposte[static_cast<int>(risposta)]);
  return risposta;
}

long long Adesso() {
  return tavolo.adesso;
}

void NuovaScadenza() {}  // the clock is asked whenever the program waits

void TerminaProgramma(int stato) {
  throw FineProgramma{stato};
}

void ImpostaPuntatore(Puntatore puntatore) {
  if (std::exchange(tavolo.puntatore, puntatore) != puntatore)
    Annota(puntatore == Puntatore::Clessidra ? "pointer hourglass" : "pointer default");
}

}  // namespace tarvel
