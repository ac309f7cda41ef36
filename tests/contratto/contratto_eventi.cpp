// Keys, clicks, focus, lists and timers: which events fire, in which order, and what the controls hold then.
#include <gtest/gtest.h>

#include "tests/contratto/mobili.h"

namespace tarvel::contratto {
namespace {

TEST(ContrattoEventi, TastiPrimaDelTestoFuocoPersoPrimaDellEventoSeguente) {
  const Esito esito = Prova([](Utente& u) {
    FormDiario form(u, "F");
    form.Etichetta("L");
    Controllo& a = form.Casella("A", "vecchio");
    Controllo& b = form.Casella("B");
    b.fuocoPerso = [&] {
      u.Annota(MostraMessaggio("perso B", "", Icona::Nessuna) == Risposta::Ok ? "ok" : "altro");
    };
    Controllo& salva = form.Bottone("Salva", [&] {
      const Risposta r = MostraMessaggio("Salvare?", "D", Icona::Esclamazione, Bottoni::SiNo);
      u.Annota(r == Risposta::Si ? "si" : r == Risposta::No ? "no" : "ok");
    });
    for (const Risposta r : {Risposta::Ok, Risposta::Si, Risposta::Ok, Risposta::No}) u.Rispondi(r);
    u.Esegui(form, {[&] { u.Vai(b); }, [&] { u.Vai(b); }, [&] { u.Vai(a); },
                    [&] { u.Scrivi(a, "1\xE0\x80"); }, [&] { u.Invio(a); }, [&] { u.Scrivi(a, ""); },
                    [&] { u.Invio(a); }, [&] { u.Clicca(salva); }, [&] { u.Scrivi(b, "5"); },
                    [&] { u.Clicca(salva); }, [&] { u.Invio(salva); }, [&] { u.Vai(b); }, [&] { u.Vai(a); }});
  });
  const std::string persoB = "messaggio nessuna ok \"\" \"perso B\" -> ok";
  const std::string domanda = "messaggio esclamazione sino \"D\" \"Salvare?\" -> ";
  EXPECT_EQ(InRiga(esito.diario),
            "load F; perso A 'vecchio'; " + persoB +
                "; ok; tasto A 49 'vecchio'; tasto A 224 '1'; tasto A 128 '1\xE0'; tasto A 13 '1\xE0\x80'; "
                "tasto A 8 '1\xE0\x80'; tasto A 13 ''; perso A ''; " +
                domanda + "si; si; tasto B 53 ''; " + persoB + "; ok; " + domanda + "no; no; " + domanda +
                "no; no; " + persoB + "; ok");
  EXPECT_EQ(esito.stato, 0);
}

TEST(ContrattoEventi, LeListeTengonoLaSceltaEICambiDelProgrammaNonDannoEventi) {
  const Esito esito = Prova([](Utente& u) {
    FormDiario form(u, "F");
    Controllo& etichetta = form.Etichetta("E");
    Controllo& a = form.Casella("A", "1");
    Controllo& una = form.Lista("Una", false);
    Controllo& tante = form.Lista("Tante", true);
    const auto annota = [&] {
      std::string segni;
      for (const bool scelta : tante.scelte) segni += scelta ? '1' : '0';
      u.Annota(u.Legge(etichetta) + ' ' + u.Legge(a) + ' ' + u.Legge(una) + ' ' + u.Legge(tante) + ' ' +
               segni);
    };
    Controllo& leggi = form.Bottone("Leggi", annota);
    Controllo& cambia = form.Bottone("Cambia", [&] {
      ImpostaTesto(a, "gi\xE0");
      ImpostaTesto(etichetta, "\x80 5");
      ImpostaVoci(tante, {"x", "y"});
      annota();
    });
    form.alCaricamento = [&] {
      ImpostaVoci(una, {"a", "b", "c"});
      ImpostaVoci(tante, {"a", "b", "c", "d"});
    };
    ImpostaTesto(a, "2");
    const auto sceglie = [&](Controllo& lista, std::vector<int> voci) {
      return [&u, &lista, voci] { u.Seleziona(lista, voci); };
    };
    u.Esegui(form, {annota, sceglie(una, {0}), sceglie(una, {2}), sceglie(tante, {0, 1, 3}),
                    [&] { u.Clicca(leggi); }, sceglie(tante, {2, 1}), [&] { u.Clicca(leggi); },
                    [&] { u.DoppioClick(una, 1); }, [&] { u.DoppioClick(tante, 1); },
                    [&] { u.Clicca(cambia); }, annota});
  });
  EXPECT_EQ(InRiga(esito.diario),
            "load F;  2 a|b|c a|b|c|d 0000; perso A '2';  2 a|b|*c *a|*b|c|*d 1101; "
            " 2 a|b|*c a|*b|*c|d 0110; doppio Una 'a|*b|c'; doppio Tante 'a|*b|c|d'; "
            "\x80 5 gi\xE0 a|*b|c x|y 00; \x80 5 gi\xE0 a|*b|c x|y 00");
}

TEST(ContrattoEventi, IlTimerScattaFinoAlFermoMaNonDuranteGestoriEMessaggi) {
  const Esito esito = Prova([](Utente& u) {
    FormDiario form(u, "F");
    Temporizzatore timer;
    const auto avvisa = [&](const std::string& dopo) {
      MostraMessaggio("attendi", "T", Icona::Informazione);
      u.Annota(dopo + (timer.attivo ? " attivo" : " fermo"));
    };
    timer.scatto = [&, resta = 3]() mutable {
      u.Annota("scatto");
      if (--resta == 0) AbilitaTimer(timer, false);
      avvisa("fine " + std::to_string(resta));
    };
    Controllo& avvia = form.Bottone("Avvia", [&] {
      AbilitaTimer(timer, true);
      AbilitaTimer(timer, true);
      avvisa("avviato");
    });
    Controllo& due = form.Bottone("Due", [&] {
      AbilitaTimer(timer, true);
      AbilitaTimer(timer, false);
      avvisa("due");
    });
    u.Rispondi(Risposta::Ok, 100);
    u.Rispondi(Risposta::Ok, 50);
    u.Esegui(form, {[&] { u.Clicca(avvia); }, [&] { u.AspettaRiga("fine 0 fermo"); }, [&] { u.Clicca(due); },
                    [&] { u.Annota("fine"); }});
  });
  const std::string messaggio = "messaggio informazione ok \"T\" \"attendi\" -> ok";
  EXPECT_EQ(InRiga(esito.diario), "load F; " + messaggio + "; avviato attivo; scatto; " + messaggio +
                                      "; fine 2 attivo; scatto; " + messaggio + "; fine 1 attivo; scatto; " +
                                      messaggio + "; fine 0 fermo; " + messaggio + "; due fermo; fine");
}

}  // namespace
}  // namespace tarvel::contratto
