// Files and programs of the host: how paths are found, lines and items read and written, programs started.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "base/errore.h"
#include "platform/comune/percorso.h"
#include "platform/file.h"
#include "platform/programmi.h"
#include "tests/contratto/mobili.h"

namespace tarvel::contratto {
namespace {

namespace fs = std::filesystem;

class ContrattoFile : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string modello = (fs::temp_directory_path() / "contrattoXXXXXX").string();
    ASSERT_NE(mkdtemp(modello.data()), nullptr);
    cartella_ = modello;
  }
  void TearDown() override { fs::remove_all(cartella_); }

  Testo Percorso(const std::string& nome) const {
    Testo percorso = (cartella_ / nome).string();
    std::replace(percorso.begin(), percorso.end(), '/', '\\');
    return percorso;
  }
  void Metti(const std::string& nome, const std::string& contenuto) const {
    std::ofstream(cartella_ / nome, std::ios::binary) << contenuto;
  }
  FileInLettura Apri(const std::string& nome, const std::string& contenuto) const {
    Metti(nome, contenuto);
    return std::move(FileInLettura::Apri(Percorso(nome)).value());
  }

  fs::path cartella_;
};

TEST_F(ContrattoFile, PercorsiPrimaEsattiPoiSenzaMaiuscole) {
  fs::create_directories(cartella_ / "Custom");
  fs::create_directories(cartella_ / "custom2");
  Metti("Custom/CapSezDe.txt", "");
  Metti("custom2/uno", "");
  Metti("custom2/UNO", "");
  Metti("Custom/PERCH\xC3\x89", "");
  const std::string base = cartella_.string();
  const std::pair<const char*, const char*> casi[] = {
      {"custom\\capsezde.TXT", "Custom/CapSezDe.txt"},
      {"CUSTOM\\Nuovo.txt", "Custom/Nuovo.txt"},
      {"CUSTOM\\perch\xE9", "Custom/PERCH\xC3\x89"},
      {"custom2\\UNO", "custom2/UNO"},
      {"custom2\\uno", "custom2/uno"},
      {"custom2\\Uno", "custom2/UNO"},
      {"Assente\\x", "Assente/x"},
      {"custom\\..\\CUSTOM2\\.\\uno", "Custom/../custom2/./uno"},
  };
  for (const auto& [percorso, atteso] : casi)
    EXPECT_EQ(PercorsoHost(Percorso("") + percorso), base + "/" + atteso) << percorso;

  const fs::path prima = fs::current_path();
  fs::current_path(cartella_);
  fs::create_directories("C:/Dati");
  EXPECT_EQ(PercorsoHost("CUSTOM\\capsezde.txt"), "Custom/CapSezDe.txt");
  EXPECT_EQ(PercorsoHost("c:\\dati\\x"), "C:/Dati/x");
  fs::current_path(prima);
}

TEST_F(ContrattoFile, TraNomiUgualiAMenoDiMaiuscoleVinceQuelloDellUtente) {
  for (const char* nome : {"radice", "Radice", "RADICE"}) {
    fs::create_directories(cartella_ / nome / "Custom");
    fs::create_directories(cartella_ / nome / "custom");
  }
  const Testo radice = Percorso("radice");
  RicordaGrafia(Percorso("Radice") + "\\");
  EXPECT_EQ(PercorsoHost(radice + "\\custom"), (cartella_ / "Radice/custom").string());
  EXPECT_EQ(PercorsoHost(Percorso("RADICE") + "\\x"), (cartella_ / "Radice/x").string());
  // A name that the code page lacks is no other name, and no other name is it.
  Metti("\xE2\x88\x91", "");
  EXPECT_EQ(PercorsoHost(Percorso("?")), (cartella_ / "?").string());
}

TEST_F(ContrattoFile, NessunFileNonENulla) {
  Metti("f", "");
  ASSERT_EQ(mkfifo((cartella_ / "tubo").c_str(), 0600), 0);
  EXPECT_FALSE(FileInLettura::Apri(Percorso("tubo")));
  EXPECT_FALSE(FileInLettura::Apri("\\dev\\zero"));
  EXPECT_EQ(ScriviFile(Percorso("tubo"), "x"), EsitoScrittura::NonAperto);
  for (const Testo& percorso : {Percorso("assente"), Percorso(""), Testo(), Percorso("f\\dentro")})
    EXPECT_FALSE(FileInLettura::Apri(percorso)) << percorso;
  for (const Testo& percorso : {Percorso("manca\\f"), Percorso("")})
    EXPECT_EQ(ScriviFile(percorso, "x"), EsitoScrittura::NonAperto) << percorso;
}

TEST_F(ContrattoFile, DoveFinisconoRigheEVoci) {
  const Testo lunga(kRigaMassima, 'x');
  const struct {
    Testo contenuto;
    std::vector<Testo> righe;
    std::vector<Testo> voci;
  } casi[] = {
      {"", {}, {}},
      {"uno\r\n\r\ntre\r\n", {"uno", "", "tre"}, {"uno", "", "tre"}},
      {"uno\n\ntre\n", {"uno", "", "tre"}, {"uno", "", "tre"}},
      {lunga + "\r\nfine", {lunga, "fine"}, {lunga, "fine"}},
      {"a,b\r\nc", {"a,b", "c"}, {"a", "b", "c"}},
      {"  a b , c \n", {"  a b , c "}, {"a b ", "c "}},
      {"\"a, b\" , \"c\"\r\n\"d", {"\"a, b\" , \"c\"", "\"d"}, {"a, b", "c", "d"}},
      {",,x", {",,x"}, {"", "", "x"}},
      {"\"a\",,b", {"\"a\",,b"}, {"a", "", "b"}},
      {"\r\n\"\"\r\nx\r\n", {"", "\"\"", "x"}, {"", "", "x"}},
      {"C:\\Lavori\r\n", {"C:\\Lavori"}, {"C:\\Lavori"}},
  };
  for (const auto& caso : casi) {
    SCOPED_TRACE(caso.contenuto.substr(0, 40));
    FileInLettura aRighe = Apri("f", caso.contenuto);
    for (const Testo& riga : caso.righe) EXPECT_TRUE(aRighe.LeggiRiga() == riga) << riga.substr(0, 40);
    EXPECT_THROW(aRighe.LeggiRiga(), ErroreFatale);
    FileInLettura aVoci = Apri("f", caso.contenuto);
    for (const Testo& voce : caso.voci) EXPECT_TRUE(aVoci.LeggiVoceTesto() == voce) << voce.substr(0, 40);
    EXPECT_THROW(aVoci.LeggiVoceTesto(), ErroreFatale);
  }
  EXPECT_THROW(Apri("f", lunga + "x\r\n").LeggiRiga(), ErroreFatale);
}

TEST_F(ContrattoFile, INumeriFinisconoAncheAiBianchi) {
  FileInLettura file =
      Apri("f", " .5  -2,\"3\" 1E+03\r\n7 resto\r\nintera\r\nx\r\n32768\r\n1.5\r\n-1E309\r\n");
  EXPECT_EQ(file.LeggiVoceNumero().Valore(), 0.5);
  EXPECT_EQ(file.LeggiVoceIntero(), -2);
  EXPECT_EQ(file.LeggiVoceIntero(), 3);
  EXPECT_EQ(file.LeggiVoceNumero().Valore(), 1000.0);
  EXPECT_EQ(file.LeggiVoceIntero(), 7);
  EXPECT_EQ(file.LeggiRiga(), "intera");
  for (const int riga : {4, 5, 6, 7}) {
    try {
      riga == 4 || riga == 7 ? void(file.LeggiVoceNumero()) : void(file.LeggiVoceIntero());
      ADD_FAILURE() << riga;
    } catch (const ErroreFatale& errore) {
      EXPECT_EQ(errore.dove, Percorso("f") + ", riga " + std::to_string(riga));
    }
  }
}

TEST_F(ContrattoFile, LoScrittoSostituisceIlFileEIlDiscoPienoSiDice) {
  Metti("Vecchio", "qualcosa di piu' lungo di quanto segue");
  fs::create_symlink("Vecchio", cartella_ / "rimando");
  Testo testo;
  for (const char* riga : {"gi\xE0", ""}) AccodaRiga(testo, riga);
  EXPECT_EQ(ScriviFile(Percorso("RIMANDO"), testo, true), EsitoScrittura::Scritto);
  const auto letto = [&](const char* nome) {
    std::ifstream scritto(cartella_ / nome, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(scritto), {});
  };
  EXPECT_EQ(letto("Vecchio"), "gi\xE0\r\n\r\n");

  const Testo grande(200'000, 'x');
  Metti("grande", grande);
  EXPECT_TRUE(CopiaFile(Percorso("GRANDE"), Percorso("copia")) && letto("copia") == grande);
  EXPECT_TRUE(SostituisciFile(Percorso("copia"), "breve") && letto("copia") == "breve");
  EXPECT_FALSE(CopiaFile("\\dev\\zero", Percorso("copia")));
  EXPECT_EQ(std::distance(fs::directory_iterator(cartella_), {}), 4);

  EXPECT_EQ(ScriviFile("\\dev\\full", "x"), EsitoScrittura::Incompleto);
}

// Where nothing tells of another program's windows, the one that lives is running all the same.
TEST_F(ContrattoFile, IdentificativiNuoviESoloDiProgrammiAvviati) {
  Metti("vivo", "#!/bin/sh\nfor i in $(seq 50); do [ -e \"$0\" ] && sleep 0.1; done\n");
  fs::permissions(cartella_ / "vivo", fs::perms::owner_all);
  const std::string diario = Prova([this](Utente& u) {
    FormDiario form(u, "F");
    form.alCaricamento = [&] {
      const auto uno = AvviaProgramma("\\bin\\TRUE", 1);
      const auto due = AvviaProgramma("\\bin\\true", 1);
      u.Annota(uno && due && *uno != 0 && *due != 0 && *uno != *due ? "diversi" : "guasto");
      for (const char* percorso : {"\\bin\\non c'e'", "\\bin", ""})
        u.Annota(AvviaProgramma(percorso, 1) ? "avviato" : "niente");
      const std::int32_t vivo = AvviaProgramma(Percorso("vivo"), 1).value_or(0);
      for (const std::int32_t id : {vivo, 0, -1, 12345}) u.Annota(AttivaProgramma(id) ? "attivo" : "nessuno");
      InviaTasti("%(fg)");
    };
    u.Esegui(form, {[this] { fs::remove(cartella_ / "vivo"); }});
  });
  EXPECT_EQ(diario, Righe("load F; diversi; niente; niente; niente; attivo; nessuno; nessuno; nessuno"));
}

}  // namespace
}  // namespace tarvel::contratto
