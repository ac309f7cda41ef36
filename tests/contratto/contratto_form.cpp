// Loading, showing, modality, unloading and the end of the program.
#include <gtest/gtest.h>

#include "tests/contratto/mobili.h"

namespace tarvel::contratto {
namespace {

TEST(ContrattoForm, AModalFormHoldsItsCallerAndBlocksTheOthers) {
  const Esito esito = Prova([](Utente& u) {
    FormDiario modale(u, "M");
    Controllo& chiudi = modale.Bottone("Chiudi", [&] {
      ScaricaForm(modale);
      u.Annota("fine Chiudi");
    });
    FormDiario form(u, "F");
    Controllo& apri = form.Bottone("Apri", [&] {
      MostraFormModale(modale);
      u.Annota(FormCaricata(modale) || u.Vede(modale) ? "ancora" : "andata");
    });
    u.Esegui(form, {[&] { u.Clicca(apri); }, [&] { u.Clicca(apri); }, [&] { u.Chiudi(form); },
                    [&] { u.Clicca(chiudi); }, [&] { u.Clicca(apri); }, [&] { u.Chiudi(modale); }});
  });
  EXPECT_EQ(esito.diario, (Diario{"load F", "click Apri", "load M", "click Chiudi", "unload M", "fine Chiudi",
                                  "andata", "click Apri", "load M", "unload M", "andata"}));
  EXPECT_EQ(esito.stato, 0);
}

TEST(ContrattoForm, TheFocusReturnsFromAModalFormWithoutAnEvent) {
  const Esito esito = Prova([](Utente& u) {
    FormDiario modale(u, "M");
    Controllo& m = modale.Casella("m");
    FormDiario form(u, "F");
    Controllo& a = form.Casella("A");
    Controllo& b = form.Casella("B");
    b.tasto = [&](int) {
      MostraFormModale(modale);
      u.Annota("tornata");
    };
    u.Esegui(form, {[&] { u.Vai(b); }, [&] { u.Invio(b); }, [&] { u.Invio(m); }, [&] { u.Chiudi(modale); },
                    [&] { u.Vai(b); }, [&] { u.Vai(a); }});
  });
  EXPECT_EQ(esito.diario, (Diario{"load F", "perso A ''", "load M", "perso B ''", "tasto m 13 ''",
                                  "perso m ''", "unload M", "tornata", "perso B ''"}));
}

TEST(ContrattoForm, AHiddenModalFormReturnsLoadedWithItsState) {
  const Esito esito = Prova([](Utente& u) {
    FormDiario modale(u, "M");
    Controllo& casella = modale.Casella("m", "1");
    Controllo& via = modale.Bottone("Via", [&] { NascondiForm(modale); });
    FormDiario form(u, "F");
    Controllo& apri = form.Bottone("Apri", [&] {
      MostraFormModale(modale);
      u.Annota(FormCaricata(modale) && !u.Vede(modale) ? "nascosta" : "altro");
    });
    u.Esegui(form, {[&] { u.Clicca(apri); }, [&] { u.Scrivi(casella, "2"); }, [&] { u.Clicca(via); },
                    [&] { u.Clicca(apri); }, [&] { u.Annota(u.Legge(casella)); }, [&] { u.Clicca(via); }});
  });
  EXPECT_EQ(esito.diario,
            (Diario{"load F", "click Apri", "load M", "tasto m 50 '1'", "perso m '2'", "click Via",
                    "nascosta", "click Apri", "2", "perso m '2'", "click Via", "nascosta"}));
}

TEST(ContrattoForm, NestedModalFormsReturnInnermostFirst) {
  const Esito esito = Prova([](Utente& u) {
    FormDiario interna(u, "M2");
    interna.Bottone("x");
    FormDiario esterna(u, "M1");
    Controllo& apri2 = esterna.Bottone("Apri2", [&] {
      MostraFormModale(interna);
      u.Annota("dopo M2");
    });
    FormDiario libera(u, "L");
    Controllo& l = libera.Bottone("l");
    Controllo& mostra = esterna.Bottone("Mostra", [&] { MostraForm(libera); });
    FormDiario form(u, "F");
    Controllo& apri1 = form.Bottone("Apri1", [&] {
      MostraFormModale(esterna);
      u.Annota("dopo M1");
    });
    u.Esegui(form, {[&] { u.Clicca(apri1); }, [&] { u.Clicca(mostra); }, [&] { u.Clicca(l); },
                    [&] { u.Clicca(apri2); }, [&] { u.Clicca(l); }, [&] { u.Clicca(mostra); },
                    [&] { u.Chiudi(interna); }, [&] { u.Clicca(apri1); }, [&] { u.Clicca(l); },
                    [&] { u.Chiudi(esterna); }, [&] { u.Clicca(l); }, [&] { u.Clicca(apri1); }});
  });
  EXPECT_EQ(esito.diario, (Diario{"load F", "click Apri1", "load M1", "click Mostra", "load L", "click l",
                                  "click Apri2", "load M2", "unload M2", "dopo M2", "click l", "unload M1",
                                  "dopo M1", "click l", "click Apri1", "load M1"}));
}

TEST(ContrattoForm, ModelessFormsAreUsedSideBySide) {
  const Esito esito = Prova([](Utente& u) {
    FormDiario opzioni(u, "O");
    Controllo& o = opzioni.Casella("o", "1");
    Controllo& chiudi = opzioni.Bottone("Chiudi", [&] { NascondiForm(opzioni); });
    FormDiario form(u, "F");
    Controllo& a = form.Casella("A");
    Controllo& mostra = form.Bottone("Mostra", [&] {
      MostraForm(opzioni);
      u.Annota("mostrata");
    });
    form.alCaricamento = [&] {
      CaricaForm(opzioni);
      CaricaForm(opzioni);
      u.Annota(u.Vede(opzioni) ? "si vede" : "non si vede");
    };
    u.Esegui(form, {[&] { u.Clicca(mostra); }, [&] { u.Scrivi(o, "2"); }, [&] { u.Invio(a); },
                    [&] { u.Clicca(mostra); }, [&] { u.Invio(o); }, [&] { u.Clicca(chiudi); },
                    [&] { u.Annota(u.Vede(opzioni) ? "si vede" : "non si vede"); }, [&] { u.Clicca(mostra); },
                    [&] { u.Scrivi(o, "3"); }, [&] { u.Chiudi(opzioni); }, [&] { u.Invio(a); }});
  });
  EXPECT_EQ(esito.diario,
            (Diario{"load F",       "load O",         "non si vede",  "perso A ''",     "click Mostra",
                    "mostrata",     "tasto o 50 '1'", "perso o '2'",  "tasto A 13 ''",  //
                    "perso A ''",   "click Mostra",   "mostrata",     "tasto o 13 '2'", "perso o '2'",
                    "click Chiudi", "non si vede",    "click Mostra", "mostrata",       "tasto o 51 '2'",
                    "perso o '3'",  "unload O",       "tasto A 13 ''"}));
}

TEST(ContrattoForm, AControlHearsOfAFormShownByAHandlerOnlyAfterTheHandler) {
  const Esito esito = Prova([](Utente& u) {
    FormDiario altra(u, "O");
    altra.Casella("o");
    FormDiario form(u, "F");
    Controllo& a = form.Casella("A");
    a.tasto = [&](int) {
      MostraForm(altra);
      u.Annota("fine tasto");
    };
    u.Esegui(form, {[&] { u.Invio(a); }, [&] { u.Annota("passo"); }});
  });
  EXPECT_EQ(esito.diario, (Diario{"load F", "load O", "fine tasto", "perso A ''", "passo"}));
}

TEST(ContrattoForm, TheCloseBoxStoresWhatWasTypedBeforeTheUnloadHook) {
  const Esito esito = Prova([](Utente& u) {
    FormDiario domanda(u, "M");
    domanda.Bottone("x");
    FormDiario form(u, "F");
    Controllo& a = form.Casella("A");
    Temporizzatore timer;
    timer.scatto = [] { TerminaProgramma(7); };
    form.alloScarico = [&] {
      MostraMessaggio("Salvare?", "INFORMAZIONE", Icona::Informazione, Bottoni::SiNo);
      MostraFormModale(domanda);
      AbilitaTimer(timer, true);
    };
    u.Rispondi(Risposta::Si);
    u.Esegui(form, {[&] { u.Scrivi(a, "7"); }, [&] { u.Chiudi(form); }, [&] { u.Chiudi(domanda); },
                    [&] { u.AspettaRiga("mai"); }});
  });
  EXPECT_EQ(esito.diario, (Diario{"load F", "tasto A 55 ''", "perso A '7'", "unload F",
                                  "messaggio informazione sino \"INFORMAZIONE\" \"Salvare?\" -> si", "load M",
                                  "unload M"}));
  EXPECT_EQ(esito.stato, 7);
}

TEST(ContrattoForm, AFormIsUnloadedOnceAndCanBeLoadedAgain) {
  const Esito esito = Prova([](Utente& u) {
    FormDiario altra(u, "O");
    altra.alloScarico = [&] { ScaricaForm(altra); };
    Controllo& via = altra.Bottone("Via", [&] {
      ScaricaForm(altra);
      ScaricaForm(altra);
      u.Annota(FormCaricata(altra) ? "caricata" : "scaricata");
    });
    FormDiario form(u, "F");
    form.alCaricamento = [&] { ScaricaForm(altra); };
    Controllo& apri = form.Bottone("Apri", [&] { MostraForm(altra); });
    u.Esegui(form, {[&] { u.Clicca(apri); }, [&] { u.Clicca(via); }, [&] { u.Clicca(apri); },
                    [&] { u.Clicca(via); }, [&] { u.Clicca(apri); }});
  });
  EXPECT_EQ(esito.diario,
            (Diario{"load F", "click Apri", "load O", "click Via", "unload O", "scaricata", "click Apri",
                    "load O", "click Via", "unload O", "scaricata", "click Apri", "load O"}));
}

struct Fine {
  const char* nome;
  std::function<void()> gestore;
  std::string messaggio;
  int stato;
};

// Whatever is open, the end is at once: no unload hook, no code after it, no further step.
TEST(ContrattoForm, TheProgramEndsAtOnceWhereverItIs) {
  const std::string messaggio = std::string("messaggio stop ok \"") + kTitoloProgramma + "\" ";
  const Fine fini[] = {
      {"fatal error", [] { throw ErroreFatale(TipoErrore::Indice, "indice 501", "tabella T"); },
       messaggio + "\"Errore irreversibile: indice 501 (tabella T)\" -> ok", 1},
      {"end", [] { TerminaProgramma(5); }, "", 5},
  };
  for (const Fine& fine : fini) {
    SCOPED_TRACE(fine.nome);
    const auto atteso = [&](Diario inizio) {
      if (!fine.messaggio.empty()) inizio.push_back(fine.messaggio);
      return inizio;
    };

    const Esito inModale = Prova([&](Utente& u) {
      FormDiario interna(u, "M2");
      Controllo& guasto = interna.Bottone("Guasto", fine.gestore);
      FormDiario esterna(u, "M1");
      Controllo& apri2 = esterna.Bottone("Apri2", [&] {
        MostraFormModale(interna);
        u.Annota("mai");
      });
      FormDiario form(u, "F");
      Controllo& apri1 = form.Bottone("Apri1", [&] {
        MostraFormModale(esterna);
        u.Annota("mai");
      });
      u.Esegui(form, {[&] { u.Clicca(apri1); }, [&] { u.Clicca(apri2); }, [&] { u.Clicca(guasto); },
                      [&] { u.Annota("mai"); }});
    });
    EXPECT_EQ(inModale.diario,
              atteso({"load F", "click Apri1", "load M1", "click Apri2", "load M2", "click Guasto"}));
    EXPECT_EQ(inModale.stato, fine.stato);

    const Esito alCaricamento = Prova([&](Utente& u) {
      FormDiario form(u, "F");
      form.alCaricamento = fine.gestore;
      u.Esegui(form, {[&] { u.Annota("mai"); }});
    });
    EXPECT_EQ(alCaricamento.diario, atteso({"load F"}));
    EXPECT_EQ(alCaricamento.stato, fine.stato);

    const Esito nelTimer = Prova([&](Utente& u) {
      FormDiario form(u, "F");
      form.Casella("A");
      Temporizzatore timer;
      timer.scatto = fine.gestore;
      form.alCaricamento = [&] { AbilitaTimer(timer, true); };
      u.Esegui(form, {[&] { u.AspettaRiga("mai"); }, [&] { u.Annota("mai"); }});
    });
    EXPECT_EQ(nelTimer.diario, atteso({"load F"}));
    EXPECT_EQ(nelTimer.stato, fine.stato);

    const Esito allaChiusura = Prova([&](Utente& u) {
      FormDiario form(u, "F");
      form.alloScarico = fine.gestore;
      u.Esegui(form, {[&] { u.Chiudi(form); }, [&] { u.Annota("mai"); }});
    });
    EXPECT_EQ(allaChiusura.diario, atteso({"load F", "unload F"}));
    EXPECT_EQ(allaChiusura.stato, fine.stato);
  }
}

}  // namespace
}  // namespace tarvel::contratto
