// Includes point downward only, never in a ring: every #include of the sources is read.
#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <set>

namespace {

namespace fs = std::filesystem;

struct Piano {
  const char* inizio;  // of the path
  int piano;
};

// The longest beginning that fits decides.
constexpr Piano kPiani[] = {
    {"base/", 0},
    {"platform/", 1},
    {"platform/comune/", 1},
    {"model/", 2},
    {"properties/", 2},
    {"app/cartelle", 2},
    {"sheartorsion/", 3},
    {"drawing/", 3},
    {"model/file_sezioni", 4},
    {"model/verifica", 4},
    {"properties/caratteristiche", 4},
    {"options/opzioni", 4},
    {"drawing/disegno_sezione", 5},
    {"preview/", 6},
    {"options/form_opt", 6},
    {"app/", 7},
    {"platform/headless/", 8},
    {"platform/qt/", 8},
    {"viewer/", 8},
};

int PianoDi(const std::string& file) {
  const Piano* migliore = nullptr;
  for (const Piano& p : kPiani)
    if (file.starts_with(p.inizio) && (!migliore || std::strlen(p.inizio) > std::strlen(migliore->inizio)))
      migliore = &p;
  return migliore ? migliore->piano : -1;
}

TEST(Piani, GliIncludeScendono) {
  const fs::path radice = RADICE_SORGENTI;
  std::map<std::string, std::set<std::string>> grafo;
  int letti = 0;
  for (const char* cartella : {"base", "platform", "model", "properties", "sheartorsion", "drawing",
                               "options", "preview", "app", "viewer"}) {
    for (const auto& voce : fs::recursive_directory_iterator(radice / cartella)) {
      const std::string file = fs::relative(voce.path(), radice).string();
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
        if (!fs::exists(radice / incluso)) continue;
        EXPECT_GE(PianoDi(file), PianoDi(incluso))
            << file << ":" << n << ": include " << incluso << ", di un piano superiore";
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
