// Keys, clicks, focus and lists: which events fire, in which order, and what the controls hold then.
#include <gtest/gtest.h>

#include "tests/contratto/mobili.h"

namespace tarvel::contratto {
namespace {

TEST(ContrattoEventi, AKeyIsToldBeforeItChangesTheText) {
  const Esito esito = Prova([](Utente& u) {
    FormDiario form(u, "F");
    Controllo& a = form.Casella("A", "vecchio");
    u.Esegui(form, {[&] { u.Scrivi(a, "1\xE0\x80"); }, [&] { u.Invio(a); }, [&] { u.Scrivi(a, ""); },
                    [&] { u.Invio(a); }});
  });
  EXPECT_EQ(esito.diario, (Diario{"load F", "tasto A 49 'vecchio'", "tasto A 224 '1'", "tasto A 128 '1\xE0'",
                                  "tasto A 13 '1\xE0\x80'", "tasto A 8 '1\xE0\x80'", "tasto A 13 ''"}));
  EXPECT_EQ(esito.stato, 0);
}

TEST(ContrattoEventi, TheFirstControlThatCanHaveItGetsTheFocusAndLosesItFirst) {
  const Esito esito = Prova([](Utente& u) {
    FormDiario form(u, "F");
    form.Etichetta("L");
    form.Casella("A");
    Controllo& b = form.Casella("B");
    Controllo& ok = form.Bottone("OK");
    u.Esegui(form, {[&] { u.Vai(b); }, [&] { u.Vai(b); }, [&] { u.Scrivi(b, "5"); }, [&] { u.Clicca(ok); },
                    [&] { u.Invio(ok); }, [&] { u.Vai(b); }});
  });
  EXPECT_EQ(esito.diario,
            (Diario{"load F", "perso A ''", "tasto B 53 ''", "perso B '5'", "click OK", "click OK"}));
}

TEST(ContrattoEventi, AMessageOfALostFocusComesBeforeTheClickAndKeepsTheFocusWhereItWent) {
  const Esito esito = Prova([](Utente& u) {
    FormDiario form(u, "F");
    Controllo& a = form.Casella("A");
    Controllo& ok = form.Bottone("OK");
    a.fuocoPerso = [&] { MostraMessaggio("non valido", "ATTENZIONE", Icona::Esclamazione); };
    u.Esegui(form, {[&] { u.Clicca(ok); }, [&] { u.Invio(ok); }});
  });
  EXPECT_EQ(esito.diario, (Diario{"load F", "messaggio esclamazione ok \"ATTENZIONE\" \"non valido\" -> ok",
                                  "click OK", "click OK"}));
}

TEST(ContrattoEventi, TheProgramsOwnChangesAreSeenAndFireNothing) {
  const Esito esito = Prova([](Utente& u) {
    FormDiario form(u, "F");
    Controllo& etichetta = form.Etichetta("E");
    Controllo& a = form.Casella("A", "1");
    Controllo& lista = form.Lista("L", false);
    Controllo& ok = form.Bottone("OK", [&] {
      ImpostaTesto(a, "gi\xE0");
      ImpostaTesto(etichetta, "\x80 5");
      ImpostaVoci(lista, {"x", "y"});
    });
    form.alCaricamento = [&] { ImpostaVoci(lista, {"a", "b", "c"}); };
    ImpostaTesto(a, "2");
    u.Esegui(form, {[&] { u.Annota(u.Legge(a) + ' ' + u.Legge(lista)); }, [&] { u.Seleziona(lista, {1}); },
                    [&] { u.Clicca(ok); },
                    [&] { u.Annota(u.Legge(etichetta) + ' ' + u.Legge(a) + ' ' + u.Legge(lista)); }});
  });
  EXPECT_EQ(esito.diario, (Diario{"load F", "2 a|b|c", "perso A '2'", "click OK", "\x80 5 gi\xE0 x|y"}));
}

TEST(ContrattoEventi, ListsKeepTheSelectionTheUserMade) {
  const Esito esito = Prova([](Utente& u) {
    FormDiario form(u, "F");
    Controllo& una = form.Lista("Una", false);
    Controllo& tante = form.Lista("Tante", true);
    Controllo& ok = form.Bottone("OK", [&] { u.Annota(u.Legge(una) + " / " + u.Legge(tante)); });
    form.alCaricamento = [&] {
      ImpostaVoci(una, {"a", "b", "c"});
      ImpostaVoci(tante, {"a", "b", "c", "d"});
    };
    u.Esegui(form, {[&] { u.Clicca(ok); }, [&] { u.Seleziona(una, {0}); }, [&] { u.Seleziona(una, {2}); },
                    [&] {
                      u.Seleziona(tante, {0, 1, 3});
                    },
                    [&] { u.Clicca(ok); },
                    [&] {
                      u.Seleziona(tante, {2, 1});
                    },
                    [&] { u.Clicca(ok); }, [&] { u.DoppioClick(una, 1); }, [&] { u.DoppioClick(tante, 3); }});
  });
  EXPECT_EQ(esito.diario,
            (Diario{"load F", "click OK", "a|b|c / a|b|c|d", "click OK", "a|b|*c / *a|*b|c|*d", "click OK",
                    "a|b|*c / a|*b|*c|d", "doppio Una 'a|*b|c'", "doppio Tante 'a|b|c|*d'"}));
}

TEST(ContrattoEventi, TheFlagsOfAListAreThoseTheUserSees) {
  const Esito esito = Prova([](Utente& u) {
    FormDiario form(u, "F");
    Controllo& lista = form.Lista("L", true);
    Controllo& ok = form.Bottone("OK", [&] {
      std::string segni;
      for (const bool scelta : lista.scelte) segni += scelta ? '1' : '0';
      u.Annota(segni);
      ImpostaVoci(lista, {"solo"});
      u.Annota(lista.scelte == std::vector<bool>{false} ? "vuota" : "scelta");
    });
    form.alCaricamento = [&] { ImpostaVoci(lista, {"a", "b", "c"}); };
    u.Esegui(form, {[&] { u.Seleziona(lista, {0, 2}); }, [&] { u.Clicca(ok); }});
  });
  EXPECT_EQ(esito.diario, (Diario{"load F", "click OK", "101", "vuota"}));
}

TEST(ContrattoEventi, MessagesReturnWhatTheUserAnswered) {
  const Esito esito = Prova([](Utente& u) {
    FormDiario form(u, "F");
    Controllo& ok = form.Bottone("OK", [&] {
      for (int i = 0; i < 3; ++i) {
        const Risposta r = MostraMessaggio("Salvare?", "D", Icona::Informazione, Bottoni::SiNo);
        u.Annota(r == Risposta::Si ? "si" : r == Risposta::No ? "no" : "ok");
      }
      u.Annota(MostraMessaggio("fatto", "", Icona::Nessuna) == Risposta::Ok ? "ok" : "altro");
    });
    u.Rispondi(Risposta::Si);
    u.Rispondi(Risposta::No);
    u.Esegui(form, {[&] { u.Clicca(ok); }});
  });
  EXPECT_EQ(esito.diario, (Diario{"load F", "click OK",  //
                                  "messaggio informazione sino \"D\" \"Salvare?\" -> si", "si",
                                  "messaggio informazione sino \"D\" \"Salvare?\" -> no", "no",
                                  "messaggio informazione sino \"D\" \"Salvare?\" -> no", "no",
                                  "messaggio nessuna ok \"\" \"fatto\" -> ok", "ok"}));
}

}  // namespace
}  // namespace tarvel::contratto
