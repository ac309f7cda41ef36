// The section file: round trip, columns, refusals. A file is spoiled line by line and field by
// field; each time the answer is one fatal error with file and line, or a reading that is allowed.
#include <gtest/gtest.h>

#include <memory>
#include <numeric>
#include <sstream>

#include "base/errore.h"
#include "base/numeri.h"
#include "model/archivio/file_sezioni.h"
#include "properties/calcolo/caratteristiche.h"
#include "tests/aiuti.h"
#include "tests/cartella.h"

namespace tarvel::prove {
namespace {

class ProvaFile : public testing::Test {
 protected:
  ProvaFile() {
    FileSezioni = percorso.string();
    Prepara(Esempio());
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
    Testo guasto;
    const auto errore = ErroreDi([&] { guasto = LeggiFileSezioni().value_or(Guasto{}).testo; });
    return errore ? errore->Messaggio() : guasto;
  }

  Cartella cartella;
  std::filesystem::path percorso = cartella / "sezio_ut";
};

std::vector<std::string> Righe(const std::string& testo) {
  std::vector<std::string> righe;
  std::istringstream in(testo);
  for (std::string riga; std::getline(in, riga);) righe.push_back(riga + "\n");
  return righe;
}

std::string Unite(const std::vector<std::string>& righe) {
  return std::accumulate(righe.begin(), righe.end(), std::string());
}

// Every figure that a file keeps, and the unit to which it is cut there.
std::vector<std::pair<double, double>> Figure(const RecordSezione& r) {
  std::vector<std::pair<double, double>> figure;
  const auto metti = [&](double unita, std::initializer_list<Reale> valori) {
    for (const Reale v : valori) figure.emplace_back(v.Valore(), unita);
  };
  metti(.01, {r.BaseTotale, r.AltezzaTotale, r.ZG, r.YG, r.An, r.Aty, r.Atz, r.Jt, r.Jyg, r.Jzg,
              r.ValoreAggiuntivo});
  for (int p = 1; p <= r.NumPoligoni; ++p)
    for (int v = 1; v <= r.NumVertici[p]; ++v) metti(.01, {r.Vertice(p, v).z, r.Vertice(p, v).y});
  for (int j = 1; j <= r.NumPunti; ++j) {
    metti(.01, {r.P(j).z, r.P(j).y});
    metti(1e-14, {Assoluto(r.TauT[j]), Assoluto(r.TauVy[j]), Assoluto(r.TauVz[j])});
  }
  return figure;
}

// Whatever is written is read back, but for the decimals and the digits that have no room: of a section, of
// one with a slip of the finger in each box in turn, in centimetres and in millimetres.
TEST_F(ProvaFile, QuelloCheSiScriveSiRilegge) {
  constexpr double kCifre = 1e-11;  // twelve digits at least
  std::mt19937 caso(3);
  for (int n = 1; n <= 40; ++n) AggiungiCalcolata(Casuale(caso, n % 3 == 0), ProponiNome(n));
  for (const double unita : {1., 10.})
    for (int i = 0; i < kNumParametri; ++i)
      for (const double volte : {1e2, 1e4, 1e5, 1e6, -1., 0.}) {
        VettoreParametri p = Esempio();
        for (int k = 0; k < kPendenzaSinistra; ++k) p[k] = p[k] * unita;
        p[i] = p[i] * volte;
        if (ErroreDi([&] { AggiungiCalcolata(p, "S" + std::to_string(NumeroSezioni + 1)); }))
          NumeroSezioni -= 1;
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
    const auto scritta = Figure(prima), letta = Figure(dopo);
    ASSERT_EQ(letta.size(), scritta.size()) << i;
    for (std::size_t k = 0; k < letta.size(); ++k) {
      const auto [valore, unita] = scritta[k];
      EXPECT_NEAR(letta[k].first, valore, std::max(1.01 * unita, kCifre * std::fabs(valore)))
          << i << ' ' << k;
    }
    for (int j = 1; j <= dopo.NumPunti; ++j) {
      EXPECT_EQ(dopo.EtichettaPunto[j].Rifilato(), prima.EtichettaPunto[j].Rifilato());
      EXPECT_EQ(dopo.IndicatoreTauVz[j], prima.IndicatoreTauVz[j]);
    }
  }
}

TEST_F(ProvaFile, QuelloCheUnAltroHaScrittoEConservatoSeEDiverso) {
  AggiungiCalcolata(Esempio(), "U_PO_001");
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
  AggiungiCalcolata(Esempio(), "U_PO_001");
  AggiungiCalcolata(Esempio(), "U_PO_002");
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
  for (const char* coda : {"0\r\n", "\x1A\r\nx", " \x1Ax"})
    EXPECT_NE(Leggi(intero + coda).find(FileSezioni + ", riga "), Testo::npos) << coda;
  for (const auto& [testo, riga] :
       {std::pair{intero + "x", righe.size() + 1}, {"1" + intero.substr(1), (righe.size() - 1) / 2 + 2}})
    EXPECT_NE(Leggi(testo).find(FileSezioni + ", riga " + std::to_string(riga) + ")"), Testo::npos);
}

TEST_F(ProvaFile, OgniRigaRovinata) {
  using std::string_literals::operator""s;
  AggiungiCalcolata(Esempio(), "U_PO_001");
  EXPECT_TRUE(ScriviFileSezioni().scritte);
  const auto righe = Righe(Contenuto(percorso));
  // Lines that are read leniently take a word for 0: the name, extents, vertices, Jt..., Sigla.
  const auto indulgente = [&](std::size_t i) {
    const std::size_t dopoPoligoni = 5 + 13 + 1 + 11;
    return i == 1 || i == 2 || (i >= 5 && i < dopoPoligoni && i != 18) || i == dopoPoligoni + 1 ||
           i == righe.size() - 2;
  };
  for (std::size_t i = 0; i < righe.size(); ++i)
    for (const auto& guasto : {"parola"s, ""s, "12x"s, "&H10"s, "1E400"s, "6\0"s + "50"}) {
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
}  // namespace tarvel::prove
