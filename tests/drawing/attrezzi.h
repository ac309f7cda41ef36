// What the tests of the drawing share: a clean drawing, a picture of its tables.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <tuple>

#include "drawing/quota.h"
#include "tests/aiuti.h"

namespace tarvel::disegno {

inline void Azzera() {
  SvuotaDisegno();
  OrigineX = OrigineY = 0;
  ColoreCorrente = TipoLineaCorrente = DecimaliQuote = 0;
  FlagDisegno = true;
}

class ConDisegno : public testing::Test {
 protected:
  void SetUp() override { Azzera(); }
  void TearDown() override {
    Azzera();
    FlagDisegno = false;
  }
};

/// All entries, a table a line; hexadecimal, so that not even the sign of a zero is lost.
inline std::string Fotografia() {
  std::ostringstream s;
  s << std::hexfloat;
  const auto riga = [&](const auto& elenco, auto campi) {
    for (std::int32_t i = 0; i < elenco.numero; ++i)
      std::apply([&](const auto&... v) { ((s << v << ' '), ...) << "; "; }, campi(elenco[i]));
    s << '\n';
  };
  riga(Disegno.Coordinate, [](const auto& c) { return std::tuple(c.x.Valore(), c.y.Valore()); });
  riga(Disegno.Punti, [](const auto& p) { return std::tuple(p.coordinata, p.attributoA, p.attributoB); });
  riga(Disegno.Linee, [](const auto& l) { return std::tuple(l.primo, l.secondo, l.colore, l.tipo); });
  riga(Disegno.Archi, [](const auto& a) {
    return std::tuple(a.centro, a.inizio, a.secondoCentro, a.fine, a.colore, a.genere);
  });
  riga(Disegno.Testi, [](const auto& t) {
    return std::tuple(t.posizione, t.angolo, t.base10, t.altezza10, t.colore, t.stringa);
  });
  return s.str();
}

}  // namespace tarvel::disegno
