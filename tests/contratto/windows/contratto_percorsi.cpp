// Files and programs of Windows: how paths are found, what is no file, programs started.
#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>

#include "platform/programmi.h"
#include "tests/contratto/cartella_prova.h"
#include "tests/contratto/mobili.h"

namespace tarvel::contratto {
namespace {

namespace fs = std::filesystem;

TEST_F(ContrattoFile, PercorsiConUnitaAccentiEBarre) {
  fs::create_directories(cartella_.radice / L"Citt\u00E0 nuova" / L"\u20AC");
  const fs::path file = cartella_.radice / L"Citt\u00E0 nuova" / L"\u20AC" / L"Perch\u00E9.dis";
  const Testo dentro = "citt\xC0 NUOVA\\\x80\\PERCH\xC9.DIS";
  EXPECT_EQ(ScriviFile(Percorso("") + "citt\xC0 NUOVA\\\x80\\Perch\xE9.dis", "uno"), EsitoScrittura::Scritto);
  EXPECT_EQ(prove::Contenuto(file), "uno");
  const Testo assoluto = Percorso("") + dentro;
  ASSERT_EQ(assoluto[1], ':');
  Testo barre = assoluto;
  std::replace(barre.begin(), barre.end(), '\\', '/');
  const fs::path prima = fs::current_path();
  fs::current_path(cartella_.radice);
  for (const Testo& percorso : {assoluto, barre, assoluto.substr(2), dentro, assoluto.substr(0, 2) + dentro})
    EXPECT_TRUE(FileInLettura::Apri(percorso)) << percorso;
  fs::current_path(prima);

  Testo lungo = Percorso("");
  for (int i = 0; i < 5; ++i) {
    lungo += Testo(60, static_cast<char>('a' + i));
    ASSERT_TRUE(fs::create_directory("\\\\?\\" + lungo)) << lungo;
    lungo += '\\';
  }
  EXPECT_EQ(ScriviFile(lungo + "f", "x"), EsitoScrittura::Scritto);
  EXPECT_TRUE(FileInLettura::Apri(lungo + "F"));
}

// A drawing named as a device must not vanish in it.
TEST_F(ContrattoFile, IDispositiviNonSonoFileUnoNascostoResta) {
  for (const char* nome : {"NUL", "CON", "COM1", "\\\\.\\NUL", "\\\\.\\pipe\\x"})
    EXPECT_EQ(ScriviFile(nome, "x"), EsitoScrittura::NonAperto) << nome;
  EXPECT_FALSE(FileInLettura::Apri("NUL"));

  Metti("nascosto", "vecchio, e lungo");
  SetFileAttributesW((cartella_ / "nascosto").c_str(), FILE_ATTRIBUTE_HIDDEN);
  EXPECT_EQ(ScriviFile(Percorso("nascosto"), "nuovo"), EsitoScrittura::Scritto);
  EXPECT_EQ(Letto("nascosto"), "nuovo");
  EXPECT_NE(GetFileAttributesW((cartella_ / "nascosto").c_str()) & FILE_ATTRIBUTE_HIDDEN, 0U);
}

// The last one stays until its window is sent the keys that close it.
TEST_F(ContrattoFile, IdentificativiNuoviESoloDiProgrammiAvviati) {
  const std::string diario = Prova([](Utente& u) {
    FormDiario form(u, "F");
    form.alCaricamento = [&] {
      Testo sistema(MAX_PATH, '\0');
      sistema.resize(GetSystemDirectoryA(sistema.data(), MAX_PATH));
      const auto uno = AvviaProgramma(sistema + "\\hostname.exe", 1);
      const auto due = AvviaProgramma(sistema + "\\hostname.exe", 1);
      u.Annota(uno && due && *uno != 0 && *due != 0 && *uno != *due ? "diversi" : "guasto");
      for (const Testo& percorso : {sistema + "\\non c'e'", sistema, Testo()})
        u.Annota(AvviaProgramma(percorso, 1) ? "avviato" : "niente");
      const std::int32_t vivo = AvviaProgramma(sistema + "\\notepad.exe", 1).value_or(0);
      for (const std::int32_t id : {0, -1, 12345, vivo}) u.Annota(AttivaProgramma(id) ? "attivo" : "nessuno");
      InviaTasti("%{F4}");
    };
    u.Esegui(form, {});
  });
  EXPECT_EQ(diario, Righe("load F; diversi; niente; niente; niente; nessuno; nessuno; nessuno; attivo"));
}

}  // namespace
}  // namespace tarvel::contratto
