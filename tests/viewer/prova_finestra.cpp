// The window and its start: fitting, zoom and pan, what is said of its document.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/viewer/con_finestra.h"
#include "viewer/comando/avvio.h"

namespace ostrel {
namespace {

namespace fs = std::filesystem;

using prove::ConFinestra;

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
  const QPoint dove(500, 100), altrove(430, 150);
  const QPointF prima = tela.VistaCorrente().Da(dove);
  const double scala = tela.VistaCorrente().scala;
  Rotella(3, dove);
  EXPECT_NEAR(tela.VistaCorrente().scala / scala, 1.2 * 1.2 * 1.2, 1e-12);
  EXPECT_LT(QLineF(tela.VistaCorrente().Da(dove), prima).length(), 1e-9);

  QTest::mousePress(&tela, Qt::LeftButton, {}, dove);
  QTest::mouseMove(&tela, altrove);
  QTest::mouseRelease(&tela, Qt::LeftButton, {}, altrove);
  EXPECT_LT(QLineF(tela.VistaCorrente().Da(altrove), prima).length(), 1e-9);
  QTest::mouseDClick(&tela, Qt::LeftButton, {}, altrove);
  EXPECT_LT(QLineF(tela.VistaCorrente().Da(altrove), prima).length(), 1e-9);

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

// A reading by itself takes away what the drawing's own fault was, and leaves what failed beside the drawing.
TEST_F(ConSorveglianza, SiRicaricaDaSe) {
  const auto attende = [&](auto finche) {
    EXPECT_TRUE(QTest::qWaitFor(finche, 10000)) << Avviso().toStdString();
  };
  prove::Scrivi(file, "guasto\r\n");
  attende([&] { return Avviso().contains("riga 1, atteso: "); });
  prove::Scrivi(file, ritoccato);
  attende([&] { return Mostra("SEZIONE U_PO_002") && Avviso().isEmpty(); });
  finestra.Avvisa("il disco è pieno");
  prove::Scrivi(file, prove::kEsempio);
  attende([&] { return Mostra("SEZIONE U_PO_001"); });
  EXPECT_EQ(Avviso(), "il disco è pieno");
  Comanda("ricarica");
  EXPECT_EQ(Avviso(), "");
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
