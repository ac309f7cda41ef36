// State of the desktop and the seam's calls on forms.
#include "platform/headless/desktop.h"

#include <algorithm>
#include <deque>
#include <list>
#include <map>
#include <utility>
#include <vector>

#include "platform/comune/smista.h"
#include "platform/headless/contenuto.h"
#include "platform/headless/programmi.h"
#include "platform/headless/timer.h"
#include "platform/headless/verbale.h"

namespace tarvel {
namespace headless {
namespace {

// Thrown by TerminaProgramma: unwinds every nested loop and handler.
struct FineProgramma {
  int stato;
};

struct Finestra {
  bool caricata = false;
  bool inScarico = false;
  bool visibile = false;
  bool mostrata = false;    // visible at least once since it was loaded
  std::size_t livello = 0;  // modal loops that ran when it was shown: later ones block it
  Controllo* fuoco = nullptr;
  bool tuttoScelto = false;  // of the text of the box with the focus
  bool cursoreInVista = false;
  Descrizione descritta;
};

struct CicloModale {
  Form* form;
  bool finito = false;
};

struct Scrivania {
  bool messaggio = false;  // a message box is open
  Puntatore puntatore = Puntatore::Predefinito;
  Attore attore;
  std::map<const Form*, Finestra> finestre;
  std::vector<Form*> fila;  // the visible forms, the one in front last
  std::list<CicloModale> modali;
  std::deque<Controllo*> fuochiPersi;
};

Scrivania gScrivania;

Finestra& Di(const Form& form) {
  return gScrivania.finestre[&form];
}

void SmaltisciFuochi() {
  while (!gScrivania.fuochiPersi.empty()) {
    const Controllo* controllo = gScrivania.fuochiPersi.front();
    gScrivania.fuochiPersi.pop_front();
    if (FormDi(*controllo) != nullptr && controllo->fuocoPerso) Smista(controllo->fuocoPerso);
  }
}

// Waits for events until a handler of one has ended the loop.
void Gira(const bool& finito) {
  while (!finito) {
    SmaltisciFuochi();
    if (!finito && !ScattaProssimo()) gScrivania.attore.agisce();
  }
}

void Sgombera() {
  AzzeraTempo();
  AzzeraProgrammi();
  gScrivania = {};
}

// The keyboard goes elsewhere.
void LasciaFuoco() {
  if (FormAttiva() != nullptr) Di(*FormAttiva()).cursoreInVista = false;
}

void PortaInPrimoPiano(Form& form) {
  LasciaFuoco();
  std::erase(gScrivania.fila, &form);
  gScrivania.fila.push_back(&form);
}

// The handler that shows a form runs to its end before the control that had the focus hears of it.
void Presenta(Form& form, bool modale) {
  Finestra& finestra = Di(form);
  const bool nuova = !finestra.visibile;
  Controllo* const prima = Fuoco();
  finestra.livello = gScrivania.modali.size();
  if (!nuova && FormAttiva() == &form && !modale) return;
  finestra.visibile = finestra.mostrata = true;
  if (nuova) {
    const auto primo = std::find_if(form.controlli.begin(), form.controlli.end(),
                                    [](const Controllo* c) { return c->tipo != TipoControllo::Etichetta; });
    finestra.fuoco = primo == form.controlli.end() ? nullptr : *primo;
    finestra.tuttoScelto = true;
  }
  PortaInPrimoPiano(form);
  Annota("show " + InUtf8(form.nome) + (modale ? " modal" : ""));
  if (nuova) MostraContenuti(form, finestra.descritta);
  if (prima != nullptr && prima != Fuoco()) gScrivania.fuochiPersi.push_back(prima);
}

void Togli(const Form& form) {
  std::erase(gScrivania.fila, &form);
  for (CicloModale& ciclo : gScrivania.modali)
    if (ciclo.form == &form) ciclo.finito = true;
}

}  // namespace

int Avvia(Form& principale, Attore attore) {
  gScrivania.attore = std::move(attore);
  try {
    Smista([&] { MostraForm(principale); });
    for (;;) Gira(false);
  } catch (const FineProgramma& fine) {
    Sgombera();
    return fine.stato;
  } catch (...) {
    Sgombera();
    throw;
  }
}

Risposta Chiede(const Messaggio& messaggio) {
  if (!gScrivania.attore.risponde) return messaggio.bottoni == Bottoni::SiNo ? Risposta::No : Risposta::Ok;
  const PausaTimer pausa;
  LasciaFuoco();
  gScrivania.messaggio = true;
  const Risposta risposta = gScrivania.attore.risponde(messaggio);
  gScrivania.messaggio = false;
  return risposta;
}

bool Clessidra() {
  return gScrivania.puntatore == Puntatore::Clessidra && !gScrivania.messaggio;
}

Form* FormAttiva() {
  return gScrivania.fila.empty() ? nullptr : gScrivania.fila.back();
}

Form* FormModale() {
  return gScrivania.modali.empty() ? nullptr : gScrivania.modali.back().form;
}

Form* FormVisibile(const Testo& nome) {
  const auto trovata = std::find_if(gScrivania.fila.begin(), gScrivania.fila.end(),
                                    [&](const Form* f) { return f->nome == nome; });
  return trovata == gScrivania.fila.end() ? nullptr : *trovata;
}

Form* FormDi(const Controllo& controllo) {
  const auto trovata = std::find_if(gScrivania.fila.begin(), gScrivania.fila.end(), [&](const Form* f) {
    return std::find(f->controlli.begin(), f->controlli.end(), &controllo) != f->controlli.end();
  });
  return trovata == gScrivania.fila.end() ? nullptr : *trovata;
}

bool Caricata(const Form& form) {
  return Di(form).caricata;
}

bool Visibile(const Form& form) {
  return Di(form).visibile;
}

bool Usabile(const Form& form) {
  return Di(form).visibile && Di(form).livello >= gScrivania.modali.size();
}

Controllo* Fuoco() {
  return FormAttiva() == nullptr ? nullptr : Di(*FormAttiva()).fuoco;
}

void SpostaFuoco(Form& form, Controllo* controllo) {
  PortaInPrimoPiano(form);
  Di(form).fuoco = controllo;
  Di(form).tuttoScelto = false;
}

bool TuttoScelto(const Controllo& controllo) {
  return std::any_of(gScrivania.finestre.begin(), gScrivania.finestre.end(),
                     [&](const auto& f) { return f.second.fuoco == &controllo && f.second.tuttoScelto; });
}

void ScegliTutto(const Controllo& controllo, bool scelto) {
  for (auto& [form, finestra] : gScrivania.finestre)
    if (finestra.fuoco == &controllo) finestra.tuttoScelto = scelto;
}

bool CursoreInVista(const Controllo& controllo) {
  return Fuoco() == &controllo && Di(*FormAttiva()).cursoreInVista;
}

void MettiCursoreInVista(const Controllo& controllo, bool inVista) {
  if (Fuoco() == &controllo) Di(*FormAttiva()).cursoreInVista = inVista;
}

}  // namespace headless

using namespace headless;

void CaricaForm(Form& form) {
  Finestra& finestra = Di(form);
  if (finestra.caricata) return;
  finestra.caricata = true;
  finestra.descritta = Descritta(form);
  form.Form_Load();
}

void MostraForm(Form& form) {
  CaricaForm(form);
  Presenta(form, false);
}

void MostraFormModale(Form& form) {
  CaricaForm(form);
  CicloModale& ciclo = gScrivania.modali.emplace_back(CicloModale{&form});
  Presenta(form, true);
  Gira(ciclo.finito);
  gScrivania.modali.pop_back();
}

void NascondiForm(Form& form) {
  Finestra& finestra = Di(form);
  if (!finestra.visibile) return;
  finestra.visibile = false;
  Togli(form);
  Annota("hide " + InUtf8(form.nome));
}

void ScaricaForm(Form& form) {
  Finestra& finestra = Di(form);
  if (!finestra.caricata || finestra.inScarico) return;
  finestra.inScarico = true;
  form.Form_Unload();
  Togli(form);
  if (finestra.mostrata) Annota("unload " + InUtf8(form.nome));
  Ripristina(form, std::move(finestra.descritta));
  finestra = {};
}

void TerminaProgramma(int stato) {
  throw FineProgramma{stato};
}

void ImpostaPuntatore(Puntatore puntatore) {
  if (gScrivania.puntatore == puntatore) return;
  gScrivania.puntatore = puntatore;
  Annota(puntatore == Puntatore::Clessidra ? "pointer hourglass" : "pointer default");
}

}  // namespace tarvel
