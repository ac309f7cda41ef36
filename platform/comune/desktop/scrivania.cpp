// Forms, focus and modality.
#include "platform/comune/desktop/scrivania.h"

#include <algorithm>
#include <deque>
#include <iterator>
#include <list>
#include <tuple>
#include <utility>

#include "platform/comune/desktop/schermo.h"

namespace tarvel {
namespace {

struct Caricata {
  Form* form;
  int numero;  // of this load among all
  std::vector<Contenuto> descritti;
  bool inScarico = false;
  bool mostrata = false;    // since it was loaded
  std::size_t livello = 0;  // modal loops that ran when it was shown: later ones block it
  Controllo* fuoco = nullptr;
};

struct CicloModale {
  Form* form;
  bool finito = false;
};

struct Scrivania {
  std::list<Caricata> caricate;
  std::vector<Form*> fila;  // the visible ones
  std::list<CicloModale> modali;
  std::deque<Controllo*> persi;  // they have lost the focus, and hear of it when no handler runs
  std::function<void()> tasto;   // what the key under way does to its box
  int gestori = 0;               // of the current loop
  int messaggi = 0, loop = 0, caricamenti = 0;
};

Scrivania scrivania;

Caricata* Cerca(const Form& form) {
  const auto trovata = std::find_if(scrivania.caricate.begin(), scrivania.caricate.end(),
                                    [&](const Caricata& c) { return c.form == &form; });
  return trovata == scrivania.caricate.end() ? nullptr : &*trovata;
}

bool Visibile(const Form& form) {
  return std::find(scrivania.fila.begin(), scrivania.fila.end(), &form) != scrivania.fila.end();
}

bool Contiene(const Form& form, const Controllo* controllo) {
  return std::find(form.controlli.begin(), form.controlli.end(), controllo) != form.controlli.end();
}

// A modal form, shown later and still there, keeps it from the user.
bool Bloccata(const Caricata& caricata) {
  return std::any_of(std::next(scrivania.modali.begin(), std::ptrdiff_t(caricata.livello)),
                     scrivania.modali.end(), [](const CicloModale& ciclo) { return !ciclo.finito; });
}

// What has waited for the handlers' end, unless the loop's caller goes on first.
void Riprendi() {
  while (!Occupato() && !scrivania.persi.empty()) {
    const Controllo& lasciato = *scrivania.persi.front();
    scrivania.persi.pop_front();
    Esegui(lasciato.fuocoPerso);
  }
  if (!Occupato()) NuovaScadenza();
}

void FaTasto() {
  if (const auto tasto = std::exchange(scrivania.tasto, {})) tasto();
}

// What a form describes, as far as it can be shown.
void Pareggia(Form& form) {
  for (Controllo* c : form.controlli) {
    if (c->tipo == TipoControllo::Casella) c->testo.resize(std::min(c->testo.size(), kMassimoCasella));
    c->scelte.resize(c->voci.size());
  }
}

// The control that had the focus loses it to this one of a form that comes to the front.
void DaiFuoco(Caricata& caricata, Controllo* controllo) {
  Controllo* const prima = Fuoco();
  std::erase(scrivania.fila, caricata.form);
  scrivania.fila.push_back(caricata.form);
  caricata.fuoco = controllo;
  if (prima != nullptr && prima != controllo) scrivania.persi.push_back(prima);
}

void Mostra(Caricata& caricata, bool modale) {
  Form& form = *caricata.form;
  const bool nuova = !Visibile(form);
  if (!nuova && !modale && Bloccata(caricata)) return;
  Form* const davanti = FormAttiva();
  const auto primo = std::find_if(form.controlli.begin(), form.controlli.end(),
                                  [](const Controllo* c) { return c->tipo != TipoControllo::Etichetta; });
  caricata.livello = scrivania.modali.size();
  caricata.mostrata = true;
  DaiFuoco(caricata, !nuova ? caricata.fuoco : primo == form.controlli.end() ? nullptr : *primo);
  PortaDavanti(form, davanti, nuova, modale);
}

void Leva(const Caricata& caricata, bool scaricata) {
  Form& form = *caricata.form;
  std::erase(scrivania.fila, &form);
  for (CicloModale& ciclo : scrivania.modali) ciclo.finito = ciclo.finito || ciclo.form == &form;
  std::erase_if(scrivania.persi, [&](const Controllo* c) { return Contiene(form, c); });
  Togli(form, scaricata);
}

}  // namespace

void Esegui(const std::function<void()>& gestore) {
  ++scrivania.gestori;
  if (gestore) Smista(gestore);
  --scrivania.gestori;
  Riprendi();
}

bool Raggiungi(Form& form, Controllo* controllo) {
  if (!Usabile(form)) return false;
  DaiFuoco(*Cerca(form), controllo);
  Riprendi();
  return Usabile(form) && Fuoco() == controllo;
}

void PremiInCasella(Controllo& casella, const std::vector<int>& codici, const std::function<void()>& agisce) {
  const Form* const form = FormDi(casella);
  if (form == nullptr) return;
  const int numero = Cerca(*form)->numero;
  Esegui([&] {
    scrivania.tasto = [&] {
      if (const Caricata* c = Cerca(*form); c != nullptr && c->numero == numero) agisce();
    };
    for (const int codice : codici)
      if (casella.tasto) casella.tasto(codice);
    FaTasto();
  });
}

bool Chiudi(Form& form) {
  if (!Usabile(form)) return false;
  Esegui([&] {
    if (Controllo* fuoco = Fuoco(); FormAttiva() == &form && fuoco != nullptr) {
      Cerca(form)->fuoco = nullptr;
      if (fuoco->fuocoPerso) fuoco->fuocoPerso();
    }
    ScaricaForm(form);
  });
  return true;
}

const std::vector<Form*>& Fila() {
  return scrivania.fila;
}

Form* FormAttiva() {
  return scrivania.fila.empty() ? nullptr : scrivania.fila.back();
}

Form* FormModale() {
  return scrivania.modali.empty() ? nullptr : scrivania.modali.back().form;
}

Form* FormDi(const Controllo& controllo) {
  const auto trovata = std::find_if(scrivania.fila.begin(), scrivania.fila.end(),
                                    [&](const Form* f) { return Contiene(*f, &controllo); });
  return trovata == scrivania.fila.end() ? nullptr : *trovata;
}

bool Usabile(const Form& form) {
  const Caricata* const caricata = Cerca(form);
  return scrivania.messaggi == 0 && caricata != nullptr && Visibile(form) && !Bloccata(*caricata);
}

Controllo* Fuoco() {
  return FormAttiva() == nullptr ? nullptr : FuocoDi(*FormAttiva());
}

Controllo* FuocoDi(const Form& form) {
  return Cerca(form)->fuoco;
}

bool Occupato() {
  return scrivania.gestori > 0 || (!scrivania.modali.empty() && scrivania.modali.back().finito);
}

bool ARiposo() {
  return scrivania.gestori == 0 && scrivania.modali.empty();
}

int LivelloModale() {
  return static_cast<int>(scrivania.modali.size());
}

bool MessaggioAperto() {
  return scrivania.messaggi > 0;
}

int LoopAperti() {
  return scrivania.loop;
}

const std::vector<Contenuto>& Descritti(const Form& form) {
  return Cerca(form)->descritti;
}

void CaricaForm(Form& form) {
  if (Cerca(form) != nullptr) return;
  Caricata& caricata = scrivania.caricate.emplace_back(Caricata{&form, ++scrivania.caricamenti, {}});
  Pareggia(form);
  for (const Controllo* c : form.controlli) caricata.descritti.push_back({c->testo, c->voci, c->scelte});
  form.Form_Load();
  Pareggia(form);
}

void MostraForm(Form& form) {
  CaricaForm(form);
  if (Caricata* const caricata = Cerca(form)) Mostra(*caricata, false);
}

void MostraFormModale(Form& form) {
  CaricaForm(form);
  Caricata* const caricata = Cerca(form);
  if (caricata == nullptr) return;
  FaTasto();
  const CicloModale& ciclo = scrivania.modali.emplace_back(CicloModale{&form});
  ++scrivania.loop;
  Mostra(*caricata, true);
  const int sospesi = std::exchange(scrivania.gestori, 0);
  Riprendi();
  Attende(ciclo.finito);
  scrivania.gestori = sospesi;
  scrivania.modali.pop_back();
  for (Caricata& altra : scrivania.caricate) altra.livello = std::min(altra.livello, scrivania.modali.size());
}

void NascondiForm(Form& form) {
  if (Visibile(form)) Leva(*Cerca(form), false);
}

void ScaricaForm(Form& form) {
  Caricata* const caricata = Cerca(form);
  if (caricata == nullptr || caricata->inScarico) return;
  caricata->inScarico = true;
  form.Form_Unload();
  const Caricata scaricata = std::move(*caricata);
  scrivania.caricate.remove_if([&](const Caricata& c) { return &c == caricata; });
  if (scaricata.mostrata) Leva(scaricata, true);
  for (std::size_t i = 0; i < scaricata.descritti.size(); ++i) {
    Controllo& c = *form.controlli[i];
    std::tie(c.testo, c.voci, c.scelte) =
        std::tie(scaricata.descritti[i].testo, scaricata.descritti[i].voci, scaricata.descritti[i].scelte);
  }
}

// As a handler: timers wait until the box has gone.
Risposta MostraMessaggio(const Testo& testo, const Testo& titolo, Icona icona, Bottoni bottoni) {
  ++scrivania.gestori, ++scrivania.messaggi, ++scrivania.loop;
  const Risposta risposta = Chiede({testo, titolo, icona, bottoni});
  --scrivania.gestori, --scrivania.messaggi;
  return risposta;
}

void Sgombera() {
  FermaTimer();
  scrivania = {};
}

}  // namespace tarvel
