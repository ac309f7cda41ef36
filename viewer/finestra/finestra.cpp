// What the window shows and says of its document, and its commands that ask for files.
#include "viewer/finestra/finestra.h"

#include <QDir>
#include <QDropEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QStatusBar>
#include <array>
#include <cmath>

#include "viewer/carta/cartiglio.h"
#include "viewer/tela/tela.h"

namespace ostrel {
namespace {

constexpr std::array kNomiLivelli = {"contorno", "quote", "testi"};

// With two decimals; what rounds to zero has no sign.
QString Lunghezza(double v) {
  constexpr double kMezzoCentesimo = 0.005;
  return QString::number(std::fabs(v) < kMezzoCentesimo ? 0 : v, 'f', 2);
}

QLabel* Riga(const char* nome, const char* fondo, QWidget* padre) {
  auto* riga = new QLabel(padre);
  riga->setObjectName(nome);
  riga->setTextFormat(Qt::PlainText);
  riga->setWordWrap(true);
  riga->setTextInteractionFlags(Qt::TextSelectableByMouse);
  riga->setStyleSheet(QString("background: %1; color: white; padding: 6px;").arg(fondo));
  riga->hide();
  return riga;
}

}  // namespace

Finestra::Finestra(bool sorveglia, const QString& decimale)
    : documento_(sorveglia, [this](Caricato letto, bool nuovo) { Ricevi(std::move(letto), nuovo); }),
      decimale_(decimale) {
  auto* interno = new QWidget(this);
  auto* posto = new QGridLayout(interno);
  posto->setContentsMargins(0, 0, 0, 0);
  avviso_ = Riga("avviso", "#8c1d18", interno);
  conferma_ = Riga("conferma", "#1b5e20", interno);
  tela_ = new Tela(interno);
  // The notices lie over the drawing, so that its place and zoom do not change with them.
  posto->addWidget(tela_, 0, 0);
  posto->addWidget(avviso_, 0, 0, Qt::AlignTop);
  posto->addWidget(conferma_, 0, 0, Qt::AlignBottom);
  avviso_->raise();
  conferma_->raise();
  setCentralWidget(interno);

  coordinate_ = new QLabel(this);
  coordinate_->setObjectName("coordinate");
  conteggio_ = new QLabel(this);
  conteggio_->setObjectName("conteggio");
  statusBar()->addWidget(coordinate_, 1);
  statusBar()->addPermanentWidget(conteggio_);
  connect(tela_, &Tela::Puntato, this, [this](double x, double y) {
    coordinate_->setText(QString("X = %1   Y = %2").arg(Lunghezza(x), Lunghezza(y)).replace('.', decimale_));
  });
  connect(tela_, &Tela::Toccata, this, [this] { Conferma({}); });
  setAcceptDrops(true);

  CreaMenu();
  Intitola();
}

void Finestra::Apri(const QString& percorso) {
  Avvisa({});
  documento_.Apri(percorso);
}

void Finestra::ApriAnteprima(const QString& percorso) {
  Avvisa({});
  documento_.ApriAnteprima(percorso);
}

void Finestra::Ricarica() {
  Avvisa({});
  documento_.Ricarica();
}

void Finestra::ApriRecente(const QString& percorso) {
  Conferma({});
  if (QFileInfo::exists(percorso)) return Apri(percorso);
  Ricorda([&](Preferenze& p) { Dimentica(p, percorso); });
  Avvisa("File " + QDir::toNativeSeparators(percorso) + ": il disegno non esiste più; tolto dai recenti");
}

void Finestra::dragEnterEvent(QDragEnterEvent* evento) {
  if (evento->mimeData()->hasUrls()) evento->acceptProposedAction();
}

// The window opens the first of several files, and says so: more than one is a slip of the hand.
void Finestra::dropEvent(QDropEvent* evento) {
  evento->acceptProposedAction();
  Conferma({});
  QStringList file;
  for (const QUrl& indirizzo : evento->mimeData()->urls())
    if (indirizzo.isLocalFile()) file << indirizzo.toLocalFile();
  if (file.isEmpty()) return Avvisa("Si aprono soltanto disegni che sono file di questo computer");
  Apri(file.front());
  if (file.size() > 1)
    Conferma(
        QString("Di %1 file si apre il primo: %2").arg(file.size()).arg(QFileInfo(file.front()).fileName()));
}

void Finestra::keyPressEvent(QKeyEvent* evento) {
  if (evento->key() == Qt::Key_Escape)
    Avvisa({});
  else
    QMainWindow::keyPressEvent(evento);
}

void Finestra::Ricevi(Caricato letto, bool nuovo) {
  if (letto.disegno) {
    tela_->Mostra(std::move(*letto.disegno), nuovo);
    if (nuovo) Ricorda([&](Preferenze& p) { AggiungiRecente(p, documento_.Mostrato()); });
    Intitola();
  }
  // A drawing that is sound again takes its own notice away, but no other one, as that of an export that
  // failed.
  const QString guasto = QString::fromStdString(letto.messaggio);
  if (!guasto.isEmpty() || avviso_->text() == guasto_) Avvisa(guasto);
  guasto_ = guasto;
}

void Finestra::Avvisa(const QString& testo) {
  avviso_->setText(testo);
  avviso_->setVisible(!testo.isEmpty());
}

void Finestra::Conferma(const QString& testo) {
  conferma_->setText(testo);
  conferma_->setVisible(!testo.isEmpty());
}

void Finestra::Intitola() {
  QStringList parti = {Titolo(tela_->Mostrato())};
  parti.removeAll(QString());
  if (const QString& file = documento_.Mostrato(); !file.isEmpty()) parti << QFileInfo(file).fileName();
  parti << "ostrel";
  setWindowTitle(parti.join(" - "));
  Conta();
}

void Finestra::Conta() {
  const Disegno& d = tela_->Mostrato();
  QString conteggio =
      QString("%1 linee, %2 archi, %3 testi").arg(d.linee.size()).arg(d.archi.size()).arg(d.scritte.size());
  if (d.saltati > 0) conteggio += QString(", %1 linee o archi senza un punto saltati").arg(d.saltati);
  const Livelli& mostrati = tela_->LivelliMostrati();
  QStringList nascosti;
  for (std::size_t i = 0; i < mostrati.size(); ++i)
    if (!mostrati[i]) nascosti << kNomiLivelli[i];
  if (!nascosti.isEmpty()) conteggio += " (nascosti: " + nascosti.join(", ") + ")";
  conteggio_->setText(conteggio);
}

void Finestra::ScegliFile() {
  const QString scelto = QFileDialog::getOpenFileName(
      this, "Apri disegno", QFileInfo(documento_.Aperto()).path(), "Disegni (*.dis *.DIS);;Tutti i file (*)");
  if (!scelto.isEmpty()) Apri(scelto);
}

// The command gets a copy of what can be seen, as the drawing may be read anew while the user is choosing. It
// proposes the last choices, but the unit of this drawing where it has been said.
void Finestra::MandaFuori(ComandoCarta comando) {
  const Disegno visibile = tela_->Visibile();
  const QString file = documento_.Mostrato();
  SceltaResa scelta = preferenze_.scelta;
  scelta.resa.unita = UnitaMostrata().value_or(scelta.resa.unita);
  const Esito esito = comando(
      visibile, documento_.MostraAnteprima() ? FileAnteprima(visibile, file) : FileDi(file), scelta, this);
  if (esito.scelta)
    Ricorda([&](Preferenze& p) {
      p.scelta = *esito.scelta;
      if (esito.unitaDetta) RicordaUnita(p, file, p.scelta.resa.unita);
    });
  // An order that the user took back leaves what was said before.
  if (esito.errore.isEmpty() && esito.conferma.isEmpty()) return;
  Avvisa(esito.errore);
  Conferma(esito.conferma);
}

}  // namespace ostrel
