// A window with the worked example in it, and the user's hands on it.
#pragma once

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>

#include "tests/viewer/aiuti_viewer.h"
#include "viewer/finestra/finestra.h"
#include "viewer/tela/tela.h"

namespace ostrel::prove {

struct ConFinestra : testing::Test {
  explicit ConFinestra(bool sorveglia = false) : finestra(sorveglia, ",") {
    finestra.resize(900, 500);
    finestra.show();
    finestra.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&finestra)) << "keys go to the active window";
    Scrivi(file, kEsempio);
    finestra.Apri(QString::fromStdString(file));
  }
  void Comanda(const char* azione) { finestra.findChild<QAction*>(azione)->trigger(); }
  bool Mostra(const char* titolo) { return finestra.windowTitle().startsWith(titolo); }
  QString Detto(const char* riga) {
    const auto* scritta = finestra.findChild<QLabel*>(riga);
    return scritta->isVisible() ? scritta->text() : QString();
  }
  void DiUnita(Unita unita) {
    finestra.findChildren<QAction*>("unita")[static_cast<qsizetype>(unita)]->trigger();
  }
  QString Avviso() { return Detto("avviso"); }
  void Rotella(int scatti, QPointF dove, int diLato = 0) {
    QWheelEvent evento(dove, tela.mapToGlobal(dove), {}, {120 * diLato, 120 * scatti}, Qt::NoButton,
                       Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&tela, &evento);
  }
  // The host's pointer does not move: what it does on its own is no part of the scene.
  void Muovi(QPointF dove, Qt::MouseButtons premuti = Qt::NoButton) {
    QMouseEvent evento(QEvent::MouseMove, dove, tela.mapToGlobal(dove), Qt::NoButton, premuti,
                       Qt::NoModifier);
    QApplication::sendEvent(&tela, &evento);
  }
  void Trascina(QPoint da, QPoint a, Qt::KeyboardModifiers con = {}) {
    QTest::mousePress(&tela, Qt::LeftButton, con, da);
    Muovi(a, Qt::LeftButton);
    QTest::mouseRelease(&tela, Qt::LeftButton, con, a);
  }
  QPoint Sullo(double x, double y) const { return tela.VistaCorrente().Verso(x, y).toPoint(); }
  void Indica(double x, double y) {
    Muovi(Sullo(x, y));
    QTest::mouseClick(&tela, Qt::LeftButton, {}, Sullo(x, y));
  }

  // The colour of the line that passes there, on a picture of the drawing as it is seen; of the ground where
  // none does.
  QColor Traccia(const QImage& immagine, double x, double y) const {
    const QPoint p = (tela.VistaCorrente().Verso(x, y) * immagine.devicePixelRatio()).toPoint();
    const QColor fondo = immagine.pixelColor(3, 3);
    for (const int accanto : {0, -1, 1})
      if (const QColor c = immagine.pixelColor(p + QPoint(0, accanto)); c != fondo) return c;
    return fondo;
  }

  QTemporaryDir cartella;
  const std::string file = cartella.filePath("sezione.dis").toStdString();
  // Another title: the first text of the drawing.
  const std::string ritoccato = ConRiga(kEsempio, 388, "SEZIONE U_PO_002");
  Finestra finestra;
  Tela& tela = *finestra.findChild<Tela*>("tela");
};

}  // namespace ostrel::prove
