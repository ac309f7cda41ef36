// What the tests of the drawing share: a clean drawing, a picture of its tables, what the user saw.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "drawing/disegno.h"
#include "drawing/quota.h"

namespace tarvel::disegno {

inline void Azzera() {
  SvuotaDisegno();
  OrigineX = OrigineY = 0;
  ColoreCorrente = TipoLineaCorrente = DecimaliQuote = LatoTestoAlternato = 0;
  FlagDisegno = kGeneraDisegno;
}

class ConDisegno : public testing::Test {
 protected:
  void SetUp() override { Azzera(); }
};

/// All entries, one a line; numbers so that not even the sign of a zero is lost.
inline std::string Fotografia() {
  std::ostringstream s;
  s << std::hexfloat;
  const auto tabella = [&](char nome, const auto& elenco, auto voce) {
    for (std::int32_t i = 0; i < elenco.numero; ++i) {
      s << nome << i;
      voce(elenco[i]);
      s << '\n';
    }
  };
  const auto campi = [&](const auto&... v) { ((s << ' ' << v), ...); };
  tabella('C', Disegno.Coordinate, [&](const auto& c) { campi(c.x.Valore(), c.y.Valore()); });
  tabella('P', Disegno.Punti, [&](const auto& p) { campi(p.coordinata, p.attributoA, p.attributoB); });
  tabella('L', Disegno.Linee, [&](const auto& l) { campi(l.primo, l.secondo, l.colore, l.tipo); });
  tabella('A', Disegno.Archi,
          [&](const auto& a) { campi(a.centro, a.inizio, a.secondoCentro, a.fine, a.colore, a.genere); });
  tabella('T', Disegno.Testi,
          [&](const auto& t) { campi(t.posizione, t.angolo, t.base10, t.altezza10, t.colore, t.stringa); });
  return s.str();
}

/// What was shown to the user during `lavoro`.
template <class Lavoro>
std::string Mostrato(Lavoro lavoro) {
  testing::internal::CaptureStdout();
  lavoro();
  return testing::internal::GetCapturedStdout();
}

}  // namespace tarvel::disegno
