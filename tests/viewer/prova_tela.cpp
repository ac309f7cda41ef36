// Views and tools: how one comes to a view and back, what a pointer means, what is measured.
#include <cmath>

#include "tests/viewer/con_finestra.h"

namespace ostrel {
namespace {

using prove::ConFinestra;

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

  Trascina(dove, altrove);
  EXPECT_LT(QLineF(tela.VistaCorrente().Da(altrove), prima).length(), 1e-9);
  QTest::mouseDClick(&tela, Qt::LeftButton, {}, altrove);
  EXPECT_LT(QLineF(tela.VistaCorrente().Da(altrove), prima).length(), 1e-9);

  QTest::mouseDClick(&tela, Qt::MiddleButton, {}, dove);
  EXPECT_NEAR(tela.VistaCorrente().scala, scala, 1e-12);
}

// A fitted view stays so with another extent, and comes back fitted. Turns of the wheel in a row are one view
// left, each drag is one.
TEST_F(ConFinestra, VistePrecedentiESuccessive) {
  const auto adattata = [&] { return VistaIntera(Ingombro(tela.Mostrato()), tela.rect()); };
  const double scala = tela.VistaCorrente().scala;
  std::string alto = prove::kEsempio;
  prove::Scrivi(file, alto.replace(alto.find(" 970.5 -515 "), 12, " 970.5 -2515 "));
  Comanda("ricarica");
  EXPECT_EQ(tela.VistaCorrente(), adattata());
  EXPECT_LT(tela.VistaCorrente().scala, scala);
  const QPoint dove(300, 200);
  Rotella(0, dove, 1);
  EXPECT_FALSE(finestra.findChild<QAction*>("precedente")->isEnabled()) << "turned sideways";
  for (int i = 0; i < 2; ++i) {
    Rotella(1, dove);
    QTest::keyClick(&tela, Qt::Key_Backspace);
    EXPECT_EQ(tela.VistaCorrente(), adattata());
  }
  for (int i = 0; i < 3; ++i) Rotella(1, dove);
  const Vista ingrandita = tela.VistaCorrente();
  Trascina(dove, {350, 220});
  Trascina(dove, {350, 220});
  QTest::keyClick(&tela, Qt::Key_Backspace);
  QTest::keyClick(&tela, Qt::Key_Backspace);
  EXPECT_EQ(tela.VistaCorrente(), ingrandita);
  QTest::keyClick(&tela, Qt::Key_Backspace);
  EXPECT_FALSE(finestra.findChild<QAction*>("precedente")->isEnabled());
  finestra.resize(700, 600);
  EXPECT_EQ(tela.VistaCorrente(), adattata());
  QTest::keyClick(&tela, Qt::Key_Backspace, Qt::ShiftModifier);
  EXPECT_EQ(tela.VistaCorrente(), ingrandita);

  // From here another way: what lay ahead is gone. Another drawing has no views before it.
  QTest::keyClick(&tela, Qt::Key_Plus);
  EXPECT_FALSE(finestra.findChild<QAction*>("successiva")->isEnabled());
  finestra.Apri(QString::fromStdString(file));
  EXPECT_FALSE(finestra.findChild<QAction*>("precedente")->isEnabled());
}

TEST_F(ConFinestra, TastiERettangoloEntroILimiti) {
  const Vista prima = tela.VistaCorrente();
  const QPointF centro = QRectF(tela.rect()).center();
  QTest::keyClick(&tela, Qt::Key_Right);
  EXPECT_NEAR(tela.VistaCorrente().x - prima.x, std::round(tela.width() / 10.0) / prima.scala, 1e-9);
  QTest::keyClick(&tela, Qt::Key_Down);
  EXPECT_NEAR(prima.y - tela.VistaCorrente().y, std::round(tela.height() / 10.0) / prima.scala, 1e-9);
  Comanda("alto");
  Comanda("sinistra");
  EXPECT_LT(QLineF(tela.VistaCorrente().Da({0, 0}), prima.Da({0, 0})).length(), 1e-9);
  QTest::keyClick(&tela, Qt::Key_Home);
  EXPECT_EQ(tela.VistaCorrente(), prima);

  const auto zoom = [&](auto gesto) {
    Comanda("adatta");
    gesto();
    EXPECT_LT(QLineF(tela.VistaCorrente().Da(centro), prima.Da(QPointF(340, 180))).length(), 1e-9);
    EXPECT_NEAR(tela.VistaCorrente().scala / prima.scala, VistaIntera({0, 0, 80, 60}, tela.rect()).scala,
                1e-6);
    EXPECT_EQ(tela.InUso(), Strumento::Mano);
  };
  zoom([&] { Trascina({300, 150}, {380, 210}, Qt::ShiftModifier); });
  zoom([&] {
    QTest::keyClick(&tela, Qt::Key_Z);
    QTest::mouseClick(&tela, Qt::LeftButton, {}, {380, 150});
    // The corner goes with the drawing.
    QTest::mousePress(&tela, Qt::MiddleButton, {}, {100, 100});
    Muovi({120, 100}, Qt::MiddleButton);
    QTest::mouseRelease(&tela, Qt::MiddleButton, {}, {120, 100});
    Muovi({320, 210});
    QTest::mouseClick(&tela, Qt::LeftButton, {}, {320, 210});
  });
  Trascina({300, 150}, {302, 151}, Qt::ShiftModifier);
  EXPECT_LT(tela.VistaCorrente().scala, 20 * prima.scala) << "a trembling hand";

  for (int i = 0; i < 30; ++i) Trascina({300, 150}, {330, 150}, Qt::ShiftModifier);
  const double massima = tela.VistaCorrente().scala;
  for (int i = 0; i < 30; ++i) QTest::keyClick(&tela, Qt::Key_Plus);
  EXPECT_EQ(tela.VistaCorrente().scala, massima);
  EXPECT_LT(massima, prima.scala * 1e4);
  for (int i = 0; i < 60; ++i) QTest::keyClick(&tela, Qt::Key_Minus);
  EXPECT_GT(tela.VistaCorrente().scala, prima.scala * 1e-3);
}

TEST(Aggancio, IlPostoPiuVicino) {
  Disegno d;
  d.coordinate = {{0, 0},  {10, 0}, {10.01, 0}, {10.01, 5}, {5, -2}, {5, 2},
                  {20, 0}, {22, 0}, {20, 2},    {30, 3},    {40, 0}, {41, 0}};
  d.linee = {{0, 1}, {2, 3}, {4, 5}};
  d.archi = {{6, 7, 8}, {10, 11, 11}};
  d.punti = {{9}};
  const struct {
    Coordinata vicino;
    double raggio;
    std::optional<Coordinata> dove;
    Appiglio genere = Appiglio::Estremo;
  } casi[] = {
      {{10.003, 0.001}, 1, {{10, 0}}},
      {{10.008, 0.001}, 1, {{10.01, 0}}},
      {{10.008, 0.001}, 1e-3, std::nullopt},
      {{5.2, 0.1}, 0.5, {{5, 0}}, Appiglio::Incrocio},
      {{5.2, 0.1}, 3, {{5, 0}}, Appiglio::Incrocio},
      {{5, 1.2}, 2, {{5, 2}}},  // where the crossing is farther
      {{5, 0.9}, 2, {{5, 2}}},  // and where it is hardly nearer
      {{20.1, 0.2}, 1, {{20, 0}}, Appiglio::Centro},
      {{22.1, 0.2}, 1, {{22, 0}}},
      {{15, 0.2}, 1, std::nullopt},
      {{30.1, 3.1}, 1, {{30, 3}}},
      {{41.1, 0}, 0.5, std::nullopt},  // where a circle's line begins
  };
  for (const auto& c : casi) {
    const auto aggancio = Aggancia(d, c.vicino, c.raggio);
    ASSERT_EQ(aggancio.has_value(), c.dove.has_value()) << c.vicino.x << ' ' << c.raggio;
    if (!aggancio) continue;
    EXPECT_NEAR(aggancio->dove.x, c.dove->x, 1e-12) << c.vicino.x << ' ' << c.vicino.y;
    EXPECT_NEAR(aggancio->dove.y, c.dove->y, 1e-12) << c.vicino.x << ' ' << c.vicino.y;
    EXPECT_EQ(aggancio->genere, c.genere) << c.vicino.x << ' ' << c.vicino.y;
  }
}

// What a tool has drawn goes with it, and no other order is needed for that.
TEST_F(ConFinestra, LoStrumentoLasciatoSparisceDalloSchermo) {
  const auto fotografia = [&] {
    QCoreApplication::processEvents();
    const QRect posto(tela.mapTo(&finestra, QPoint()), tela.size());
    return finestra.screen()->grabWindow(finestra.winId()).copy(posto).toImage();
  };
  DiUnita(Unita::Ignota);
  for (const auto tasto : {Qt::Key_M, Qt::Key_Z}) {
    const QImage prima = fotografia();
    QTest::keyClick(&tela, tasto);
    QTest::mouseClick(&tela, Qt::LeftButton, {}, Sullo(0, 0));
    EXPECT_NE(fotografia(), prima);
    QTest::keyClick(&tela, Qt::Key_Escape);
    EXPECT_EQ(fotografia(), prima) << tasto;
  }
}

TEST_F(ConFinestra, MisuraConAgganciAOgniZoom) {
  DiUnita(Unita::Ignota);
  QTest::keyClick(&tela, Qt::Key_M);
  Indica(1.5, 2);
  EXPECT_EQ(tela.Misura(), "") << "a place measured from itself";

  DiUnita(Unita::Centimetri);
  Rotella(15, Sullo(328, -186));
  Muovi(Sullo(328, -186));
  EXPECT_FALSE(tela.Misura().contains("ΔX = 329,5")) << "what is beside the vertex is told from it";
  Indica(329.5, -185);
  const QString puntato = Detto("coordinate");
  EXPECT_TRUE(puntato.startsWith("X = 329,5") && puntato.count(',') == 2) << puntato.toStdString();
  const QString misura = "Distanza = 377,8826 cm\nΔX = 329,5 cm\nΔY = -185 cm\nAngolo = -29,31°";
  EXPECT_EQ(tela.Misura(), misura);
  Muovi({10, 10});
  Trascina({300, 300}, {350, 320});
  EXPECT_EQ(tela.Misura(), misura) << "panning is no pointing";
  prove::Scrivi(file, ritoccato);
  Comanda("ricarica");
  EXPECT_EQ(tela.Misura(), misura);

  // With keys alone; what is hidden holds nothing.
  QTest::keyClick(&tela, Qt::Key_F);
  QTest::keyClick(&tela, Qt::Key_1);
  Muovi(Sullo(329.5, -185));
  QTest::keyClick(&tela, Qt::Key_Return);
  QTest::keyClick(&tela, Qt::Key_Left, Qt::ShiftModifier);
  QTest::keyClick(&tela, Qt::Key_Enter);
  EXPECT_TRUE(tela.Misura().endsWith("ΔY = 0 cm\nAngolo = 180,00°")) << tela.Misura().toStdString();
  QTest::keyClick(&tela, Qt::Key_Escape);
  EXPECT_EQ(tela.InUso(), Strumento::Mano);
  EXPECT_FALSE(finestra.findChild<QAction*>("misura")->isChecked());
  EXPECT_EQ(tela.Misura(), "");
}

}  // namespace
}  // namespace ostrel
