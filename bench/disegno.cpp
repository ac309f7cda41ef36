// How the compaction grows with the drawing, beside the literal method, and what writing costs.
#include <benchmark/benchmark.h>

#include <filesystem>

#include "drawing/funz_disegno.h"
#include "drawing/ottimizza.h"
#include "drawing/quota.h"
#include "drawing/salva_dis_cond.h"
#include "tests/drawing/letterale.h"

namespace tarvel::disegno {
namespace {

// Sheets of dimensioned frames, with typed lines so that each is looked for inside the others: about
// `elementi` lines, arcs and texts, a part of them superfluous.
void Prepara(std::int64_t elementi) {
  SvuotaDisegno();
  FlagDisegno = kGeneraDisegno;
  TipoLineaCorrente = 1;
  const StileQuota stile{1, 5, 5, 10, 15, 8, 1, 4, 1};
  const auto quanti = [] { return Disegno.Linee.numero + Disegno.Archi.numero + Disegno.Testi.numero; };
  for (int k = 0; quanti() < elementi; ++k) {
    const double x = k % 20 * 300, y = k / 20 * 200, larga = 100 + k % 7 * 10;
    Linea(x, y, x + larga, y, 3);
    Linea(x + larga, y, x + larga, y + 80, 3);
    Linea(x + larga, y + 80, x, y, 3);
    Linea(x + 10, y, x + 30, y, 3);  // within the first
    const Reale ascisse[] = {x, x + 10, x + 30, x + larga};
    CatenaQuote(1, ascisse, y - 40, stile);
    Quota("", x + larga, x + larga, y, y + 80, stile);
  }
}

void Compatta(benchmark::State& stato, void (*ottimizza)()) {
  for (auto _ : stato) {
    stato.PauseTiming();
    Prepara(stato.range(0));
    stato.ResumeTiming();
    ottimizza();
  }
  stato.SetComplexityN(stato.range(0));
}

template <std::int64_t Massimo>
void Raddoppia(benchmark::internal::Benchmark* misura) {
  for (std::int64_t n = 250; n <= Massimo; n *= 2) misura->Arg(n);
  misura->Unit(benchmark::kMillisecond)->Complexity();
}

void Compattazione(benchmark::State& stato) {
  Compatta(stato, OttimizzaDisegno);
}
BENCHMARK(Compattazione)->Apply(Raddoppia<16000>);

void CompattazioneLetterale(benchmark::State& stato) {
  Compatta(stato, letterale::OttimizzaDisegno);
}
BENCHMARK(CompattazioneLetterale)->Apply(Raddoppia<2000>);

void SalvataggioDisegno(benchmark::State& stato) {
  const std::string nome = (std::filesystem::temp_directory_path() / "bench-tarvel.dis").string();
  Prepara(stato.range(0));
  for (auto _ : stato) {  // compacted by the first round
    Intero16 tipo = 0;
    SalvaDisegno(nome, tipo, 1);
  }
  stato.SetBytesProcessed(stato.iterations() * static_cast<std::int64_t>(std::filesystem::file_size(nome)));
  std::filesystem::remove(nome);
}
BENCHMARK(SalvataggioDisegno)->Arg(250)->Arg(2000)->Arg(16000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarvel::disegno
