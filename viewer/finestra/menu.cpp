// The commands of the window: one entry of a menu each, with its keys.
#include <QActionGroup>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <array>

#include "viewer/finestra/aiuto.h"
#include "viewer/finestra/dialogo_carta.h"
#include "viewer/finestra/finestra.h"
#include "viewer/finestra/tabella.h"
#include "viewer/tela/tela.h"

namespace ostrel {
namespace {

// Every entry takes away what was confirmed before.
template <class Comando>
QAction* Voce(Finestra* finestra, QMenu* menu, const char* nome, const QString& testo,
              const QList<QKeySequence>& tasti, Comando comando) {
  QAction* const azione = menu->addAction(testo);
  azione->setObjectName(nome);
  azione->setShortcuts(tasti);
  QObject::connect(azione, &QAction::triggered, finestra, [=] {
    finestra->Conferma({});
    comando();
  });
  return azione;
}

QAction* Segnabile(QAction* azione, bool segnata) {
  azione->setCheckable(true);
  azione->setChecked(segnata);
  return azione;
}

// An entry's place is its key; of a long folder only the end is shown.
QString VoceRecente(int posto, const QString& percorso) {
  constexpr int kMassimaCartella = 60;
  const QFileInfo file(percorso);
  QString cartella = QDir::toNativeSeparators(file.path());
  if (cartella.size() > kMassimaCartella) cartella = "…" + cartella.right(kMassimaCartella);
  QString nome = file.fileName() + " (" + cartella + ")";
  return QString("&%1  %2").arg(posto).arg(nome.replace('&', "&&"));
}

}  // namespace

void Finestra::CreaMenu() {
  CreaMenuFile();
  CreaMenuVista();
  CreaMenuStrumenti();
  QMenu* const aiuto = menuBar()->addMenu("&Aiuto");
  Voce(this, aiuto, "tasti", "&Tasti e comandi", {QKeySequence::HelpContents},
       [this] { MostraTasti(this, *menuBar()); });
  Voce(this, aiuto, "informazioni", "&Informazioni su ostrel", {}, [this] { MostraInformazioni(this); });
}

void Finestra::CreaMenuFile() {
  QMenu* const file = menuBar()->addMenu("&File");
  // The program that starts the viewer reloads by Alt+F, G.
  Voce(this, file, "ricarica", "Ricarica dise&gno", {QKeySequence::Refresh}, [this] { Ricarica(); });
  Voce(this, file, "apri", "&Apri...", {QKeySequence::Open}, [this] { ScegliFile(); });
  recenti_ = file->addMenu("Recen&ti");
  connect(file, &QMenu::aboutToShow, this, &Finestra::ElencaRecenti);
  ElencaRecenti();
  file->addSeparator();
  Voce(this, file, "esporta", "&Esporta...", {QKeySequence("Ctrl+E")},
       [this] { MandaFuori(EsportaDaFinestra); });
  Voce(this, file, "stampa", "&Stampa...", {QKeySequence::Print}, [this] { MandaFuori(StampaDaFinestra); });
  file->addSeparator();
  Voce(this, file, "chiudi", "&Chiudi", {QKeySequence("Alt+F4")}, [this] { close(); });
}

void Finestra::ElencaRecenti() {
  recenti_->clear();
  Prendi(LeggiPreferenze());  // another viewer may have opened drawings meanwhile
  int posto = 0;
  for (const QString& percorso : preferenze_.recenti) {
    QAction* const azione = recenti_->addAction(VoceRecente(++posto, percorso));
    connect(azione, &QAction::triggered, this, [this, percorso] { ApriRecente(percorso); });
  }
  recenti_->addSeparator();
  Voce(this, recenti_, "svuota", "&Svuota l'elenco", {},
       [this] { Ricorda([](Preferenze& p) { p.recenti.clear(); }); });
  recenti_->setEnabled(!preferenze_.recenti.isEmpty());
}

void Finestra::CreaMenuVista() {
  QMenu* const vista = menuBar()->addMenu("&Vista");
  Voce(this, vista, "adatta", "A&datta alla finestra", {QKeySequence("F"), QKeySequence("Home")},
       [this] { tela_->Adatta(); });
  Voce(this, vista, "ingrandisci", "&Ingrandisci", {QKeySequence("+"), QKeySequence("=")},
       [this] { tela_->Ingrandisci(1); });
  Voce(this, vista, "riduci", "&Riduci", {QKeySequence("-")}, [this] { tela_->Ingrandisci(-1); });
  auto* const rettangolo = Segnabile(Voce(this, vista, "rettangolo", "Ingrandisci un rettan&golo",
                                          {QKeySequence("Z")}, [this] { Alterna(Strumento::Rettangolo); }),
                                     false);
  // These entries have no shortcuts: the arrows move the drawing only while it has the focus.
  QMenu* const sposta = vista->addMenu("&Sposta");
  struct Lato {
    const char *nome, *testo;
    int destra, basso;
  };
  for (const Lato& lato : {Lato{"sinistra", "A &sinistra\t←", -1, 0}, Lato{"destra", "A &destra\t→", 1, 0},
                           Lato{"alto", "In &alto\t↑", 0, -1}, Lato{"basso", "In &basso\t↓", 0, 1}})
    Voce(this, sposta, lato.nome, lato.testo, {}, [this, lato] { tela_->Scorri(lato.destra, lato.basso); });
  vista->addSeparator();
  auto* const precedente = Voce(this, vista, "precedente", "Vista &precedente", {QKeySequence("Backspace")},
                                [this] { tela_->VistaPrecedente(); });
  auto* const successiva = Voce(this, vista, "successiva", "Vista s&uccessiva",
                                {QKeySequence("Shift+Backspace")}, [this] { tela_->VistaSuccessiva(); });
  const auto aggiorna = [=, this] {
    precedente->setEnabled(tela_->Viste().HaPrecedente());
    successiva->setEnabled(tela_->Viste().HaSuccessiva());
    rettangolo->setChecked(tela_->InUso() == Strumento::Rettangolo);
  };
  connect(tela_, &Tela::Cambiata, this, aggiorna);
  aggiorna();
  vista->addSeparator();
  CreaVociLivelli(*vista);
  vista->addSeparator();
  auto* const chiaro = Voce(this, vista, "fondo", "&Fondo chiaro", {QKeySequence("B")}, [] {});
  connect(chiaro, &QAction::toggled, this, [this](bool si) { tela_->MettiSu(si ? kCarta : kSchermo); });
  connect(chiaro, &QAction::triggered, this,
          [this](bool si) { Ricorda([si](Preferenze& p) { p.fondoChiaro = si; }); });
  Segnabile(chiaro, preferenze_.fondoChiaro);
  tela_->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(tela_, &QWidget::customContextMenuRequested, vista,
          [this, vista](QPoint dove) { vista->popup(tela_->mapToGlobal(dove)); });
}

void Finestra::CreaVociLivelli(QMenu& vista) {
  struct Voci {
    const char *nome, *testo, *tasto;
  };
  QList<QAction*> livelli;
  for (const Voci& v : {Voci{"contorno", "Mostra il &contorno", "1"}, Voci{"quote", "Mostra le &quote", "2"},
                        Voci{"testi", "Mostra i &testi", "3"}})
    livelli << Segnabile(Voce(this, &vista, v.nome, v.testo, {QKeySequence(v.tasto)}, [] {}), true);
  for (QAction* const azione : livelli)
    connect(azione, &QAction::toggled, this, [this, livelli] {
      tela_->MostraLivelli({livelli[0]->isChecked(), livelli[1]->isChecked(), livelli[2]->isChecked()});
      Conta();
    });
  Voce(this, &vista, "tutto", "&Mostra tutto", {QKeySequence("0")}, [livelli] {
    for (QAction* const azione : livelli) azione->setChecked(true);
  });
}

void Finestra::CreaMenuStrumenti() {
  QMenu* const strumenti = menuBar()->addMenu("&Strumenti");
  auto* const misura = Segnabile(Voce(this, strumenti, "misura", "&Misura una distanza", {QKeySequence("M")},
                                      [this] { Alterna(Strumento::Metro); }),
                                 false);
  connect(tela_, &Tela::Cambiata, misura,
          [=, this] { misura->setChecked(tela_->InUso() == Strumento::Metro); });
  QMenu* const unita = strumenti->addMenu("&Unità del disegno");
  auto* const scelte = new QActionGroup(this);
  // The key of the last unit is its second letter: its first is that of the second unit.
  QStringList nomi = NomiUnita();
  for (QString& nome : nomi) nome.insert(&nome == &nomi.back() ? 1 : 0, '&');
  for (const QString& nome : nomi) scelte->addAction(unita->addAction(nome))->setCheckable(true);
  for (QAction* const scelta : scelte->actions()) scelta->setObjectName("unita");
  connect(unita, &QMenu::aboutToShow, scelte, [=, this] {
    scelte->actions()[static_cast<int>(UnitaMostrata().value_or(Unita::Ignota))]->setChecked(true);
  });
  connect(scelte, &QActionGroup::triggered, this, [=, this](QAction* scelta) {
    const auto detta = static_cast<Unita>(scelte->actions().indexOf(scelta));
    Ricorda([&](Preferenze& p) { RicordaUnita(p, documento_.Mostrato(), detta); });
  });
  strumenti->addSeparator();
  Voce(this, strumenti, "copia", "&Copia l'immagine", {QKeySequence::Copy}, [this] {
    QApplication::clipboard()->setImage(tela_->Immagine());
    Conferma("Copiata l'immagine di quello che si vede nella finestra.");
  });
  Voce(this, strumenti, "tabella", "Copia la &tabella", {QKeySequence("Ctrl+Shift+C")},
       [this] { CopiaTabella(); });
}

void Finestra::CopiaTabella() {
  const QStringList righe = RigheTabella(tela_->Mostrato(), decimale_);
  if (righe.isEmpty()) return Conferma("Il disegno non ha testi da copiare.");
  QApplication::clipboard()->setText(righe.join('\n') + '\n');
  Conferma(righe.size() == 1 ? "Copiata una riga di tabella."
                             : QString("Copiate %1 righe di tabella.").arg(righe.size()));
}

void Finestra::Ricorda(const std::function<void(Preferenze&)>& cambia) {
  Prendi(CambiaPreferenze(cambia));
}

void Finestra::Prendi(Preferenze preferenze) {
  preferenze_ = std::move(preferenze);
  tela_->Annota({decimale_, Nome(UnitaMostrata().value_or(Unita::Ignota))});
}

std::optional<Unita> Finestra::UnitaMostrata() const {
  return UnitaDi(preferenze_, documento_.Mostrato());
}

// Asks for the unit of the drawing shown where it has not been said; false where the user takes the order
// back.
bool Finestra::ChiediUnitaMostrata() {
  const QString file = documento_.Mostrato();
  if (file.isEmpty() || UnitaMostrata()) return true;
  const auto unita = ChiediUnita(
      preferenze_.scelta.resa.unita,
      {"Misura una distanza", "&Misura", "In che unità è il disegno? Si cambia nel menu Strumenti."}, this);
  if (unita) Ricorda([&](Preferenze& p) { RicordaUnita(p, file, *unita); });
  return unita.has_value();
}

void Finestra::Alterna(Strumento strumento) {
  const bool lascia = tela_->InUso() == strumento;
  const bool misura = !lascia && strumento == Strumento::Metro;
  tela_->Usa(lascia || (misura && !ChiediUnitaMostrata()) ? Strumento::Mano : strumento);
}

}  // namespace ostrel
