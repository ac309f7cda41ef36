// The verbs of a script.
#include "platform/headless/verbi.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <utility>

#include "platform/headless/ambiente.h"
#include "platform/headless/contenuto.h"
#include "platform/headless/desktop.h"
#include "platform/headless/mano.h"
#include "platform/headless/verbale.h"

namespace tarvel::headless {
namespace {

constexpr int kTickMassimo = 3'600'000;

int Numero(const Evento& e, const std::string& parola, int minimo, int massimo) {
  int numero = 0;
  const auto [fine, errore] = std::from_chars(parola.data(), parola.data() + parola.size(), numero);
  if (errore != std::errc{} || fine != parola.data() + parola.size() || numero < minimo || numero > massimo)
    e.Errore(Citazione(parola) + " is not a whole number from " + std::to_string(minimo) + " to " +
             std::to_string(massimo));
  return numero;
}

Form* FormVisibile(const Testo& nome) {
  const auto trovata =
      std::find_if(Fila().begin(), Fila().end(), [&](const Form* f) { return f->nome == nome; });
  return trovata == Fila().end() ? nullptr : *trovata;
}

// "C" on the form in front, "FORM.C" on any visible one.
Controllo& Trova(const Evento& e) {
  const Testo nome = DaUtf8(e.argomenti.front());
  const auto punto = nome.find('.');
  const Form* form = punto == Testo::npos ? FormAttiva() : FormVisibile(nome.substr(0, punto));
  if (form == nullptr) e.Errore("no visible form for the control " + Citazione(e.argomenti.front()));
  const Testo cercato = punto == Testo::npos ? nome : nome.substr(punto + 1);
  const auto trovato = std::find_if(form->controlli.begin(), form->controlli.end(),
                                    [&](const Controllo* c) { return c->nome == cercato; });
  if (trovato == form->controlli.end())
    e.Errore("the form " + InUtf8(form->nome) + " has no control " + Citazione(InUtf8(cercato)));
  return **trovato;
}

Controllo& TrovaLista(const Evento& e) {
  Controllo& lista = Trova(e);
  e.Esigi(lista.tipo == TipoControllo::Lista);
  return lista;
}

// The numbers after the control's name, as entries from 0.
std::vector<int> Voci(const Evento& e, const Controllo& lista) {
  std::vector<int> voci;
  for (std::size_t i = 1; i < e.argomenti.size(); ++i)
    voci.push_back(Numero(e, e.argomenti[i], 1, static_cast<int>(lista.voci.size())) - 1);
  return voci;
}

void EseguiType(const Evento& e) {
  const Testo testo = DaUtf8(e.testo);
  if (std::any_of(testo.begin(), testo.end(), [](char c) { return c >= 0 && c < ' '; }))
    e.Errore("a control character cannot be typed");
  e.Esigi(Digita(Trova(e), testo));
}

void EseguiPress(const Evento& e) {
  static constexpr std::pair<std::string_view, int> kTasti[] = {
      {"backspace", kTastoIndietro}, {"delete", kTastoCanc}, {"down", kTastoGiu}, {"enter", kTastoInvio},
      {"escape", kTastoEsc},         {"tab", kTastoTab},     {"up", kTastoSu}};
  for (const auto& [nome, tasto] : kTasti)
    if (nome == e.argomenti.front()) return e.Esigi(Premi(tasto));
  e.Errore("no such key " + Citazione(e.argomenti.front()));
}

void EseguiPaste(const Evento& e) {
  Controllo& casella = Trova(e);
  e.Esigi(Vai(casella) && Incolla(DaUtf8(e.testo)));
}

void EseguiSelect(const Evento& e) {
  Controllo& lista = TrovaLista(e);
  const std::vector<int> voci = Voci(e, lista);
  e.Esigi((voci.size() < 2 || lista.selezioneEstesa) && Seleziona(lista, voci));
}

void EseguiDblclick(const Evento& e) {
  Controllo& lista = TrovaLista(e);
  e.Esigi(DoppioClick(lista, Voci(e, lista).front()));
}

// The form in front, or the visible one that is named.
Form& TrovaForm(const Evento& e) {
  Form* form = e.argomenti.empty() ? FormAttiva() : FormVisibile(DaUtf8(e.argomenti.front()));
  if (form == nullptr) e.Errore("no such visible form");
  return *form;
}

void EseguiClose(const Evento& e) {
  Form& form = TrovaForm(e);
  if (!Chiudi(form)) e.Errore("the form " + InUtf8(form.nome) + " cannot be closed now");
}

// For who plays the same script at a real window and has to know where to click.
void EseguiLayout(const Evento& e) {
  static constexpr const char* kTipi[] = {"button", "label", "box", "list"};
  const Form& form = TrovaForm(e);
  Annota("layout " + InUtf8(form.nome) + ' ' + std::to_string(form.larghezza) + ' ' +
         std::to_string(form.altezza));
  for (const Controllo* c : form.controlli) {
    std::string riga = "place " + InUtf8(c->nome) + ' ' + kTipi[static_cast<int>(c->tipo)];
    for (const int misura : {c->posto.sinistra, c->posto.alto, c->posto.larghezza, c->posto.altezza})
      riga += ' ' + std::to_string(misura);
    Annota(riga);
  }
}

void EseguiPrint(const Evento& e) {
  const Controllo& controllo = Trova(e);
  e.Esigi(Usabile(*FormDi(controllo)));
  Annota(RigaContenuto(controllo));
}

void EseguiTip(const Evento& e) {
  const Controllo& casella = Trova(e);
  e.Esigi(casella.tipo == TipoControllo::Casella);
  Annota("tip " + e.argomenti.front() + ' ' + TraVirgolette(SuggerimentoDi(casella)));
}

void EseguiEndtask(const Evento& e) {
  if (!TerminaCompito(Numero(e, e.argomenti.front(), 1, INT32_MAX))) e.Errore("no such task runs");
}

struct Verbo {
  std::string_view nome;
  std::size_t minimo, massimo;  // number of arguments
  void (*esegui)(const Evento&);
};
constexpr std::size_t kQuanti = SIZE_MAX;

constexpr std::array<Verbo, 14> kVerbi = {{
    {"type", 1, kQuanti, EseguiType},
    {"focus", 1, 1, [](const Evento& e) { e.Esigi(Vai(Trova(e))); }},
    {"enter", 1, 1, [](const Evento& e) { e.Esigi(Invio(Trova(e))); }},
    {"click", 1, 1, [](const Evento& e) { e.Esigi(Clicca(Trova(e))); }},
    {"press", 1, 1, EseguiPress},
    {"paste", 2, kQuanti, EseguiPaste},
    {"select", 1, kQuanti, EseguiSelect},
    {"dblclick", 2, 2, EseguiDblclick},
    {"close", 0, 1, EseguiClose},
    {"print", 1, 1, EseguiPrint},
    {"tip", 1, 1, EseguiTip},
    {"layout", 0, 1, EseguiLayout},
    {"tick", 1, 1, [](const Evento& e) { LasciaPassare(Numero(e, e.argomenti.front(), 0, kTickMassimo)); }},
    {"endtask", 1, 1, EseguiEndtask},
}};

std::vector<std::string> Parole(std::string_view testo) {
  constexpr std::string_view kBlanchi = " \t";
  std::vector<std::string> parole;
  for (auto inizio = testo.find_first_not_of(kBlanchi); inizio != std::string_view::npos;
       inizio = testo.find_first_not_of(kBlanchi)) {
    testo.remove_prefix(inizio);
    const auto fine = std::min(testo.find_first_of(kBlanchi), testo.size());
    parole.emplace_back(testo.substr(0, fine));
    testo.remove_prefix(fine);
  }
  return parole;
}

}  // namespace

std::string Citazione(std::string_view parola) {
  return TraVirgolette(DaUtf8(parola.substr(0, 40)));
}

Evento LeggiEvento(int numero, const std::string& riga) {
  Evento evento{numero, {}, Parole(riga), {}};
  evento.verbo = evento.argomenti.front();
  evento.argomenti.erase(evento.argomenti.begin());
  if (evento.argomenti.empty()) return evento;
  const std::string& primo = evento.argomenti.front();
  const auto dopo = riga.find(primo, evento.verbo.size()) + primo.size();
  if (dopo < riga.size()) evento.testo = riga.substr(dopo + 1);
  return evento;
}

void EseguiEvento(const Evento& evento) {
  const auto* voce =
      std::find_if(kVerbi.begin(), kVerbi.end(), [&](const Verbo& v) { return v.nome == evento.verbo; });
  if (voce == kVerbi.end()) evento.Errore("unknown verb " + Citazione(evento.verbo));
  if (evento.argomenti.size() < voce->minimo || evento.argomenti.size() > voce->massimo)
    evento.Errore("wrong number of arguments for " + evento.verbo);
  voce->esegui(evento);
}

}  // namespace tarvel::headless
