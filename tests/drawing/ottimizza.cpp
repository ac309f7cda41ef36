// The compaction: many random drawings against the literal method, and what that one cannot show.
#include "drawing/ottimizza.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <tuple>

#include "base/errore.h"
#include "drawing/funz_disegno.h"
#include "tests/drawing/attrezzi.h"
#include "tests/drawing/letterale.h"

namespace tarvel::disegno {
namespace {

using Ottimizza = ConDisegno;

// Both methods rely on this one.
TEST_F(Ottimizza, PuntoSuSegmento) {
  const std::tuple<double, double, int> casi[] = {{0, 0, 1},
                                                  {8, 6, 1},
                                                  {4, 3.001, 1},
                                                  {-0.00003, 0, 1},
                                                  {8.00003, 6.00003, 1},  //
                                                  {4, 3.1, 0},
                                                  {8.00005, 6.00005, 0},
                                                  {-1, -0.75, 0},
                                                  {9, 6.75, 0}};
  for (const auto& [x, y, atteso] : casi)
    EXPECT_EQ(disegno::PuntoSuSegmento(x, y, 0, 0, 8, 6), atteso) << x << ' ' << y;
}

TEST_F(Ottimizza, LineaSenzaPrimoPunto) {
  Linea(0, 0, 1, 0, 1);
  Linea(5, 5, 6, 6, 1);
  Disegno.Linee[1].primo = -1;
  OttimizzaDisegno();  // type 0: nothing to compare
  EXPECT_EQ(Disegno.Linee.numero, 2);
  Disegno.Linee[0].tipo = 1;
  EXPECT_THROW(OttimizzaDisegno(), ErroreFatale);
}

// A drawing without regard for sense: coordinates on a small grid or just beside it, elements that
// share them.
void Sorteggia(unsigned seme, int quanti) {
  std::mt19937 sorte(seme);
  const auto tra = [&](int minimo, int massimo) {
    return std::uniform_int_distribution(minimo, massimo)(sorte);
  };
  const auto pochi = [&] { return std::min(tra(-1, 15), 1 + tra(0, 1)); };  // mostly positive
  const double passo = std::array{1.0, 1.0, 3.0, 1000.0, 1e7, 0.00007}[seme % 6];
  const double scarto = std::array{0.0, 0.0, 0.00004, 0.00004, 0.06 * std::sqrt(passo / 1000)}[seme % 5];
  const int lato = tra(1, 6);
  const auto ordinata = [&] { return passo * tra(-1, lato) + scarto * tra(-3, 3); };
  auto& [coordinate, punti, linee, archi, testi] = Disegno;
  const auto riempi = [](auto& elenco, int numero, auto voce) {
    for (elenco.numero = 0; elenco.numero < numero; ++elenco.numero) elenco[elenco.numero] = voce();
  };
  riempi(coordinate, tra(1, 2 * quanti + 1), [&]() -> Coordinata {
    return {ordinata(), tra(0, 9) == 0 ? -0.0 : ordinata()};
  });
  const auto indice = [&, ultima = coordinate.numero - 1] { return tra(0, ultima); };
  riempi(linee, tra(0, quanti), [&]() -> ElementoLinea { return {indice(), indice(), pochi(), pochi()}; });
  riempi(archi, tra(0, quanti / 2), [&]() -> ElementoArco {
    const int centro = tra(0, 9) == 0 ? -1 : indice() / 4;
    return {centro, indice() / 4, centro, indice() / 4, tra(1, 2), tra(0, 9) / 9};
  });
  riempi(testi, tra(0, quanti / 4), [&]() -> ElementoTesto {
    return {indice(), 0, pochi(), pochi(), 1, std::to_string(Disegno.Testi.numero)};
  });
  riempi(punti, tra(0, quanti) / 10, [&]() -> ElementoPunto { return {indice(), 1, 2}; });
}

TEST_F(Ottimizza, ComeIlMetodoLetterale) {
  int lineeTolte = 0, archiTolti = 0;
  for (unsigned seme = 0; seme < 4000; ++seme) {
    const auto compatta = [&](void (*ottimizza)()) {
      Azzera();
      Sorteggia(seme, seme % 100 == 1 ? 300 : static_cast<int>(seme % 50));
      const int linee = Disegno.Linee.numero, archi = Disegno.Archi.numero;
      ottimizza();
      lineeTolte += linee - Disegno.Linee.numero;
      archiTolti += archi - Disegno.Archi.numero;
      const std::string foto = Fotografia();
      Disegno.Coordinate.numero = 1;  // place 0, also when nothing is left
      return foto + Fotografia();
    };
    const std::string atteso = compatta(letterale::OttimizzaDisegno);
    ASSERT_EQ(compatta(OttimizzaDisegno), atteso) << "seme " << seme;
  }
  // The drawings are worth comparing.
  EXPECT_GT(lineeTolte, 20000);
  EXPECT_GT(archiTolti, 1000);
}

}  // namespace
}  // namespace tarvel::disegno
