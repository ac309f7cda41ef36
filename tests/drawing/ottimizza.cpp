// The compaction: many random drawings against the literal method, and what that one cannot show.
#include "drawing/ottimizza.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

#include "base/errore.h"
#include "drawing/funz_disegno.h"
#include "tests/drawing/attrezzi.h"
#include "tests/drawing/letterale.h"

namespace tarvel::disegno {
namespace {

using Ottimizza = ConDisegno;

// What the literal method takes on trust.
TEST_F(Ottimizza, PuntoSuSegmento) {
  const struct {
    double x, y;
    int atteso;
  } casi[] = {
      {0, 0, 1},
      {4, 3, 1},
      {8, 6, 1},
      {4, 3.001, 1},
      {4, 3.1, 0},
      {-0.00003, 0, 1},
      {8.00003, 6.00003, 1},
      {8.00005, 6.00005, 0},
      {-1, -0.75, 0},
      {9, 6.75, 0},
  };
  for (const auto& c : casi) {
    EXPECT_EQ(disegno::PuntoSuSegmento(c.x, c.y, 0, 0, 8, 6), c.atteso) << c.x << ' ' << c.y;
    EXPECT_EQ(disegno::PuntoSuSegmento(c.x, c.y, 8, 6, 0, 0), c.atteso) << c.x << ' ' << c.y;
  }
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

// Drawings without regard for sense: coordinates on a small grid or just beside it, elements that
// share them.
class Sorte {
 public:
  explicit Sorte(unsigned seme) : sorte_(seme) {}

  void Riempi(int quanti) {
    const double passo = Uno({1, 1, 3, 1000, 1e7, 0.00007});
    const double scarto = Uno({0, 0, 0.00004, 0.00004, 0.06 * std::sqrt(passo / 1000)});
    const int lato = Tra(1, 6);
    const auto ordinata = [&] { return passo * Tra(-1, lato) + scarto * Tra(-3, 3); };
    auto& [coordinate, punti, linee, archi, testi] = Disegno;
    const auto riempi = [](auto& elenco, int numero, auto voce) {
      for (elenco.numero = 0; elenco.numero < numero; ++elenco.numero) elenco[elenco.numero] = voce();
    };
    riempi(coordinate, Tra(1, 2 * quanti + 1), [&]() -> Coordinata {
      return {ordinata(), Tra(0, 9) == 0 ? -0.0 : ordinata()};
    });
    const int ultima = coordinate.numero - 1;
    const auto indice = [&] { return Tra(0, ultima); };
    riempi(linee, Tra(0, quanti), [&]() -> ElementoLinea { return {indice(), indice(), Segno(), Segno()}; });
    riempi(archi, Tra(0, quanti / 2), [&]() -> ElementoArco {
      const int centro = Tra(0, 9) == 0 ? -1 : indice() / 4;
      return {centro, indice() / 4, centro, indice() / 4, Tra(1, 2), Tra(0, 9) / 9};
    });
    riempi(testi, Tra(0, quanti / 4), [&]() -> ElementoTesto {
      return {indice(), 0, Segno(), Segno(), 1, std::to_string(testi.numero)};
    });
    riempi(punti, Tra(0, quanti) / 10, [&]() -> ElementoPunto { return {indice(), 1, 2}; });
  }

  void Quota(int quante) {
    TipoLineaCorrente = 1;
    for (int i = 0; i < quante; ++i)
      disegno::Quota("", Tra(0, 20), Tra(0, 20), Tra(0, 9) / 3, Tra(0, 9) / 3,
                     {Tra(0, 2), 1, 1, Tra(0, 2) * 0.04, 1, 1, 1, Tra(0, 1), 1});
  }

 private:
  int Tra(int minimo, int massimo) { return std::uniform_int_distribution(minimo, massimo)(sorte_); }
  double Uno(std::initializer_list<double> valori) {
    return valori.begin()[Tra(0, static_cast<int>(valori.size()) - 1)];
  }
  // Mostly positive.
  int Segno() { return std::min(Tra(-1, 15), 1 + Tra(0, 1)); }

  std::mt19937 sorte_;
};

TEST_F(Ottimizza, ComeIlMetodoLetterale) {
  int lineeTolte = 0, archiTolti = 0;
  for (unsigned seme = 0; seme < 4000; ++seme) {
    const auto compatta = [&](void (*ottimizza)()) {
      Azzera();
      Sorte sorte(seme);
      if (seme % 50 == 0)
        sorte.Quota(static_cast<int>(seme % 400) / 5);
      else
        sorte.Riempi(seme % 100 == 1 ? 300 : static_cast<int>(seme % 50));
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
