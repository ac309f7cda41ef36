// The window and its start: what is said of its document, the commands of the menus, their keys, what is
// copied, the drawings that come to the window.
#include <QClipboard>
#include <QDialog>
#include <QDir>
#include <QDropEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QRegularExpression>
#include <QTableWidget>
#include <algorithm>
#include <array>
#include <filesystem>
#include <map>
#include <set>

#include "tests/viewer/con_finestra.h"
#include "viewer/comando/avvio.h"
#include "viewer/finestra/tabella.h"

namespace ostrel {
namespace {

namespace fs = std::filesystem;

using prove::ConFinestra;

struct ConSorveglianza : ConFinestra {
  ConSorveglianza() : ConFinestra(true) {}
};

// What cannot be read leaves the drawing that was there, a new one the view. A reading by itself takes away
// what the drawing's own fault was, and leaves what failed beside the drawing.
TEST_F(ConSorveglianza, IlGuastoSiDiceFinCheDura) {
  const auto attende = [&](auto finche) {
    EXPECT_TRUE(QTest::qWaitFor(finche, 10000)) << Avviso().toStdString();
  };
  Rotella(2, {300, 100});
  const Vista prima = tela.VistaCorrente();
  std::string guasto = prove::kEsempio;
  prove::Scrivi(file, guasto.replace(guasto.find(" 275 "), 5, " 276 "));
  attende([&] { return Avviso().contains("sezione.dis: riga 281, atteso: una coordinata"); });
  EXPECT_EQ(tela.Mostrato().linee.size(), 102u);
  prove::Scrivi(file, ritoccato);
  attende([&] { return Mostra("SEZIONE U_PO_002") && Avviso().isEmpty(); });
  EXPECT_EQ(tela.VistaCorrente(), prima);
  finestra.Avvisa("il disco è pieno");
  prove::Scrivi(file, prove::kEsempio);
  attende([&] { return Mostra("SEZIONE U_PO_001"); });
  EXPECT_EQ(Avviso(), "il disco è pieno");
  fs::remove(file);
  Comanda("ricarica");
  EXPECT_TRUE(Avviso().endsWith("il disegno non esiste"));
  prove::Scrivi(file, prove::kEsempio);
  Comanda("ricarica");
  EXPECT_EQ(Avviso(), "");
}

void SenzaScontri(const QList<QAction*>& voci, std::set<QString>& tasti) {
  std::set<QChar> mnemonici;
  for (QAction* voce : voci) {
    if (voce->isSeparator()) continue;
    const qsizetype segno = voce->text().indexOf('&');
    ASSERT_GE(segno, 0) << voce->text().toStdString();
    EXPECT_TRUE(mnemonici.insert(voce->text()[segno + 1].toLower()).second) << voce->text().toStdString();
    for (const QKeySequence& sequenza : voce->shortcuts())
      EXPECT_TRUE(tasti.insert(sequenza.toString()).second) << sequenza.toString().toStdString();
    if (voce->menu() != nullptr) SenzaScontri(voce->menu()->actions(), tasti);
  }
}

TEST_F(ConFinestra, OgniVoceHaITastiSuoi) {
  std::set<QString> tasti;
  SenzaScontri(finestra.menuBar()->actions(), tasti);
  EXPECT_TRUE(tasti.contains("F1"));
  EXPECT_EQ(finestra.findChild<QAction*>("ricarica")->text(), "Ricarica dise&gno");
}

TEST_F(ConFinestra, ITastiSonoQuelliDeiMenu) {
  emit finestra.menuBar()->actions()[0]->menu()->aboutToShow();  // with the drawing just opened in it
  Comanda("tasti");
  const auto& tavola = *finestra.findChild<QDialog*>("tasti")->findChild<QTableWidget*>();
  const auto tasti = [&](const char* effetto) {
    const auto voci = tavola.findItems(effetto, Qt::MatchExactly);
    return voci.size() == 1 ? tavola.item(voci[0]->row(), 0)->text() : QString("?");
  };
  EXPECT_EQ(tasti("Ricarica disegno"), "F5");
  EXPECT_EQ(tasti("Sposta: In alto"), "↑");
  EXPECT_EQ(tasti("Misura una distanza"), "M");
  EXPECT_TRUE(tavola.findItems("sezione.dis", Qt::MatchContains).isEmpty()) << "a file is no command";
  // The keys of the user's guide; of the digits also what they show.
  const auto guida = QString::fromStdString(prove::Leggi(prove::kDati + "/../../../docs/guida-disegno.md"));
  std::map<QString, QString> effetti;
  for (int riga = 0; riga < tavola.rowCount(); ++riga)
    for (const QString& tasto : tavola.item(riga, 0)->text().split("   "))
      if (const auto* effetto = tavola.item(riga, 1)) effetti[tasto] = effetto->text();
  static const QRegularExpression kTasto("`(.)`(?: (?:il|le|i) (\\w+))?",
                                         QRegularExpression::UseUnicodePropertiesOption);
  int quanti = 0;
  for (const auto& trovato : kTasto.globalMatch(guida.section("| per | si fa |", 1).section("\n\n", 0, 0))) {
    const auto effetto = effetti.find(trovato.captured(1));
    ASSERT_NE(effetto, effetti.end()) << trovato.captured(1).toStdString();
    EXPECT_TRUE(effetto->second.endsWith(trovato.captured(2))) << effetto->second.toStdString();
    ++quanti;
  }
  EXPECT_EQ(quanti, 10);
}

TEST_F(ConFinestra, QuelloCheENascostoNonSiVedeNeSiEsporta) {
  // Of the window and its copy, how many show it.
  const auto visti = [&](const Coordinata& dove) {
    const std::array immagini = {tela.grab().toImage(), tela.Immagine()};
    return std::ranges::count_if(immagini, [&](const QImage& immagine) {
      return Traccia(immagine, dove.x, dove.y) != immagine.pixelColor(3, 3);
    });
  };
  const Coordinata contorno{500, -185}, quota{900, 200};
  QTest::keyClick(&tela, Qt::Key_1);
  EXPECT_EQ(visti(contorno), 0);
  EXPECT_EQ(visti(quota), 2);
  EXPECT_TRUE(Detto("conteggio").endsWith("(nascosti: contorno)"));
  EXPECT_TRUE(
      std::ranges::all_of(LivelliLinee(tela.Visibile()), [](Livello l) { return l == Livello::Quote; }));
  EXPECT_EQ(tela.Mostrato().linee.size(), 102u);
  QTest::keyClick(&tela, Qt::Key_2);
  Comanda("ricarica");
  EXPECT_EQ(visti(quota), 0) << "read again, still hidden";
  EXPECT_EQ(tela.Visibile().scritte.size(), 9u) << "title and properties, no values of dimensions";
  EXPECT_TRUE(tela.Visibile().linee.empty() && tela.Visibile().archi.empty());
  QTest::keyClick(&tela, Qt::Key_3);
  for (const char* uscita : {"esporta", "stampa"}) {
    finestra.Avvisa({});
    Comanda(uscita);
    EXPECT_TRUE(Avviso().endsWith("il disegno è vuoto o tutto nascosto.")) << uscita;
  }
  QTest::keyClick(&tela, Qt::Key_0);
  EXPECT_EQ(visti(contorno) + visti(quota), 4);
  EXPECT_TRUE(SoloLivelli(prove::Letto(prove::kUnoPerGenere), {false, true, true}).punti.empty());
}

TEST_F(ConFinestra, FondoRicordatoECopiaSuBianco) {
  Comanda("copia");
  const QImage copia = QApplication::clipboard()->image();
  EXPECT_EQ(copia.size(), 2 * tela.size());
  EXPECT_EQ(copia.pixelColor(3, 3), QColor(Qt::white));
  QTest::keyClick(&tela, Qt::Key_B);
  EXPECT_EQ(tela.grab().toImage().pixelColor(3, 3), QColor(Qt::white));
  const Finestra altra(false, ",");
  EXPECT_TRUE(altra.findChild<QAction*>("fondo")->isChecked());
  QTest::keyClick(&tela, Qt::Key_B);
}

TEST_F(ConFinestra, TabellaCopiata) {
  Comanda("tabella");
  EXPECT_EQ(QApplication::clipboard()->text(),
            "ZG\t600\nYG\t-61,"
            "27\nAn\t60917\nAtz\t52633\nAty\t26402\nJzg\t307923297\nJyg\t5212229845\nJt\t700779138\n");
  EXPECT_EQ(Detto("conferma"), "Copiate 8 righe di tabella.");
  Rotella(1, {100, 100});
  EXPECT_EQ(Detto("conferma"), "") << "said until the next action";
  const auto righe = [](const char* nome, const char* decimale) {
    return RigheTabella(prove::Letto(prove::Leggi(prove::kDati + nome)), decimale);
  };
  EXPECT_EQ(righe("/sezione-virgola.dis", ",")[1], "YG\t-61,27");
  EXPECT_EQ(righe("/sezione-virgola.dis", ".")[1], "YG\t-61.27");
  EXPECT_EQ(righe("/misto.dis", "."), QStringList({"Città <&\"> così", "obliqua", "giù  qui"}));
}

TEST_F(ConFinestra, FileTrascinati) {
  const QString altro = QString::fromStdString(prove::kDati + "/misto.dis");
  const auto lascia = [&](const QList<QUrl>& indirizzi) {
    QMimeData dati;
    dati.setUrls(indirizzi);
    QDragEnterEvent entra({50, 50}, Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&finestra, &entra);
    ASSERT_TRUE(entra.isAccepted());
    QDropEvent evento({50, 50}, Qt::CopyAction, &dati, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&finestra, &evento);
  };
  lascia({QUrl::fromLocalFile(altro), QUrl::fromLocalFile(QString::fromStdString(file))});
  EXPECT_TRUE(Mostra("Città"));
  EXPECT_EQ(Detto("conferma"), "Di 2 file si apre il primo: misto.dis");
  lascia({QUrl("https://esempio.it/sezione.dis")});
  EXPECT_EQ(Avviso(), "Si aprono soltanto disegni che sono file di questo computer");
  lascia({QUrl::fromLocalFile(cartella.path())});
  EXPECT_TRUE(Avviso().endsWith("non è un file di disegno"));
  EXPECT_TRUE(Mostra("Città"));
}

TEST_F(ConFinestra, Recenti) {
  for (int i = 0; i < 9; ++i) {
    const std::string copia = cartella.filePath(QString("%1.dis").arg(i)).toStdString();
    prove::Scrivi(copia, ritoccato);
    finestra.Apri(QString::fromStdString(copia));
  }
  finestra.Apri(cartella.filePath("3.dis"));
  finestra.Apri(cartella.filePath("manca.dis"));
  QStringList nomi;
  for (const QString& percorso : LeggiPreferenze().recenti) nomi << percorso.section('/', -1).chopped(4);
  EXPECT_EQ(nomi.join(""), "38765421");

  fs::remove(cartella.filePath("8.dis").toStdString());
  finestra.ApriRecente(cartella.filePath("7.dis"));
  finestra.ApriRecente(cartella.filePath("8.dis"));
  EXPECT_TRUE(Avviso().endsWith("8.dis: il disegno non esiste più; tolto dai recenti"));
  EXPECT_TRUE(Mostra("SEZIONE U_PO_002 - 7.dis"));
  EXPECT_EQ(LeggiPreferenze().recenti.size(), 7);
  QTest::keyClick(&tela, Qt::Key_Escape);
  EXPECT_EQ(Avviso(), "");

  const QString lunga = cartella.filePath(QString(99, 'x') + "/a&b");
  ASSERT_TRUE(QDir().mkpath(lunga));
  prove::Scrivi((lunga + "/c&d.dis").toStdString(), prove::kEsempio);
  finestra.Apri(lunga + "/c&d.dis");
  QMenu& menu = *finestra.menuBar()->actions()[0]->menu();
  emit menu.aboutToShow();
  EXPECT_EQ(menu.findChild<QMenu*>()->actions()[0]->text(), "&1  c&&d.dis (…" + QString(56, 'x') + "/a&&b)");
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
  EXPECT_EQ(std::tuple(completo.disegno, completo.posto.sinistra, completo.posto.altezza),
            std::tuple("/d/s.dis", 10, 400));
  for (const char* misure : {"", "10\r\nx\r\n300\r\n400\r\n", "10\r\n20\r\n300\r\n0\r\n"}) {
    const Avvio solito = avvio(disegno + misure).value();
    EXPECT_EQ(std::tuple(solito.disegno, solito.posto.sinistra), std::tuple("/d/s.dis", 1350)) << misure;
  }
  for (const char* senza : {"", "inutilizzato\r\n", "inutilizzato\r\n\r\n10\r\n20\r\n300\r\n400\r\n"})
    EXPECT_FALSE(avvio(senza)) << senza;
}

}  // namespace
}  // namespace ostrel
