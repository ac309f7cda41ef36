// The program as a user meets it: started on a virtual screen, typed into, clicked, its windows
// watched. What it writes is what the scripted desktop writes for the same session.
#include <X11/keysym.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "app/form_sez.h"
#include "app/tarvel1.h"
#include "options/form_opt.h"
#include "tests/finestra/schermo.h"

namespace tarvel::prove {
namespace {

namespace fs = std::filesystem;

// An installation with one job; the viewer is the stand-in.
class Impianto {
 public:
  explicit Impianto(const std::string& modoVisore = "normale") {
    std::string modello = (fs::temp_directory_path() / "finestraXXXXXX").string();
    radice_ = mkdtemp(modello.data());
    for (const char* cartella : {"impostazioni", "lavori/PR0042", "progra", "custom"})
      fs::create_directories(radice_ / cartella);
    Scrivi("impostazioni/dirlav", (radice_ / "lavori").string());
    Scrivi("impostazioni/lavoro", "PR0042");
    Scrivi("progra/modo", modoVisore);
    fs::create_symlink(VISORE, radice_ / "progra/ostrel.exe");
  }
  ~Impianto() { fs::remove_all(radice_); }

  std::string Argomento() const { return "|diroot=" + radice_.string() + "|"; }
  fs::path File(const std::string& nome) const { return radice_ / nome; }
  void Scrivi(const std::string& nome, const std::string& testo) const { std::ofstream(File(nome)) << testo; }
  std::string Leggi(const std::string& nome) const { return Contenuto(File(nome).string()); }
  bool DiarioVisore(const std::string& atteso) const {
    const bool uguale = Attendi([&] { return Leggi("progra/visore.log") == atteso; });
    if (!uguale) ADD_FAILURE() << "viewer's log:\n" << Leggi("progra/visore.log");
    return uguale;
  }

 private:
  fs::path radice_;
};

// The program at a screen, played by lines of a script.
class Seduta {
 public:
  Seduta(Schermo& schermo, const Impianto& impianto, const std::string& regione = "C")
      : schermo_(schermo),
        impianto_(impianto),
        programma_({PROGRAMMA_QT, impianto.Argomento()}, {{"DISPLAY", schermo.Nome()}, {"LC_ALL", regione}}) {
  }

  /// False, with a failure, at the first line that cannot be played.
  bool Recita(std::istream& copione) {
    for (std::string riga; std::getline(copione, riga);)
      if (!Esegui(riga)) {
        ADD_FAILURE() << "cannot play: " << riga;
        schermo_.Fotografa("guasto.png");
        return false;
      }
    return true;
  }
  bool Recita(const std::string& copione) {
    std::istringstream righe(copione);
    return Recita(righe);
  }
  int Stato() { return programma_.Stato(); }

 private:
  bool Esegui(std::string riga) {
    if (riga.starts_with("#: ")) riga.erase(0, 3);
    std::istringstream parole(riga);
    std::string verbo, nome;
    parole >> verbo >> nome;
    if (verbo == "form") return schermo_.Davanti(nome) && Entra(nome);
    if (verbo == "activate") return schermo_.PortaDavanti(nome) && Entra(nome);
    if (verbo == "viewer")
      return Attendi([&] { return impianto_.Leggi("progra/visore.log").ends_with(nome + '\n'); });
    if (verbo == "close") return schermo_.Chiudi(nome), true;
    if (verbo == "message") {
      std::string risposta;
      parole >> risposta;
      if (!schermo_.Davanti(nome)) return false;
      const auto riquadro = schermo_.Trova(nome);
      if (risposta == "si")
        schermo_.Tasto(XK_s, XK_Alt_L);
      else
        schermo_.Tasto(risposta == "no" ? XK_Escape : XK_Return);
      return Attendi([&] { return schermo_.Trova(nome) != riquadro; });
    }
    if (verbo == "#" || verbo == "answer" || verbo == "tick") return true;
    return Agisci(verbo, nome, parole);
  }

  bool Entra(const std::string& nome) {
    static FormSez elenco;
    static FormSez2 multiplo;
    for (Form* form : {&FormPrincipale(), static_cast<Form*>(&FormOpt::Unica()), static_cast<Form*>(&elenco),
                       static_cast<Form*>(&multiplo)})
      if (form->nome == nome) form_ = form;
    return true;
  }

  bool Agisci(const std::string& verbo, const std::string& nome, std::istream& resto) {
    const auto& tutti = form_->controlli;
    const auto trovato =
        std::find_if(tutti.begin(), tutti.end(), [&](const Controllo* c) { return c->nome == nome; });
    if (trovato == tutti.end() || !schermo_.Davanti(form_->nome)) return false;
    if (verbo == "click") {
      schermo_.Clicca(*form_, **trovato);
    } else if (verbo == "dblclick") {
      schermo_.Clicca(*form_, **trovato, 2);
    } else if (verbo == "enter") {
      schermo_.Tasto(XK_Return);
    } else if (verbo == "type") {
      // By Tab where that is the next control: the text is then selected.
      const auto prima = trovato == tutti.begin() ? nullptr : *std::prev(trovato);
      if (prima == ultimo_) {
        if (prima != nullptr) schermo_.Tasto(XK_Tab);
      } else {
        schermo_.Clicca(*form_, **trovato);
        schermo_.Tasto(XK_a, XK_Control_L);
      }
      std::string testo;
      resto >> testo;
      schermo_.Batti(testo);
    } else if (verbo == "select") {
      schermo_.Clicca(*form_, **trovato);
      int voce = 0, altra = 0;
      for (resto >> voce; resto >> altra; voce = altra) {
        for (; voce < altra; ++voce) schermo_.Tasto(XK_Down, XK_Control_L);
        schermo_.Tasto(XK_space, XK_Control_L);
      }
    } else {
      return false;
    }
    ultimo_ = *trovato;
    return true;
  }

  Schermo& schermo_;
  const Impianto& impianto_;
  Processo programma_;
  const Form* form_ = &FormPrincipale();
  const Controllo* ultimo_ = nullptr;  // the one last used: it has the focus
};

TEST(Finestra, ASessionWritesWhatTheScriptedDesktopWrites) {
  const struct {
    const char* schermo;
    const char* regione;
    const char* decimale;
  } casi[] = {{"1024x600", "C", "."}, {"1440x900", "xx_YY.bogus", "."}, {"1920x1080", "de_DE.UTF-8", ","}};
  const std::string copione = SORGENTI "/sessione.txt";
  for (const auto& caso : casi) {
    SCOPED_TRACE(caso.schermo);
    const Impianto finestra, atteso;
    Processo headless(
        {PROGRAMMA_HEADLESS, "--script", copione, "--decimal", caso.decimale, atteso.Argomento()}, {});
    Schermo schermo(caso.schermo);
    Seduta seduta(schermo, finestra, caso.regione);
    std::ifstream righe(copione);
    ASSERT_TRUE(seduta.Recita(righe));
    EXPECT_EQ(seduta.Stato(), 0);
    EXPECT_EQ(headless.Stato(), 0);
    EXPECT_TRUE(finestra.DiarioVisore("avviato normale\nAlt+f\nAlt+g\nchiusura\n"));
    for (const char* file :
         {"lavori/PR0042/sezio_ut", "lavori/PR0042/SezTmpPO.dis", "lavori/PR0042/U_PO_001.dis",
          "lavori/PR0042/U_PO_002.dis", "custom/CapSezDe.txt"}) {
      EXPECT_FALSE(finestra.Leggi(file).empty()) << file;
      EXPECT_TRUE(finestra.Leggi(file) == atteso.Leggi(file)) << file;
    }
  }
}

TEST(Finestra, ViewersOfEveryKind) {
  Schermo schermo("1024x600");
  {
    const Impianto impianto("muore");
    Seduta seduta(schermo, impianto);
    EXPECT_TRUE(seduta.Recita("click Command4\n"));
    EXPECT_TRUE(impianto.DiarioVisore("avviato muore\n"));
    EXPECT_TRUE(seduta.Recita("click Command4\n"));
    EXPECT_TRUE(impianto.DiarioVisore("avviato muore\navviato muore\n"));
    EXPECT_TRUE(seduta.Recita("click Command5\n"));
    EXPECT_EQ(seduta.Stato(), 0);
  }
  {
    const Impianto impianto("lento");
    ASSERT_EQ(mkfifo(impianto.File("progra/mostra").c_str(), 0600), 0);
    Seduta seduta(schermo, impianto);
    EXPECT_TRUE(seduta.Recita("click Command4\n"));
    EXPECT_TRUE(impianto.DiarioVisore("avviato lento\n"));
    EXPECT_TRUE(seduta.Recita("click Command4\n"));  // waits for the window
    impianto.Scrivi("progra/mostra", "ora");
    EXPECT_TRUE(impianto.DiarioVisore("avviato lento\nAlt+f\nAlt+g\n"));
    EXPECT_TRUE(seduta.Recita("activate tarvel1\nclick Command5\n"));
    EXPECT_EQ(seduta.Stato(), 0);
    EXPECT_TRUE(impianto.DiarioVisore("avviato lento\nAlt+f\nAlt+g\nchiusura\n"));
  }
  {
    const Impianto impianto("sordo");
    Seduta seduta(schermo, impianto);
    EXPECT_TRUE(seduta.Recita("click Command4\nform ostrel\nactivate tarvel1\nclick Command5\n"));
    EXPECT_EQ(seduta.Stato(), 0);
    EXPECT_TRUE(impianto.DiarioVisore("avviato sordo\nchiusura\n"));
    EXPECT_TRUE(schermo.Davanti("ostrel"));  // it outlives the program
  }
  for (const fs::perms diritti : {fs::perms::owner_all, fs::perms::owner_read}) {
    const Impianto impianto;
    fs::remove(impianto.File("progra/ostrel.exe"));
    impianto.Scrivi("progra/ostrel.exe", "no program\n");
    fs::permissions(impianto.File("progra/ostrel.exe"), diritti);
    Seduta seduta(schermo, impianto);
    EXPECT_TRUE(seduta.Recita("click Command4\nmessage ERRORE\nclick Command5\n"));
    EXPECT_EQ(seduta.Stato(), 0);
  }
}

TEST(Finestra, TheCloseBoxWaitsForAMessageAndAsksToSave) {
  Schermo schermo("1024x600");
  const Impianto impianto;
  Seduta seduta(schermo, impianto);
  EXPECT_TRUE(
      seduta.Recita("type Text1(15) 7\nclick Command1\nform ATTENZIONE\nclose tarvel1\n"
                    "message ATTENZIONE\nform FormSez\nclose tarvel1\nclick Command1\nform tarvel1\n"
                    "close tarvel1\nmessage INFORMAZIONE no\n"));
  EXPECT_EQ(seduta.Stato(), 0);
  EXPECT_FALSE(fs::exists(impianto.File("lavori/PR0042/sezio_ut")));
  EXPECT_FALSE(fs::exists(impianto.File("custom/CapSezDe.txt")));
}

TEST(Finestra, AMissingArgumentEndsTheProgramAfterItsMessage) {
  Schermo schermo("1024x600");
  Processo programma({PROGRAMMA_QT, "lavoro"}, {{"DISPLAY", schermo.Nome()}});
  EXPECT_TRUE(schermo.Davanti("ERRORE"));
  schermo.Tasto(XK_Return);
  EXPECT_EQ(programma.Stato(), 1);
}

}  // namespace
}  // namespace tarvel::prove
