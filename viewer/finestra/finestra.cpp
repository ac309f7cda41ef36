// Opening, reading and watching the drawing's file; what is said about it.
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
#include "viewer/disegno/caricamento.h"
#include "viewer/finestra/comandi_carta.h"
#include "viewer/finestra/recenti.h"
#include "viewer/tela/tela.h"

namespace ostrel {
namespace {

constexpr std::array kNomiLivelli = {"contorno", "quote", "testi"};

// Hundredths as far as they can be read at a glance; a nothing has no sign.
QString Lunghezza(double v) {
  constexpr double kMassimaDistesa = 1e10, kMezzoCentesimo = 0.005;
  if (std::fabs(v) < kMezzoCentesimo) v = 0;
  return std::fabs(v) < kMassimaDistesa ? QString::number(v, 'f', 2) : QString::number(v, 'g', 6);
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

Finestra::Finestra(bool sorveglia) : sorveglia_(sorveglia) {
  auto* interno = new QWidget(this);
  auto* posto = new QGridLayout(interno);
  posto->setContentsMargins(0, 0, 0, 0);
  avviso_ = Riga("avviso", "#8c1d18", interno);
  conferma_ = Riga("conferma", "#1b5e20", interno);
  tela_ = new Tela(interno);
  // The notices lie over the drawing, whose place and zoom they must not change.
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
    coordinate_->setText(QString("X = %1   Y = %2").arg(Lunghezza(x), Lunghezza(y)));
  });

  connect(tela_, &Tela::Toccata, this, [this] { Conferma({}); });
  setAcceptDrops(true);

  CreaMenu();
  Intitola();
  attesa_.setSingleShot(true);
  connect(&attesa_, &QTimer::timeout, this, &Finestra::Tenta);
  // The folder too: a file that is replaced by another one is no longer watched itself.
  const auto cambiato = [this] {
    if (QFileInfo::exists(percorso_)) Rileggi();
  };
  connect(&sorvegliante_, &QFileSystemWatcher::fileChanged, this, cambiato);
  connect(&sorvegliante_, &QFileSystemWatcher::directoryChanged, this, cambiato);
}

void Finestra::Apri(const QString& percorso) {
  // As the watch reports paths on every host.
  percorso_ = QDir::fromNativeSeparators(percorso);
  daAdattare_ = true;
  if (!anteprima_.isEmpty()) anteprimaLasciata_ = QFileInfo(anteprima_).lastModified();
  Avvisa({});
  Rileggi();
}

void Finestra::ApriAnteprima(const QString& percorso) {
  Apri(percorso);
  anteprima_ = percorso_;
}

void Finestra::ApriRecente(const QString& percorso) {
  Conferma({});
  if (QFileInfo::exists(percorso)) return Apri(percorso);
  TogliRecente(percorso);
  Avvisa("File " + QDir::toNativeSeparators(percorso) + ": il disegno non esiste più; tolto dai recenti");
}

void Finestra::dragEnterEvent(QDragEnterEvent* evento) {
  if (evento->mimeData()->hasUrls()) evento->acceptProposedAction();
}

// More than one at a time is a hand's slip: what became of the others is said.
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

void Finestra::Ricarica() {
  if (const QFileInfo altra(anteprima_);
      percorso_ != anteprima_ && altra.exists() && altra.lastModified() != anteprimaLasciata_)
    return Apri(anteprima_);
  Avvisa({});
  Rileggi();
}

void Finestra::Rileggi() {
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
    mostrato_ = percorso_;
    tela_->Mostra(std::move(*esito.disegno), daAdattare_);
    if (daAdattare_) AggiungiRecente(percorso_);
    daAdattare_ = false;
    Intitola();
  }
  // A reading by itself, as when an export fails beside the drawing, leaves what was said of other things.
  const QString guasto = QString::fromStdString(esito.messaggio);
  if (!guasto.isEmpty() || avviso_->text() == guasto_) Avvisa(guasto);
  guasto_ = guasto;
  emit Letto(guasto.isEmpty());
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
  if (!mostrato_.isEmpty()) parti << QFileInfo(mostrato_).fileName();
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

// What is hidden goes neither to paper nor into files: the status line says what is. Copies, as the drawing
// may be read anew while the user is choosing.
FileDisegno Finestra::FileMostrato() const {
  const bool anteprima = !anteprima_.isEmpty() && mostrato_ == anteprima_;
  return anteprima ? FileAnteprima(tela_->Mostrato(), mostrato_) : FileDi(mostrato_);
}

void Finestra::EsportaFile() {
  Riferisci(EsportaDaFinestra(Disegno(tela_->Visibile()), FileMostrato(), this));
}

void Finestra::StampaDisegno() {
  Riferisci(StampaDaFinestra(Disegno(tela_->Visibile()), FileMostrato(), this));
}

// An order taken back says nothing, and leaves what was said before. With an order the unit may have been
// told.
void Finestra::Riferisci(const Esito& esito) {
  NominaUnita();
  if (esito.errore.isEmpty() && esito.conferma.isEmpty()) return;
  Avvisa(esito.errore);
  Conferma(esito.conferma);
}

}  // namespace ostrel
