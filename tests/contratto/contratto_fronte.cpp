// Forms in front of one another, timers and the pointer, row by row.
#include "platform/regione.h"
#include "tests/contratto/righe.h"

namespace tarvel::contratto {
namespace {

const Riga kRighe[] = {
    {"a visible form that is shown again comes to the front, with its own focus",
     [](Palco& s) {
       s.p.click = [&s] { MostraForm(s.l); };
       s.premi.click = [&s] { MostraForm(s.f); };
       s.p.fuocoPerso = [&s] { s.u.Annota("perso P"); };
       s.premi.fuocoPerso = [&s] { s.u.Annota("perso Premi"); };
       return std::vector{s.Clicca(s.p), s.Clicca(s.premi), s.Preme(" "), s.Preme("\tx")};
     },
     "perso A 'abc'; load L; perso P; perso Premi; perso P; perso Premi; tasto C 120 '1'"},
    {"a form that was hidden has the focus at its first control again, the text of which is selected",
     [](Palco& s) {
       s.p.click = [&s] { MostraForm(s.l); };
       s.premi.click = [&s] { NascondiForm(s.f), MostraForm(s.f); };
       return std::vector{s.Clicca(s.p), s.Clicca(s.premi), s.Preme("x"), s.Legge(s.a)};
     },
     "perso A 'abc'; load L; tasto A 120 'abc'; x"},
    {"a form shown and hidden by one handler has had the focus: it comes back without an event",
     [](Palco& s) {
       s.a.tasto = [&s](int) { MostraForm(s.l), NascondiForm(s.l); };
       return std::vector{s.Preme("x"), s.Preme("\ty"), s.Legge(s.b)};
     },
     "load L; perso A 'x'; perso A 'x'; tasto B 121 '12'; y"},
    {"the close box of a form without the focus takes none away",
     [](Palco& s) {
       s.p.click = [&s] { MostraForm(s.l); };
       return std::vector<Passo>{s.Clicca(s.p), s.Clicca(s.b), s.Chiude(s.l), s.Preme("x")};
     },
     "perso A 'abc'; load L; unload L; tasto B 120 '12'"},
    {"a form that its button unloads is there until Form_Unload has run; its focus goes without an event",
     [](Palco& s) {
       const auto guarda = [&s] { s.u.Annota(s.u.Vede(s.l) ? "vista" : "via"); };
       s.a.tasto = [&s](int) { MostraForm(s.l); };
       s.premi.fuocoPerso = [&s] { s.u.Annota("perso Premi"); };
       s.l.alloScarico = guarda;
       s.premi.click = [&s, guarda] {
         ScaricaForm(s.l);
         guarda();
       };
       return std::vector{s.Preme("x"), s.Clicca(s.premi), s.Preme("y"), s.Legge(s.a)};
     },
     "load L; perso A 'x'; unload L; vista; via; load L; perso A 'xy'; xy"},
    {"where the focus returns the selection is as it was, and so is the caret",
     [](Palco& s) {
       s.a.tasto = [&s](int codice) {
         if (codice == kTastoInvio) MostraFormModale(s.l);
       };
       return std::vector<Passo>{s.Preme("\r"), s.Chiude(s.l), s.Preme("x\r"),
                                 s.Chiude(s.l), s.Preme("y"),  s.Legge(s.a)};
     },
     "load L; perso A 'abc'; unload L; load L; perso A 'x'; unload L; xy"},
    {"a modal form stays above the one that it keeps from the user, shown again or not",
     [](Palco& s) {
       s.p.click = [&s] { MostraFormModale(s.l); };
       s.premi.click = [&s] { MostraForm(s.f); };
       return std::vector<Passo>{s.Clicca(s.p),  s.Clicca(s.premi), s.Clicca(s.b),
                                 s.Preme("\tx"), s.Chiude(s.l),     s.Clicca(s.b)};
     },
     "perso A 'abc'; load L; tasto C 120 '1'; perso C 'x'; unload L"},
    {"what a modal form has shown is kept from the user by the next one",
     [](Palco& s) {
       s.p.click = [&s] { MostraFormModale(s.m); };
       return std::vector<Passo>{s.Clicca(s.p), s.Clicca(s.mostraL), s.Chiude(s.m), s.Clicca(s.premi),
                                 s.Clicca(s.p), s.Clicca(s.premi),   s.Chiude(s.m), s.Clicca(s.premi)};
     },
     "perso A 'abc'; load M; load L; unload M; click Premi; load M; unload M; click Premi"},
    {"the caller of a modal form goes on before a control hears that it lost the focus",
     [](Palco& s) {
       s.p.click = [&s] {
         MostraFormModale(s.m);
         s.u.Annota("via");
       };
       s.premi.fuocoPerso = [&s] { s.u.Annota("perso Premi"); };
       s.premi.click = [&s] { ScaricaForm(s.m), MostraForm(s.f); };
       return std::vector<Passo>{s.Clicca(s.p), s.Clicca(s.mostraL), s.Clicca(s.premi)};
     },
     "perso A 'abc'; load M; load L; unload M; via; perso Premi"},
    {"a control whose form has gone does not hear that it lost the focus",
     [](Palco& s) {
       s.p.click = [&s] { MostraForm(s.l); };
       s.premi.fuocoPerso = [&s] { s.u.Annota("perso Premi"); };
       s.premi.click = [&s] { MostraForm(s.f), NascondiForm(s.l), MostraForm(s.l); };
       return std::vector{s.Clicca(s.p), s.Clicca(s.premi), s.Annota("poi")};
     },
     "perso A 'abc'; load L; poi"},
    {"a modal form outlives the one that it belongs to, and may become its owner's",
     [](Palco& s) {
       s.p.click = [&s] {
         MostraFormModale(s.l);
         s.u.Annota("via");
       };
       s.premi.click = [&s] {
         NascondiForm(s.f);
         s.u.Annota(s.u.Vede(s.f) ? "vista" : "nascosta");
         MostraForm(s.f);
       };
       return std::vector<Passo>{s.Clicca(s.p), s.Clicca(s.premi), s.Scrive(s.a, "7"), s.Chiude(s.l),
                                 s.Clicca(s.b)};
     },
     "perso A 'abc'; load L; nascosta; tasto A 55 'abc'; unload L; via; perso A '7'"},
    {"the owner of a modal form may become modal above it",
     [](Palco& s) {
       s.p.click = s.premi.click = [&s] {
         MostraFormModale(s.u.Vede(s.l) ? s.f : s.l);
         s.u.Annota("via");
       };
       return std::vector<Passo>{s.Clicca(s.p), s.Clicca(s.premi), s.Clicca(s.premi),
                                 s.Clicca(s.b), s.Chiude(s.f),     s.Preme("\tx")};
     },
     "perso A 'abc'; load L; perso B '12'; unload F; via; tasto C 120 '1'"},
    {"a control hears that it lost the focus before a timer fires that fell due with it",
     [](Palco& s) {
       s.timer.scatto = [&s] {
         AbilitaTimer(s.timer, false);
         s.u.Annota("scatto");
       };
       s.p.fuocoPerso = [&s] { s.u.Annota("perso P"); };
       s.p.click = [&s] {
         AbilitaTimer(s.timer, true);
         MostraForm(s.l);
         MostraMessaggio("m", "T", Icona::Nessuna);
       };
       s.u.Rispondi(Risposta::Ok, 50);
       return std::vector<Passo>{s.Clicca(s.p), s.Aspetta("scatto")};
     },
     "perso A 'abc'; load L; messaggio nessuna ok \"T\" \"m\" -> ok; perso P; scatto"},
    {"starting a timer that runs does not put its firing off",
     [](Palco& s) {
       s.timer.intervallo = 300;
       s.altro.intervallo = 400;
       for (Temporizzatore* t : {&s.timer, &s.altro})
         t->scatto = [&s, t] {
           s.u.Annota(std::to_string(t->intervallo));
           AbilitaTimer(*t, false);
         };
       s.p.click = [&s] {
         for (int volte = 2; volte > 0; --volte) {
           for (Temporizzatore* t : {&s.altro, &s.timer})
             if (volte == 2 || t == &s.timer) AbilitaTimer(*t, true);
           MostraMessaggio("m", "T", Icona::Nessuna);
         }
       };
       s.u.Rispondi(Risposta::Ok, 200);
       return std::vector<Passo>{s.Clicca(s.p), s.Aspetta("400")};
     },
     "perso A 'abc'; messaggio nessuna ok \"T\" \"m\" -> ok; messaggio nessuna ok \"T\" \"m\" -> ok; 300; "
     "400"},
    {"the interval of a timer counts from its firing, however long its handler takes",
     [](Palco& s) {
       s.timer.intervallo = 200;
       s.altro.intervallo = 450;
       s.timer.scatto = [&s, prima = true]() mutable {
         s.u.Annota("scatto");
         AbilitaTimer(s.timer, prima);
         if (std::exchange(prima, false)) MostraMessaggio("m", "T", Icona::Nessuna);
       };
       s.altro.scatto = [&s] {
         AbilitaTimer(s.altro, false);
         s.u.Annota("altro");
       };
       s.p.click = [&s] { AbilitaTimer(s.timer, true), AbilitaTimer(s.altro, true); };
       s.u.Rispondi(Risposta::Ok, 150);
       return std::vector<Passo>{s.Clicca(s.p), s.Aspetta("altro")};
     },
     "perso A 'abc'; scatto; messaggio nessuna ok \"T\" \"m\" -> ok; scatto; altro"},
    {"a timer whose handler shows a modal form fires while that waits",
     [](Palco& s) {
       s.timer.scatto = [&s] {
         s.u.Annota("scatto");
         if (s.u.Vede(s.l)) {
           AbilitaTimer(s.timer, false);
           return ScaricaForm(s.l);
         }
         MostraFormModale(s.l);
         s.u.Annota("via");
       };
       s.p.click = [&s] { AbilitaTimer(s.timer, true); };
       return std::vector<Passo>{s.Clicca(s.p), s.Aspetta("via")};
     },
     "perso A 'abc'; scatto; load L; scatto; unload L; via"},
    {"Esc closes nothing; another program in front takes no control's focus",
     [](Palco& s) {
       s.p.click = [&s] { MostraFormModale(s.l); };
       const Passo altro = [&s] { s.u.AltroProgramma(); };
       return std::vector{s.Clicca(s.p), s.Preme("\x1B\t\x1B"), altro, s.Preme("2")};
     },
     "perso A 'abc'; load L; tasto C 27 '1'; tasto C 50 '1'"},
    {"a form on the screen becomes modal where it is, once or twice",
     [](Palco& s) {
       s.p.click = s.premi.click = [&s] {
         MostraForm(s.l);
         MostraFormModale(s.l);
         s.u.Annota("via");
       };
       Controllo& sotto = s.f.Bottone("Sotto");
       return std::vector<Passo>{s.Clicca(s.p), s.Clicca(sotto), s.Clicca(s.premi), s.Chiude(s.l),
                                 s.Clicca(sotto)};
     },
     "perso A 'abc'; load L; unload L; via; via; click Sotto"},
    {"an unloaded form is as it was described",
     [](Palco& s) {
       s.p.click = [&s] { MostraForm(s.l); };
       return std::vector<Passo>{s.Clicca(s.p), s.Scrive(s.dentro, "2"), s.Chiude(s.l), s.Clicca(s.p),
                                 s.Legge(s.dentro)};
     },
     "perso A 'abc'; load L; tasto C 50 '1'; perso C '2'; unload L; load L; 1"},
    {"of the firings missed under a message one is left",
     [](Palco& s) {
       s.timer.intervallo = 300;
       s.timer.scatto = [&s] { s.u.Annota("scatto"); };
       s.p.click = [&s] {
         AbilitaTimer(s.timer, true);
         MostraMessaggio("uno\ndue", "T", Icona::Nessuna);
       };
       s.u.Rispondi(Risposta::Ok, 700);
       return std::vector<Passo>{s.Clicca(s.p), s.Aspetta("scatto"), s.Annota("ora")};
     },
     "perso A 'abc'; messaggio nessuna ok \"T\" \"uno/due\" -> ok; scatto; ora"},
    {"the hourglass at once and until it is taken away, but not over a message",
     [](Palco& s) {
       const auto guarda = [&s] { s.u.Annota(s.u.VedeClessidra() ? "clessidra" : "freccia"); };
       s.p.click = [guarda] {
         ImpostaPuntatore(Puntatore::Clessidra);
         guarda();
         MostraMessaggio("m", "T", Icona::Nessuna);
       };
       return std::vector<Passo>{s.Clicca(s.p), guarda, [guarda] {
                                   ImpostaPuntatore(Puntatore::Predefinito);
                                   guarda();
                                 }};
     },
     "perso A 'abc'; clessidra; messaggio nessuna ok \"T\" \"m\" -> ok; clessidra; freccia"},
    {"entries that the load sets without a call are there, none selected",
     [](Palco& s) {
       s.f.alCaricamento = [&s] { s.tante.voci = {"a", "b"}; };
       return std::vector{s.Sceglie(s.tante, {1}), s.Legge(s.tante)};
     },
     "perso A 'abc'; a|*b"},
    {"a click counts once the modal form has gone that the control left has shown",
     [](Palco& s) {
       s.a.fuocoPerso = [&s] { MostraFormModale(s.l); };
       return std::vector<Passo>{s.Clicca(s.p), s.Chiude(s.l)};
     },
     "load L; unload L; click P&Q"},
    {"a click is lost where the control left takes the form away, or shows another one",
     [](Palco& s) {
       s.a.fuocoPerso = [&s] { MostraForm(s.l); };
       s.dentro.fuocoPerso = [&s] { NascondiForm(s.l); };
       return std::vector{s.Clicca(s.p), s.Va(s.dentro), s.Clicca(s.premi), s.Annota("poi"), s.Preme(" ")};
     },
     "load L; poi; click P&Q"},
    {"a handler sees the fatal error of a form that it shows",
     [](Palco& s) {
       s.l.alCaricamento = [] { throw ErroreFatale(TipoErrore::Formato, "numero", "riga 1"); };
       s.p.click = [&s] {
         try {
           MostraForm(s.l);
         } catch (const ErroreFatale&) {
           s.u.Annota("presa");
         }
       };
       return std::vector{s.Clicca(s.p)};
     },
     "perso A 'abc'; load L; presa"},
    {"command line and regional format",
     [](Palco& s) {
       return std::vector<Passo>{
           [&s] { s.u.Annota(RigaComando() + SeparatoreDecimale() + SeparatoreMigliaia()); }};
     },
     "|x=\"a b\"|  perch\xE9,."},
};

TEST(ContrattoRighe, Fronte) {
  ProvaRighe(kRighe);
}

}  // namespace
}  // namespace tarvel::contratto
