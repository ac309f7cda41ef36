// Keys, clicks, focus, lists and timers: which events fire, in which order, and what the controls hold then.
#include <gtest/gtest.h>

#include "tests/contratto/mobili.h"

namespace tarvel::contratto {
namespace {

TEST(ContrattoEventi, TastiPrimaDelTestoFuocoPersoPrimaDellEventoSeguente) {
  const std::string diario = Prova([](Utente& u) {
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
    Passi s{u};
    for (const Risposta r : {Risposta::Ok, Risposta::Si, Risposta::Ok, Risposta::No}) u.Rispondi(r);
    u.Esegui(form,
             {s.Va(b), s.Va(b), s.Va(a), s.Scrive(a, "1\xE0\x80"), s.Invia(a), s.Scrive(a, ""), s.Invia(a),
              s.Clicca(salva), s.Scrive(b, "5"), s.Clicca(salva), s.Invia(salva), s.Va(b), s.Va(a)});
  });
  const std::string persoB = "messaggio nessuna ok \"\" \"perso B\" -> ok";
  const std::string domanda = "messaggio esclamazione sino \"D\" \"Salvare?\" -> ";
  EXPECT_EQ(diario,
            Righe("load F; perso A 'vecchio'; " + persoB +
                  "; ok; tasto A 49 'vecchio'; tasto A 224 '1'; tasto A 128 '1\xE0'; tasto A 13 '1\xE0\x80'; "
                  "tasto A 8 '1\xE0\x80'; tasto A 13 ''; perso A ''; " +
                  domanda + "si; si; tasto B 53 ''; " + persoB + "; ok; " + domanda + "no; no; " + domanda +
                  "no; no; " + persoB + "; ok"));
}

TEST(ContrattoEventi, LeListeTengonoLaSceltaEICambiDelProgrammaNonDannoEventi) {
  const std::string diario = Prova([](Utente& u) {
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
    Passi s{u};
    u.Esegui(form, {annota, s.Sceglie(una, {0}), s.Sceglie(una, {2}), s.Sceglie(tante, {0, 1, 3}),
                    s.Clicca(leggi), s.Sceglie(tante, {2, 1}), s.Clicca(leggi), s.DoppioClick(una, 1),
                    s.DoppioClick(tante, 1), s.Clicca(cambia), annota});
  });
  EXPECT_EQ(diario, Righe("load F;  2 a|b|c a|b|c|d 0000; perso A '2';  2 a|b|*c *a|*b|c|*d 1101; "
                          " 2 a|b|*c a|*b|*c|d 0110; doppio Una 'a|*b|c'; doppio Tante 'a|*b|c|d'; "
                          "\x80 5 gi\xE0 a|*b|c x|y 00; \x80 5 gi\xE0 a|*b|c x|y 00"));
}

TEST(ContrattoEventi, IlTimerScattaFinoAlFermoMaNonDuranteGestoriEMessaggi) {
  const std::string diario = Prova([](Utente& u) {
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
    Passi s{u};
    u.Rispondi(Risposta::Ok, 100);
    u.Rispondi(Risposta::Ok, 50);
    u.Esegui(form, {s.Clicca(avvia), s.Aspetta("fine 0 fermo"), s.Clicca(due), s.Annota("fine")});
  });
  const std::string messaggio = "messaggio informazione ok \"T\" \"attendi\" -> ok";
  EXPECT_EQ(diario, Righe("load F; " + messaggio + "; avviato attivo; scatto; " + messaggio +
                          "; fine 2 attivo; scatto; " + messaggio + "; fine 1 attivo; scatto; " + messaggio +
                          "; fine 0 fermo; " + messaggio + "; due fermo; fine"));
}

}  // namespace
}  // namespace tarvel::contratto
