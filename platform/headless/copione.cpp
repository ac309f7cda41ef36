// The script's verbs, its answers and its leave-taking.
#include "platform/headless/copione.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/file.h"
#include "platform/headless/contenuto.h"
#include "platform/headless/mano.h"
#include "platform/headless/programmi.h"
#include "platform/headless/verbale.h"

namespace tarvel::headless {
namespace {

constexpr std::string_view kSegnoUtf8 = "\xEF\xBB\xBF";
constexpr int kTickMassimo = 3'600'000;
constexpr Durata kAttesaFinaleMassima = 60'000;

struct Evento {
  int riga;
  std::vector<std::string> argomenti;
  std::string testo;  // what follows the first argument and one blank, as it is

  [[noreturn]] void Errore(const std::string& cosa) const { throw ErroreCopione{riga, cosa}; }
  void Esigi(bool riuscito) const {
    if (!riuscito) Errore(argomenti.front() + " cannot be used so now");
  }
};

// A script may hold anything: only the beginning of what is not understood is shown again.
std::string Citazione(std::string_view parola) {
  return TraVirgolette(DaUtf8(parola.substr(0, 40)));
}

int Numero(const Evento& e, const std::string& parola, int minimo, int massimo) {
  int numero = 0;
  const auto [fine, errore] = std::from_chars(parola.data(), parola.data() + parola.size(), numero);
  if (errore != std::errc{} || fine != parola.data() + parola.size() || numero < minimo || numero > massimo)
    e.Errore(Citazione(parola) + " is not a whole number from " + std::to_string(minimo) + " to " +
             std::to_string(massimo));
  return numero;
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
  static constexpr std::pair<std::string_view, int> kTasti[] = {{"backspace", kTastoIndietro},
                                                                {"delete", kTastoCanc},
                                                                {"enter", kTastoInvio},
                                                                {"escape", kTastoEsc},
                                                                {"tab", kTastoTab}};
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
  e.Esigi(Seleziona(lista, Voci(e, lista)));
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
  std::vector<std::string> parole;
  for (auto parola = PrimaParola(testo); !parola.empty(); parola = PrimaParola(testo))
    parole.emplace_back(parola);
  return parole;
}

std::string Descrizione(const Messaggio& m) {
  return TraVirgolette(m.titolo) + ' ' + TraVirgolette(m.testo);
}

}  // namespace

bool Copione::Leggi(std::string& riga) {
  riga.clear();
  ++numero_;
  for (char c = 0; testo_.get(c);) {
    if (c == '\n') return true;
    if (c == '\0') throw ErroreCopione{numero_, "the line holds a NUL character"};
    if (riga.size() == kRigaMassima) throw ErroreCopione{numero_, "the line is too long"};
    riga += c;
  }
  if (!riga.empty()) return true;
  --numero_;
  return false;
}

// The next line that is neither blank nor a remark, without the blanks before it.
std::optional<std::string> Copione::Prossima() {
  for (std::string riga; Leggi(riga);) {
    if (numero_ == 1 && riga.starts_with(kSegnoUtf8)) riga.erase(0, kSegnoUtf8.size());
    if (riga.ends_with('\r')) riga.pop_back();
    riga.erase(0, riga.find_first_not_of(" \t"));
    if (!riga.empty() && riga.front() != '#') return riga;
  }
  return std::nullopt;
}

void Copione::Agisce() {
  const std::optional<std::string> riga = Prossima();
  if (!riga) {
    Congeda();
    return;
  }
  Evento evento{numero_, Parole(*riga), {}};
  const std::string verbo = evento.argomenti.front();
  evento.argomenti.erase(evento.argomenti.begin());
  if (!evento.argomenti.empty()) {
    const auto dopo = riga->find(evento.argomenti.front(), verbo.size()) + evento.argomenti.front().size();
    evento.testo = dopo < riga->size() ? riga->substr(dopo + 1) : "";
  }
  if (verbo == "answer") {
    PreparaRisposte(evento.argomenti);
    return;
  }
  const auto* voce =
      std::find_if(kVerbi.begin(), kVerbi.end(), [&](const Verbo& v) { return v.nome == verbo; });
  if (voce == kVerbi.end()) evento.Errore("unknown verb " + Citazione(verbo));
  if (evento.argomenti.size() < voce->minimo || evento.argomenti.size() > voce->massimo)
    evento.Errore("wrong number of arguments for " + verbo);
  voce->esegui(evento);
}

void Copione::PreparaRisposte(const std::vector<std::string>& risposte) {
  const int riga = numero_;
  if (risposte.empty()) throw ErroreCopione{riga, "answer what?"};
  for (const std::string& parola : risposte) {
    if (parola == "ok")
      risposte_.push_back({Risposta::Ok, riga});
    else if (parola == "yes")
      risposte_.push_back({Risposta::Si, riga});
    else if (parola == "no")
      risposte_.push_back({Risposta::No, riga});
    else
      throw ErroreCopione{riga, Citazione(parola) + " is no answer: ok, yes or no"};
  }
}

Risposta Copione::Risponde(const Messaggio& messaggio) {
  const bool domanda = messaggio.bottoni == Bottoni::SiNo;
  if (risposte_.empty()) {
    if (domanda && !finito_)
      throw ErroreCopione{numero_, "a question without an answer: " + Descrizione(messaggio)};
    return domanda ? Risposta::No : Risposta::Ok;
  }
  const RispostaPronta pronta = risposte_.front();
  risposte_.pop_front();
  if (domanda == (pronta.risposta == Risposta::Ok))
    throw ErroreCopione{pronta.riga, "an answer that the box does not offer: " + Descrizione(messaggio)};
  return pronta.risposta;
}

void Copione::ControllaRisposte() const {
  if (!risposte_.empty()) throw ErroreCopione{risposte_.front().riga, "an answer that nobody asked for"};
}

void Copione::ControllaResto() {
  ControllaRisposte();
  if (!finito_ && Prossima()) throw ErroreCopione{numero_, "an event after the program has ended"};
}

void Copione::Congeda() {
  ControllaRisposte();
  finito_ = true;
  if (Form* modale = FormModale(); modale != nullptr) {
    Chiudi(*modale);
    return;
  }
  if (Chiudi(principale_)) return;
  const std::optional<Durata> attesa = AttesaProssimo();
  if (!attesa) TerminaProgramma(0);
  attesaFinale_ += *attesa;
  if (attesaFinale_ > kAttesaFinaleMassima)
    throw ErroreCopione{numero_, "the program did not end after the script"};
  LasciaPassare(*attesa);
}

}  // namespace tarvel::headless
