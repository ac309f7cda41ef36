// The window and its start: fitting, zoom and pan, reloading with and without a command.
#include <gtest/gtest.h>

#include <QScreen>
#include <chrono>
#include <filesystem>

#include "tests/viewer/con_finestra.h"
#include "viewer/comando/avvio.h"

namespace ostrel {
namespace {

namespace fs = std::filesystem;

constexpr int kAttesaMassimaMs = 10000;

using prove::ConFinestra;

// The largest difference of a colour channel between two pictures of one size and format.
int Scarto(const QImage& a, const QImage& b) {
  int scarto = 0;
  for (qsizetype i = 0; i < a.sizeInBytes(); ++i)
    scarto = std::max(scarto, std::abs(a.constBits()[i] - b.constBits()[i]));
  return scarto;
}

struct ConSorveglianza : ConFinestra {
  ConSorveglianza() : ConFinestra(true) {}
};

TEST_F(ConFinestra, MostraTuttoConLaYVersoLAlto) {
  EXPECT_EQ(Avviso(), "");
  EXPECT_EQ(finestra.windowTitle(), "SEZIONE U_PO_001 - sezione.dis - ostrel");
  const Vista& vista = tela.VistaCorrente();
  for (const Coordinata& c : tela.Mostrato().coordinate)
    EXPECT_TRUE(QRectF(tela.rect()).contains(vista.Verso(c.x, c.y)));
  // White dimension lines, the red outline; the soffit below the upper side, on a dark ground.
  const QImage immagine = tela.grab().toImage();
  EXPECT_EQ(Traccia(immagine, 900, 200), QColor(Qt::white));
  EXPECT_EQ(Traccia(immagine, 500, -185), QColor(255, 0, 0));
  EXPECT_LT(immagine.pixelColor(3, 3).lightness(), 50);
}

TEST_F(ConFinestra, RotellaETrascinamento) {
  prove::Scrivi(file, prove::ConRiga(prove::kEsempio, 307, " 29  30  1  1 "));  // the overall width, dashed
  Comanda("ricarica");
  const QPoint dove(500, 100), altrove(430, 150);
  const QPointF prima = tela.VistaCorrente().Da(dove);
  const double scala = tela.VistaCorrente().scala;
  Rotella(3, dove);
  EXPECT_NEAR(tela.VistaCorrente().scala / scala, 1.2 * 1.2 * 1.2, 1e-12);
  EXPECT_LT(QLineF(tela.VistaCorrente().Da(dove), prima).length(), 1e-9);

  const auto fotografia = [&] {
    QCoreApplication::processEvents();
    return finestra.screen()->grabWindow(finestra.winId()).toImage();
  };
  const QImage ferma = fotografia();
  QTest::mousePress(&tela, Qt::LeftButton, {}, dove);
  QTest::mouseMove(&tela, altrove);
  QTest::mouseRelease(&tela, Qt::LeftButton, {}, altrove);
  EXPECT_LT(QLineF(tela.VistaCorrente().Da(altrove), prima).length(), 1e-9);
  QTest::mouseDClick(&tela, Qt::LeftButton, {}, altrove);
  EXPECT_LT(QLineF(tela.VistaCorrente().Da(altrove), prima).length(), 1e-9);

  // What was scrolled with what came into sight is what painting everything anew gives.
  const QImage composta = fotografia();
  tela.MettiSu(kSchermo);
  EXPECT_GT(Scarto(composta, ferma), 200);
  EXPECT_LE(Scarto(composta, fotografia()), 2) << "smoothing rounds where a line is cut";

  for (int i = 0; i < 200; ++i) Rotella(1, dove);
  EXPECT_LT(tela.VistaCorrente().scala, scala * 1e4);
  QTest::mouseDClick(&tela, Qt::MiddleButton, {}, dove);
  EXPECT_NEAR(tela.VistaCorrente().scala, scala, 1e-12);
}

TEST_F(ConFinestra, IlDisegnoGuastoLasciaQuelloDiPrimaEIlNuovoTieneLaVista) {
  Rotella(2, {300, 100});
  const Vista prima = tela.VistaCorrente();
  std::string guasto = prove::kEsempio;
  prove::Scrivi(file, guasto.replace(guasto.find(" 275 "), 5, " 276 "));
  Comanda("ricarica");
  EXPECT_TRUE(Avviso().contains("sezione.dis: riga 281, atteso: una coordinata")) << Avviso().toStdString();
  EXPECT_EQ(tela.Mostrato().linee.size(), 102u);
  fs::remove(file);
  Comanda("ricarica");
  EXPECT_TRUE(Avviso().endsWith("il disegno non esiste"));
  prove::Scrivi(file, ritoccato);
  Comanda("ricarica");
  EXPECT_EQ(Avviso(), "");
  EXPECT_TRUE(Mostra("SEZIONE U_PO_002"));
  EXPECT_EQ(tela.VistaCorrente().scala, prima.scala);
  EXPECT_EQ(tela.VistaCorrente().Da({0, 0}), prima.Da({0, 0}));
}

TEST_F(ConFinestra, LAnteprimaRiscrittaTornaAlPostoDiUnAltroDisegno) {
  const std::string altro = cartella.filePath("altro.dis").toStdString();
  prove::Scrivi(altro, prove::kEsempio);
  finestra.ApriAnteprima(QString::fromStdString(file));
  finestra.Apri(QString::fromStdString(altro));
  Comanda("ricarica");
  EXPECT_TRUE(finestra.windowTitle().contains("altro.dis"));
  prove::Scrivi(file, ritoccato);
  // The clock of the files may be coarser than this scene is quick.
  fs::last_write_time(file, fs::last_write_time(file) + std::chrono::seconds(1));
  Comanda("ricarica");
  EXPECT_TRUE(Mostra("SEZIONE U_PO_002"));
  finestra.Apri(QString::fromStdString(altro));
  Comanda("ricarica");
  EXPECT_TRUE(finestra.windowTitle().contains("altro.dis")) << "shown once, it does not come back";
}

TEST_F(ConFinestra, AttendeUnFileInScrittura) {
  const std::string meta = ritoccato.substr(0, ritoccato.size() / 2);
  letto.clear();
  prove::Scrivi(file, meta);
  finestra.Ricarica();
  EXPECT_EQ(letto.count(), 0) << "neither shown nor refused yet";
  EXPECT_EQ(Avviso(), "");
  prove::Scrivi(file, ritoccato);
  ASSERT_TRUE(letto.wait(kAttesaMassimaMs));
  EXPECT_TRUE(letto.last().front().toBool());
  EXPECT_TRUE(Mostra("SEZIONE U_PO_002"));

  prove::Scrivi(file, meta);
  fs::last_write_time(file, fs::file_time_type::clock::now() - std::chrono::hours(1));
  finestra.Ricarica();
  EXPECT_TRUE(Avviso().contains(", atteso: ")) << "left so for good";
}

TEST_F(ConSorveglianza, SiRicaricaDaSe) {
  prove::Scrivi(file, ritoccato);
  finestra.Avvisa("il disco è pieno");
  while (!Mostra("SEZIONE U_PO_002")) ASSERT_TRUE(letto.wait(kAttesaMassimaMs));
  EXPECT_EQ(Avviso(), "il disco è pieno") << "what failed beside the drawing is still said";
  Comanda("ricarica");
  EXPECT_EQ(Avviso(), "");
  // Replaced twice: the watch outlives the file it began with.
  for (const std::string& byte : {prove::kEsempio, ritoccato}) {
    const QString titolo = finestra.windowTitle();
    prove::Scrivi(file + ".nuovo", byte);
    fs::rename(file + ".nuovo", file);
    while (finestra.windowTitle() == titolo) ASSERT_TRUE(letto.wait(kAttesaMassimaMs));
  }
}

TEST(Avvio, FileDiIngresso) {
  const QTemporaryDir cartella;
  const std::string file = cartella.filePath("ostrel.inp").toStdString();
  EXPECT_FALSE(LeggiAvvio(file));
  const auto avvio = [&](const std::string& byte) {
    prove::Scrivi(file, byte);
    return LeggiAvvio(file);
  };
  const std::string disegno = "inutilizzato\r\n\\d\\s.dis\r\n";
  const Avvio completo = avvio(disegno + "10\r\n20\r\n300\r\n400\r\n").value();
  EXPECT_EQ(completo.disegno, "/d/s.dis");
  EXPECT_EQ(completo.posto.sinistra, 10);
  EXPECT_EQ(completo.posto.altezza, 400);
  for (const char* misure : {"", "10\r\nx\r\n300\r\n400\r\n", "10\r\n20\r\n300\r\n0\r\n"}) {
    EXPECT_EQ(avvio(disegno + misure).value().disegno, "/d/s.dis") << misure;
    EXPECT_EQ(avvio(disegno + misure).value().posto.sinistra, 1350) << misure;
  }
  for (const char* senza : {"", "inutilizzato\r\n", "inutilizzato\r\n\r\n10\r\n20\r\n300\r\n400\r\n"})
    EXPECT_FALSE(avvio(senza)) << senza;
}

}  // namespace
}  // namespace ostrel
