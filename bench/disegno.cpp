// The drawing of the worked example's section: drawn, compacted, written.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "drawing/ottimizza.h"
#include "drawing/salva_dis_cond.h"
#include "drawing/sezione/disegno_sezione.h"
#include "options/opzioni.h"
#include "properties/calcolo/caratteristiche.h"
#include "tests/aiuti.h"

namespace tarvel::disegno {
namespace {

// The outline has a line type, so that compaction looks for each line inside the others: this costs twice
// what the default does.
void Prepara() {
  static const RecordSezione sezione = [] {
    RecordSezione r = prove::Costruita(prove::Esempio());
    CalcolaCaratteristiche(r);
    return r;
  }();
  static const StileSezione stile = [] {
    VettoreOpzioni opzioni;
    static_cast<void>(LeggiOpzioni("", opzioni));
    opzioni[kTipoLineaSezione] = 1;
    return StileDi(opzioni);
  }();
  DisegnaSezione(sezione, prove::Esempio(), stile, true);
}

void Disegna(benchmark::State& stato) {
  for (auto _ : stato) Prepara();
}
BENCHMARK(Disegna)->Unit(benchmark::kMicrosecond);

void Compattazione(benchmark::State& stato) {
  for (auto _ : stato) {
    stato.PauseTiming();
    Prepara();
    stato.ResumeTiming();
    OttimizzaDisegno();
  }
}
BENCHMARK(Compattazione)->Unit(benchmark::kMicrosecond);

void SalvataggioDisegno(benchmark::State& stato) {
  const std::string nome = (std::filesystem::temp_directory_path() / "bench-tarvel.dis").string();
  Prepara();
  for (auto _ : stato)  // compacted by the first round
    if (SalvaDisegno(nome)) stato.SkipWithError("not written");
  std::filesystem::remove(nome);
}
BENCHMARK(SalvataggioDisegno)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tarvel::disegno
