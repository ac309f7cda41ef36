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
  const auto riuscito =
      "message information \"SALVA FILE DISEGNO\" \"File " + DirLavori + "d.dis salvato.\" -> ok\n";
  const auto fallito =
      "message none \"ERRORE\" \"Errore durante la scrittura sul file" + DirLavori + "manca/d\" -> ok\n";
  for (const auto& [modo, seSalvato, seNo] : {std::tuple{ModoAvviso::Tutti, riuscito, fallito},
                                              {ModoAvviso::Errori, "", fallito},
                                              {ModoAvviso::Nessuno, "", ""}})
    for (const auto& [nome, detto] : {std::pair{"d.dis", seSalvato}, {"manca/d", seNo}}) {
      NomeFileDisegno = nome;
      EXPECT_EQ(Mostrato([m = modo] { GeneraDisegno(m); }), detto);
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
