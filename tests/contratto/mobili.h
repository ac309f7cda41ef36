// Forms of the suite: their controls stand in one column, and every event writes a diary line.
#pragma once

#include <deque>
#include <functional>
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
    Controllo& c = propri_.emplace_back();
    c.tipo = tipo;
    c.nome = n;
    c.posto = {100, altezza - 300, 3800, alto};
    altezza += alto + 100;
    controlli.push_back(&c);
    return c;
  }
  Testo Letto(const Controllo& c) { return " '" + utente_.Legge(c) + "'"; }

  Utente& utente_;
  std::deque<Controllo> propri_;
};

/// The diary with "; " between its lines.
inline std::string InRiga(const std::vector<std::string>& diario) {
  std::string riga;
  for (const std::string& voce : diario) riga += (riga.empty() ? "" : "; ") + voce;
  return riga;
}

}  // namespace tarvel::contratto
