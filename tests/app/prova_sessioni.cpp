// Whole sessions of the program: each script of sessioni/ is played on a fresh installation and its
// transcript compared line by line with the expected one beside it.
//
// Comment lines of a script that begin with "#:" prepare the installation:
//   #: scrivi PATH TEXT     a file (\n: CR LF, \t)      #: togli PATH        removes a file or folder
//   #: cartella PATH        a folder                #: argomento TEXT    in place of |diroot={radice}|
//   #: opzioni ARGS         of the program
//   #: mostra PATH          adds a file to the transcript, of a folder the names
// A line "#=== NAME" begins another session of the same file, on a fresh installation.
// {radice} stands for the installation's folder, also in the transcripts. With TARVEL_ACCETTA=1 in
// the environment what was played becomes what is expected.
#include <gtest/gtest.h>

#include <cstdlib>
#include <set>

#include "aiuti.h"

namespace {

namespace fs = std::filesystem;
using tarvel::prove::Cartella;
using tarvel::prove::Contenuto;
using tarvel::prove::Scrivi;

const fs::path kSessioni = fs::path(RADICE_SORGENTI) / "tests/app/sessioni";

std::string Sostituisci(std::string testo, const std::string& questo, const std::string& con) {
  for (std::size_t i = 0; (i = testo.find(questo, i)) != std::string::npos; i += con.size())
    testo.replace(i, questo.size(), con);
  return testo;
}

std::string Minuscolo(std::string testo) {
  for (char& c : testo) c = static_cast<char>(std::tolower(c));
  return testo;
}

struct Sessione {
  explicit Sessione(std::string testoCopione) : copione(std::move(testoCopione)) {
    for (const char* c : {"custom", "progra", "driver", "Lavori/PR0001"})
      fs::create_directories(cartella / c);
    Scrivi(cartella / "impostazioni/dirlav", (cartella / "Lavori").string() + "\r\n");
    Scrivi(cartella / "impostazioni/lavoro", " PR0001 \r\n");
    Scrivi(cartella / "progra/ostrel.exe", "");
    Scrivi(cartella / "copione", copione);
    std::istringstream righe(copione);
    for (std::string riga; std::getline(righe, riga);)
      if (riga.starts_with("#: ")) Direttiva(riga.substr(3));
  }

  void Direttiva(const std::string& testo) {
    std::istringstream in(testo);
    std::string verbo, percorso, resto;
    in >> verbo;
    if (verbo == "argomento" || verbo == "opzioni") {
      std::string& destinazione = verbo == "argomento" ? argomento : opzioni;
      destinazione.clear();
      std::getline(in >> std::ws, destinazione);
      return;
    }
    in >> percorso;
    std::getline(in >> std::ws, resto);
    const fs::path file = cartella / percorso;
    if (verbo == "scrivi") {
      fs::remove_all(file);
      for (const auto& [segno, valore] :
           {std::pair{"{radice}", cartella.radice.c_str()}, {"\\n", "\r\n"}, {"\\t", "\t"}})
        resto = Sostituisci(resto, segno, valore);
      Scrivi(file, resto);
    } else if (verbo == "togli") {
      ASSERT_GT(fs::remove_all(file), 0) << testo;
    } else if (verbo == "cartella") {
      fs::create_directories(file);
    } else if (verbo == "mostra") {
      mostrati.push_back(percorso);
    } else {
      FAIL() << "direttiva sconosciuta: " << testo;
    }
  }

  std::string Recita() const {
    const fs::path uscita = cartella / "uscita", errori = cartella / "errori";
    const std::string radice = cartella.radice.string();
    const std::string comando = std::string(PROGRAMMA_HEADLESS) + " --script '" +
                                (cartella / "copione").string() + "' " + opzioni + " -- '" +
                                Sostituisci(argomento, "{radice}", radice) + "' >" + uscita.string() + " 2>" +
                                errori.string();
    const int stato = std::system(comando.c_str());
    std::string testo =
        Contenuto(uscita) + Contenuto(errori) + "stato " + std::to_string(WEXITSTATUS(stato)) + "\n";
    for (const std::string& nome : mostrati) {
      testo += "--- " + nome + (fs::exists(cartella / nome) ? "\n" : " manca\n");
      if (fs::is_directory(cartella / nome)) {
        std::set<std::string> voci;
        for (const auto& voce : fs::directory_iterator(cartella / nome))
          voci.insert(voce.path().filename().string());
        for (const std::string& voce : voci) testo += voce + "\n";
        continue;
      }
      testo += Sostituisci(Contenuto(cartella / nome), "\r\n", "\n");
    }
    return Sostituisci(Sostituisci(testo, radice, "{radice}"), Minuscolo(radice), "{radice}");
  }

  std::string copione;
  Cartella cartella;
  std::string argomento = "|diroot={radice}|";
  std::string opzioni;
  std::vector<std::string> mostrati;
};

class ProvaSessioni : public testing::TestWithParam<std::string> {};

// The sessions of a file, each from its own line of marks on.
std::vector<std::string> SessioniDi(const std::string& copione) {
  std::vector<std::string> sessioni = {""};
  std::istringstream righe(copione);
  for (std::string riga; std::getline(righe, riga);) {
    if (riga.starts_with("#=== ")) sessioni.emplace_back();
    sessioni.back() += riga + "\n";
  }
  if (sessioni.size() > 1) sessioni.erase(sessioni.begin());  // the remarks at the top
  return sessioni;
}

TEST_P(ProvaSessioni, ComeAttesa) {
  const fs::path copione = kSessioni / (GetParam() + ".copione"),
                 atteso = kSessioni / (GetParam() + ".atteso");
  std::string recitata;
  for (const std::string& testo : SessioniDi(Contenuto(copione))) {
    if (testo.starts_with("#=== ")) recitata += testo.substr(0, testo.find('\n') + 1);
    recitata += Sessione(testo).Recita();
  }
  if (std::getenv("TARVEL_ACCETTA") != nullptr) Scrivi(atteso, recitata);
  const std::string prevista = Contenuto(atteso);
  if (recitata == prevista) return;
  Scrivi(kSessioni / (GetParam() + ".nuovo"), recitata);
  std::istringstream a(prevista), b(recitata);
  std::string x, y;
  int n = 0;
  do {
    ++n;
    x = y = "(fine)";
    std::getline(a, x);
    std::getline(b, y);
  } while (x == y);
  FAIL() << GetParam() << ".atteso:" << n << "\n  atteso: " << x << "\n  avuto:  " << y << "\n(intero in "
         << GetParam() << ".nuovo)";
}

std::vector<std::string> Copioni() {
  std::vector<std::string> nomi;
  for (const auto& voce : fs::directory_iterator(kSessioni))
    if (voce.path().extension() == ".copione") nomi.push_back(voce.path().stem().string());
  std::sort(nomi.begin(), nomi.end());
  return nomi;
}

INSTANTIATE_TEST_SUITE_P(Sessioni, ProvaSessioni, testing::ValuesIn(Copioni()),
                         [](const auto& sessione) { return sessione.param; });

}  // namespace
