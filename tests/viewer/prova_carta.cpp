// The drawing on its way to paper and files: what the dialogs ask, say and remember.
#include <QComboBox>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <array>
#include <deque>
#include <functional>

#include "tests/viewer/con_finestra.h"
#include "viewer/esporta/esporta.h"
#include "viewer/finestra/comandi_carta.h"
#include "viewer/finestra/dialogo_carta.h"

namespace ostrel {
namespace {

using prove::ConFinestra;

// A user who answers each window as it appears, in this order, and all of them.
class Utente : public QObject {
 public:
  using Mossa = std::function<void(QDialog&)>;
  explicit Utente(std::deque<Mossa> mosse) : mosse_(std::move(mosse)) { qApp->installEventFilter(this); }
  ~Utente() override { EXPECT_EQ(mosse_.size(), 0u) << "windows that did not appear"; }

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
const Utente::Mossa Accetta = &QDialog::accept, Rifiuta = &QDialog::reject;

TEST(ComandiCarta, IlNomeTieneISuoiPunti) {
  const QStringList tutti = FinaliEsportazione();
  const std::array<const char*, 3> casi[] = {
      {"/a/ponte.1", "pdf", "/a/ponte.1.pdf"}, {"/a.b/ponte", "dxf", "/a.b/ponte.dxf"},
      {"ponte.PDF", "dxf", "ponte.PDF"},       {"ponte.dxf", "pdf", "ponte.dxf"},
      {"ponte.", "svg", "ponte.svg"},          {"ponte.dis", "png", "ponte.dis.png"}};
  for (const auto& [nome, finale, atteso] : casi) EXPECT_EQ(ConFinale(nome, tutti, finale), atteso);
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
  dialogo.findChild<QComboBox*>("orientamento")->setCurrentText("verticale");
  EXPECT_TRUE(nota.text().contains("A4 verticale")) << nota.text().toStdString();
  scala.setEditText("?");
  dialogo.findChild<QComboBox*>("unita")->setCurrentIndex(0);
  EXPECT_TRUE(nota.text().startsWith("Foglio A4 verticale;")) << "a scale that no longer counts";
  EXPECT_EQ(dialogo.Scelta().rapporto, 0) << "no unit, no scale";
}

TEST(ComandiCarta, EsportaChiedeERicorda) {
  const QTemporaryDir cartella;
  const QString disegno = cartella.filePath("ponte.1.dis"), pdf = cartella.filePath("ponte.1.pdf");
  SceltaResa scelta{"pdf", {Unita::Centimetri, 50}};
  bool unitaDetta = false;
  const auto esporta = [&](std::deque<Utente::Mossa> mosse) {
    const Utente utente(std::move(mosse));
    const Esito esito = EsportaDaFinestra(prove::Esempio(), FileDi(disegno), scelta, nullptr);
    EXPECT_EQ(esito.errore, "");
    EXPECT_EQ(esito.scelta.has_value(), !esito.conferma.isEmpty()) << "an order taken back is not remembered";
    scelta = esito.scelta.value_or(scelta);
    unitaDetta = esito.unitaDetta;
    return esito.conferma;
  };
  EXPECT_TRUE(esporta({Accetta, Accetta}).endsWith("ponte.1.pdf (A4 orizzontale, 1:50)"));
  EXPECT_TRUE(prove::Leggi(pdf.toStdString()).starts_with("%PDF-"));

  // A file that is there is asked about under its whole name; what is taken back changes nothing.
  prove::Scrivi(pdf.toStdString(), "di prima");
  const auto invio = [](QDialog& domanda) { QTest::keyClick(&domanda, Qt::Key_Return); };
  const auto rifiutaFile = [](QDialog& file) {
    EXPECT_NE(qobject_cast<QFileDialog*>(&file), nullptr) << "Enter replaces nothing";
    file.reject();
  };
  EXPECT_EQ(esporta({Accetta, invio, rifiutaFile}), "");
  EXPECT_EQ(esporta({Accetta, Preme("Sostituisci"), Rifiuta}), "");
  EXPECT_EQ(prove::Leggi(pdf.toStdString()), "di prima");

  const auto sceglie = [](const char* prima, const char* poi) {
    return [=](QDialog& dialogo) {
      auto& file = dynamic_cast<QFileDialog&>(dialogo);
      EXPECT_EQ(file.selectedNameFilter(), FiltroEsportazione(prima));
      file.selectNameFilter(FiltroEsportazione(poi));
      dialogo.accept();
    };
  };
  EXPECT_TRUE(esporta({sceglie("pdf", "dxf"), Accetta}).endsWith("ponte.1.dxf"));
  EXPECT_EQ(scelta.resa.unita, Unita::Centimetri);
  EXPECT_TRUE(unitaDetta);
  EXPECT_TRUE(esporta({sceglie("dxf", "png")}).endsWith("ponte.1.png"));
  EXPECT_FALSE(unitaDetta) << "a picture asks for no unit";
  EXPECT_EQ(scelta.genere, "png");
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
}

// A drawing's unit is asked for where it has not been said, and is the one of no other; the last one said is
// only proposed.
TEST_F(ConFinestra, OgniDisegnoHaLaSuaUnita) {
  const QString primo = QString::fromStdString(file), altro = cartella.filePath("altro.dis");
  for (const char* nome : {"altro.dis", "terzo.dis"})
    prove::Scrivi(cartella.filePath(nome).toStdString(), prove::kEsempio);
  QString proposta;
  // Measures; the unit is asked for where there is one to choose.
  const auto misura = [&](const QString& percorso, std::optional<Unita> scelta) {
    const Utente utente(scelta ? std::deque<Utente::Mossa>{[&](QDialog& domanda) {
      auto& lista = *domanda.findChild<QComboBox*>();
      proposta = lista.currentText();
      lista.setCurrentIndex(static_cast<int>(*scelta));
      domanda.accept();
    }}
                               : std::deque<Utente::Mossa>{});
    finestra.Apri(percorso);
    Comanda("misura");
    Indica(0, 0);
    Indica(329.5, -185);
    const QString misurata = tela.Misura().section('\n', 0, 0);
    Comanda("misura");
    return misurata;
  };
  EXPECT_EQ(misura(primo, Unita::Metri), "Distanza = 377,8826 m");
  EXPECT_EQ(misura(altro, Unita::Ignota), "Distanza = 377,8826");
  EXPECT_EQ(proposta, "metri (m)");
  EXPECT_EQ(misura(altro, std::nullopt), "Distanza = 377,8826") << "not to be said, not asked again";
  EXPECT_EQ(misura(primo, std::nullopt), "Distanza = 377,8826 m");

  finestra.ApriRecente(cartella.filePath("terzo.dis"));
  const Utente utente({Rifiuta});
  Comanda("misura");
  EXPECT_EQ(tela.InUso(), Strumento::Mano) << "an order taken back";
  EXPECT_FALSE(finestra.findChild<QAction*>("misura")->isChecked());
}

// A file that cannot be read gives the sheets of the drawing before it no name; a preview has always the
// same, so its title is proposed, which may hold what a file's name may not. What was chosen is remembered
// also when no file is; the unit as that of the drawing on the sheet.
TEST_F(ConFinestra, IlFoglioPortaIlFileMostratoELUnitaScelta) {
  finestra.Apri(cartella.filePath("manca.dis"));
  DiUnita(Unita::Centimetri);
  QTest::keyClick(&tela, Qt::Key_M);
  Indica(0, 0);
  Indica(329.5, -185);
  const auto scegliMetri = [](QDialog& dialogo) {
    dialogo.findChild<QComboBox*>("unita")->setCurrentIndex(3);
    dialogo.findChild<QComboBox*>("scala")->setEditText("adatta");
    dialogo.accept();
  };
  const auto guardaNome = [](const char* nome, qsizetype generi) {
    return [=](QDialog& dialogo) {
      // A printer, where there is one, asks other things.
      if (const auto* uscita = qobject_cast<QFileDialog*>(&dialogo)) {
        EXPECT_EQ(QFileInfo(uscita->selectedFiles().front()).completeBaseName(), nome);
        EXPECT_EQ(uscita->nameFilters().size(), generi);
      }
      dialogo.reject();
    };
  };
  const Utente utente(
      {guardaNome("sezione", 4), scegliMetri, guardaNome("sezione", 1), guardaNome("SEZIONE A_B_1", 4)});
  Comanda("esporta");
  Comanda("stampa");
  EXPECT_EQ(tela.Misura().section('\n', 0, 0), "Distanza = 377,8826 m");
  prove::Scrivi(file, prove::ConRiga(prove::kEsempio, 388, "SEZIONE A/B:1."));
  finestra.ApriAnteprima(QString::fromStdString(file));
  Comanda("esporta");
}

}  // namespace
}  // namespace ostrel
