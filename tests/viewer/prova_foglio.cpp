// The drawing on paper: the sheet's division, what is said of a drawing that does not fit, the title block,
// the sheet as it is painted.
#include <QApplication>
#include <QScreen>
#include <algorithm>

#include "tests/viewer/aiuti_viewer.h"
#include "viewer/carta/foglio.h"
#include "viewer/carta/stampa.h"
#include "viewer/disegno/misure.h"
#include "viewer/esporta/esporta.h"
#include "viewer/finestra/anteprima_foglio.h"

namespace ostrel {
namespace {

TEST(Foglio, IlDisegnoStaSopraIlCartiglio) {
  const Disegno disegni[] = {prove::Esempio(), prove::Letto(prove::kUnoPerGenere)};
  for (const Disegno& disegno : disegni)
    for (const Resa& resa : {Resa{}, Resa{Unita::Ignota, 100}, Resa{Unita::Centimetri, 100}})
      // Down to a label's paper.
      for (const QSizeF& stampabile : {QSizeF(287, 200), QSizeF(200, 287), QSizeF(70, 20), QSizeF(15, 250)}) {
        const Foglio foglio = Componi(disegno, resa, stampabile);
        const QRectF tutto({0, 0}, stampabile);
        const Riquadro r = Ingombro(disegno);
        const QRectF posto(foglio.vista.Verso(r.x0, r.y1), foglio.vista.Verso(r.x1, r.y0));
        EXPECT_TRUE(tutto.contains(foglio.cartiglio) && tutto.contains(foglio.campo));
        EXPECT_FALSE(foglio.campo.intersects(foglio.cartiglio));
        EXPECT_LT(QLineF(posto.center(), foglio.campo.center()).length(), 1e-9);
        EXPECT_TRUE(resa.unita != Unita::Ignota || foglio.campo.contains(posto)) << "fitted";
      }
}

TEST(Foglio, CioCheNonCiSta) {
  const Disegno disegno = prove::Esempio();
  // With the title and the values the drawing takes up 1413 by 827.
  const struct {
    Resa resa;
    const char* foglio;  // of the objection; nullptr: none
    double ciSta = 0;
    const char* basta = nullptr;
  } casi[] = {
      {{Unita::Centimetri, 50}, nullptr},
      {{Unita::Centimetri, 49}, "A4 orizzontale", 50, "A3 orizzontale"},
      {{Unita::Centimetri, 50, Carta::A4, Orientamento::Verticale}, "A4 verticale", 100, "A4 orizzontale"},
      {{Unita::Centimetri, 25, Carta::A3}, "A3 orizzontale", 50, "A2 orizzontale"},
      {{Unita::Metri, 1}, "A4 orizzontale", 5000, nullptr},
      {{Unita::Centimetri, 5000}, "non si vedrebbe niente"},
      {{Unita::Ignota, 1}, nullptr},
  };
  for (const auto& c : casi) {
    SCOPED_TRACE(InTesto(c.resa.rapporto).toStdString());
    const auto obiezione = Esamina(disegno, c.resa, Pagina(disegno, c.resa));
    ASSERT_EQ(obiezione.has_value(), c.foglio != nullptr);
    if (!obiezione) continue;
    EXPECT_TRUE(obiezione->testo.contains(c.foglio)) << obiezione->testo.toStdString();
    const QString basta = obiezione->testo.section("basta un foglio ", 1);
    EXPECT_EQ(basta, c.basta ? QString(c.basta) + '.' : "") << obiezione->testo.toStdString();
    EXPECT_EQ(obiezione->ciSta, c.ciSta);
  }
  const std::string esteso = prove::ConRiga(prove::kUnoPerGenere, 8, "-1E+9  1E+9  0 ");
  const Disegno smisurato = prove::Letto(esteso);
  const Resa resa{Unita::Metri, 1};
  const Obiezione assurda = Esamina(smisurato, resa, Pagina(smisurato, resa)).value();
  EXPECT_TRUE(assurda.assurda && assurda.testo.contains("misura più di un chilometro"));
  const QTemporaryDir cartella;
  EXPECT_EQ(Esporta(smisurato, cartella.filePath("e.pdf"), resa), std::nullopt);
}

TEST(Cartiglio, DiceLaScalaSoloSeLaSa) {
  const Disegno disegno = prove::Esempio();
  const auto intesta = [](const Disegno& d, const Resa& resa) {
    return Intesta(d, resa, Componi(d, resa, {287, 200}), {"/lavori/ponte.1.dis", {2026, 1, 2}});
  };
  EXPECT_EQ(intesta(disegno, {Unita::Ignota, 50}).scala, "non in scala");
  EXPECT_EQ(intesta(disegno, {Unita::Centimetri, 12.5}).scala, "1:12,5");
  EXPECT_EQ(intesta(disegno, {Unita::Centimetri}).scala, "adattata, circa 1:51");
  const Disegno piccolo = prove::Letto(prove::kUnoPerGenere);
  EXPECT_TRUE(intesta(piccolo, {Unita::Millimetri}).scala.endsWith(":1")) << "larger than life";
  const Cartiglio c = intesta(disegno, {Unita::Metri});
  EXPECT_EQ(c.scala, "adattata, circa 1:5100");
  EXPECT_EQ(c.titolo + c.unita + c.data + c.file, "SEZIONE U_PO_001m02/01/2026ponte.1.dis");
}

// The place, in pixels, of what in that part of a picture is of such a colour.
template <class Colorito>
QRect Posto(const QImage& immagine, const QRect& parte, Colorito colorito) {
  QRect posto;
  for (int y = parte.top(); y <= parte.bottom(); ++y)
    for (int x = parte.left(); x <= parte.right(); ++x)
      if (colorito(immagine.pixelColor(x, y))) posto |= QRect(x, y, 1, 1);
  return posto;
}

TEST(AnteprimaFoglio, EIlFoglioVero) {
  const Disegno disegno = prove::Esempio();
  AnteprimaFoglio anteprima(disegno, {"s.dis"}, nullptr);
  anteprima.resize(1000, 1000);
  anteprima.show();
  for (const Orientamento verso : {Orientamento::Orizzontale, Orientamento::Verticale}) {
    QCoreApplication::processEvents();
    anteprima.Mostra({Unita::Centimetri, 100, Carta::A4, verso});
    QCoreApplication::processEvents();
    // As the screen shows it: the sheet is painted anew by itself.
    const QImage vista = anteprima.screen()->grabWindow(anteprima.winId()).toImage();
    const QRect foglio = Posto(vista, vista.rect(), [](const QColor& c) { return c == Qt::white; });
    const QRect inchiostro = Posto(vista, foglio, [](const QColor& c) { return c.lightness() < 128; });
    const bool ritto = verso == Orientamento::Verticale;
    const double mm = 297.0 / (ritto ? foglio.height() : foglio.width());
    EXPECT_NEAR((ritto ? foglio.width() : foglio.height()) * mm, 210, 1.2);
    // The title block's corner.
    EXPECT_NEAR((foglio.right() - inchiostro.right()) * mm, kMargineCarta, 1.2);
    EXPECT_NEAR((foglio.bottom() - inchiostro.bottom()) * mm, kMargineCarta, 1.2);
  }
}

// What is cut or too long stays where it belongs: no ink beside or just above the title block, nor in its
// narrow margins between the cells.
TEST(Stampa, QuelloCheETroppoGrandeRestaNelSuoPosto) {
  Disegno disegno = prove::Esempio();
  disegno.titolo = std::string(80, 'W');
  for (Scritta& scritta : disegno.scritte) scritta.altezza = scritta.base = 60;
  const Resa resa{Unita::Centimetri, 20};
  const QPageLayout pagina = Pagina(disegno, resa);
  const Foglio foglio = Componi(disegno, resa, Stampabile(pagina));
  constexpr double kFine = 10;  // pixels to a millimetre
  QImage immagine((Stampabile(pagina) * kFine).toSize(), QImage::Format_RGB32);
  immagine.fill(Qt::white);
  QPainter pittore(&immagine);
  DipingiFoglio(pittore, disegno, resa, {"s.dis", {2026, 1, 2}}, pagina, kFine);
  pittore.end();
  const auto scuri = [&](double x, double y, double larga, double alta) {
    int quanti = 0;
    for (int j = qRound(y * kFine); j < qRound((y + alta) * kFine); ++j)
      for (int i = qRound(x * kFine); i < qRound((x + larga) * kFine); ++i)
        quanti += immagine.pixelColor(i, j) != QColor(Qt::white);
    return quanti;
  };
  const QRectF& c = foglio.cartiglio;
  EXPECT_GT(scuri(foglio.campo.x(), foglio.campo.y(), foglio.campo.width(), foglio.campo.height()), 1000);
  EXPECT_EQ(scuri(0, foglio.campo.bottom() + 0.2, c.left() - 0.5, c.height() + 2), 0);
  EXPECT_EQ(scuri(0, foglio.campo.bottom() + 0.2, c.right(), 2), 0);
  double confine = c.left();
  for (const double parte : {0.34, 0.21, 0.11, 0.13}) {
    for (const double riga : {0.25, 0.65})
      EXPECT_GT(scuri(confine + 1, c.top() + riga * c.height(), 9, 1), 20) << "the name, below it the value";
    confine += parte * c.width();
    EXPECT_GT(scuri(confine - 0.2, c.top(), 0.4, c.height()), 100) << "a line between cells";
    EXPECT_EQ(scuri(confine - 1, c.top() + 0.3, 0.7, c.height() - 0.6), 0) << "and room beside it";
  }
}

}  // namespace
}  // namespace ostrel
