// Commands of the menu, reading and watching the drawing's file.
#include "viewer/finestra.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPrintDialog>
#include <QPrinter>
#include <QStatusBar>
#include <cmath>

#include "viewer/caricamento.h"
#include "viewer/esporta.h"
#include "viewer/stampa.h"
#include "viewer/tela.h"

namespace ostrel {
namespace {

constexpr int kMassimoTitolo = 80;

// Hundredths as far as they can be read at a glance.
QString Lunghezza(double v) {
  constexpr double kMassimaDistesa = 1e10;
  return std::fabs(v) < kMassimaDistesa ? QString::number(v, 'f', 2) : QString::number(v, 'g', 6);
}

}  // namespace

Finestra::Finestra(bool sorveglia) : sorveglia_(sorveglia) {
  auto* interno = new QWidget(this);
  auto* posto = new QGridLayout(interno);
  posto->setContentsMargins(0, 0, 0, 0);
  avviso_ = new QLabel(interno);
  avviso_->setObjectName("avviso");
  avviso_->setTextFormat(Qt::PlainText);
  avviso_->setWordWrap(true);
  avviso_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  avviso_->setStyleSheet("background: #8c1d18; color: white; padding: 6px;");
  avviso_->hide();
  tela_ = new Tela(interno);
  // The notice lies over the drawing, whose place and zoom it must not change.
  posto->addWidget(tela_, 0, 0);
  posto->addWidget(avviso_, 0, 0, Qt::AlignTop);
  avviso_->raise();
  setCentralWidget(interno);

  coordinate_ = new QLabel(this);
  coordinate_->setObjectName("coordinate");
  conteggio_ = new QLabel(this);
  conteggio_->setObjectName("conteggio");
  statusBar()->addWidget(coordinate_, 1);
  statusBar()->addPermanentWidget(conteggio_);
  connect(tela_, &Tela::Puntato, this, [this](double x, double y) {
    const double unita = tela_->Mostrato().unita;
    coordinate_->setText(QString("X = %1   Y = %2").arg(Lunghezza(x * unita), Lunghezza(y * unita)));
  });

  CreaMenu();
  Intitola();
  attesa_.setSingleShot(true);
  connect(&attesa_, &QTimer::timeout, this, &Finestra::Tenta);
  // The folder too: a file that is replaced by another one is no longer watched itself.
  const auto cambiato = [this] {
    if (QFileInfo::exists(percorso_)) Ricarica();
  };
  connect(&sorvegliante_, &QFileSystemWatcher::fileChanged, this, cambiato);
  connect(&sorvegliante_, &QFileSystemWatcher::directoryChanged, this, cambiato);
}

void Finestra::CreaMenu() {
  QMenu* file = menuBar()->addMenu("&File");
  const auto voce = [&](const char* nome, const QString& testo, const QKeySequence& tasti, auto comando) {
    QAction* azione = file->addAction(testo);
    azione->setObjectName(nome);
    azione->setShortcut(tasti);
    connect(azione, &QAction::triggered, this, comando);
    return azione;
  };
  // The program that starts the viewer reloads by Alt+F, G.
  voce("ricarica", "Ricarica dise&gno", QKeySequence::Refresh, &Finestra::Ricarica);
  voce("apri", "&Apri...", QKeySequence::Open, &Finestra::ScegliFile);
  voce("esporta", "&Esporta...", QKeySequence("Ctrl+E"), &Finestra::EsportaFile);
  voce("stampa", "&Stampa...", QKeySequence::Print, &Finestra::StampaDisegno);
  file->addSeparator();
  voce("adatta", "A&datta alla finestra", QKeySequence("F"), [this] { tela_->Adatta(); });
  file->addSeparator();
  voce("chiudi", "&Chiudi", QKeySequence("Alt+F4"), [this] { close(); });
}

void Finestra::Apri(const QString& percorso) {
  // As the watch reports paths on every host.
  percorso_ = QDir::fromNativeSeparators(percorso);
  daAdattare_ = true;
  Ricarica();
}

void Finestra::Ricarica() {
  tentativi_ = 0;
  Tenta();
}

void Finestra::Tenta() {
  attesa_.stop();
  if (percorso_.isEmpty()) return;
  Sorveglia();
  Caricato esito = Carica(percorso_.toStdString());
  if (esito.riprova && ++tentativi_ < kTentativi) {
    attesa_.start(kAttesaMs);
    return;
  }
  if (esito.disegno) {
    tela_->Mostra(std::move(*esito.disegno));
    if (daAdattare_) tela_->Adatta();
    daAdattare_ = false;
    Intitola();
  }
  Avvisa(QString::fromStdString(esito.messaggio));
  emit Letto(esito.messaggio.empty());
}

void Finestra::Avvisa(const QString& testo) {
  avviso_->setText(testo);
  avviso_->setVisible(!testo.isEmpty());
}

// The drawing's first text is its title.
void Finestra::Intitola() {
  const Disegno& d = tela_->Mostrato();
  QStringList parti;
  if (!d.scritte.empty())
    parti << QString::fromStdString(tarvel::InUtf8(d.scritte.front().testo.substr(0, kMassimoTitolo)));
  if (!percorso_.isEmpty()) parti << QFileInfo(percorso_).fileName();
  parti << "ostrel";
  setWindowTitle(parti.join(" - "));
  QString conteggio =
      QString("%1 linee, %2 archi, %3 testi").arg(d.linee.size()).arg(d.archi.size()).arg(d.scritte.size());
  if (d.saltati > 0) conteggio += QString(", %1 linee o archi senza un punto saltati").arg(d.saltati);
  conteggio_->setText(conteggio);
}

void Finestra::Sorveglia() {
  if (!sorveglia_) return;
  const QString cartella = QFileInfo(percorso_).absolutePath();
  for (const QString& altra : sorvegliante_.directories() + sorvegliante_.files())
    if (altra != cartella && altra != percorso_) sorvegliante_.removePath(altra);
  // What is watched already, or does not exist, is refused quietly.
  sorvegliante_.addPaths({cartella, percorso_});
}

void Finestra::ScegliFile() {
  const QString scelto = QFileDialog::getOpenFileName(this, "Apri disegno", QFileInfo(percorso_).path(),
                                                      "Disegni (*.dis *.DIS);;Tutti i file (*)");
  if (!scelto.isEmpty()) Apri(scelto);
}

void Finestra::EsportaFile() {
  const QFileInfo file(percorso_);
  QFileDialog dialogo(this, "Esporta disegno", file.path(), FiltriEsportazione());
  dialogo.setAcceptMode(QFileDialog::AcceptSave);
  dialogo.selectFile(file.completeBaseName());
  // The ending follows the chosen kind where the user types none.
  const auto segui = [&](const QString& filtro) {
    dialogo.setDefaultSuffix(filtro.section("*.", 1).chopped(1));
  };
  connect(&dialogo, &QFileDialog::filterSelected, this, segui);
  segui(dialogo.selectedNameFilter());
  if (dialogo.exec() == QDialog::Accepted)
    Avvisa(Esporta(tela_->Mostrato(), dialogo.selectedFiles().front()).value_or(QString()));
}

void Finestra::StampaDisegno() {
  QPrinter stampante(QPrinter::HighResolution);
  QPrintDialog dialogo(&stampante, this);
  if (dialogo.exec() == QDialog::Accepted && !Stampa(tela_->Mostrato(), {}, {percorso_}, stampante))
    Avvisa("Problemi con la stampa del disegno");
}

}  // namespace ostrel
