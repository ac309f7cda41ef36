// The suite's user on the scripted desktop: events go straight to the platform's hand.
#include <algorithm>
#include <deque>
#include <utility>

#include "platform/headless/contenuto.h"
#include "platform/headless/mano.h"
#include "platform/headless/orologio.h"
#include "platform/headless/scrivania.h"
#include "tests/contratto/utente.h"

namespace tarvel::contratto {
namespace {

struct Pronta {
  Risposta risposta;
  int attesa;
};

class UtenteHeadless : public Utente {
 public:
  Esito esito;

  void Esegui(Form& principale, std::vector<Passo> passi) override {
    passi_.assign(passi.begin(), passi.end());
    esito.stato = headless::Avvia(
        principale, {[&] { Agisce(); }, [&](const headless::Messaggio& m) { return Risponde(m); }});
  }
  void Annota(const std::string& riga) override { esito.diario.push_back(riga); }

  void Vai(Controllo& c) override { headless::Vai(c); }
  void Clicca(Controllo& c) override { headless::Clicca(c); }
  void Scrivi(Controllo& c, const Testo& testo) override { headless::Digita(c, testo); }
  void Invio(Controllo& c) override { headless::Invio(c); }
  void Seleziona(Controllo& c, const std::vector<int>& voci) override { headless::Seleziona(c, voci); }
  void DoppioClick(Controllo& c, int voce) override { headless::DoppioClick(c, voce); }
  void Chiudi(Form& form) override { headless::Chiudi(form); }
  void Rispondi(Risposta risposta, int attesa) override { pronte_.push_back({risposta, attesa}); }
  void AspettaRiga(const std::string& riga) override {
    aspettata_ = riga;
    pazienza_ = 5000;
  }

  bool Vede(const Form& form) override { return headless::Visibile(form); }
  Testo Legge(const Controllo& c) override {
    if (c.tipo != TipoControllo::Lista) return c.testo;
    Testo letto;
    for (std::size_t i = 0; i < c.voci.size(); ++i) {
      if (i > 0) letto += '|';
      letto += (c.scelte[i] ? "*" : "") + c.voci[i];
    }
    return letto;
  }

 private:
  void Agisce() {
    if (Attende()) {
      headless::LasciaPassare(1);
      --pazienza_;
      return;
    }
    aspettata_.clear();
    if (passi_.empty()) TerminaProgramma(0);
    const Passo passo = std::move(passi_.front());
    passi_.pop_front();
    passo();
  }

  bool Attende() const {
    return !aspettata_.empty() && pazienza_ > 0 &&
           std::find(esito.diario.begin(), esito.diario.end(), aspettata_) == esito.diario.end();
  }

  Risposta Risponde(const headless::Messaggio& m) {
    Pronta pronta{m.bottoni == Bottoni::SiNo ? Risposta::No : Risposta::Ok, 0};
    if (!pronte_.empty()) {
      pronta = pronte_.front();
      pronte_.pop_front();
    }
    headless::LasciaPassare(pronta.attesa);
    Annota(RigaMessaggio(m.icona, m.bottoni, m.titolo, m.testo, pronta.risposta));
    return pronta.risposta;
  }

  std::deque<Passo> passi_;
  std::deque<Pronta> pronte_;
  std::string aspettata_;
  int pazienza_ = 0;
};

}  // namespace

Esito Prova(const std::function<void(Utente&)>& caso) {
  UtenteHeadless utente;
  caso(utente);
  return utente.esito;
}

}  // namespace tarvel::contratto
