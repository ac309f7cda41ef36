// What a control makes of keys and clicks, row by row.
#include "tests/contratto/righe.h"

namespace tarvel::contratto {
namespace {

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
       const Passo imposta = [&s] { ImpostaTesto(s.a, Testo(40000, '1')); };
       return std::vector{imposta, s.Clicca(s.a), s.Preme("xy")};
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
    {"text that the program sets keeps its control characters; the user brings none",
     [](Palco& s) {
       return std::vector{Passo([&s] { ImpostaTesto(s.a, "\x01\t"); }), s.Preme("x\x16"), s.Legge(s.a)};
     },
     "tasto A 120 '\x01\t'; tasto A 22 '\x01\tx'; \x01\tx12"},
    {"a described text that is too long, and one that the load sets, is cut before anything meets it",
     [](Palco& s) {
       for (Controllo* c : {&s.a, &s.b}) {
         c->tasto = [&s, c](int) { s.u.Annota(std::to_string(c->testo.size())); };
         c->fuocoPerso = {};
       }
       s.a.testo = Testo(40000, '1');
       s.f.alCaricamento = [&s] {
         s.a.tasto(0);
         s.b.testo = Testo(40000, '2');
       };
       return std::vector{s.Clicca(s.a), s.Preme("x"), s.Clicca(s.b), s.Preme("\by")};
     },
     "32767; 32767; 32767; 32766"},
    {"Tab passes over a label; after the last control it comes to the first",
     [](Palco& s) {
       s.l.Etichetta("E");
       Controllo& d = s.l.Casella("D", "2");
       s.p.click = [&s] { MostraForm(s.l); };
       static_cast<void>(d);
       return std::vector{s.Clicca(s.p), s.Preme("\t\t"), s.Preme("x\t\r")};
     },
     "perso A 'abc'; load L; perso C '1'; tasto D 120 '2'; perso D 'x'; click Premi"},
    {"in a list Esc does nothing, an arrow selects the first entry, then the next; Ctrl and a click select "
     "one",
     [](Palco& s) {
       s.una.voci = s.tante.voci = {"a", "b", "c"};
       return std::vector{s.Va(s.una),
                          s.Preme("\x1B"),
                          s.Legge(s.una),
                          s.Preme("\x19\x19\x19\x19\x18\x1B"),
                          s.Legge(s.una),
                          s.Va(s.tante),
                          s.Preme("\x19\x19"),
                          s.Legge(s.tante),
                          s.Sceglie(s.una, {0, 2}),
                          s.Legge(s.una)};
     },
     "perso A 'abc'; a|b|c; a|*b|c; a|*b|c; a|b|*c"},
    {"a key whose handler shows a modal form is done before the focus goes, and once",
     [](Palco& s) {
       s.a.tasto = [&s](int) { MostraFormModale(s.l); };
       return std::vector<Passo>{s.Preme("x"), s.Chiude(s.l), s.Legge(s.a)};
     },
     "load L; perso A 'x'; unload L; x"},
    {"a key whose handler unloads its form and shows it again is lost",
     [](Palco& s) {
       s.p.click = [&s] { MostraForm(s.l); };
       s.dentro.tasto = [&s](int) {
         ScaricaForm(s.l);
         MostraForm(s.l);
       };
       return std::vector{s.Clicca(s.p), s.Scrive(s.dentro, "2"), s.Legge(s.dentro)};
     },
     "perso A 'abc'; load L; unload L; load L; 1"},
};

TEST(ContrattoRighe, Controlli) {
  ProvaRighe(kRighe);
}

}  // namespace
}  // namespace tarvel::contratto
