// What the user is told of a drawing.
#include "app/genera_disegno.h"

#include <gtest/gtest.h>

#include <sstream>

#include "base/errore.h"
#include "drawing/disegno.h"
#include "lavoro/cartelle.h"
#include "lavoro/nome_disegno.h"
#include "platform/headless/ambiente.h"
#include "platform/headless/verbale.h"
#include "preview/anteprima.h"
#include "tests/aiuti.h"
#include "tests/cartella.h"

namespace tarvel {
namespace {

std::string Mostrato(const std::function<void()>& lavoro) {
  std::ostringstream verbale;
  headless::ApriVerbale(&verbale);
  lavoro();
  headless::ApriVerbale(nullptr);
  return verbale.str();
}

TEST(GeneraDisegno, AvvisiSulFile) {
  const prove::Cartella cartella;
  DirLavori = (cartella / "").string();
  prove::Prepara(prove::Esempio());
  const std::string riuscito = "information \"SALVA FILE DISEGNO\" \"File " + DirLavori + "d.dis salvato.\"";
  const std::string fallito =
      "none \"ERRORE\" \"Errore durante la scrittura sul file" + DirLavori + "manca/d\"";
  const std::tuple<std::string, ModoAvviso, std::string> casi[] = {
      {"d.dis", ModoAvviso::Tutti, riuscito}, {"d.dis", ModoAvviso::Nessuno, ""},
      {"d.dis", ModoAvviso::Errori, ""},      {"manca/d", ModoAvviso::Tutti, fallito},
      {"manca/d", ModoAvviso::Nessuno, ""},   {"manca/d", ModoAvviso::Errori, fallito},
  };
  for (const auto& [nome, modo, detto] : casi) {
    NomeFileDisegno = nome;
    EXPECT_EQ(Mostrato([m = modo] { GeneraDisegno(m); }),
              detto.empty() ? "" : "message " + detto + " -> ok\n");
  }
}

TEST(GeneraDisegno, AvvisiDelleTabelleAnchePrimaDiUnErrore) {
  const auto disegna = [] { disegno::Disegno.avvisi = {"due", "uno", "due"}; };
  const auto fallisce = [&] {
    disegna();
    throw ErroreFatale(TipoErrore::Overflow, "");
  };
  const std::string due = "message exclamation \"Problema\" \"due\" -> ok\n";
  const std::string atteso = due + "message exclamation \"Problema\" \"uno\" -> ok\n" + due;
  EXPECT_EQ(Mostrato([&] { ConAvvisi(disegna); }), atteso);
  EXPECT_EQ(Mostrato([&] { EXPECT_THROW(ConAvvisi(fallisce), ErroreFatale); }), atteso);
  disegno::SvuotaDisegno();
}

TEST(Anteprima, UnVisualizzatoreCheNonSiAvviaPiuNonEPiuNessuno) {
  const prove::Cartella cartella;
  DirProgra = (cartella / "").string();
  prove::Scrivi(cartella / "ostrel.exe", "");
  EXPECT_FALSE(Anteprima());
  EXPECT_TRUE(headless::TerminaCompito(IdVisualizzatore));
  std::filesystem::remove(cartella / "ostrel.exe");
  EXPECT_EQ(Anteprima()->testo,
            "Problemi con l'apertura dell'applicazione " + DirProgra + DirProgra + "\\ostrel.exe");
  EXPECT_EQ(IdVisualizzatore, 0);
}

}  // namespace
}  // namespace tarvel
