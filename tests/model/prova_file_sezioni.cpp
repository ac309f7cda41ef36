// The section file: round trip, columns, refusals. A file is spoiled line by line and field by
// field; each time the answer is one fatal error with file and line, or a reading that is allowed.
#include <gtest/gtest.h>

#include <memory>
#include <sstream>

#include "base/errore.h"
#include "base/numeri.h"
#include "model/archivio/file_sezioni.h"
#include "properties/calcolo/caratteristiche.h"
#include "tests/aiuti.h"
#include "tests/cartella.h"

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
      const auto guasto = LeggiFileSezioni();
      return guasto ? guasto->testo : "";
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

// Every figure that a file keeps with two decimals.
std::vector<double> Figure(const RecordSezione& r) {
  std::vector<double> figure;
  const auto metti = [&](std::initializer_list<Reale> valori) {
    for (const Reale v : valori) figure.push_back(v.Valore());
  };
  metti({r.BaseTotale, r.AltezzaTotale, r.ZG, r.YG, r.An, r.Aty, r.Atz, r.Jt, r.Jyg, r.Jzg,
         r.ValoreAggiuntivo});
  for (int p = 1; p <= r.NumPoligoni; ++p)
    for (int v = 1; v <= r.NumVertici[p]; ++v) metti({r.Vertice(p, v).z, r.Vertice(p, v).y});
  for (int j = 1; j <= r.NumPunti; ++j) metti({r.P(j).z, r.P(j).y});
  return figure;
}

std::vector<double> Tensioni(const RecordSezione& r) {
  std::vector<double> tensioni;
  for (int j = 1; j <= r.NumPunti; ++j)
    for (const Reale t : {r.TauT[j], r.TauVy[j], r.TauVz[j]}) tensioni.push_back(std::fabs(t.Valore()));
  return tensioni;
}

// Whatever is written is read back, but for the decimals and the digits that have no room: of a section, of
// one with a slip of the finger in each box in turn, in centimetres and in millimetres.
TEST_F(ProvaFile, QuelloCheSiScriveSiRilegge) {
  constexpr double kCifre = 1e-11;  // twelve digits at least
  std::mt19937 caso(3);
  for (int n = 1; n <= 40; ++n) AggiungiCalcolata(prove::Casuale(caso, n % 3 == 0), ProponiNome(n));
  for (const double unita : {1., 10.})
    for (int i = 0; i < kNumParametri; ++i)
      for (const double volte : {1e2, 1e4, 1e5, 1e6, -1., 0.}) {
        VettoreParametri p = prove::Esempio();
        for (int k = 0; k < kPendenzaSinistra; ++k) p[k] = p[k] * unita;
        p[i] = p[i] * volte;
        try {
          AggiungiCalcolata(p, "S" + std::to_string(NumeroSezioni + 1));
        } catch (const ErroreFatale&) {
          NumeroSezioni -= 1;
        }
      }
  TabellaSezioni[7].NumPunti = 0;
  TabellaSezioni[8].Sigla = "";
  TabellaSezioni[9].ValoreAggiuntivo = 12.5;
  // What a line is too short for: figures of 15 digits, with sign and exponent.
  RecordSezione& grande = TabellaSezioni[10];
  grande.BaseTotale = grande.ZG = grande.An = grande.Jt = grande.PuntoZ[1] = -1.23456789012345e+120;
  grande.AltezzaTotale = grande.Aty = grande.Jyg = grande.PuntoY[1] = -2.03602728321406e+18;
  grande.YG = grande.Atz = grande.Jzg = grande.ValoreAggiuntivo = 1.23456789012345e+300;
  grande.VerticeZ(1, 3) = grande.VerticeY(2, 4) = grande.TauT[1] = grande.TauVz[2] = 9.87654321098765e+201;
  const int quante = NumeroSezioni;
  ASSERT_GT(quante, 250);
  const auto scritte = std::make_unique<decltype(TabellaSezioni)>(TabellaSezioni);
  EXPECT_TRUE(ScriviFileSezioni().scritte);
  const std::string testo = Contenuto(percorso);
  EXPECT_EQ(ComponiFileSezioni(SezioniScrivibili()), testo);
  ASSERT_EQ(Leggi(testo), "");
  ASSERT_EQ(NumeroSezioni, quante);
  EXPECT_EQ(NumeroSezioniFile, quante);
  for (int i = 1; i <= quante; ++i) {
    const RecordSezione &prima = (*scritte)[i], &dopo = TabellaSezioni[i];
    EXPECT_EQ(dopo.Nome, prima.Nome);
    EXPECT_EQ(dopo.Sigla, prima.Sigla);
    const auto confronta = [&](const std::vector<double>& a, const std::vector<double>& b, double taglio) {
      ASSERT_EQ(a.size(), b.size()) << i;
      for (std::size_t k = 0; k < a.size(); ++k)
        EXPECT_NEAR(b[k], a[k], std::max(1.01 * taglio, kCifre * std::fabs(a[k]))) << prima.Nome << ' ' << k;
    };
    confronta(Figure(prima), Figure(dopo), 0.01);
    confronta(Tensioni(prima), Tensioni(dopo), 1e-14);
    for (int j = 1; j <= dopo.NumPunti; ++j) {
      EXPECT_EQ(dopo.EtichettaPunto[j].Rifilato(), prima.EtichettaPunto[j].Rifilato());
      EXPECT_EQ(dopo.IndicatoreTauVz[j], prima.IndicatoreTauVz[j]);
    }
  }
}

TEST_F(ProvaFile, QuelloCheUnAltroHaScrittoEConservatoSeEDiverso) {
  AggiungiCalcolata(prove::Esempio(), "U_PO_001");
  EXPECT_EQ(LeggiFileSezioni()->ConMotivo(),
            "File " + FileSezioni + " non trovato: file o cartella inesistente");
  Scrivi(percorso, ComponiFileSezioni(RigheSezioni()));
  EXPECT_EQ(ScriviFileSezioni().altro, "");
  Scrivi(percorso, "0\r\n");
  EXPECT_EQ(ScriviFileSezioni().altro, FileSezioni + ".altro");
  for (const char* altro : {".altro2", ".altro3", ".altro4", ".altro5", ".altro5"})
    EXPECT_EQ(Conserva(altro, FileSezioni, ".altro"), FileSezioni + altro);
}

// One line cut off, missing, or one too many, and a count of sections that is too small.
TEST_F(ProvaFile, OgniRigaConta) {
  AggiungiCalcolata(prove::Esempio(), "U_PO_001");
  AggiungiCalcolata(prove::Esempio(), "U_PO_002");
  EXPECT_TRUE(ScriviFileSezioni().scritte);
  const auto righe = Righe(Contenuto(percorso));
  for (std::size_t n = 0; n < righe.size(); ++n) {
    const Testo errore = Leggi(Unite({righe.begin(), righe.begin() + static_cast<long>(n)}));
    EXPECT_EQ(errore, "fine del file inattesa (" + FileSezioni + ", riga " + std::to_string(n + 1) + ")");
    auto senza = righe;
    senza.erase(senza.begin() + static_cast<long>(n));
    EXPECT_NE(Leggi(Unite(senza)), "") << "senza la riga " << n + 1;
  }
  const std::string intero = Unite(righe);
  for (const char* coda : {"", "\r\n \t\r\n", "\x1A", "\r\n\x1A\r\n"})
    EXPECT_EQ(Leggi(intero + coda), "") << coda;
  const Testo dopo = FileSezioni + ", riga " + std::to_string(righe.size() + 1);
  for (const char* coda : {"x", "0\r\n", "\x1A\r\nx", " \x1Ax"})
    EXPECT_NE(Leggi(intero + coda).find(FileSezioni + ", riga "), Testo::npos) << coda;
  EXPECT_NE(Leggi(intero + "x").find(dopo), Testo::npos);
  const Testo seconda = ", riga " + std::to_string((righe.size() - 1) / 2 + 2) + ")";
  EXPECT_NE(Leggi("1" + intero.substr(1)).find(seconda), Testo::npos);
}

TEST_F(ProvaFile, OgniRigaRovinata) {
  AggiungiCalcolata(prove::Esempio(), "U_PO_001");
  EXPECT_TRUE(ScriviFileSezioni().scritte);
  const auto righe = Righe(Contenuto(percorso));
  // Lines that are read leniently take a word for 0: the name, extents, vertices, Jt..., Sigla.
  const auto indulgente = [&](std::size_t i) {
    const std::size_t dopoPoligoni = 5 + 13 + 1 + 11;
    return i == 1 || i == 2 || (i >= 5 && i < dopoPoligoni && i != 18) || i == dopoPoligoni + 1 ||
           i == righe.size() - 2;
  };
  for (std::size_t i = 0; i < righe.size(); ++i)
    for (const auto& guasto : std::vector<std::string>{"parola", "", "12x", "&H10", "1E400",
                                                       Testo("6\0"
                                                             "50",
                                                             4)}) {
      auto rovinate = righe;
      rovinate[i] = guasto + "\r\n";
      const Testo errore = Leggi(Unite(rovinate));
      const bool testo = i == 1 || i == righe.size() - 2;
      if (indulgente(i) && (testo || (guasto != "1E400" && guasto.find('\0') == Testo::npos)))
        EXPECT_EQ(errore, "") << "riga " << i + 1 << ' ' << guasto;
      else
        EXPECT_NE(errore.find(FileSezioni + ", riga " + std::to_string(i + 1)), Testo::npos)
            << "riga " << i + 1 << " \"" << guasto << "\": " << errore;
    }
}

}  // namespace
}  // namespace tarvel
