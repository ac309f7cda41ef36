// The contract line by line: small scenes, what the user does and the diary of it.
#include <gtest/gtest.h>

#include "platform/regione.h"
#include "tests/contratto/mobili.h"

namespace tarvel::contratto {
namespace {

// F is the main form; L is shown by whichever scene wants it.
struct Palco : Passi {
  explicit Palco(Utente& utente) : Passi{utente} {}

  FormDiario f{u, "F"}, l{u, "L"};
  Controllo &a = f.Casella("A", "abc"), &b = f.Casella("B", "12"), &p = f.Bottone("P&Q"),
            &una = f.Lista("Una", false), &tante = f.Lista("Tante", true);
  Controllo &premi = l.Bottone("Premi"), &dentro = l.Casella("C", "1");
  Temporizzatore timer;
};

struct Riga {
  const char* nome;
  std::vector<Passo> (*passi)(Palco& s);
  const char* diario;
};

const Riga kRighe[] = {
    {"arriving by Tab, round and round, or with the form selects the whole text, a click puts the caret",
     [](Palco& s) {
       return std::vector{s.Preme("x\ty\t\t\t\tw"), s.Va(s.b), s.Clicca(s.a), s.Preme("z"), s.Legge(s.a)};
     },
     "tasto A 120 'abc'; perso A 'x'; tasto B 121 '12'; perso B 'y'; tasto A 119 'x'; perso A 'w'; "
     "perso B 'y'; tasto A 122 'w'; wz"},
    {"Esc (1B) is an event; Delete (7F) one of code 8, where it deletes; paste one of code 22 (16)",
     [](Palco& s) {
       return std::vector{s.Preme("\x1B\x7F\x7F"), s.Legge(s.a), s.Preme("\b\x16\b"), s.Legge(s.a)};
     },
     "tasto A 27 'abc'; tasto A 8 'abc'; ; tasto A 8 ''; tasto A 22 ''; tasto A 8 '12'; 1"},
    {"a key meets the text that its handler has set",
     [](Palco& s) {
       s.a.tasto = [&s](int) { ImpostaTesto(s.a, "nuovo"); };
       return std::vector{s.Preme("x"), s.Legge(s.a), s.Preme("\b"), s.Legge(s.a)};
     },
     "nuovox; nuov"},
    {"text is shown from its beginning, except while the user types; a mark where it is cut; a tip says all",
     [](Palco& s) {
       for (Controllo* c : {&s.a, &s.b}) c->tasto = {}, c->fuocoPerso = {};
       s.a.descrizione = "<b>A</b> &amp;\xE8";
       const Passo scrive = [&s] {
         for (Controllo* c : {&s.a, &s.b}) ImpostaTesto(*c, Testo(70, '8'));
       };
       const auto guarda = [&s](Controllo& c) -> Passo {
         return [&s, &c] {
           const std::string tutto = s.u.Mostrato(c) + ", " + s.u.Legge(c) + ", " + s.u.Indica(c);
           s.u.Annota(std::regex_replace(tutto, std::regex("8{70}"), "8"));
         };
       };
       const Passo a = guarda(s.a), b = guarda(s.b);
       return std::vector{a,         scrive, a,         b, s.Preme("1"),       a,
                          s.Va(s.b), a,      s.Va(s.a), a, s.Scrive(s.b, "2"), b};
     },
     "tutto, abc, <b>A</b> &amp;\xE8: <b>A</b> &amp;\xE8; "
     "inizio >, 8, <b>A</b> &amp;\xE8: <b>A</b> &amp;\xE8/8; inizio >, 8, B: 8; "
     "fine <, 81, <b>A</b> &amp;\xE8: <b>A</b> &amp;\xE8/81; "
     "inizio >, 81, <b>A</b> &amp;\xE8: <b>A</b> &amp;\xE8/81; "
     "inizio >, 81, <b>A</b> &amp;\xE8: <b>A</b> &amp;\xE8/81; tutto, 2, B: "},
    {"a key whose handler shows a form, or hides its own, is done before the focus goes",
     [](Palco& s) {
       s.a.tasto = [&s](int) { MostraForm(s.l); };
       s.dentro.tasto = [&s](int) { NascondiForm(s.l); };
       return std::vector{s.Preme("x"), s.Legge(s.a), s.Scrive(s.dentro, "2"), s.Legge(s.dentro)};
     },
     "load L; perso A 'x'; x; 2"},
    {"of two controls at one place the later one takes the click, a label none",
     [](Palco& s) {
       s.f.Etichetta("E").posto = s.p.posto = s.b.posto;
       return std::vector{s.Clicca(s.b), s.Clicca(s.p)};
     },
     "perso A 'abc'; click P&Q"},
    {"a box holds kMassimoCasella characters",
     [](Palco& s) {
       s.a.tasto = [&s](int) { s.u.Annota(std::to_string(s.a.testo.size())); };
       s.a.fuocoPerso = {};
       ImpostaTesto(s.a, Testo(40000, '1'));
       return std::vector{s.Clicca(s.a), s.Preme("xy")};
     },
     "32767; 32767"},
    {"Enter and Space press the button that has the focus; '&' is one",
     [](Palco& s) {
       return std::vector{s.Legge(s.p), s.Preme("\r"), s.Va(s.p), s.Preme(" \r")};
     },
     "P&Q; tasto A 13 'abc'; perso A 'abc'; click P&Q; click P&Q"},
    {"described entries; Enter and a click beside them change nothing",
     [](Palco& s) {
       s.una.voci = {"a", "b"};
       s.tante.voci = {"a", "b", "c"};
       const Passo due = s.Sceglie(s.tante, {0, 2}), doppio = s.DoppioClick(s.tante, 1);
       return std::vector{due,   s.Va(s.b), s.Va(s.tante), s.Preme("\r"), s.Legge(s.tante), s.Legge(s.una),
                          doppio};
     },
     "perso A 'abc'; perso B '12'; *a|b|*c; a|b; doppio Tante 'a|*b|c'"},
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
    {"command line and regional format",
     [](Palco& s) {
       return std::vector<Passo>{
           [&s] { s.u.Annota(RigaComando() + SeparatoreDecimale() + SeparatoreMigliaia()); }};
     },
     "|x=\"a b\"|  perch\xE9,."},
};

TEST(ContrattoRighe, Tutte) {
  for (const Riga& riga : kRighe) {
    const std::string diario = Prova([&](Utente& u) {
      Palco s(u);
      u.Esegui(s.f, riga.passi(s));
    });
    EXPECT_EQ(diario, Righe(std::string("load F; ") + riga.diario)) << riga.nome;
  }
}

}  // namespace
}  // namespace tarvel::contratto
