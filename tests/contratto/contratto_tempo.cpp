// Timers, and the programs the desktop starts.
#include <gtest/gtest.h>

#include "platform/programmi.h"
#include "tests/contratto/mobili.h"

namespace tarvel::contratto {
namespace {

// Fires a few times, writes each, then stops itself.
struct Orologio : Temporizzatore {
  Orologio(Utente& u, int volte) : resta(volte) {
    nome = "Timer1";
    scatto = [this, &u] {
      if (--resta == 0) AbilitaTimer(*this, false);
      u.Annota("scatto " + std::to_string(resta));
    };
  }
  int resta;
};

TEST(ContrattoTempo, ATimerFiresUntilItIsStopped) {
  const Esito esito = Prova([](Utente& u) {
    FormDiario form(u, "F");
    Orologio timer(u, 3);
    Controllo& avvia = form.Bottone("Avvia", [&] {
      AbilitaTimer(timer, true);
      AbilitaTimer(timer, true);
      u.Annota(timer.attivo ? "attivo" : "fermo");
    });
    Controllo& due = form.Bottone("Due", [&] {
      AbilitaTimer(timer, true);
      AbilitaTimer(timer, false);
      u.Annota(timer.attivo ? "attivo" : "fermo");
    });
    u.Esegui(form, {[&] { u.Clicca(avvia); }, [&] { u.AspettaRiga("scatto 0"); }, [&] { u.Clicca(due); },
                    [&] { u.Annota("fine"); }});
  });
  EXPECT_EQ(esito.diario, (Diario{"load F", "click Avvia", "attivo", "scatto 2", "scatto 1", "scatto 0",
                                  "click Due", "fermo", "fine"}));
}

TEST(ContrattoTempo, ATimerWaitsForMessageBoxesAndHandlersToEnd) {
  const Esito esito = Prova([](Utente& u) {
    FormDiario form(u, "F");
    Orologio timer(u, 1);
    Controllo& avvia = form.Bottone("Avvia", [&] {
      AbilitaTimer(timer, true);
      MostraMessaggio("attendi", "T", Icona::Informazione);
      u.Annota("fine Avvia");
    });
    u.Rispondi(Risposta::Ok, 100);
    u.Esegui(form, {[&] { u.Clicca(avvia); }, [&] { u.AspettaRiga("scatto 0"); }});
  });
  EXPECT_EQ(esito.diario,
            (Diario{"load F", "click Avvia", "messaggio informazione ok \"T\" \"attendi\" -> ok",
                    "fine Avvia", "scatto 0"}));
}

TEST(ContrattoTempo, ATimerDoesNotFireInsideItsOwnHandler) {
  const Esito esito = Prova([](Utente& u) {
    FormDiario form(u, "F");
    Temporizzatore timer;
    int volte = 0;
    timer.scatto = [&] {
      if (++volte == 2) AbilitaTimer(timer, false);
      u.Annota("inizio");
      MostraMessaggio("m", "T", Icona::Nessuna);
      u.Annota("fine " + std::to_string(volte));
    };
    form.alCaricamento = [&] { AbilitaTimer(timer, true); };
    u.Rispondi(Risposta::Ok, 50);
    u.Esegui(form, {[&] { u.AspettaRiga("fine 2"); }});
  });
  const std::string messaggio = "messaggio nessuna ok \"T\" \"m\" -> ok";
  EXPECT_EQ(esito.diario, (Diario{"load F", "inizio", messaggio, "fine 1", "inizio", messaggio, "fine 2"}));
}

TEST(ContrattoTempo, AModalFormLetsTimersFireAndCanBeClosedByOne) {
  const Esito esito = Prova([](Utente& u) {
    FormDiario modale(u, "M");
    modale.Bottone("x");
    Temporizzatore timer;
    timer.scatto = [&] {
      AbilitaTimer(timer, false);
      ScaricaForm(modale);
      u.Annota("scatto");
    };
    FormDiario form(u, "F");
    Controllo& apri = form.Bottone("Apri", [&] {
      AbilitaTimer(timer, true);
      MostraFormModale(modale);
      u.Annota("tornata");
    });
    u.Esegui(form, {[&] { u.Clicca(apri); }, [&] { u.AspettaRiga("tornata"); }});
  });
  EXPECT_EQ(esito.diario, (Diario{"load F", "click Apri", "load M", "unload M", "scatto", "tornata"}));
}

TEST(ContrattoProgrammi, IdsAreNewAndOnlyOfProgramsThatStart) {
  const Esito esito = Prova([](Utente& u) {
    FormDiario form(u, "F");
    Controllo& ok = form.Bottone("OK", [&] {
      const auto uno = AvviaProgramma("\\bin\\TRUE", 1);
      const auto due = AvviaProgramma("\\bin\\true", 1);
      u.Annota(uno && due && *uno != 0 && *due != 0 && *uno != *due ? "diversi" : "guasto");
      for (const char* percorso : {"\\bin\\non c'e'", "\\bin", ""})
        u.Annota(AvviaProgramma(percorso, 1) ? "avviato" : "niente");
      for (const std::int32_t id : {0, -1, 12345}) u.Annota(AttivaProgramma(id) ? "attivo" : "nessuno");
    });
    u.Esegui(form, {[&] { u.Clicca(ok); }});
  });
  EXPECT_EQ(esito.diario, (Diario{"load F", "click OK", "diversi", "niente", "niente", "niente", "nessuno",
                                  "nessuno", "nessuno"}));
}

}  // namespace
}  // namespace tarvel::contratto
