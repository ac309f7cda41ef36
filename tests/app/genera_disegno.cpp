// What the user is told of a drawing.
#include "app/genera_disegno.h"

#include <gtest/gtest.h>

#include <sstream>

#include "base/errore.h"
#include "drawing/disegno.h"
#include "lavoro/cartelle.h"
#include "lavoro/nome_disegno.h"
#include "platform/headless/verbale.h"
#include "tests/aiuti.h"
#include "tests/cartella.h"

namespace tarvel {
namespace {

template <class Lavoro>
std::string Mostrato(Lavoro lavoro) {
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
  const auto fallito = [](const std::string& file) {
    return "message none \"ERRORE\" \"Errore durante la scrittura sul file" + file + "\" -> ok\n";
  };
  const std::string riuscito =
      "message information \"SALVA FILE DISEGNO\" \"File " + DirLavori + "prova.dis salvato.\" -> ok\n";
  const std::tuple<std::string, ModoAvviso, std::string> casi[] = {
      {"prova.dis", ModoAvviso::Tutti, riuscito},
      {"prova.dis", ModoAvviso::Nessuno, ""},
      {"prova.dis", ModoAvviso::Errori, ""},
      {"manca/x.dis", ModoAvviso::Tutti, fallito(DirLavori + "manca/x.dis")},
      {"manca/x.dis", ModoAvviso::Nessuno, ""},
      {"manca/x.dis", ModoAvviso::Errori, fallito(DirLavori + "manca/x.dis")},
  };
  for (const auto& [nome, modo, messaggio] : casi) {
    NomeFileDisegno = nome;
    EXPECT_EQ(Mostrato([m = modo] { GeneraDisegno(m); }), messaggio) << nome;
  }
  EXPECT_EQ(prove::Contenuto(cartella / "prova.dis").substr(0, 22), std::string(19, ' ') + "3\r\n");
}

// Each as often as it was left, in their order, and before a fatal error is.
TEST(GeneraDisegno, AvvisiDelleTabelle) {
  disegno::SvuotaDisegno();
  const auto messaggio = [](const std::string& cosa) {
    return "message exclamation \"Problema\" \"" + cosa + "\" -> ok\n";
  };
  for (const bool fatale : {false, true}) {
    const auto disegna = [&] {
      disegno::Disegno.avvisi = {"due", "uno", "due"};
      if (fatale) throw ErroreFatale(TipoErrore::Overflow, "");
    };
    bool finito = false;
    const auto prova = [&] {
      try {
        ConAvvisi(disegna);
        finito = true;
      } catch (const ErroreFatale&) {
      }
    };
    EXPECT_EQ(Mostrato(prova), messaggio("due") + messaggio("uno") + messaggio("due"));
    EXPECT_NE(finito, fatale);
  }
  disegno::SvuotaDisegno();
}

}  // namespace
}  // namespace tarvel
