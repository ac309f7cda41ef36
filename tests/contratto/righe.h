// The contract in small scenes, a row each: what the user does and the diary of it.
#pragma once

#include <gtest/gtest.h>

#include <span>

#include "tests/contratto/mobili.h"

namespace tarvel::contratto {

// F is the main form; L and M are shown by whichever scene wants them.
struct Palco : Passi {
  explicit Palco(Utente& utente) : Passi{utente} {}

  FormDiario f{u, "F"}, l{u, "L"}, m{u, "M"};
  Controllo &a = f.Casella("A", "abc"), &b = f.Casella("B", "12"), &p = f.Bottone("P&Q"),
            &una = f.Lista("Una", false), &tante = f.Lista("Tante", true);
  Controllo &premi = l.Bottone("Premi"), &dentro = l.Casella("C", "1");
  Controllo& mostraL = m.Bottone("MostraL", [this] { MostraForm(l); });
  Temporizzatore timer, altro;
};

struct Riga {
  const char* nome;
  std::vector<Passo> (*passi)(Palco& s);
  const char* diario;
};

inline void ProvaRighe(std::span<const Riga> righe) {
  for (const Riga& riga : righe) {
    const std::string diario = Prova([&](Utente& u) {
      Palco s(u);
      u.Esegui(s.f, riga.passi(s));
    });
    EXPECT_EQ(diario, Righe(std::string("load F; ") + riga.diario)) << riga.nome;
  }
}

}  // namespace tarvel::contratto
