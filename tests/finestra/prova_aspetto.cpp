// What the user can read and do to a box, in one process without a screen: every caption is whole
// at every scale, every change of a box is told, and only what a box can hold gets into it.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QFile>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QTest>

#include "app/form_sez.h"
#include "app/tarvel1.h"
#include "options/form_opt.h"
#include "platform/desktop.h"
#include "platform/qt/avvio.h"
#include "platform/qt/finestra.h"
#include "platform/qt/fuoco.h"
#include "platform/qt/scala.h"
#include "platform/qt/tasti.h"
#include "platform/qt/testo_qt.h"

namespace tarvel {
namespace {

using Codici = std::vector<int>;

// The toolkit for one test: every test runs in a process of its own.
void Prepara(const Form& form, QSize schermo = {1024, 600}) {
  const QString file = QString::fromStdString(::testing::TempDir() + "schermo" +
                                              std::to_string(QCoreApplication::applicationPid()) + ".json");
  QFile misure(file);
  ASSERT_TRUE(misure.open(QFile::WriteOnly));
  misure.write(QStringLiteral(
                   R"({"screens":[{"name":"s","x":0,"y":0,"width":%1,"height":%2,"logicalDpi":96,"dpr":1}]})")
                   .arg(schermo.width())
                   .arg(schermo.height())
                   .toUtf8());
  misure.close();
  qputenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + file).toUtf8());
  std::string nome = "prova";
  char* argomenti[] = {nome.data(), nullptr};
  PreparaDesktop(1, argomenti, form);
}

// --- Every change is told

struct Gesto {
  const char* nome;
  std::function<void(QLineEdit&)> fai;
  const char* testo;  // of the box afterwards, UTF-8
  Codici codici;
};

void Tasti(QLineEdit& casella, Qt::Key tasto, Qt::KeyboardModifiers con = {}) {
  QTest::keyClick(&casella, tasto, con);
}

void Incolla(QLineEdit& casella, const QString& testo) {
  QApplication::clipboard()->setText(testo);
  Tasti(casella, Qt::Key_V, Qt::ControlModifier);
}

TEST(Casella, TellsEveryChangeAndHoldsOnlyEightBitText) {
  Form form;
  form.nome = "F";
  form.larghezza = form.altezza = 3000;
  Controllo controllo = NuovoControllo(TipoControllo::Casella, "A", {100, 100, 1000, 300});
  Codici codici;
  std::vector<Testo> prima;
  controllo.tasto = [&](int codice) {
    codici.push_back(codice);
    prima.push_back(controllo.testo);
  };
  form.controlli = {&controllo};
  Prepara(form);
  MostraForm(form);
  auto& casella = static_cast<QLineEdit&>(*FinestraAttiva()->WidgetDi(controllo));
  ASSERT_TRUE(QTest::qWaitForWindowActive(&casella));

  const QString lungo(10'000, 'x');
  const Gesto gesti[] = {
      {"a letter", [](QLineEdit& c) { QTest::keyClick(&c, 'z'); }, "z", {'z'}},
      {"Enter", [](QLineEdit& c) { Tasti(c, Qt::Key_Enter); }, "abc", {13}},
      {"Backspace", [](QLineEdit& c) { Tasti(c, Qt::Key_Backspace); }, "", {8}},
      {"Delete", [](QLineEdit& c) { Tasti(c, Qt::Key_Delete); }, "", {8}},
      {"Delete at the end", [](QLineEdit& c) { c.end(false), Tasti(c, Qt::Key_Delete); }, "abc", {}},
      {"cut", [](QLineEdit& c) { Tasti(c, Qt::Key_X, Qt::ControlModifier); }, "", {8}},
      {"cut by the menu", [](QLineEdit& c) { c.cut(); }, "", {8}},
      {"undo", [](QLineEdit& c) { c.cut(), c.undo(); }, "abc", {8, 22}},
      {"paste", [](QLineEdit& c) { Incolla(c, "12"); }, "12", {22}},
      {"paste of all sorts",
       [](QLineEdit& c) { Incolla(c, QString::fromUtf8("1\t2\x01\r\n€Ωü")); },
       "12€?ü",
       {22}},
      {"a long paste", [&](QLineEdit& c) { Incolla(c, lungo); }, nullptr, {22}},
      {"paste by the menu",
       [](QLineEdit& c) { QApplication::clipboard()->setText("7777"), c.paste(); },
       "7777",
       {22}},
      {"an input method",
       [](QLineEdit& c) {
         QInputMethodEvent evento;
         evento.setCommitString(QString::fromUtf8("é€"));
         QApplication::sendEvent(&c, &evento);
       },
       "é€",
       {0xE9, 0x80}},
      {"a drop",
       [](QLineEdit& c) {
         QMimeData dati;
         dati.setText("9\n");
         QDropEvent evento(QPointF(1, 1), Qt::CopyAction, &dati, Qt::LeftButton, {});
         static_cast<QObject&>(c).event(&evento);
       },
       "9abc",
       {22}},
      {"copy", [](QLineEdit& c) { Tasti(c, Qt::Key_C, Qt::ControlModifier); }, "abc", {}},
      {"Esc", [](QLineEdit& c) { Tasti(c, Qt::Key_Escape); }, "abc", {}},
      {"Alt and a letter", [](QLineEdit& c) { QTest::keyClick(&c, 'f', Qt::AltModifier); }, "abc", {}},
  };
  for (const Gesto& gesto : gesti) {
    SCOPED_TRACE(gesto.nome);
    ImpostaTesto(controllo, "abc");
    casella.selectAll();
    codici.clear();
    prima.clear();
    gesto.fai(casella);
    EXPECT_EQ(casella.text(), gesto.testo == nullptr ? lungo : QString::fromUtf8(gesto.testo));
    EXPECT_EQ(controllo.testo, DaQt(casella.text()));
    EXPECT_EQ(codici, gesto.codici);
    if (!prima.empty()) {
      EXPECT_EQ(prima.front(), "abc");  // the hook still finds what the box held
    }
  }
  ScaricaForm(form);
}

// --- Everything can be read

class AScala : public ::testing::TestWithParam<const char*> {};

void ControllaTesti(Form& form) {
  SCOPED_TRACE(form.nome);
  const Finestra finestra(form);
  for (const Controllo* controllo : form.controlli) {
    SCOPED_TRACE(controllo->nome);
    const QWidget& widget = *finestra.WidgetDi(*controllo);
    EXPECT_TRUE(finestra.rect().contains(widget.geometry()));
    const QFontMetrics misure(widget.font());
    if (controllo->tipo == TipoControllo::Bottone) {
      const QSize testo = misure.size(Qt::TextSingleLine, static_cast<const QAbstractButton&>(widget).text());
      EXPECT_LT(testo.width(), widget.width());
      EXPECT_LT(testo.height(), widget.height());
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

TEST_P(AScala, NoCaptionAndNoNoteIsCutOff) {
  const QStringList misure = QString(GetParam()).split('x');
  const QSize schermo(misure[0].toInt(), misure[1].toInt());
  Prepara(FormPrincipale(), schermo);
  EXPECT_LE(Pixel(FormPrincipale().larghezza), std::max(629, schermo.width() * 2 / 3));
  EXPECT_LE(Pixel(FormPrincipale().altezza), std::max(319, schermo.height() * 2 / 3));
  FormSez elenco;
  FormSez2 multiplo;
  for (Form* form : {&FormPrincipale(), static_cast<Form*>(&FormOpt::Unica()), static_cast<Form*>(&elenco),
                     static_cast<Form*>(&multiplo)})
    ControllaTesti(*form);
}

INSTANTIATE_TEST_SUITE_P(Schermi, AScala,
                         ::testing::Values("640x480", "1024x600", "1366x768", "1440x900", "1920x1080",
                                           "3840x2160"));

TEST(Etichetta, ALongPathShowsBothEndsAndTheWholeAsAToolTip) {
  Prepara(FormPrincipale());
  auto& form = static_cast<tarvel1&>(FormPrincipale());
  const Testo percorso = "\\dati\\" + Testo(200, 'x') + "\\lavori\\PR0042\\sezio_ut";
  ImpostaTesto(form.nomute, percorso);
  const Finestra finestra(form);
  const auto& etichetta = static_cast<const QLabel&>(*finestra.WidgetDi(form.nomute));
  EXPECT_TRUE(etichetta.text().startsWith("\\dati\\"));
  EXPECT_TRUE(etichetta.text().endsWith("\\sezio_ut"));
  EXPECT_LE(etichetta.fontMetrics().horizontalAdvance(etichetta.text()), etichetta.width());
  EXPECT_EQ(etichetta.toolTip(), InQt(percorso));
}

// --- Key sequences

TEST(Tasti, SequencesAreReadInGroups) {
  const unsigned long f4 = 0xffc1;  // the keysym of F4
  const std::pair<const char*, std::vector<GruppoTasti>> casi[] = {
      {"%(fg)", {{true, {'f', 'g'}}}},
      {"%{F4}", {{true, {f4}}}},
      {"%fG1", {{true, {'f'}}, {false, {'g'}}, {false, {'1'}}}},
      {"(ab){F12}", {{false, {'a', 'b'}}, {false, {f4 + 8}}}},
      {"%(f", {{true, {'f'}}}},
      {"{F13}{F}{x}{F4", {{false, {f4}}}},
      {"%", {}},
      {"", {}},
  };
  for (const auto& [sequenza, attesi] : casi) EXPECT_EQ(LeggiSequenza(sequenza), attesi) << sequenza;
}

}  // namespace
}  // namespace tarvel
