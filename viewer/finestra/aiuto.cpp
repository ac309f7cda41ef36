// The list of commands is read from the menus, so that it cannot differ from them.
#include "viewer/finestra/aiuto.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTableWidget>
#include <QVBoxLayout>

namespace ostrel {
namespace {

// A row without an effect is the title of those that follow.
struct RigaTasti {
  QString tasti, effetto = {};
};

const QList<RigaTasti> kSulDisegno = {
    {"Sul disegno"},
    {"Rotella", "Ingrandisce o riduce attorno al puntatore"},
    {"Trascinare con il tasto sinistro o centrale", "Sposta il disegno"},
    {"Shift e trascinare con il sinistro", "Ingrandisce il rettangolo"},
    {"Doppio clic con il tasto centrale", "Adatta il disegno alla finestra"},
    {"Tasto destro", "Apre il menu Vista"},
    {"Frecce, con uno strumento in uso", "Muovono il puntatore; con Shift di un solo pixel"},
    {"Invio o clic, con uno strumento in uso", "Indica il punto sotto il puntatore"},
    {"Esc", "Lascia lo strumento in uso; toglie l'avviso"},
    {"1, 2, 3", "Quello che è nascosto non va né sulla carta né nei file esportati"},
    {"Trascinare un file sulla finestra", "Lo apre; di più file, il primo"},
};

QString SenzaMnemonico(const QString& testo) {
  return testo.section('\t', 0, 0).remove('&');
}

// The arrows' keys are in the texts of their entries. The toolkit's Italian shows Home as a sign that not
// every keyboard bears.
QString Tasti(const QAction& azione) {
  QStringList tasti;
  for (const QKeySequence& sequenza : azione.shortcuts())
    tasti << sequenza.toString(QKeySequence::NativeText);
  if (tasti.isEmpty()) tasti << azione.text().section('\t', 1);
  return tasti.join("   ").replace("↖", "Home (↖)");
}

// An entry of a submenu is listed after the submenu's name. An entry without an object name is a recent file.
void Elenca(const QMenu& menu, const QString& prima, QList<RigaTasti>& righe) {
  for (const QAction* voce : menu.actions()) {
    if (voce->isSeparator()) continue;
    const QString testo = prima + SenzaMnemonico(voce->text());
    if (voce->menu() != nullptr)
      Elenca(*voce->menu(), testo + ": ", righe);
    else if (!voce->objectName().isEmpty())
      righe << RigaTasti{Tasti(*voce), testo};
  }
}

QTableWidget* TabellaTasti(const QList<RigaTasti>& righe, QWidget* padre) {
  auto* const tabella = new QTableWidget(static_cast<int>(righe.size()), 2, padre);
  tabella->setHorizontalHeaderLabels({"Tasti", "Che cosa fanno"});
  tabella->verticalHeader()->hide();
  tabella->setEditTriggers(QTableWidget::NoEditTriggers);
  tabella->setSelectionBehavior(QTableWidget::SelectRows);
  tabella->setShowGrid(false);
  tabella->setAlternatingRowColors(true);
  QFont grassetto = tabella->font();
  grassetto.setBold(true);
  for (int i = 0; i < tabella->rowCount(); ++i) {
    tabella->setItem(i, 0, new QTableWidgetItem(righe[i].tasti));
    tabella->setItem(i, 1, new QTableWidgetItem(righe[i].effetto));
    if (!righe[i].effetto.isEmpty()) continue;
    tabella->item(i, 0)->setFont(grassetto);
    tabella->setSpan(i, 0, 1, 2);
  }
  tabella->resizeColumnsToContents();
  tabella->resizeRowsToContents();
  tabella->horizontalHeader()->setStretchLastSection(true);
  return tabella;
}

}  // namespace

void MostraTasti(QWidget* padre, const QMenuBar& menu) {
  auto* const finestra = new QDialog(padre);
  finestra->setObjectName("tasti");
  finestra->setAttribute(Qt::WA_DeleteOnClose);
  finestra->setWindowTitle("Tasti e comandi");
  QList<RigaTasti> righe;
  for (const QAction* voce : menu.actions()) {
    righe << RigaTasti{"Menu " + SenzaMnemonico(voce->text())};
    Elenca(*voce->menu(), {}, righe);
  }
  auto* const tabella = TabellaTasti(righe + kSulDisegno, finestra);
  auto* const pulsanti = new QDialogButtonBox(QDialogButtonBox::Close, finestra);
  QObject::connect(pulsanti, &QDialogButtonBox::rejected, finestra, &QDialog::close);
  auto* const posto = new QVBoxLayout(finestra);
  posto->addWidget(tabella);
  posto->addWidget(pulsanti);
  finestra->resize(tabella->horizontalHeader()->length() + 60, 640);
  finestra->show();
}

void MostraInformazioni(QWidget* padre) {
  auto* const finestra = new QMessageBox(QMessageBox::Information, "Informazioni su ostrel",
                                         "ostrel " VERSIONE
                                         "\n\nVisualizzatore dei disegni .dis: li mostra, li misura, li "
                                         "stampa e li esporta.\nQt " QT_VERSION_STR,
                                         QMessageBox::Close, padre);
  finestra->setAttribute(Qt::WA_DeleteOnClose);
  finestra->setModal(false);
  finestra->show();
}

}  // namespace ostrel
