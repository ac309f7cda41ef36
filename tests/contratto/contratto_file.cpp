// Files of the host: how paths are found, how lines and items are read and written.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "base/errore.h"
#include "platform/file.h"

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
  std::string Contenuto(const std::string& nome) const {
    std::ifstream file(cartella_ / nome, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  FileInLettura Apri(const std::string& nome, const std::string& contenuto) const {
    Metti(nome, contenuto);
    return std::move(FileInLettura::Apri(Percorso(nome)).value());
  }

  fs::path cartella_;
};

TEST_F(ContrattoFile, PathsAreMatchedExactlyFirstThenWithoutRegardToCase) {
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
}

TEST_F(ContrattoFile, NoFileIsNothing) {
  Metti("f", "");
  EXPECT_FALSE(FileInLettura::Apri(Percorso("assente")));
  EXPECT_FALSE(FileInLettura::Apri(Percorso("")));
  EXPECT_FALSE(FileInLettura::Apri(""));
  EXPECT_FALSE(FileInLettura::Apri(Percorso("f\\dentro")));
  EXPECT_FALSE(FileInScrittura::Crea(Percorso("manca\\f")));
  EXPECT_FALSE(FileInScrittura::Crea(Percorso("")));
}

TEST_F(ContrattoFile, ALineEndsWithOrWithoutACarriageReturnOrAtTheEnd) {
  for (const char* contenuto : {"uno\r\n\r\ntre\r\n", "uno\n\ntre\n", "uno\r\n\ntre"}) {
    FileInLettura file = Apri("f", contenuto);
    EXPECT_EQ(file.LeggiRiga(), "uno");
    EXPECT_EQ(file.LeggiRiga(), "");
    EXPECT_EQ(file.LeggiRiga(), "tre");
    EXPECT_EQ(file.Luogo(), Percorso("f") + ", riga 3");
    EXPECT_THROW(file.LeggiRiga(), ErroreFatale) << contenuto;
  }
  EXPECT_THROW(Apri("vuoto", "").LeggiVoceTesto(), ErroreFatale);
}

TEST_F(ContrattoFile, AVeryLongLineIsRead) {
  const std::string lunga(5'000'000, 'x');
  FileInLettura file = Apri("f", lunga + "\r\nfine");
  EXPECT_EQ(file.LeggiRiga().size(), lunga.size());
  EXPECT_EQ(file.LeggiRiga(), "fine");
}

TEST_F(ContrattoFile, ItemsEndAtCommasAndLineEnds) {
  struct Caso {
    const char* contenuto;
    std::vector<Testo> voci;
  };
  const Caso casi[] = {
      {"a,b\r\nc", {"a", "b", "c"}},
      {"  a b , c \n", {"a b ", "c "}},
      {"\"a, b\" , \"c\"\r\n\"d", {"a, b", "c", "d"}},
      {",,x", {"", "", "x"}},
      {"\r\n\"\"\r\nx\r\n", {"", "", "x"}},
      {"C:\\Lavori\r\n", {"C:\\Lavori"}},
  };
  for (const Caso& caso : casi) {
    FileInLettura file = Apri("f", caso.contenuto);
    for (const Testo& voce : caso.voci) EXPECT_EQ(file.LeggiVoceTesto(), voce) << caso.contenuto;
    EXPECT_THROW(file.LeggiVoceTesto(), ErroreFatale) << caso.contenuto;
  }
}

TEST_F(ContrattoFile, NumbersAlsoEndAtBlanks) {
  FileInLettura file = Apri("f", " .5  -2,\"3\" 1E+03\r\n7 resto\r\nintera\r\nx\r\n32768\r\n1.5\r\n");
  EXPECT_EQ(file.LeggiVoceNumero().Valore(), 0.5);
  EXPECT_EQ(file.LeggiVoceIntero(), -2);
  EXPECT_EQ(file.LeggiVoceIntero(), 3);
  EXPECT_EQ(file.LeggiVoceNumero().Valore(), 1000.0);
  EXPECT_EQ(file.LeggiVoceIntero(), 7);
  EXPECT_EQ(file.LeggiRiga(), "intera");
  for (const int riga : {4, 5, 6}) {
    try {
      riga == 4 ? void(file.LeggiVoceNumero()) : void(file.LeggiVoceIntero());
      ADD_FAILURE() << riga;
    } catch (const ErroreFatale& errore) {
      EXPECT_EQ(errore.dove, Percorso("f") + ", riga " + std::to_string(riga));
    }
  }
}

TEST_F(ContrattoFile, WhatIsWrittenReplacesTheFile) {
  Metti("Vecchio", "qualcosa di piu' lungo di quanto segue");
  auto file = FileInScrittura::Crea(Percorso("VECCHIO")).value();
  file.ScriviRiga("gi\xE0");
  file.ScriviRiga("");
  file.Chiudi();
  EXPECT_EQ(Contenuto("Vecchio"), "gi\xE0\r\n\r\n");
}

TEST_F(ContrattoFile, AFullDiskIsFatalAtTheLatestWhenTheFileIsClosed) {
  if (!fs::exists("/dev/full")) GTEST_SKIP() << "no /dev/full on this host";
  auto file = FileInScrittura::Crea("\\dev\\full").value();
  EXPECT_THROW(
      {
        file.ScriviRiga("una riga");
        file.Chiudi();
      },
      ErroreFatale);
}

}  // namespace
}  // namespace tarvel::contratto
