// What a hand on a drawing of 50,000 lines waits for: a step of a drag, and a step of the pointer while it
// measures, each with what is painted for it.
#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QMouseEvent>
#include <QSettings>
#include <QTemporaryDir>
#include <fstream>

#include "viewer/finestra/finestra.h"

namespace ostrel {
namespace {

// A net of 157 by 158 knots, each joined to the next one and to the one above.
void ScriviRete(const std::string& percorso) {
  constexpr int kColonne = 158, kRighe = 159;
  std::string coordinate, linee;
  int quante = 0;
  const auto linea = [&](int da, int a) {
    linee += ' ' + std::to_string(da) + "  " + std::to_string(a) + "  3  0 \r\n";
    ++quante;
  };
  for (int riga = 0; riga < kRighe; ++riga)
    for (int colonna = 0; colonna < kColonne; ++colonna) {
      const int nodo = riga * kColonne + colonna;
      coordinate += ' ' + std::to_string(colonna * 10 + riga % 3) + "  " +
                    std::to_string(riga * 6 + colonna % 2) + "  0 \r\n";
      if (colonna + 1 < kColonne) linea(nodo, nodo + 1);
      if (riga + 1 < kRighe) linea(nodo, nodo + kColonne);
    }
  std::ofstream(percorso, std::ios::binary)
      << "3\r\n 0  1 \r\n 0  1 \r\n 0  1 \r\n " << kColonne * kRighe << " \r\n"
      << coordinate << " 0 \r\n " << quante << " \r\n"
      << linee << " 0 \r\n 0 \r\n";
}

struct Banco {
  Banco() : finestra(false, ".") {
    ScriviRete((cartella.path() + "/rete.dis").toStdString());
    finestra.resize(1280, 760);
    finestra.show();
    finestra.Apri(cartella.filePath("rete.dis"));
    tela = finestra.findChild<QWidget*>("tela");
    QApplication::processEvents();
  }

  void Manda(QEvent::Type tipo, QPoint dove, Qt::MouseButton tasto, Qt::MouseButtons premuti) const {
    QMouseEvent evento(tipo, dove, tela->mapToGlobal(dove), tasto, premuti, Qt::NoModifier);
    QApplication::sendEvent(tela, &evento);
    QApplication::processEvents();
  }

  QTemporaryDir cartella;
  Finestra finestra;
  QWidget* tela = nullptr;
};

constexpr QPoint Passo(int i) {
  return {300 + i % 2 * 7, 300 + i % 2 * 5};
}

void Trascinamento(benchmark::State& stato) {
  const Banco banco;
  banco.Manda(QEvent::MouseButtonPress, Passo(0), Qt::LeftButton, Qt::LeftButton);
  int i = 0;
  for (auto _ : stato) banco.Manda(QEvent::MouseMove, Passo(++i), Qt::NoButton, Qt::LeftButton);
}
BENCHMARK(Trascinamento)->Unit(benchmark::kMillisecond);

void Misura(benchmark::State& stato) {
  const Banco banco;
  // The unit first: without one the tool asks for it.
  for (const char* azione : {"unita", "misura"})
    if (auto* const comando = banco.finestra.findChild<QAction*>(azione)) comando->trigger();
  banco.Manda(QEvent::MouseButtonPress, {100, 600}, Qt::LeftButton, Qt::LeftButton);
  banco.Manda(QEvent::MouseButtonRelease, {100, 600}, Qt::LeftButton, Qt::NoButton);
  int i = 0;
  for (auto _ : stato) banco.Manda(QEvent::MouseMove, Passo(++i), Qt::NoButton, Qt::NoButton);
}
BENCHMARK(Misura)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace ostrel

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication applicazione(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
