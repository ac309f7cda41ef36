// The commands are read from the menus: what is said is what there is.
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
#include <array>

namespace ostrel {
namespace {

struct Gesto {
  const char *mano, *effetto;
};

constexpr std::array kGesti = std::to_array<Gesto>({
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
});

QString SenzaMnemonico(const QString& testo) {
  return testo.section('\t', 0, 0).remove('&');
}

// An arrow's key stands in the text of its entry. Not every keyboard shows Home as the toolkit's Italian
// does.
QString Tasti(const QAction& azione) {
  QStringList tasti;
  for (const QKeySequence& sequenza : azione.shortcuts())
    tasti << sequenza.toString(QKeySequence::NativeText);
  if (tasti.isEmpty()) tasti << azione.text().section('\t', 1);
  return tasti.join("   ").replace("↖", "Home (↖)");
}

class Tavola : public QTableWidget {
 public:
  explicit Tavola(QWidget* padre) : QTableWidget(0, 2, padre) {
    setHorizontalHeaderLabels({"Tasti", "Che cosa fanno"});
    verticalHeader()->hide();
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setShowGrid(false);
    setAlternatingRowColors(true);
  }

  void Titolo(const QString& testo) {
    Riga(testo, {});
    auto* const titolo = item(rowCount() - 1, 0);
    QFont grassetto = font();
    grassetto.setBold(true);
    titolo->setFont(grassetto);
    setSpan(rowCount() - 1, 0, 1, 2);
  }

  void Riga(const QString& tasti, const QString& effetto) {
    const int riga = rowCount();
    insertRow(riga);
    setItem(riga, 0, new QTableWidgetItem(tasti));
    setItem(riga, 1, new QTableWidgetItem(effetto));
  }

  // An entry of a submenu follows the submenu's name; one that has none of its own is no command but a file.
  void Voci(const QMenu& menu, const QString& prima) {
    for (const QAction* azione : menu.actions()) {
      if (azione->isSeparator()) continue;
      const QString testo = prima + SenzaMnemonico(azione->text());
      if (azione->menu() == nullptr && !azione->objectName().isEmpty()) Riga(Tasti(*azione), testo);
      if (azione->menu() != nullptr) Voci(*azione->menu(), testo + ": ");
    }
  }
};

}  // namespace

void MostraTasti(QWidget* padre, const QMenuBar& menu) {
  auto* const finestra = new QDialog(padre);
  finestra->setObjectName("tasti");
  finestra->setAttribute(Qt::WA_DeleteOnClose);
  finestra->setWindowTitle("Tasti e comandi");
  auto* const tavola = new Tavola(finestra);
  for (const QAction* voce : menu.actions()) {
    tavola->Titolo("Menu " + SenzaMnemonico(voce->text()));
    tavola->Voci(*voce->menu(), {});
  }
  tavola->Titolo("Sul disegno");
  for (const Gesto& gesto : kGesti) tavola->Riga(gesto.mano, gesto.effetto);
  tavola->resizeColumnsToContents();
  tavola->resizeRowsToContents();
  tavola->horizontalHeader()->setStretchLastSection(true);
  auto* const pulsanti = new QDialogButtonBox(QDialogButtonBox::Close, finestra);
  QObject::connect(pulsanti, &QDialogButtonBox::rejected, finestra, &QDialog::close);
  auto* const posto = new QVBoxLayout(finestra);
  posto->addWidget(tavola);
  posto->addWidget(pulsanti);
  finestra->resize(tavola->horizontalHeader()->length() + 60, 640);
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
