// Files and programs of a POSIX host: how paths are found, what is no file, programs started.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "platform/comune/percorso.h"
#include "platform/programmi.h"
#include "tests/contratto/cartella_prova.h"
#include "tests/contratto/mobili.h"

namespace tarvel::contratto {
namespace {

namespace fs = std::filesystem;

TEST_F(ContrattoFile, PercorsiPrimaEsattiPoiSenzaMaiuscole) {
  fs::create_directories(cartella_ / "Custom");
  fs::create_directories(cartella_ / "custom2");
  Metti("Custom/CapSezDe.txt", "");
  Metti("custom2/uno", "");
  Metti("custom2/UNO", "");
  Metti("Custom/PERCH\xC3\x89", "");
  const std::string base = cartella_.radice.string();
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
  fs::current_path(cartella_.radice);
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

TEST_F(ContrattoFile, SoloIFileSiAprono) {
  ASSERT_EQ(mkfifo((cartella_ / "tubo").c_str(), 0600), 0);
  for (const auto& [percorso, perche] : {std::pair{Percorso("tubo"), "non è un file"_t},
                                         {"\\dev\\zero", "non è un file"_t},
                                         {Percorso(""), "è una cartella"_t},
                                         {Percorso("assente"), "file o cartella inesistente"}}) {
    Testo motivo;
    EXPECT_FALSE(FileInLettura::Apri(percorso, &motivo));
    EXPECT_EQ(motivo, perche) << percorso;
  }
  EXPECT_FALSE(FileDaRiscrivere::Apri("\\dev\\null") || LeggiTutto("\\dev\\zero"));
  EXPECT_EQ(ScriviFile(Percorso("tubo"), "x"), EsitoScrittura::NonAperto);
  EXPECT_EQ(ScriviFile("\\dev\\full", "x"), EsitoScrittura::Incompleto);
  EXPECT_EQ(ScriviFile("\\dev\\full", "x").motivo, "disco pieno");
  EXPECT_EQ(ScriviFile(Percorso(""), "x").motivo, "è una cartella"_t);
  EXPECT_EQ(CreaFile(Percorso("tubo"), "x").motivo, "il nome è già preso"_t);
}

TEST_F(ContrattoFile, DirittiERimandiRestano) {
  Metti("Vecchio", "vecchio");
  fs::permissions(cartella_ / "Vecchio", fs::perms(0642));
  fs::create_symlink("Vecchio", cartella_ / "rimando");
  fs::create_symlink("assente", cartella_ / "sospeso");
  EXPECT_EQ(ScriviFile(Percorso("RIMANDO"), "nuovo"), EsitoScrittura::Scritto);
  EXPECT_EQ(Letto("Vecchio"), "nuovo");
  EXPECT_TRUE(FileDaRiscrivere::Apri(Percorso("rimando"))->Sostituisci("altro"));
  EXPECT_EQ(Letto("Vecchio"), "altro");
  EXPECT_TRUE(SostituisciFile(Percorso("copia"), "x", Percorso("Vecchio")));
  for (const char* nome : {"Vecchio", "copia"})
    EXPECT_EQ(fs::status(cartella_ / nome).permissions(), fs::perms(0642)) << nome;
  EXPECT_FALSE(CreaFile(Percorso("sospeso"), "x") || fs::exists(cartella_ / "assente"));
  EXPECT_TRUE(fs::is_symlink(cartella_ / "rimando"));
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
