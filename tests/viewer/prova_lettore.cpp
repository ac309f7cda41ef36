// The reader of drawings: what is read, what is refused and how, what its elements measure.
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <numbers>
#include <thread>
#include <tuple>

#include "tests/viewer/aiuti_viewer.h"
#include "viewer/disegno/caricamento.h"
#include "viewer/disegno/misure.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti);

namespace ostrel {
namespace {

TEST(Lettore, EsempioConPuntoEConVirgola) {
  for (const char* nome : {"/sezione.dis", "/sezione-virgola.dis"}) {
    const Disegno d = prove::Letto(prove::Leggi(prove::kDati + nome));
    EXPECT_EQ(d.coordinate.size(), 275u);
    EXPECT_EQ(d.coordinate[2].y, -28.75) << nome;
    const Scritta& quota = d.scritte.at(15);
    EXPECT_EQ(std::tuple(quota.angolo, quota.base, quota.altezza, quota.colore), std::tuple(90, 10, 15, 5));
  }
}

// Each line of the table: the line of a sound drawing to replace, by what, and what the refusal
// says; nothing where the drawing stays sound.
TEST(Lettore, FormeAmmesseERifiutate) {
  std::ifstream forme(prove::kDati + "/forme.txt");
  int provate = 0;
  for (std::string riga, nuova, atteso; std::getline(forme, riga, '|'); ++provate) {
    ASSERT_TRUE(std::getline(forme, nuova, '|') && std::getline(forme, atteso));
    SCOPED_TRACE(riga + ": " + nuova);
    const auto letto = LeggiDis(prove::ConRiga(prove::kUnoPerGenere + "\r\n", std::stoi(riga), nuova));
    const auto* e = std::get_if<ErroreDis>(&letto);
    ASSERT_EQ(e == nullptr, atteso.empty()) << (e == nullptr ? "read" : e->messaggio);
    if (e == nullptr) continue;
    EXPECT_EQ(e->riga, std::stoi(riga));
    EXPECT_NE(e->messaggio.find(atteso), std::string::npos) << e->messaggio;
    EXPECT_EQ(e->incompleto, nuova == " 50000 ") << "more entries than can follow";
  }
  EXPECT_GT(provate, 25);
}

TEST(Lettore, FiniDiRigaEQuelloCheSiTralascia) {
  const std::string& uno = prove::kUnoPerGenere;
  std::string soloLf = uno;
  std::erase(soloLf, '\r');
  const auto conTesto = [&](unsigned lungo) { return prove::ConRiga(uno, 18, std::string(lungo, 'x')); };
  for (const std::string& byte :
       {soloLf, uno.substr(0, uno.size() - 3), uno + "\r\n \r\n", conTesto(1 << 20)}) {
    const Disegno d = prove::Letto(byte);
    EXPECT_EQ(std::tuple(d.linee.size(), d.saltati), std::tuple(2u, 0)) << byte.size();
  }
  EXPECT_TRUE(std::holds_alternative<ErroreDis>(LeggiDis(conTesto((1 << 20) + 1))));
  const Disegno senzaInizio = prove::Letto(prove::ConRiga(uno, 13, "-1  1  3  0 "));
  EXPECT_EQ(std::tuple(senzaInizio.linee.size(), senzaInizio.saltati), std::tuple(1u, 1));
  for (const char* senzaCorpo : {" 0  2.5  5 ", " 1.5  9E-10  5 ", "-1.5  2.5  5 "})
    EXPECT_TRUE(prove::Letto(prove::ConRiga(uno, 17, senzaCorpo)).scritte.empty()) << senzaCorpo;
}

TEST(Lettore, TroncatoOvunque) {
  // All but the blank and the line end that close it.
  for (std::size_t n = 0; n + 3 < prove::kEsempio.size(); ++n) {
    const auto letto = LeggiDis(std::string_view(prove::kEsempio).substr(0, n));
    const auto* e = std::get_if<ErroreDis>(&letto);
    ASSERT_TRUE(e) << "cut at " << n;
    ASSERT_TRUE(e->incompleto) << "cut at " << n << ": " << e->messaggio;
  }
}

// Sound at every length: only its growing tells that it is not whole yet.
TEST(Carica, IlFileCheCresceMentreSiLegge) {
  const QTemporaryDir cartella;
  const std::string file = cartella.filePath("s.dis").toStdString();
  prove::Scrivi(file, prove::kEsempio + std::string(4 << 20, '\n'));
  std::jthread scrittore([&](const std::stop_token& basta) {
    for (std::ofstream coda(file, std::ios::app); !basta.stop_requested();) coda << '\n' << std::flush;
  });
  Caricato esito;
  for (int i = 0; i < 200 && !esito.riprova; ++i) esito = Carica(file);
  EXPECT_TRUE(esito.messaggio.ends_with("il disegno cambia mentre viene letto")) << esito.messaggio;
  scrittore = {};
  EXPECT_TRUE(Carica(file).disegno);
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

void ControllaIngombro(const Disegno& disegno, const Riquadro& atteso) {
  const Riquadro r = Ingombro(disegno);
  for (const auto lato : {&Riquadro::x0, &Riquadro::y0, &Riquadro::x1, &Riquadro::y1})
    EXPECT_NEAR(r.*lato, atteso.*lato, 1e-12);
}

TEST(Misure, ArchiEIngombri) {
  constexpr double kPi = std::numbers::pi;
  Disegno d;
  d.coordinate = {{5, 5}, {7, 5}, {5, 7}, {7, 5}, {3, 5}, {2, 1}, {8, 1}};
  const struct {
    const char* caso;
    Arco arco;
    double inizio, ampiezza;
    Riquadro ingombro;
  } casi[] = {
      {"a quarter", {0, 1, 2, 1}, 0, kPi / 2, {5, 5, 7, 7}},
      {"the other three", {0, 2, 1, 1}, kPi / 2, 1.5 * kPi, {3, 3, 7, 7}},
      {"round by the right", {0, 4, 2, 1}, kPi, 1.5 * kPi, {3, 3, 7, 7}},
      {"sagging below its ends", {0, 5, 6, 1}, -kPi / 2 - std::atan(.75), 2 * std::atan(.75), {2, 0, 8, 1}},
      {"a full circle whose start was merged with an earlier point", {0, 1, 3, 1}, 0, 2 * kPi, {3, 3, 7, 7}},
  };
  for (const auto& c : casi) {
    SCOPED_TRACE(c.caso);
    const ArcoPolare p = Polare(d, c.arco);
    EXPECT_NEAR(p.inizio, c.inizio, 1e-12);
    EXPECT_NEAR(p.ampiezza, c.ampiezza, 1e-12);
    EXPECT_EQ(p.cerchio, c.ampiezza == 2 * kPi);
    d.archi = {c.arco};
    ControllaIngombro(d, c.ingombro);
  }
  d.archi.clear();
  d.scritte = {{0, 90, 10, 15, 1, "123"}};  // reads upward, its height to the left
  ControllaIngombro(d, {5 - 15, 5, 5, 5 + 30});
  EXPECT_TRUE(Ingombro(Disegno{}).Vuoto());
}

}  // namespace
}  // namespace ostrel
