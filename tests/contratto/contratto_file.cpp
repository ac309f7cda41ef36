// Files of the host: lines and items read, whole files written.
#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <vector>

#include "base/errore.h"
#include "tests/contratto/cartella_prova.h"

namespace tarvel::contratto {
namespace {

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

TEST_F(ContrattoFile, LoScrittoPrendeIlPostoDelFile) {
  Metti("Vecchio", "qualcosa di piu' lungo di quanto segue");
  Testo testo;
  for (const char* riga : {"gi\xE0", ""}) AccodaRiga(testo, riga);
  EXPECT_EQ(ScriviFile(Percorso("VECCHIO"), testo, true), EsitoScrittura::Scritto);
  EXPECT_EQ(Letto("Vecchio"), "gi\xE0\r\n\r\n");

  const Testo grande(200'000, 'x');
  EXPECT_TRUE(CreaFile(Percorso("grande"), grande) && Letto("grande") == grande);
  EXPECT_EQ(LeggiTutto(Percorso("GRANDE")), grande);
  EXPECT_FALSE(CreaFile(Percorso("GRANDE"), "altro") || Letto("grande") != grande);
  EXPECT_TRUE(SostituisciFile(Percorso("grande"), "breve", {}) && Letto("grande") == "breve");
  EXPECT_FALSE(FileDaRiscrivere::Apri(Percorso("assente")) || LeggiTutto(Percorso("assente")));
  for (const bool accanto : {false, true}) {
    auto file = FileDaRiscrivere::Apri(Percorso("GRANDE"));
    ASSERT_TRUE(file);
    EXPECT_EQ(file->Contenuto(), accanto ? "u" : "breve");
    const Testo nuovo = accanto ? "due" : "u";
    EXPECT_TRUE(accanto ? file->Sostituisci(nuovo) : file->Riscrivi(nuovo));
    EXPECT_EQ(Letto("grande"), nuovo);
  }
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(cartella_.radice), {}), 2);
}

TEST_F(ContrattoFile, NessunFileDoveNonCE) {
  Metti("f", "");
  for (const Testo& percorso : {Percorso("assente"), Percorso(""), Testo(), Percorso("f\\dentro")})
    EXPECT_FALSE(FileInLettura::Apri(percorso)) << percorso;
  for (const Testo& percorso : {Percorso("manca\\f"), Percorso("")})
    EXPECT_EQ(ScriviFile(percorso, "x"), EsitoScrittura::NonAperto) << percorso;
}

}  // namespace
}  // namespace tarvel::contratto
