// What the fullest drawings cost the viewer: 15,000 circles or arcs, apart and one over another, read
// and painted as in a window and as in an exported picture.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <cmath>

#include "base/numeri.h"
#include "viewer/disegno/lettore_dis.h"
#include "viewer/pittura/pittura.h"

namespace ostrel {
namespace {

enum Disposizione { kSparsi, kConcentrici, kSovrapposti };

// A drawing file of 15,000 arcs, each `ampiezza` long (0: a full circle).
std::string File(std::int64_t disposizione, double ampiezza) {
  constexpr int kQuanti = 15000;
  std::string coordinate, archi;
  int quante = 0;
  const auto coordinata = [&](double x, double y) {
    tarvel::AccodaStampato(coordinate, x);
    tarvel::AccodaStampato(coordinate, y);
    coordinate += " 0 \r\n";
    return ' ' + std::to_string(quante++) + ' ';
  };
  for (int i = 0; i < kQuanti; ++i) {
    const double raggio = disposizione == kSparsi ? 4 : disposizione == kConcentrici ? i / 15. : 1000;
    const bool sparsi = disposizione == kSparsi;
    const double x = sparsi ? i % 150 * 10 : disposizione == kConcentrici ? 0 : i % 127;
    const double y = sparsi ? i / 150 * 10 : disposizione == kConcentrici ? 0 : i % 113;
    const auto su = [&](double a) { return coordinata(x + raggio * std::cos(a), y + raggio * std::sin(a)); };
    const std::string centro = coordinata(x, y), inizio = su(i),
                      fine = ampiezza == 0 ? inizio : su(i + ampiezza);
    archi += centro + inizio + centro + fine + "\r\n " + std::to_string(1 + i % 9) + "  0 \r\n";
  }
  return "3\r\n 0  1 \r\n 0  1 \r\n 0  1 \r\n " + std::to_string(quante) + "\r\n" + coordinate +
         " 0 \r\n 0 \r\n 0 \r\n " + std::to_string(kQuanti) + " \r\n" + archi;
}

void Misura(benchmark::State& stato, QSize misura, const Fondo& fondo) {
  const std::string file = File(stato.range(0), static_cast<double>(stato.range(1)));
  QImage immagine(misura, QImage::Format_RGB32);
  for (auto _ : stato) {
    const Disegno disegno = std::get<Disegno>(LeggiDis(file));
    const QRectF foglio({0, 0}, misura);
    immagine.fill(InQt(fondo.colore));
    QPainter pittore(&immagine);
    Dipingi(pittore, disegno, VistaIntera(Ingombro(disegno), foglio), foglio, fondo);
  }
  stato.SetLabel(std::string(stato.range(1) == 0 ? "circles" : "arcs") + (stato.range(0) == kSparsi ? " apart"
                                                                          : stato.range(0) == kConcentrici
                                                                              ? " concentric"
                                                                              : " one over another"));
}

void Finestra(benchmark::State& stato) {
  Misura(stato, {1280, 700}, FondoSchermo(1));
}
void Immagine(benchmark::State& stato) {
  Misura(stato, {2000, 2000}, FondoCarta(2));
}
const std::vector<std::vector<std::int64_t>> kCasi = {{kSparsi, kConcentrici, kSovrapposti}, {0, 4}};
BENCHMARK(Finestra)->ArgsProduct(kCasi)->Unit(benchmark::kMillisecond);
BENCHMARK(Immagine)->ArgsProduct(kCasi)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace ostrel

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication applicazione(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
