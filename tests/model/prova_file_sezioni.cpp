// The section file: round trip, columns, refusals. A file is spoiled line by line and field by
// field; each time the answer is one fatal error with file and line, or a reading that is allowed.
#include <gtest/gtest.h>

#include <memory>
#include <sstream>

#include "base/errore.h"
#include "base/numeri.h"
#include "model/file_sezioni.h"
#include "properties/caratteristiche.h"
#include "tests/aiuti.h"

namespace tarvel {
namespace {

using prove::Contenuto;
using prove::Scrivi;

class ProvaFile : public testing::Test {
 protected:
  ProvaFile() {
    FileSezioni = percorso.string();
    prove::Prepara(prove::Esempio());
  }

  static void AggiungiCalcolata(const VettoreParametri& p, const Testo& nome) {
    ParametriSezione = p;
    RecordSezione& r = TabellaSezioni[++NumeroSezioni];
    r = {};
    CostruisciGeometria(r, p);
    r.Nome = nome;
    CalcolaCaratteristiche(r);
  }

  // What reading the text ends with: "" or the fatal error's message.
  Testo Leggi(const std::string& testo) {
    Scrivi(percorso, testo);
    NumeroSezioni = 0;
    try {
      LeggiFileSezioni(false);
      return "";
    } catch (const ErroreFatale& e) {
      return e.Messaggio();
    }
  }

  prove::Cartella cartella;
  std::filesystem::path percorso = cartella / "sezio_ut";
};

std::vector<std::string> Righe(const std::string& testo) {
  std::vector<std::string> righe;
  std::istringstream in(testo);
  for (std::string riga; std::getline(in, riga);) righe.push_back(riga + "\n");
  return righe;
}

std::string Unite(const std::vector<std::string>& righe) {
  std::string testo;
  for (const auto& r : righe) testo += r;
  return testo;
}

TEST_F(ProvaFile, RiletturaERiscritturaIdentiche) {
  std::mt19937 caso(3);
  for (int n = 1; n <= 40; ++n) AggiungiCalcolata(prove::Casuale(caso, n % 3 == 0), ProponiNome(n));
  // Decks of 12 to 200 m in millimetres: moments of 16 figures and more still stand apart.
  for (const int metri : {12, 25, 30, 50, 100, 200}) {
    VettoreParametri p = prove::Esempio();
    for (int i = 0; i < 16; ++i) p[i] = p[i] * 10 * metri / 12;
    AggiungiCalcolata(p, "MM_" + std::to_string(metri));
  }
  TabellaSezioni[7].NumPunti = 0;
  TabellaSezioni[8].Sigla = "";
  TabellaSezioni[9].ValoreAggiuntivo = 12.5;
  const auto calcolata = std::make_unique<decltype(TabellaSezioni)>(TabellaSezioni);
  ScriviFileSezioni();
  const std::string primo = Contenuto(percorso);
  ASSERT_EQ(Leggi(primo), "");
  EXPECT_EQ(NumeroSezioni, 46);
  EXPECT_EQ(NumeroSezioniFile, 46);
  EXPECT_EQ(TabellaSezioni[9].ValoreAggiuntivo, 12.5);
  EXPECT_EQ(TabellaSezioni[3].EtichettaPunto[1].Rifilato(), "NODO 1 TAG2_0");
  for (int i = 1; i <= NumeroSezioni; ++i)
    for (const auto valore : {&RecordSezione::An, &RecordSezione::Aty, &RecordSezione::Atz,
                              &RecordSezione::Jt, &RecordSezione::Jyg, &RecordSezione::Jzg}) {
      const double prima = ((*calcolata)[i].*valore).Valore();
      EXPECT_NEAR((TabellaSezioni[i].*valore).Valore(), prima, std::max(0.0101, prima * 1e-14)) << i;
    }
  ScriviFileSezioni();
  // A cut number is a binary fraction that may lie just below its two decimals: each value may lose
  // one more unit of the last place, once; nothing else may change.
  const auto a = Righe(primo), b = Righe(Contenuto(percorso));
  ASSERT_EQ(a.size(), b.size());
  for (std::size_t i = 0; i < a.size(); ++i) {
    std::istringstream x(a[i]), y(b[i]);
    for (std::string u, v; x >> u && y >> v;) {
      const bool numero = NumeroInvariante(u).has_value();
      if (numero)
        EXPECT_NEAR(ConvertiNumero(v).Valore(), ConvertiNumero(u).Valore(), 0.0101) << "riga " << i + 1;
      else
        EXPECT_EQ(u, v) << "riga " << i + 1;
    }
  }
  ASSERT_EQ(Leggi(Contenuto(percorso)), "");
}

TEST_F(ProvaFile, TagliatoAOgniRiga) {
  AggiungiCalcolata(prove::Esempio(), "U_PO_001");
  AggiungiCalcolata(prove::Esempio(), "U_PO_002");
  ScriviFileSezioni();
  const auto righe = Righe(Contenuto(percorso));
  for (std::size_t n = 0; n < righe.size(); ++n) {
    const Testo errore = Leggi(Unite({righe.begin(), righe.begin() + static_cast<long>(n)}));
    EXPECT_EQ(errore, "fine del file inattesa (" + FileSezioni + ", riga " + std::to_string(n + 1) + ")");
  }
  EXPECT_EQ(Leggi(Unite(righe)), "");
}

TEST_F(ProvaFile, OgniRigaRovinata) {
  AggiungiCalcolata(prove::Esempio(), "U_PO_001");
  ScriviFileSezioni();
  const auto righe = Righe(Contenuto(percorso));
  // Lines that are read leniently take a word for 0: the name, extents, vertices, Jt..., Sigla.
  const auto indulgente = [&](std::size_t i) {
    const std::size_t dopoPoligoni = 5 + 13 + 1 + 11;
    return i == 1 || i == 2 || (i >= 5 && i < dopoPoligoni && i != 18) || i == dopoPoligoni + 1 ||
           i == righe.size() - 2;
  };
  for (std::size_t i = 0; i < righe.size(); ++i)
    for (const char* guasto : {"parola", "", "12x", "&H10"}) {
      auto spoiled = righe;
      spoiled[i] = std::string(guasto) + "\r\n";
      const Testo errore = Leggi(Unite(spoiled));
      if (indulgente(i))
        EXPECT_EQ(errore, "") << "riga " << i + 1 << ' ' << guasto;
      else
        EXPECT_NE(errore.find(FileSezioni + ", riga " + std::to_string(i + 1)), Testo::npos)
            << "riga " << i + 1 << " \"" << guasto << "\": " << errore;
    }
}

}  // namespace
}  // namespace tarvel
