// The script's lines, its answers and its leave-taking.
#include "platform/headless/copione.h"

#include <algorithm>
#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/comune/desktop/scrivania.h"
#include "platform/file.h"
#include "platform/headless/desktop.h"
#include "platform/headless/verbale.h"
#include "platform/headless/verbi.h"

namespace tarvel::headless {
namespace {

constexpr std::string_view kSegnoUtf8 = "\xEF\xBB\xBF";
constexpr long long kAttesaFinaleMassima = 60'000;

std::string Descrizione(const Messaggio& m) {
  return TraVirgolette(m.titolo) + ' ' + TraVirgolette(m.testo);
}

class Copione {
 public:
  Copione(std::istream& testo, Form& principale) : testo_(testo), principale_(principale) {}

  void Agisce();
  Risposta Risponde(const Messaggio& messaggio);
  void ControllaResto();

 private:
  struct RispostaPronta {
    Risposta risposta;
    int riga;
  };

  bool Leggi(std::string& riga);
  std::optional<std::string> Prossima();
  void PreparaRisposte(const std::vector<std::string>& risposte);
  void ControllaRisposte() const;
  void Congeda();

  std::istream& testo_;
  int numero_ = 0;  // of the line read last
  Form& principale_;
  std::deque<RispostaPronta> risposte_;
  bool finito_ = false;
  long long attesaFinale_ = 0;
};

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
  const Evento evento = LeggiEvento(numero_, *riga);
  if (evento.verbo == "answer")
    PreparaRisposte(evento.argomenti);
  else
    EseguiEvento(evento);
}

void Copione::PreparaRisposte(const std::vector<std::string>& risposte) {
  static constexpr std::pair<std::string_view, Risposta> kRisposte[] = {
      {"ok", Risposta::Ok}, {"yes", Risposta::Si}, {"no", Risposta::No}};
  if (risposte.empty()) throw ErroreCopione{numero_, "answer what?"};
  for (const std::string& parola : risposte) {
    const auto* voce = std::find_if(std::begin(kRisposte), std::end(kRisposte),
                                    [&](const auto& r) { return r.first == parola; });
    if (voce == std::end(kRisposte))
      throw ErroreCopione{numero_, Citazione(parola) + " is no answer: ok, yes or no"};
    risposte_.push_back({voce->second, numero_});
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
  const std::optional<long long> attesa = AttesaProssimo();
  if (!attesa) TerminaProgramma(0);
  attesaFinale_ += *attesa;
  if (attesaFinale_ > kAttesaFinaleMassima)
    throw ErroreCopione{numero_, "the program did not end after the script"};
  LasciaPassare(*attesa);
}

}  // namespace

int Recita(Form& principale, std::istream& copione, std::ostream& verbale, std::ostream& errori) {
  ApriVerbale(&verbale);
  Copione utente(copione, principale);
  int stato = 0;
  try {
    stato =
        Avvia(principale, {[&] { utente.Agisce(); }, [&](const Messaggio& m) { return utente.Risponde(m); }});
    if (stato == 0) utente.ControllaResto();
  } catch (const ErroreCopione& errore) {
    errori << "script line " << errore.riga << ": " << errore.cosa << '\n';
    stato = 2;
  }
  Annota("end " + std::to_string(stato));
  ApriVerbale(nullptr);
  return stato;
}

}  // namespace tarvel::headless
