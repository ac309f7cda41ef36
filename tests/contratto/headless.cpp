// The suite's user on the scripted desktop: events go straight to the platform's hand.
#include <algorithm>

#include "platform/comune/argomenti.h"
#include "platform/headless/ambiente.h"
#include "platform/headless/contenuto.h"
#include "platform/headless/copione.h"
#include "platform/headless/desktop.h"
#include "platform/headless/mano.h"
#include "tests/contratto/utente.h"

namespace tarvel::contratto {
namespace {

class UtenteHeadless : public Utente {
 public:
  void Esegui(Form& principale, std::vector<Passo> passi) override {
    passi_.assign(passi.begin(), passi.end());
    ImpostaRigaComando(
        UnisciArgomenti(std::vector<std::string>(std::begin(kArgomenti), std::end(kArgomenti))));
    headless::ImpostaDecimale(',');
    const int stato =
        headless::Avvia(principale, {[&] { Agisce(); }, [&](const Messaggio& m) { return Risponde(m); }});
    Annota("fine " + std::to_string(stato));
  }

  void Vai(Controllo& c) override { headless::Vai(c); }
  void Clicca(Controllo& c) override { headless::Clicca(c); }
  void Premi(int tasto) override {
    tasto == kTastoIncolla ? headless::Incolla(kAppunti) : headless::Premi(tasto);
  }
  void AltroProgramma() override {}  // there is none on this desktop
  void Scrivi(Controllo& c, const Testo& testo) override { headless::Digita(c, testo); }
  void Invio(Controllo& c) override { headless::Invio(c); }
  void Seleziona(Controllo& c, const std::vector<int>& voci) override { headless::Seleziona(c, voci); }
  void DoppioClick(Controllo& c, int voce) override { headless::DoppioClick(c, voce); }
  void Chiudi(Form& form) override { tarvel::Chiudi(form); }
  void AspettaRiga(const std::string& riga) override {
    aspettata_ = riga;
    pazienza_ = 5000;
  }

  bool Vede(const Form& form) override {
    return std::find(Fila().begin(), Fila().end(), &form) != Fila().end();
  }
  bool VedeClessidra() override { return headless::Clessidra(); }
  Testo Legge(const Controllo& c) override {
    if (c.tipo != TipoControllo::Lista) return c.testo;
    Testo letto;
    for (std::size_t i = 0; i < c.voci.size(); ++i)
      letto += Testo(i > 0 ? "|" : "") + (c.scelte[i] ? "*" : "") + c.voci[i];
    return letto;
  }
  std::string Mostrato(const Controllo& casella) override {
    const Taglio taglio = headless::Tagliato(casella);
    return taglio.inizio ? "fine <" : taglio.fine ? "inizio >" : "tutto";
  }
  std::string Indica(const Controllo& casella) override {
    Testo tutto = NomeAccessibile(casella) + ": " + headless::SuggerimentoDi(casella);
    std::replace(tutto.begin(), tutto.end(), '\n', '/');
    return tutto;
  }

 private:
  void Agisce() {
    if (!Scritta(aspettata_) && pazienza_-- > 0) return headless::LasciaPassare(1);
    pazienza_ = 0;
    FaProssimo();
  }

  Risposta Risponde(const Messaggio& m) {
    const auto [risposta, attesa] = ProssimaRisposta(m.bottoni);
    headless::LasciaPassare(attesa);
    if (VedeClessidra()) Annota("clessidra");
    Annota(RigaMessaggio(m.icona, m.bottoni, m.titolo, m.testo, risposta));
    return risposta;
  }

  std::string aspettata_;
  int pazienza_ = 0;  // milliseconds, while a line is waited for
};

}  // namespace

std::string Prova(const std::function<void(Utente&)>& caso) {
  UtenteHeadless utente;
  caso(utente);
  return utente.diario;
}

}  // namespace tarvel::contratto
