// The drawing file, byte for byte, and what the user is told about it.
#include "drawing/salva_dis_cond.h"

#include "drawing/funz_disegno.h"
#include "lavoro/nome_disegno.h"
#include "tests/cartella.h"
#include "tests/drawing/attrezzi.h"

namespace tarvel::disegno {
namespace {

// The text with CR LF for '|'.
std::string Righe(const std::string& testo) {
  std::string righe;
  for (const char c : testo) righe += c == '|' ? "\r\n" : std::string(1, c);
  return righe;
}

class FileDisegno : public ConDisegno {
 protected:
  std::string Salvato(Intestazione intestazione = Intestazione::Tre) {
    EXPECT_FALSE(SalvaDisegno(nome_, intestazione));
    return prove::Contenuto(nome_);
  }

  const prove::Cartella cartella_;
  const std::string nome_ = (cartella_ / "prova.dis").string();
};

TEST_F(FileDisegno, TutteLeSezioni) {
  TipoLineaCorrente = 2;
  Linea({-0.25, 0}, {1e16, 12.5}, 3);
  ScriviTesto("A b", {-0.25, -1e-5}, 0, 1.5, 2.5, 0);
  ScriviTesto("due\r\nrighe", {-0.25, 0}, -90, 0.5, 1, 4);
  ScriviTesto("sparisce", {70, 80}, 0, 0.04, 1, 4);
  Cerchio({1e16, 12.5}, 8, 6);
  Cerchio({1e16, 12.5}, 8, 6);
  Disegno.Punti.numero = 1;
  Disegno.Punti[0] = {1, 7, -8};
  EXPECT_EQ(Salvato(), Righe("                   3|-.25  1E+16 | 0  80 |-10000.000000        10000.000000|"
                             " 3 |-.25  0  0 | 1E+16  12.5  0 | 1E+16  12.5  0 |"
                             " 1 | 1 -8  7 | 1 | 0  1  3  2 |"
                             " 2 | 0  1  0 | 1.5  2.5  1 |A b| 0  1 -90 | .5  1  4 |due  righe|"
                             " 1 | 1  2  1  2 | 6  0 |"));
}

TEST_F(FileDisegno, Vuoto) {
  AggiungiCoordinata({9, 9});
  AggiungiCoordinata({-1.5, 4});
  Salvato();
  // Nothing referred to the two points: the last one is left in place 0.
  EXPECT_EQ(
      Salvato(Intestazione::Quattro),
      Righe("                   4|-1.5 -1.5 | 4  4 |-10000.000000        10000.000000| 0 | 0 | 0 | 0 | 0 |"));
}

TEST(NomeDisegno, UnNomeDiFileDentroLaCartella) {
  using std::string_literals::operator""s;
  for (const auto& [nome, file] : {std::pair{"U_PO_001"s, "U_PO_001"s},
                                   {"SEZIONE_LUNGA", "SEZIONE_"},
                                   {"A/B:..\\C", "A_B_.._C"},
                                   {"..\\..\\..\\x", ".._.._.."},
                                   {"*?\"<>|\x7F\t", "________"},
                                   {"a\0b\x1F\x80 \xE8."s, "a_b_\x80 \xE8."},
                                   {"..", ".."},
                                   {"", ""}})
    EXPECT_EQ(DisegnoDellaSezione(nome), "\\" + file + ".dis");
}

}  // namespace
}  // namespace tarvel::disegno
