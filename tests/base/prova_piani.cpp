// Includes point downward only, never in a ring: docs/piani.md and every #include of the sources are read.
#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <set>
#include <sstream>

namespace {

namespace fs = std::filesystem;

const fs::path kRadice = RADICE_SORGENTI;

// The rows "| floor | `room` `room` | ... |", a floor for each room.
std::map<std::string, int> LeggiPiani() {
  std::map<std::string, int> piani;
  std::ifstream in(kRadice / "docs/piani.md");
  for (std::string riga; std::getline(in, riga);) {
    if (riga.size() < 3 || riga[0] != '|' || std::isdigit(riga[2]) == 0) continue;
    std::istringstream stanze(riga.substr(riga.find('|', 2), riga.find('|', 6) - riga.find('|', 2)));
    for (std::string prima, stanza; std::getline(std::getline(stanze, prima, '`'), stanza, '`');)
      piani[stanza] = riga[2] - '0';
  }
  return piani;
}
const auto kPiani = LeggiPiani();

// The longest beginning that fits decides: in alphabetical order it comes last.
int PianoDi(const std::string& file) {
  int piano = -1;
  for (const auto& [inizio, n] : kPiani)
    if (file.starts_with(inizio)) piano = n;
  return piano;
}

TEST(Piani, GliIncludeScendono) {
  std::map<std::string, std::set<std::string>> grafo;
  int letti = 0;
  std::set<std::string> cartelle;
  for (const auto& [inizio, n] : kPiani) cartelle.insert(inizio.substr(0, inizio.find('/')));
  for (const std::string& cartella : cartelle) {
    for (const auto& voce : fs::recursive_directory_iterator(kRadice / cartella)) {
      const std::string file = fs::relative(voce.path(), kRadice).string();
      if (!file.ends_with(".h") && !file.ends_with(".cpp")) continue;
      ++letti;
      ASSERT_GE(PianoDi(file), 0) << file << ": senza piano";
      std::ifstream in(voce.path());
      std::string riga;
      for (int n = 1; std::getline(in, riga); ++n) {
        // The toolkit stays out of the core.
        EXPECT_TRUE(PianoDi(file) == 8 || riga.find("<Q") == std::string::npos) << file << ":" << n;
        constexpr std::string_view kInclude = "#include \"";
        if (!riga.starts_with(kInclude)) continue;
        const std::string incluso = riga.substr(kInclude.size(), riga.rfind('"') - kInclude.size());
        if (!fs::exists(kRadice / incluso)) continue;
        EXPECT_TRUE(PianoDi(incluso) >= 0 && PianoDi(incluso) <= PianoDi(file))
            << file << ":" << n << ": include " << incluso << ", di nessun piano o di uno superiore";
        grafo[file].insert(incluso);
      }
    }
  }
  EXPECT_GT(letti, 40);

  std::map<std::string, int> stato;  // 1: on the path being walked, 2: done
  const std::function<void(const std::string&)> visita = [&](const std::string& file) {
    stato[file] = 1;
    for (const std::string& incluso : grafo[file]) {
      EXPECT_NE(stato[incluso], 1) << "anello tra " << file << " e " << incluso;
      if (stato[incluso] == 0) visita(incluso);
    }
    stato[file] = 2;
  };
  std::set<std::string> tutti;
  for (const auto& [file, inclusi] : grafo) tutti.insert(file);
  for (const std::string& file : tutti)
    if (stato[file] == 0) visita(file);
}

}  // namespace
