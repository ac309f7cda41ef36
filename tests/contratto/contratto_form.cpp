// Loading, showing, modality, unloading and the end of the program.
#include <gtest/gtest.h>

#include "tests/contratto/mobili.h"

namespace tarvel::contratto {
namespace {

// The main form F shows M modally, and M in its turn N; L stands beside whichever form shows it.
struct Scena : Passi {
  explicit Scena(Utente& utente) : Passi{utente} {}

  void Stato(const Form& form) { u.Annota(form.nome + (u.Vede(form) ? " vista" : " via")); }
  void Apri(Form& form) {
    MostraFormModale(form);
    Stato(form);
  }
  Passo Scatta(const std::string& riga) {
    return [this, riga] {
      AbilitaTimer(timer, true);
      u.AspettaRiga(riga);
    };
  }

  Temporizzatore timer;
  FormDiario f{u, "F"}, m{u, "M"}, n{u, "N"}, l{u, "L"};
  Controllo& a = f.Casella("A");
  Controllo& b = f.Casella("B");
  Controllo& apriM = f.Bottone("ApriM", [this] { Apri(m); });
  Controllo& apriN = m.Bottone("ApriN", [this] { Apri(n); });
  Controllo& mostraL = m.Bottone("MostraL", [this] { MostraForm(l); });
  Controllo& nascondiM = m.Bottone("NascondiM", [this] { NascondiForm(m); });
  Controllo& scaricaM = m.Bottone("ScaricaM", [this] {
    ScaricaForm(m);
    ScaricaForm(m);
    Stato(m);
  });
  Controllo& testoM = m.Casella("m", "1");
  Controllo& premiN = n.Bottone("N");
  Controllo& testoL = l.Casella("l", "1");
  Controllo& premiL = l.Bottone("L");
  Controllo& nascondiL = l.Bottone("NascondiL", [this] { NascondiForm(l); });
};

TEST(ContrattoForm, LaFormModaleTrattieneChiLaMostraEBloccaLeAltre) {
  const std::string diario = Prova([](Utente& u) {
    Scena s(u);
    const Passo premeL = s.Clicca(s.premiL), apreM = s.Clicca(s.apriM);
    s.f.alCaricamento = [&] { ScaricaForm(s.m); };
    s.m.alloScarico = s.f.alCaricamento;
    s.timer.scatto = [&] {
      AbilitaTimer(s.timer, false);
      ScaricaForm(s.m);
      u.Annota("scatto");
    };
    u.Esegui(s.f, {apreM, apreM, s.Chiude(s.f), s.Clicca(s.mostraL), premeL, s.Clicca(s.apriN), premeL,
                   s.Clicca(s.mostraL), apreM, s.Chiude(s.n), premeL, apreM, s.Chiude(s.m), premeL, apreM,
                   s.Clicca(s.scaricaM), apreM, s.Scatta("scatto"), premeL});
  });
  EXPECT_EQ(diario,
            Righe("load F; perso A ''; load M; load L; perso l '1'; click L; load N; unload N; N via; "
                  "click L; unload M; M via; click L; load M; unload M; M via; M via; load M; "
                  "unload M; scatto; M via; click L"));
}

// The focus returns from a form without an event; a close box takes it with one, before the unload hook.
TEST(ContrattoForm, LaFormNascostaTieneLoStatoEChiudereTieneIlBattuto) {
  const std::string diario = Prova([](Utente& u) {
    Scena s(u);
    s.b.tasto = [&](int) { s.Apri(s.m); };
    s.timer.scatto = [] { TerminaProgramma(7); };
    s.f.alloScarico = [&] {
      MostraMessaggio("Salvare?", "INFORMAZIONE", Icona::Informazione, Bottoni::SiNo);
      MostraFormModale(s.n);
      AbilitaTimer(s.timer, true);
    };
    u.Rispondi(Risposta::Si);
    u.Esegui(s.f, {s.Va(s.b), s.Invia(s.b), s.Scrive(s.testoM, "2"), s.Clicca(s.nascondiM), s.Va(s.b),
                   s.Invia(s.b), s.Legge(s.testoM), s.Invia(s.testoM), s.Chiude(s.m), s.Va(s.b),
                   s.Scrive(s.a, "7"), s.Chiude(s.f), s.Chiude(s.n), s.Aspetta("mai")});
  });
  EXPECT_EQ(
      diario,
      Righe("load F; perso A ''; load M; perso B ''; tasto m 50 '1'; perso m '2'; M via; perso B ''; "
            "2; tasto m 13 '2'; perso m '2'; unload M; M via; perso B ''; tasto A 55 ''; perso A '7'; "
            "unload F; messaggio informazione sino \"INFORMAZIONE\" \"Salvare?\" -> si; load N; unload N",
            7));
}

// A control hears of a form that a handler shows only after the handler.
TEST(ContrattoForm, FormNonModaliFiancoAFianco) {
  const std::string diario = Prova([](Utente& u) {
    Scena s(u);
    s.f.alCaricamento = [&] {
      CaricaForm(s.l);
      CaricaForm(s.l);
      s.Stato(s.l);
    };
    s.a.tasto = [&](int) {
      MostraForm(s.l);
      u.Annota("mostrata");
    };
    const Passo mostra = s.Invia(s.a), nasconde = s.Clicca(s.nascondiL);
    const Passo guarda = [&] { s.Stato(s.l); };
    u.Esegui(s.f,
             {mostra, guarda, s.Scrive(s.testoL, "2"), mostra, s.Invia(s.testoL), nasconde, guarda, mostra,
              nasconde, s.Va(s.b), mostra, s.Scrive(s.testoL, "3"), s.Chiude(s.l), guarda, s.Va(s.b)});
  });
  EXPECT_EQ(diario,
            Righe("load F; load L; L via; mostrata; perso A ''; L vista; tasto l 50 '1'; "
                  "perso l '2'; mostrata; perso A ''; tasto l 13 '2'; perso l '2'; L via; mostrata; "
                  "perso A ''; perso l '2'; perso A ''; perso B ''; mostrata; perso A ''; tasto l 51 '2'; "
                  "perso l '3'; unload L; L via; perso A ''"));
}

// Whatever is open, the end is at once: no unload hook, no code after it, no further step.
TEST(ContrattoForm, IlProgrammaFinisceSubitoOvunqueSia) {
  const std::string messaggio = std::string("; messaggio stop ok \"") + kTitoloProgramma +
                                "\" \"Errore irreversibile: numero (riga 1)\" -> ok";
  enum Luogo { kCaricamento, kClick, kScatto, kScarico };
  const std::pair<Luogo, std::string> luoghi[] = {
      {kCaricamento, "load F"},
      {kClick, "load F; perso A ''; load M; load N"},
      {kScatto, "load F; perso A ''; load M; load N"},
      {kScarico, "load F; perso A ''; load M; load N; unload N"},
  };
  for (const bool fatale : {false, true})
    for (const auto& [luogo, prime] : luoghi) {
      const auto fine = [&] {
        if (fatale) throw ErroreFatale(TipoErrore::Formato, "numero", "riga 1");
        TerminaProgramma(5);
      };
      const std::string diario = Prova([&, dove = luogo](Utente& u) {
        Scena s(u);
        (dove == kCaricamento ? s.f.alCaricamento : s.n.alloScarico) = fine;
        s.premiN.click = s.timer.scatto = fine;
        const Passo passi[] = {[] {}, s.Clicca(s.premiN), s.Scatta("mai"), s.Chiude(s.n)};
        u.Esegui(s.f, {s.Clicca(s.apriM), s.Clicca(s.apriN), passi[dove], s.Annota("mai")});
      });
      EXPECT_EQ(diario, Righe(prime + (fatale ? messaggio : ""), fatale ? 1 : 5)) << luogo;
    }
}

}  // namespace
}  // namespace tarvel::contratto
