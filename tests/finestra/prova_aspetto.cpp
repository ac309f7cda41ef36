// What the user can read and do to a box, in one process without a screen: every caption is whole
// at every scale, every change of a box is told, and only what a box can hold gets into it.
#include <QtWidgets/qtestsupport_widgets.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QScreen>
#include <cstdio>
#include <cstdlib>

#include "app/form_opt.h"
#include "app/form_sez.h"
#include "app/tarvel1.h"
#include "platform/comune/desktop/scrivania.h"
#include "platform/qt/avvio.h"
#include "platform/qt/finestra.h"
#include "platform/qt/scala.h"
#include "platform/qt/tasti.h"
#include "platform/qt/testo_qt.h"
#include "tests/cartella.h"
#include "tests/finestra/gesti.h"

namespace tarvel {
namespace {

// The toolkit is set up for one test: more than one in a process are refused before the first begins.
struct UnaProva : testing::Environment {
  void SetUp() override {
    if (testing::UnitTest::GetInstance()->test_to_run_count() <= 1) return;
    std::fputs("prova-aspetto: one test a process: ctest -R NAME, or --gtest_filter=NAME\n", stderr);
    std::exit(2);
  }
};
const auto* const kUnaProva = testing::AddGlobalTestEnvironment(new UnaProva);

// The toolkit for one test.
void Prepara(const Form& form, const QByteArray& piattaforma = "offscreen") {
  qputenv("QT_QPA_PLATFORM", piattaforma);
  std::string nome = "prova";
  char* argomenti[] = {nome.data(), nullptr};
  PreparaDesktop(1, argomenti, form);
}

TEST(Casella, DiceOgniCambioETieneSoloTestoAOttoBit) {
  Form form;
  form.larghezza = form.altezza = 3000;
  Controllo controllo = NuovoControllo(TipoControllo::Casella, "A", {100, 100, 1000, 300});
  std::vector<int> codici;
  controllo.tasto = [&](int codice) {
    if (codici.empty()) {
      EXPECT_EQ(controllo.testo, "abc");  // the hook still finds what the box held
    }
    codici.push_back(codice);
  };
  form.controlli = {&controllo};
  Prepara(form);
  MostraForm(form);
  auto& casella = static_cast<QLineEdit&>(*FinestraDi(FormAttiva())->WidgetDi(controllo));
  ASSERT_TRUE(QTest::qWaitForWindowActive(&casella));

  using Gesto = std::function<void()>;
  const auto tasto = [&](int quale, Qt::KeyboardModifiers con = {}) -> Gesto {
    return [=, &casella] { Batti(casella.window()->windowHandle(), quale, {}, con); };
  };
  QInputMethodEvent composto;
  composto.setCommitString("é€");
  QMimeData dati;
  dati.setText("9\n");
  QDropEvent lasciato(QPointF(1, 1), Qt::CopyAction, &dati, Qt::LeftButton, {});
  QApplication::clipboard()->setText("1\t2\x01\r\n€Ωü");
  // What the user does to a selected "abc", the text of the box afterwards and the codes told.
  const std::tuple<const char*, Gesto, const char*, std::vector<int>> casi[] = {
      {"paste", tasto(Qt::Key_V, Qt::ControlModifier), "12€?ü", {22}},
      {"Enter", tasto(Qt::Key_Enter), "abc", {13}},
      {"cut", tasto(Qt::Key_X, Qt::ControlModifier), "", {8}},
      {"undo", [&] { casella.cut(), casella.undo(); }, "abc", {8, 22}},
      {"an input method", [&] { QApplication::sendEvent(&casella, &composto); }, "é€", {0xE9, 0x80}},
      {"a drop", [&] { static_cast<QObject&>(casella).event(&lasciato); }, "9abc", {22}},
      {"copy", tasto(Qt::Key_C, Qt::ControlModifier), "abc", {}},
      {"Alt and a letter", tasto(Qt::Key_F, Qt::AltModifier), "abc", {}},
  };
  for (const auto& [nome, gesto, testo, attesi] : casi) {
    SCOPED_TRACE(nome);
    ImpostaTesto(controllo, "abc");
    casella.selectAll();
    codici.clear();
    gesto();
    EXPECT_EQ(casella.text(), testo);
    EXPECT_EQ(controllo.testo, DaQt(casella.text()));
    EXPECT_EQ(codici, attesi);
  }
  // What comes from the menu is in view as what is typed.
  controllo.tasto = {};
  ImpostaTesto(controllo, Testo(99, '1'));
  casella.paste();
  casella.grab();
  EXPECT_GT(casella.cursorPositionAt({}), 50);
  ScaricaForm(form);
}

class AScala : public ::testing::TestWithParam<std::pair<int, int>> {};

void ControllaTesti(Form& form) {
  SCOPED_TRACE(form.nome);
  const Finestra finestra(form);
  for (const Controllo* controllo : form.controlli) {
    SCOPED_TRACE(controllo->nome);
    const QWidget& widget = *finestra.WidgetDi(*controllo);
    EXPECT_TRUE(finestra.rect().contains(widget.geometry()));
    const Colore& c = controllo->coloreTesto;
    EXPECT_EQ(widget.palette().color(widget.foregroundRole()), QColor(c.r, c.g, c.b));
    const QFontMetrics misure(widget.font());
    if (controllo->tipo == TipoControllo::Bottone) {
      const QString testo = static_cast<const QAbstractButton&>(widget).text();
      EXPECT_EQ(testo, InQt(controllo->testo).replace('&', "&&"));
      const QSize occupato = misure.size(Qt::TextShowMnemonic, testo);
      EXPECT_TRUE(occupato.width() < widget.width() && occupato.height() < widget.height());
    } else if (controllo->tipo == TipoControllo::Etichetta) {
      const auto& etichetta = static_cast<const QLabel&>(widget);
      EXPECT_EQ(etichetta.text(), InQt(controllo->testo));  // not shortened
      const int modo = etichetta.wordWrap() ? Qt::TextWordWrap : Qt::TextSingleLine;
      EXPECT_TRUE(widget.rect().contains(misure.boundingRect(widget.rect(), modo, etichetta.text())));
    } else {
      EXPECT_LE(misure.height(), widget.height());
    }
  }
}

TEST_P(AScala, NessunaScrittaENessunaNotaTagliata) {
  const auto [larghezza, altezza] = GetParam();
  const prove::Cartella cartella;  // its own: the tests may be run twice at once
  const std::string file = (cartella / "schermo.json").string();
  prove::Scrivi(file, R"({"screens":[{"name":"s","x":0,"y":0,"logicalDpi":96,"dpr":1,"width":)" +
                          std::to_string(larghezza) + ",\"height\":" + std::to_string(altezza) + "}]}");
  Prepara(FormPrincipale(), ("offscreen:configfile=" + file).c_str());
  EXPECT_LE(Pixel(FormPrincipale().larghezza), std::max(629, larghezza * 2 / 3));
  EXPECT_LE(Pixel(FormPrincipale().altezza), std::max(319, altezza * 2 / 3));
  Form vuota;
  vuota.larghezza = FormPrincipale().larghezza;
  vuota.altezza = FormPrincipale().altezza;
  MostraForm(vuota);
  const QRect schermo = FinestraDi(FormAttiva())->screen()->geometry(),
              posto = FinestraDi(FormAttiva())->frameGeometry();
  EXPECT_TRUE(schermo.contains(posto) && posto.top() == schermo.top() && posto.left() <= Pixel(1350));
  ScaricaForm(vuota);
  FormSez elenco;
  FormSez2 multiplo;
  for (Form* form : std::initializer_list<Form*>{&FormPrincipale(), &FormOpt::Unica(), &elenco, &multiplo})
    ControllaTesti(*form);
}

INSTANTIATE_TEST_SUITE_P(Schermi, AScala,
                         ::testing::Values(std::pair(640, 480), std::pair(683, 384), std::pair(1024, 600),
                                           std::pair(1366, 768), std::pair(1440, 900), std::pair(1920, 1080),
                                           std::pair(3840, 2160)));

// The second one is twice as tall as its font.
TEST(Etichetta, UnPercorsoLungoMostraICapiUnaNotaETuttaScritta) {
  const Testo percorso = "\\dati <b>dati\\" + Testo(200, 'x') + "\\sezio_ut";
  Controllo riga = NuovoControllo(TipoControllo::Etichetta, "R", {0, 0, 1500, 269}, percorso);
  Controllo nota = NuovoControllo(TipoControllo::Etichetta, "N", {0, 300, 1500, 270}, percorso);
  Form form;
  form.controlli = {&riga, &nota};
  Prepara(form);
  const Finestra finestra(form);
  const auto& etichetta = static_cast<const QLabel&>(*finestra.WidgetDi(riga));
  EXPECT_TRUE(etichetta.text().startsWith("\\dati "));
  EXPECT_TRUE(etichetta.text().endsWith("\\sezio_ut"));
  EXPECT_LE(etichetta.fontMetrics().horizontalAdvance(etichetta.text()), etichetta.width());
  EXPECT_EQ(Letto(etichetta.toolTip()), InQt(percorso));
  EXPECT_EQ(static_cast<const QLabel&>(*finestra.WidgetDi(nota)).text(), InQt(percorso));
}

TEST(Tasti, LeSequenzeSonoTastiConAlt) {
  const std::pair<const char*, std::vector<Tasto>> casi[] = {
      {"%(fG)", {'f', 'g'}},
      {"%{F4}", {kF1 + 3}},
      {"%{F12}", {kF1 + 11}},
      {"%(1f", {'f'}},
      {"%{F13}", {}},
      {"%{F}", {}},
      {"fg", {}},
      {"%", {}},
  };
  for (const auto& [sequenza, attesi] : casi) EXPECT_EQ(LeggiSequenza(sequenza), attesi) << sequenza;
}

}  // namespace
}  // namespace tarvel
