// The reader of drawings: what is read, what is refused and how, what its elements measure.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <numbers>

#include "tests/viewer/aiuti_viewer.h"
#include "viewer/misure.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti);

namespace ostrel {
namespace {

using prove::kUnoPerGenere;

// The text with its line `riga` (from 1) replaced.
std::string ConRiga(const std::string& byte, int riga, const std::string& nuova) {
  std::size_t inizio = 0;
  for (int i = 1; i < riga; ++i) inizio = byte.find('\n', inizio) + 1;
  return std::string(byte).replace(inizio, byte.find("\r\n", inizio) - inizio, nuova);
}

TEST(Lettore, EsempioConPuntoEConVirgola) {
  for (const char* nome : {"/sezione.dis", "/sezione-virgola.dis"}) {
    const auto letto = LeggiDis(prove::Leggi(prove::kDati + nome));
    const auto* d = std::get_if<Disegno>(&letto);
    ASSERT_TRUE(d) << nome;
    EXPECT_EQ(d->coordinate.size(), 275u);
    EXPECT_EQ(d->linee.size(), 102u);
    EXPECT_EQ(d->archi.size(), 43u);
    ASSERT_EQ(d->scritte.size(), 35u);
    EXPECT_EQ(d->coordinate[2].y, -28.75) << nome;
    EXPECT_EQ(d->scritte[0].testo, "SEZIONE U_PO_001");
    EXPECT_EQ(d->scritte[15].angolo, 90);
    EXPECT_EQ(d->scritte[15].base, 10);
    EXPECT_EQ(d->scritte[15].altezza, 15);
    EXPECT_EQ(d->scritte[15].colore, 5);
  }
}

TEST(Lettore, FormeAmmesse) {
  const std::string uno = kUnoPerGenere;
  std::string soloLf = uno;
  std::erase(soloLf, '\r');
  const struct {
    const char* caso;
    std::string byte;
    std::size_t linee;
    int saltate;
  } casi[] = {
      {"one of each", uno, 2, 0},
      {"LF alone", soloLf, 2, 0},
      {"no end to the last line", uno.substr(0, uno.size() - 3), 2, 0},
      {"header 4", ConRiga(uno, 1, "                   4"), 2, 0},
      {"exponents", ConRiga(uno, 6, "-1E-05  1.5E+16  0 "), 2, 0},
      {"a line without first point is passed over", ConRiga(uno, 13, "-1  1  3  0 "), 1, 1},
      {"negative colour and type", ConRiga(uno, 13, " 0  1 -1 -1 "), 2, 0},
      {"an empty text", ConRiga(uno, 18, ""), 2, 0},
      {"blank lines at the end", uno + "\r\n \r\n", 2, 0},
      {"an empty drawing", prove::kVuoto, 0, 0},
  };
  for (const auto& c : casi) {
    const auto letto = LeggiDis(c.byte);
    const auto* d = std::get_if<Disegno>(&letto);
    ASSERT_TRUE(d) << c.caso << ": " << std::get<ErroreDis>(letto).messaggio;
    EXPECT_EQ(d->linee.size(), c.linee) << c.caso;
    EXPECT_EQ(d->lineeSaltate, c.saltate) << c.caso;
  }
}

TEST(Lettore, FormeRifiutate) {
  const struct {
    int riga;
    const char* nuova;
    const char* atteso;
  } casi[] = {
      {1, "                   5", "il numero di formato"},
      {2, " 0 ", "il minimo e il massimo di X"},
      {3, " 0  NaN ", "il minimo e il massimo di Y"},
      {5, "-1 ", "il numero di coordinate; trovato: -1, fuori"},
      {5, " 1000000000 ", "trovato: 1000000000, fuori dei limiti da 0 a 50000"},
      {5, " 50000 ", "trovato: 50000, pi\xF9 di quanti"},
      {5, " 4.0 ", "il numero di coordinate"},
      {6, " 0  inf  0 ", "una coordinata"},
      {6, " 0  1E+101  0 ", "una coordinata"},
      {6, " 0  1.234,5  0 ", "una coordinata"},
      {6, " 0  0  0  0 ", "una coordinata"},
      {7, " dieci  0  0 ", "\" dieci  0  0 \""},
      {11, " 4  0  0 ", "un punto"},
      {13, " 0  4  3  0 ", "trovato: 4, fuori dei limiti da 0 a 3"},
      {13, "-2  1  3  0 ", "una linea"},
      {14, " 1 -1  1  2 ", "una linea"},
      {14, " 1  2  32768  2 ", "una linea"},
      {16, " 1  1  45.5 ", "un testo"},
      {17, " 0  2.5  5 ", "maggiori di zero"},
      {17, " 1.5 -2.5  5 ", "maggiori di zero"},
      {20, " 0  1  1  2 ", "un arco"},
      {20, " 0  1  0 ", "un arco"},
      {21, " 4 ", "colore e genere"},
      {22, "resto", "la fine del disegno"},
  };
  for (const auto& c : casi) {
    const auto letto = LeggiDis(ConRiga(std::string(kUnoPerGenere) + "\r\n", c.riga, c.nuova));
    const auto* e = std::get_if<ErroreDis>(&letto);
    ASSERT_TRUE(e) << c.riga << ": " << c.nuova;
    EXPECT_EQ(e->riga, c.riga) << e->messaggio;
    EXPECT_NE(e->messaggio.find(c.atteso), std::string::npos) << e->messaggio;
    EXPECT_EQ(e->incompleto, std::string(c.nuova) == " 50000 ") << e->messaggio;
  }
  const auto lungo = LeggiDis(ConRiga(kUnoPerGenere, 18, std::string(256, 'x')));
  EXPECT_TRUE(std::holds_alternative<ErroreDis>(lungo));
}

TEST(Lettore, TroncatoOvunque) {
  // All but the blank and the line end that close it.
  const std::string byte = prove::ByteEsempio();
  for (std::size_t n = 0; n + 3 < byte.size(); ++n) {
    const auto letto = LeggiDis(std::string_view(byte).substr(0, n));
    const auto* e = std::get_if<ErroreDis>(&letto);
    ASSERT_TRUE(e) << "cut at " << n;
    ASSERT_TRUE(e->incompleto) << "cut at " << n << ": " << e->messaggio;
  }
}

TEST(Lettore, SemiDelFuzzing) {
  int letti = 0;
  for (const auto& voce : std::filesystem::directory_iterator(prove::kDati + "/semi")) {
    const std::string byte = prove::Leggi(voce.path().string());
    EXPECT_EQ(LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(byte.data()), byte.size()), 0);
    ++letti;
  }
  EXPECT_GT(letti, 30);
}

TEST(Misure, Archi) {
  constexpr double kPi = std::numbers::pi;
  Disegno d;
  d.coordinate = {{5, 5}, {7, 5}, {5, 7}, {3, 5}, {7, 5}};
  const struct {
    const char* caso;
    Arco arco;
    double inizio, ampiezza;
    bool cerchio;
    Riquadro ingombro;
  } casi[] = {
      {"a quarter", {0, 1, 2, 1}, 0, kPi / 2, false, {5, 5, 7, 7}},
      {"the other three", {0, 2, 1, 1}, kPi / 2, 1.5 * kPi, false, {3, 3, 7, 7}},
      {"the upper half", {0, 1, 3, 1}, 0, kPi, false, {3, 5, 7, 7}},
      {"a full circle", {0, 1, 1, 1}, 0, 2 * kPi, true, {3, 3, 7, 7}},
      {"a full circle whose start was merged with an earlier point",
       {0, 1, 4, 1},
       0,
       2 * kPi,
       true,
       {3, 3, 7, 7}},
  };
  for (const auto& c : casi) {
    const ArcoPolare p = Polare(d, c.arco);
    EXPECT_NEAR(p.inizio, c.inizio, 1e-12) << c.caso;
    EXPECT_NEAR(p.ampiezza, c.ampiezza, 1e-12) << c.caso;
    EXPECT_EQ(p.cerchio, c.cerchio) << c.caso;
    d.archi = {c.arco};
    const Riquadro r = Ingombro(d);
    EXPECT_NEAR(r.x0, c.ingombro.x0, 1e-12) << c.caso;
    EXPECT_NEAR(r.y0, c.ingombro.y0, 1e-12) << c.caso;
    EXPECT_NEAR(r.x1, c.ingombro.x1, 1e-12) << c.caso;
    EXPECT_NEAR(r.y1, c.ingombro.y1, 1e-12) << c.caso;
  }
}

TEST(Misure, UnaScrittaOccupaLeSueCelle) {
  Disegno d;
  d.coordinate = {{1, 2}};
  d.scritte = {{0, 90, 10, 15, 1, "123"}};
  const Riquadro r = Ingombro(d);  // reads upward, its height to the left
  EXPECT_NEAR(r.x0, 1 - 15, 1e-12);
  EXPECT_NEAR(r.x1, 1, 1e-12);
  EXPECT_NEAR(r.y0, 2, 1e-12);
  EXPECT_NEAR(r.y1, 2 + 30, 1e-12);
  EXPECT_TRUE(Ingombro(Disegno{}).Vuoto());
}

}  // namespace
}  // namespace ostrel
