// Forms of the suite: their controls stand in one column, and every event writes a diary line. The user's
// deeds as steps.
#pragma once

#include <deque>
#include <functional>
#include <regex>
#include <string>
#include <utility>

#include "tests/contratto/utente.h"

namespace tarvel::contratto {

/// Lines: "load F", "unload F", "click B" (of a button that has nothing else to do), "tasto A 65 'x'"
/// (the text the box holds then), "perso A 'x'", "doppio L 'a|*b'".
class FormDiario : public Form {
 public:
  FormDiario(Utente& utente, const Testo& nomeForm) : utente_(utente) {
    nome = titolo = nomeForm;
    larghezza = 4000;
    altezza = 400;
  }

  Controllo& Casella(const Testo& n, const Testo& testo = "") {
    Controllo& c = Nuovo(TipoControllo::Casella, n);
    c.testo = testo;
    c.tasto = [this, &c](int codice) {
      utente_.Annota("tasto " + c.nome + ' ' + std::to_string(codice) + Letto(c));
    };
    c.fuocoPerso = [this, &c] { utente_.Annota("perso " + c.nome + Letto(c)); };
    return c;
  }
  Controllo& Bottone(const Testo& n, std::function<void()> gestore = {}) {
    Controllo& c = Nuovo(TipoControllo::Bottone, n);
    c.testo = n;
    c.click = gestore ? std::move(gestore) : [this, &c] { utente_.Annota("click " + c.nome); };
    return c;
  }
  Controllo& Etichetta(const Testo& n) { return Nuovo(TipoControllo::Etichetta, n); }
  Controllo& Lista(const Testo& n, bool estesa) {
    Controllo& c = Nuovo(TipoControllo::Lista, n, 1500);
    c.selezioneEstesa = estesa;
    c.doppioClick = [this, &c] { utente_.Annota("doppio " + c.nome + Letto(c)); };
    return c;
  }

  void Form_Load() override {
    utente_.Annota("load " + nome);
    if (alCaricamento) alCaricamento();
  }
  void Form_Unload() override {
    utente_.Annota("unload " + nome);
    if (alloScarico) alloScarico();
  }

  std::function<void()> alCaricamento;
  std::function<void()> alloScarico;

 private:
  Controllo& Nuovo(TipoControllo tipo, const Testo& n, int alto = 300) {
    Controllo& c = propri_.emplace_back(NuovoControllo(tipo, n, {100, altezza - 300, 3800, alto}));
    altezza += alto + 100;
    controlli.push_back(&c);
    return c;
  }
  Testo Letto(const Controllo& c) { return " '" + utente_.Legge(c) + "'"; }

  Utente& utente_;
  std::deque<Controllo> propri_;
};

struct Passi {
  Passo Preme(const Testo& tasti) {
    return [&u = u, tasti] {
      for (const char tasto : tasti) u.Premi(tasto);
    };
  }
  Passo Va(Controllo& c) { return std::bind_front(&Utente::Vai, &u, std::ref(c)); }
  Passo Clicca(Controllo& c) { return std::bind_front(&Utente::Clicca, &u, std::ref(c)); }
  Passo Scrive(Controllo& c, const Testo& t) { return std::bind_front(&Utente::Scrivi, &u, std::ref(c), t); }
  Passo Invia(Controllo& c) { return std::bind_front(&Utente::Invio, &u, std::ref(c)); }
  Passo Sceglie(Controllo& c, const std::vector<int>& v) {
    return std::bind_front(&Utente::Seleziona, &u, std::ref(c), v);
  }
  Passo DoppioClick(Controllo& c, int v) { return std::bind_front(&Utente::DoppioClick, &u, std::ref(c), v); }
  Passo Chiude(Form& form) { return std::bind_front(&Utente::Chiudi, &u, std::ref(form)); }
  Passo Annota(const std::string& riga) { return std::bind_front(&Utente::Annota, &u, riga); }
  Passo Aspetta(const std::string& riga) { return std::bind_front(&Utente::AspettaRiga, &u, riga); }
  Passo Legge(Controllo& c) {
    return [&u = u, &c] { u.Annota(u.Legge(c)); };
  }

  Utente& u;
};

/// A diary written with "; " between its lines, and the end with this status.
inline std::string Righe(const std::string& diario, int stato = 0) {
  return std::regex_replace(diario, std::regex("; "), "\n") + "\nfine " + std::to_string(stato) + '\n';
}

}  // namespace tarvel::contratto
