// Transcripts of the scripted desktop, line by line, and what it says of a script it cannot play.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "platform/desktop.h"
#include "platform/headless/ambiente.h"
#include "platform/headless/recita.h"
#include "platform/programmi.h"
#include "platform/regione.h"

namespace tarvel::headless {
namespace {

Controllo Nuovo(TipoControllo tipo, const Testo& nome, const Testo& testo = "") {
  Controllo c;
  c.tipo = tipo;
  c.nome = nome;
  c.testo = testo;
  return c;
}

// A modal list from which one entry is taken.
struct FormScelta : Form {
  FormScelta() {
    nome = "Scelta";
    controlli = {&lista, &chiudi};
    lista.doppioClick = chiudi.click = [this] { ScaricaForm(*this); };
  }
  void Form_Load() override { ImpostaVoci(lista, {"uno", "due \"2\""}); }
  Controllo lista = Nuovo(TipoControllo::Lista, "ListSez");
  Controllo chiudi = Nuovo(TipoControllo::Bottone, "Chiudi", "Chiudi");
};

struct FormOpzioni : Form {
  FormOpzioni() {
    nome = "Opt";
    controlli = {&valore, &chiudi};
    chiudi.click = [this] { NascondiForm(*this); };
  }
  Controllo valore = Nuovo(TipoControllo::Casella, "Valore(1)", "1");
  Controllo chiudi = Nuovo(TipoControllo::Bottone, "Chiudi", "Chiudi");
};

// A main form that ends as the program's own does: its unload hook arms a timer.
struct FormMadre : Form {
  FormMadre() {
    nome = "madre";
    controlli = {&titoletto, &nomeBox, &avviso, &scegli, &opt, &programma, &guasto, &fine, &elenco};
    nomeBox.fuocoPerso = [this] { ImpostaTesto(titoletto, "nome: " + nomeBox.testo); };
    avviso.click = [] { MostraMessaggio("C:\\a\r\n\x80\x01", "T", Icona::Nessuna); };
    scegli.click = [this] {
      MostraFormModale(scelta);
      ImpostaTesto(opzioni.valore, "2");
      ImpostaTesto(nomeBox, "scelto");
    };
    opt.click = [this] { MostraForm(opzioni); };
    programma.click = [this] { Programma(); };
    guasto.click = [] { throw ErroreFatale(TipoErrore::Formato, "riga errata", "f.txt, riga 3"); };
    fine.click = [this] { AbilitaTimer(timer, true); };
    timer.scatto = [this] {
      ScaricaForm(*this);
      TerminaProgramma(0);
    };
  }
  void Form_Load() override {
    ImpostaTesto(titoletto, "pronto");
    CaricaForm(opzioni);
  }
  void Form_Unload() override {
    MostraMessaggio("Salvare?", "D", Icona::Informazione, Bottoni::SiNo);
    if (finisce) AbilitaTimer(timer, true);
  }
  void Programma() {
    ImpostaPuntatore(Puntatore::Clessidra);
    if (!AttivaProgramma(id)) id = AvviaProgramma(percorso, 1).value_or(0);
    InviaTasti("%(fg)");
    ImpostaPuntatore(Puntatore::Predefinito);
  }
  Controllo titoletto = Nuovo(TipoControllo::Etichetta, "Label1");
  Controllo nomeBox = Nuovo(TipoControllo::Casella, "nome");
  Controllo avviso = Nuovo(TipoControllo::Bottone, "Avviso");
  Controllo scegli = Nuovo(TipoControllo::Bottone, "Scegli");
  Controllo opt = Nuovo(TipoControllo::Bottone, "Opzioni");
  Controllo programma = Nuovo(TipoControllo::Bottone, "Programma");
  Controllo guasto = Nuovo(TipoControllo::Bottone, "Guasto");
  Controllo fine = Nuovo(TipoControllo::Bottone, "Fine");
  Controllo elenco = Nuovo(TipoControllo::Lista, "Elenco");
  FormScelta scelta;
  FormOpzioni opzioni;
  Temporizzatore timer;
  bool finisce = true;
  Testo percorso;
  std::int32_t id = 0;
};

struct Esito {
  int stato;
  std::string verbale, errori;
};

Esito RecitaTesto(Form& form, const std::string& copione) {
  std::istringstream testo(copione);
  std::ostringstream verbale;
  std::ostringstream errori;
  const int stato = Recita(form, testo, verbale, errori);
  return {stato, verbale.str(), errori.str()};
}

constexpr char kInizio[] = "show madre\ntext Label1 \"pronto\"\n";
constexpr char kFine[] = "message information \"D\" \"Salvare?\" -> no\nunload madre\nend 0\n";

struct CasoVerbale {
  const char* nome;
  const char* copione;
  std::string verbale;  // after kInizio
};

TEST(Headless, TheTranscriptTellsWhatAUserWouldNotice) {
  const CasoVerbale casi[] = {
      {"empty script", "", std::string("text Label1 \"nome: \"\n") + kFine},
      {"remarks and other line ends", "\xEF\xBB\xBF# nota\r\n\r\n \t\r\n  print nome\r\n",
       std::string("text nome \"\"\ntext Label1 \"nome: \"\n") + kFine},
      {"typing", "type nome  gi\xC3\xA0 \xE2\x82\xAC\nprint nome\nfocus Avviso\nprint Label1",
       std::string("text nome \" gi\xC3\xA0 \xE2\x82\xAC\"\ntext Label1 \"nome:  gi\xC3\xA0 \xE2\x82\xAC\"\n"
                   "text Label1 \"nome:  gi\xC3\xA0 \xE2\x82\xAC\"\n") +
           kFine},
      {"emptying a box", "type nome x\ntype nome\nprint nome\ntype nome y\ntype nome \nprint nome\n",
       std::string("text nome \"\"\ntext nome \"\"\ntext Label1 \"nome: \"\n") + kFine},
      {"message", "click Avviso\nanswer ok\nenter Avviso\n",
       std::string("text Label1 \"nome: \"\n") +
           "message none \"T\" \"C:\\a\\r\\n\xE2\x82\xAC\\x01\" -> ok\n"
           "message none \"T\" \"C:\\a\\r\\n\xE2\x82\xAC\\x01\" -> ok\n" +
           kFine},
      {"modal list, twice",
       "click Scegli\nprint ListSez\ndblclick ListSez 2\nclick Scegli\nselect ListSez\nclick Chiudi\n",
       std::string(
           "text Label1 \"nome: \"\n"
           "show Scelta modal\nlist ListSez \"uno\" \"due \"2\"\"\nlist ListSez \"uno\" \"due \"2\"\"\n"
           "unload Scelta\ntext nome \"scelto\"\n"
           "show Scelta modal\nlist ListSez \"uno\" \"due \"2\"\"\nunload Scelta\n") +
           kFine},
      {"two forms side by side",
       "click Opzioni\ntype Valore(1) 3\nprint madre.nome\nclick Opt.Chiudi\nclick Scegli\n"
       "close\nclick Opzioni\nclose Opt\n",
       std::string("text Label1 \"nome: \"\nshow Opt\n"
                   "text madre.nome \"\"\nhide Opt\n"
                   "show Scelta modal\nlist ListSez \"uno\" \"due \"2\"\"\nunload Scelta\n"
                   "text nome \"scelto\"\nshow Opt\ntext Valore(1) \"2\"\nunload Opt\n") +
           kFine},
      {"left open", "click Opzioni\nclick madre.Scegli\n",
       std::string("text Label1 \"nome: \"\nshow Opt\nshow Scelta modal\nlist ListSez \"uno\" \"due \"2\"\"\n"
                   "unload Scelta\ntext Opt.Valore(1) \"2\"\ntext nome \"scelto\"\n") +
           kFine},
      {"ended by its timer", "click Fine\ntick 9\nanswer yes\ntick 1\n",
       "text Label1 \"nome: \"\nmessage information \"D\" \"Salvare?\" -> yes\nunload madre\nend 0\n"},
      {"closed by its close box", "answer yes\ntype nome z\nclose\ntick 10\n",
       "text Label1 \"nome: z\"\nmessage information \"D\" \"Salvare?\" -> yes\nunload madre\nend 0\n"},
      {"fatal error", "click Guasto\nqualunque cosa\n",
       "text Label1 \"nome: \"\nmessage stop \"SEZIONE UTENTE TIPO PONTE 1\" "
       "\"Errore irreversibile: riga errata (f.txt, riga 3)\" -> ok\nend 1\n"},
  };
  for (const CasoVerbale& caso : casi) {
    FormMadre form;
    const Esito esito = RecitaTesto(form, caso.copione);
    EXPECT_EQ(esito.verbale, kInizio + caso.verbale) << caso.nome;
    EXPECT_EQ(esito.errori, "") << caso.nome;
  }
}

TEST(Headless, StartedProgramsAreTasksUntilTheyEnd) {
  namespace fs = std::filesystem;
  const fs::path file = fs::temp_directory_path() / "tarvel1-headless-programma.exe";
  std::ofstream(file) << "";
  FormMadre form;
  form.percorso = file.string();
  const Esito esito =
      RecitaTesto(form, "click Programma\nclick Programma\nendtask 1\nclick Programma\ntick 0\n");
  const std::string avvio = "start \"" + file.string() + "\" 1 -> ";
  EXPECT_EQ(esito.verbale, kInizio +
                               ("text Label1 \"nome: \"\npointer hourglass\nactivate 0 -> failed\n" + avvio) +
                               "1\nkeys \"%(fg)\"\npointer default\n"
                               "pointer hourglass\nactivate 1 -> done\nkeys \"%(fg)\"\npointer default\n"
                               "pointer hourglass\nactivate 1 -> failed\n" +
                               avvio + "2\nkeys \"%(fg)\"\npointer default\n" + kFine);
  fs::remove(file);
  FormMadre senza;
  senza.percorso = file.parent_path().string();
  EXPECT_NE(RecitaTesto(senza, "click Programma\n").verbale.find("1 -> failed\nkeys"), std::string::npos);
}

TEST(Headless, AMistakeOfTheScriptIsToldWithItsLine) {
  const std::pair<std::string, std::string> casi[] = {
      {"balla nome", "1: unknown verb \"balla\""},
      {"\n# x\nclick Nessuno", "3: the form madre has no control \"Nessuno\""},
      {"click Opt.Chiudi", "1: no visible form for the control \"Opt.Chiudi\""},
      {"click Scegli\nclick madre.Avviso", "2: madre.Avviso cannot be used so now"},
      {"click Scegli\nprint madre.nome", "2: madre.nome cannot be used so now"},
      {"click Scegli\nclose madre", "2: the form madre cannot be closed now"},
      {"close Opt", "1: no such visible form"},
      {"type Avviso x", "1: Avviso cannot be used so now"},
      {"focus Label1", "1: Label1 cannot be used so now"},
      {"select nome 1", "1: nome cannot be used so now"},
      {"click Elenco", "1: Elenco cannot be used so now"},
      {"click Scegli\nselect ListSez 1 2", "2: ListSez cannot be used so now"},
      {"click Scegli\nselect ListSez 0", "2: \"0\" is not a whole number from 1 to 2"},
      {"click Scegli\ndblclick ListSez 3", "2: \"3\" is not a whole number from 1 to 2"},
      {"click Scegli\ndblclick ListSez", "2: wrong number of arguments for dblclick"},
      {"tick x", "1: \"x\" is not a whole number from 0 to 3600000"},
      {"tick 1.5", "1: \"1.5\" is not"},
      {"tick -1", "1: \"-1\" is not"},
      {"endtask 99999999999999", "1: \"99999999999999\" is not"},
      {"endtask 1", "1: no such task runs"},
      {"answer maybe", "1: \"maybe\" is no answer"},
      {"answer", "1: answer what?"},
      {"print nome nome", "1: wrong number of arguments for print"},
      {"print", "1: wrong number of arguments for print"},
      {"type nome a\tb", "1: a control character cannot be typed"},
      {std::string("print nome\nprint \0nome", 23), "2: the line holds a NUL character"},
      {std::string(5'000'000, 'x'), "1: the line is too long"},
      {std::string(100'000, 'x'), "1: unknown verb \"" + std::string(40, 'x') + "\""},
      {"answer ok no\nclick Avviso", "1: an answer that nobody asked for"},
      {"answer yes\nclick Fine\ntick 10\nprint nome", "4: an event after the program has ended"},
      {"answer yes no\nclick Fine\ntick 10\n# end", "1: an answer that nobody asked for"},
      {"close", "1: a question without an answer: \"D\" \"Salvare?\""},
      {"answer ok\nclose", "1: an answer that the box does not offer: \"D\" \"Salvare?\""},
      {"answer yes\nclick Avviso", "1: an answer that the box does not offer: \"T\""},
  };
  for (const auto& [copione, messaggio] : casi) {
    FormMadre form;
    const Esito esito = RecitaTesto(form, copione);
    const std::string inizio = copione.substr(0, 40);
    EXPECT_EQ(esito.errori.substr(0, 12 + messaggio.size()), "script line " + messaggio) << inizio;
    EXPECT_EQ(std::count(esito.errori.begin(), esito.errori.end(), '\n'), 1) << inizio;
    EXPECT_EQ(esito.stato, 2) << inizio;
    EXPECT_TRUE(esito.verbale.ends_with("\nend 2\n")) << inizio;
  }
}

TEST(Headless, AProgramThatDoesNotEndIsGivenUp) {
  FormMadre quieta;
  quieta.finisce = false;
  EXPECT_EQ(RecitaTesto(quieta, "").stato, 0) << "without a timer nothing can happen any more";

  FormMadre inquieta;
  inquieta.timer.scatto = [] {};
  const Esito esito = RecitaTesto(inquieta, "print nome\n");
  EXPECT_EQ(esito.errori, "script line 1: the program did not end after the script\n");
  EXPECT_EQ(esito.stato, 2);
}

TEST(Headless, ARefusedStartShowsNoForm) {
  struct : Form {
    void Form_Load() override {
      MostraMessaggio("no", "ERRORE", Icona::Stop);
      TerminaProgramma(1);
    }
  } form;
  const Esito esito = RecitaTesto(form, "click Avviso\n");
  EXPECT_EQ(esito.verbale, "message stop \"ERRORE\" \"no\" -> ok\nend 1\n");
  EXPECT_EQ(esito.errori, "");
}

TEST(Headless, TimePassesInTheLoopThatWaits) {
  // The timer closes the modal form 10 ms into the tick; its caller goes on at once, not after the
  // rest of the tick.
  FormMadre form;
  int scatti = 0;
  int alRitorno = 0;
  form.timer.scatto = [&] {
    ++scatti;
    ScaricaForm(form.scelta);
    if (scatti == 5) TerminaProgramma(0);
  };
  form.scegli.click = [&] {
    AbilitaTimer(form.timer, true);
    MostraFormModale(form.scelta);
    alRitorno = scatti;
  };
  EXPECT_EQ(RecitaTesto(form, "click Scegli\ntick 1000\n").stato, 0);
  EXPECT_EQ(alRitorno, 1);
  EXPECT_EQ(scatti, 5);
}

TEST(Headless, TheRegionFollowsItsDecimalSeparator) {
  for (const auto& [decimale, migliaia] : {std::pair{',', '.'}, {'.', ','}, {'\'', '\0'}}) {
    ImpostaAmbiente("|diroot=x|", decimale);
    EXPECT_EQ(SeparatoreDecimale(), decimale);
    EXPECT_EQ(SeparatoreMigliaia(), migliaia);
  }
  EXPECT_EQ(RigaComando(), "|diroot=x|");
  ImpostaAmbiente("", '.');
}

}  // namespace
}  // namespace tarvel::headless
