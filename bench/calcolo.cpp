// The calculation of one section, the building of an outline, the section file.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <filesystem>

#include "model/archivio/file_sezioni.h"
#include "properties/calcolo/caratteristiche.h"
#include "tests/aiuti.h"

namespace tarvel {
namespace {

void CostruzioneContorno(benchmark::State& stato) {
  RecordSezione r = prove::Costruita(prove::Esempio());
  for (auto _ : stato) {
    CostruisciGeometria(r, ParametriSezione);
    benchmark::DoNotOptimize(r);
  }
}
BENCHMARK(CostruzioneContorno);

void CalcoloCompleto(benchmark::State& stato) {
  RecordSezione r = prove::Costruita(prove::Esempio());
  for (auto _ : stato) {
    CalcolaCaratteristiche(r);
    benchmark::DoNotOptimize(r);
  }
}
BENCHMARK(CalcoloCompleto);

class FileDiCinquecento : public benchmark::Fixture {
 public:
  void SetUp(const benchmark::State&) override {
    prove::Prepara(prove::Esempio());
    FileSezioni =
        (std::filesystem::temp_directory_path() / ("tarvel_bench_" + std::to_string(getpid()))).string();
    NumeroSezioni = kMaxSezioni;
    for (int i = 1; i <= kMaxSezioni; ++i) {
      RecordSezione& r = TabellaSezioni[i];
      ParametriSezione[kAltezzaTotale] = 200 + i * 0.37;
      CostruisciGeometria(r, ParametriSezione);
      CalcolaCaratteristiche(r);
      r.Nome = "U_PO_" + std::to_string(i);
    }
    static_cast<void>(ScriviFileSezioni());
  }
  void TearDown(const benchmark::State&) override { std::filesystem::remove(FileSezioni); }
};

BENCHMARK_F(FileDiCinquecento, Scrittura)(benchmark::State& stato) {
  for (auto _ : stato)
    if (!ScriviFileSezioni().scritte) stato.SkipWithError("non scritto");
}
BENCHMARK_F(FileDiCinquecento, Lettura)(benchmark::State& stato) {
  for (auto _ : stato) static_cast<void>(LeggiFileSezioni());
}

}  // namespace
}  // namespace tarvel
