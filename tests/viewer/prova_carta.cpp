// The drawing on paper: the sheet's division, what is said of a drawing that does not fit, the dialogs.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <deque>
#include <functional>

#include "tests/viewer/aiuti_viewer.h"
#include "tests/viewer/con_finestra.h"
#include "viewer/comandi_carta.h"
#include "viewer/dialogo_carta.h"
#include "viewer/esporta.h"
#include "viewer/misure.h"
#include "viewer/preferenze.h"

namespace ostrel {
namespace {

using prove::ConFinestra;

// A user who answers each window as it appears, in this order.
class Utente : public QObject {
 public:
  using Mossa = std::function<void(QDialog&)>;
  explicit Utente(std::deque<Mossa> mosse) : mosse_(std::move(mosse)) { qApp->installEventFilter(this); }
  std::size_t Restano() const { return mosse_.size(); }

  bool eventFilter(QObject* chi, QEvent* evento) override {
    auto* const dialogo = qobject_cast<QDialog*>(chi);
    if (!dialogo || evento->type() != QEvent::Show) return false;
    const Mossa mossa = mosse_.empty() ? [](QDialog& d) { d.reject(); } : mosse_.front();
    EXPECT_FALSE(mosse_.empty()) << dialogo->windowTitle().toStdString();
    if (!mosse_.empty()) mosse_.pop_front();
    // Once it is open.
    QMetaObject::invokeMethod(
        dialogo, [=] { mossa(*dialogo); }, Qt::QueuedConnection);
    return false;
  }

 private:
  std::deque<Mossa> mosse_;
};

Utente::Mossa Preme(const char* bottone) {
  return [=](QDialog& dialogo) {
    for (QPushButton* trovato : dialogo.findChildren<QPushButton*>())
      if (trovato->text().remove('&') == bottone) return trovato->click();
    ADD_FAILURE() << "no button " << bottone;
    dialogo.reject();
  };
}
void Accetta(QDialog& dialogo) {
  dialogo.accept();
}
void Rifiuta(QDialog& dialogo) {
  dialogo.reject();
}

TEST(Foglio, IlDisegnoStaSopraIlCartiglio) {
  const Disegno disegni[] = {prove::Esempio(), prove::Letto(prove::kUnoPerGenere)};
  for (const Disegno& disegno : disegni)
    for (const Unita unita : {Unita::Ignota, Unita::Centimetri})
      for (const double rapporto : {0.0, 100.0})
        // Down to a label's paper.
        for (const QSizeF& stampabile :
             {QSizeF(287, 200), QSizeF(200, 287), QSizeF(70, 20), QSizeF(15, 250)}) {
          const Foglio foglio = Componi(disegno, {unita, rapporto}, stampabile);
          const QRectF tutto({0, 0}, stampabile);
          const Riquadro r = Ingombro(disegno);
          const QRectF posto(foglio.vista.Verso(r.x0, r.y1), foglio.vista.Verso(r.x1, r.y0));
          EXPECT_TRUE(tutto.contains(foglio.cartiglio) && tutto.contains(foglio.campo));
          EXPECT_FALSE(foglio.campo.intersects(foglio.cartiglio));
          EXPECT_LT(QLineF(posto.center(), foglio.campo.center()).length(), 1e-9);
          const bool adattata = unita == Unita::Ignota || rapporto == 0;
          EXPECT_TRUE(!adattata || foglio.campo.contains(posto));
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
    EXPECT_EQ(obiezione->testo.contains("basta un foglio"), c.basta != nullptr)
        << obiezione->testo.toStdString();
    EXPECT_TRUE(!c.basta || obiezione->testo.endsWith(QString("foglio %1.").arg(c.basta)));
    EXPECT_EQ(obiezione->ciSta, c.ciSta);
  }
  const std::string esteso = prove::ConRiga(prove::kUnoPerGenere, 8, "-1.5E+308  1.5E+308  0 ");
  const Disegno smisurato = prove::Letto(esteso);
  const Resa resa{Unita::Metri, 1};
  EXPECT_TRUE(Esamina(smisurato, resa, Pagina(smisurato, resa)).value().assurda);
  const QTemporaryDir cartella;
  EXPECT_EQ(Esporta(smisurato, cartella.filePath("e.pdf"), resa), std::nullopt);
}

TEST(Cartiglio, DiceLaScalaSoloSeLaSa) {
  const Disegno disegno = prove::Esempio();
  const auto scala = [&](const Disegno& d, const Resa& resa) {
    return Intesta(d, resa, Componi(d, resa, {287, 200}), {"/lavori/ponte.1.dis", {2026, 1, 2}});
  };
  EXPECT_EQ(scala(disegno, {}).scala, "non in scala");
  EXPECT_EQ(scala(disegno, {Unita::Ignota, 50}).scala, "non in scala");
  EXPECT_EQ(scala(disegno, {Unita::Centimetri, 12.5}).scala, "1:12,5");
  EXPECT_EQ(scala(disegno, {Unita::Centimetri}).scala, "adattata, circa 1:51");
  EXPECT_EQ(scala(disegno, {Unita::Metri}).scala, "adattata, circa 1:5100");
  const Disegno piccolo = prove::Letto(prove::kUnoPerGenere);
  EXPECT_TRUE(scala(piccolo, {Unita::Millimetri}).scala.endsWith(":1")) << "larger than life";
  const Cartiglio c = scala(disegno, {Unita::Metri});
  EXPECT_EQ(c.titolo + c.unita + c.data + c.file, "SEZIONE U_PO_001m02/01/2026ponte.1.dis");
}

TEST(ComandiCarta, IlNomeTieneISuoiPunti) {
  const QStringList tutti = FinaliEsportazione();
  const struct {
    const char* nome;
    const char* finale;
    const char* atteso;
  } casi[] = {{"/a/ponte.1", "pdf", "/a/ponte.1.pdf"}, {"/a.b/ponte", "dxf", "/a.b/ponte.dxf"},
              {"ponte.PDF", "dxf", "ponte.PDF"},       {"ponte.dxf", "pdf", "ponte.dxf"},
              {"ponte.", "svg", "ponte.svg"},          {"ponte.dis", "png", "ponte.dis.png"}};
  for (const auto& c : casi) EXPECT_EQ(ConFinale(c.nome, tutti, c.finale), c.atteso);
  EXPECT_EQ(ConFinale("ponte.dxf", {"pdf"}, "pdf"), "ponte.dxf.pdf") << "where only a PDF is to be had";
}

TEST(DialogoCarta, LaScalaSbagliataSiDicePrima) {
  const Disegno disegno = prove::Esempio();
  DialogoCarta dialogo(disegno, {"s.dis"}, {Unita::Centimetri, 75}, {"Stampa", "Stampa", {}}, nullptr);
  auto& scala = *dialogo.findChild<QComboBox*>("scala");
  const auto& nota = *dialogo.findChild<QLabel*>("nota");
  dialogo.show();
  EXPECT_EQ(scala.currentText(), "1:75") << "one of the user's own";
  EXPECT_TRUE(nota.text().startsWith("Foglio A4 orizzontale;")) << nota.text().toStdString();
  scala.setEditText("1:2o");
  EXPECT_TRUE(nota.text().startsWith("\"1:2o\" non è una scala"));
  Utente utente({Rifiuta, Preme("Annulla"), Preme("Usa 1:50"), Preme("Continua lo stesso")});
  dialogo.accept();
  scala.setEditText("1:20");
  EXPECT_TRUE(nota.text().contains("una parte ne resta fuori"));
  dialogo.accept();
  EXPECT_EQ(scala.currentText(), "1:20");
  dialogo.accept();
  EXPECT_EQ(dialogo.Scelta().rapporto, 50);
  EXPECT_TRUE(dialogo.isVisible());
  scala.setEditText("10");
  dialogo.accept();
  EXPECT_EQ(dialogo.result(), QDialog::Accepted);
  EXPECT_EQ(utente.Restano(), 0u);
  dialogo.findChild<QComboBox*>("unita")->setCurrentIndex(0);
  EXPECT_EQ(dialogo.Scelta().rapporto, 0) << "no unit, no scale";
}

TEST(ComandiCarta, EsportaChiedeERicorda) {
  const QTemporaryDir cartella;
  const QString disegno = cartella.filePath("ponte.1.dis"), pdf = cartella.filePath("ponte.1.pdf");
  RicordaResa({"pdf", {Unita::Centimetri, 50}});
  const auto esporta = [&](std::deque<Utente::Mossa> mosse) {
    const Utente utente(std::move(mosse));
    const Esito esito = EsportaDaFinestra(prove::Esempio(), disegno, nullptr);
    EXPECT_EQ(utente.Restano(), 0u);
    EXPECT_EQ(esito.errore, "");
    return esito.conferma;
  };
  EXPECT_TRUE(esporta({Accetta, Accetta}).endsWith("ponte.1.pdf (A4 orizzontale, 1:50)"));
  EXPECT_TRUE(prove::Leggi(pdf.toStdString()).starts_with("%PDF-"));

  // A file that is there is asked about under its whole name; what is taken back changes nothing.
  prove::Scrivi(pdf.toStdString(), "di prima");
  EXPECT_EQ(esporta({Accetta, Preme("Annulla"), Rifiuta}), "");
  EXPECT_EQ(esporta({Accetta, Preme("Sostituisci"), Rifiuta}), "");
  EXPECT_EQ(prove::Leggi(pdf.toStdString()), "di prima");

  const auto scegliDxf = [](QDialog& dialogo) {
    auto& file = dynamic_cast<QFileDialog&>(dialogo);
    EXPECT_EQ(file.selectedNameFilter(), FiltroEsportazione("pdf"));
    file.selectNameFilter(FiltroEsportazione("dxf"));
    dialogo.accept();
  };
  EXPECT_TRUE(esporta({scegliDxf, Accetta}).endsWith("ponte.1.dxf"));
  EXPECT_EQ(ResaRicordata().genere, "dxf");
  EXPECT_EQ(ResaRicordata().resa.unita, Unita::Centimetri);
}

TEST_F(ConFinestra, IlFoglioRestaQuelloDiQuandoSiEChiesto) {
  const Utente utente({[&](QDialog& dialogo) {
    const QImage prima = dialogo.grab().toImage();
    prove::Scrivi(file, prove::kUnoPerGenere);
    Comanda("ricarica");
    EXPECT_EQ(tela.Mostrato().linee.size(), 2u);
    EXPECT_EQ(dialogo.grab().toImage(), prima);
    dialogo.reject();
  }});
  Comanda("stampa");
  EXPECT_EQ(utente.Restano(), 0u);
}

}  // namespace
}  // namespace ostrel
