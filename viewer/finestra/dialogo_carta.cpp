#include "viewer/finestra/dialogo_carta.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "viewer/carta/foglio.h"
#include "viewer/finestra/anteprima_foglio.h"

namespace ostrel {
namespace {

constexpr int kLarghezzaScelte = 260;  // pixels

template <std::size_t n>
QStringList Elenca(const std::array<const char*, n>& voci) {
  return {voci.begin(), voci.end()};
}

QStringList Scale() {
  QStringList scale = {InTesto(0)};
  for (const double rapporto : kScale) scale << InTesto(rapporto);
  return scale;
}

}  // namespace

QStringList NomiUnita() {
  return {"non detta", "millimetri (mm)", "centimetri (cm)", "metri (m)"};
}

std::optional<Unita> ChiediUnita(Unita proposta, const TestiDialogo& testi, QWidget* genitore) {
  QInputDialog dialogo(genitore);
  dialogo.setWindowTitle(testi.titolo);
  dialogo.setLabelText(testi.avvertenza);
  dialogo.setComboBoxItems(NomiUnita());
  dialogo.setTextValue(NomiUnita()[static_cast<int>(proposta)]);
  dialogo.setOkButtonText(testi.fai);
  dialogo.setCancelButtonText("&Annulla");
  if (dialogo.exec() != QDialog::Accepted) return std::nullopt;
  return static_cast<Unita>(NomiUnita().indexOf(dialogo.textValue()));
}

Risposta ChiediComunque(QWidget* genitore, const Obiezione& obiezione) {
  QMessageBox domanda(QMessageBox::Warning, "Scala del disegno", obiezione.testo, QMessageBox::NoButton,
                      genitore);
  const QAbstractButton* altra = nullptr;
  const QAbstractButton* comunque = nullptr;
  if (obiezione.ciSta > 0)
    altra = domanda.addButton("&Usa " + InTesto(obiezione.ciSta), QMessageBox::AcceptRole);
  if (!obiezione.assurda) comunque = domanda.addButton("&Continua lo stesso", QMessageBox::DestructiveRole);
  QPushButton* const annulla = domanda.addButton("&Annulla", QMessageBox::RejectRole);
  domanda.setDefaultButton(annulla);
  domanda.setEscapeButton(annulla);
  domanda.exec();
  if (altra && domanda.clickedButton() == altra) return Risposta::AltraScala;
  return comunque && domanda.clickedButton() == comunque ? Risposta::Comunque : Risposta::Annulla;
}

DialogoCarta::DialogoCarta(const Disegno& disegno, const Origine& origine, const Resa& resa,
                           const TestiDialogo& testi, QWidget* genitore)
    : QDialog(genitore), disegno_(disegno) {
  setWindowTitle(testi.titolo);
  unita_ = Lista("unita", NomiUnita(), static_cast<int>(resa.unita));
  scala_ = Lista("scala", Scale(), 0);
  scala_->setEditable(true);
  scala_->setInsertPolicy(QComboBox::NoInsert);
  scala_->setCurrentText(InTesto(resa.rapporto));
  scala_->setToolTip("Una delle scale dell'elenco o un'altra, come 1:75; \"adatta\": quanto basta il foglio");
  carta_ = Lista("carta", Elenca(kCarte), static_cast<int>(resa.carta));
  orientamento_ = Lista("orientamento", Elenca(kOrientamenti), static_cast<int>(resa.orientamento));
  nota_ = new QLabel(this);
  nota_->setObjectName("nota");
  nota_->setWordWrap(true);
  nota_->setTextFormat(Qt::PlainText);
  nota_->setAlignment(Qt::AlignTop);
  anteprima_ = new AnteprimaFoglio(disegno, origine, this);

  auto* const bottoni = new QDialogButtonBox(this);
  bottoni->addButton(testi.fai, QDialogButtonBox::AcceptRole)->setDefault(true);
  bottoni->addButton("&Annulla", QDialogButtonBox::RejectRole);
  connect(bottoni, &QDialogButtonBox::accepted, this, &DialogoCarta::accept);
  connect(bottoni, &QDialogButtonBox::rejected, this, &DialogoCarta::reject);

  auto* const modulo = new QFormLayout;
  modulo->addRow("&Unità del disegno:", unita_);
  modulo->addRow("S&cala:", scala_);
  modulo->addRow("&Foglio:", carta_);
  modulo->addRow("&Orientamento:", orientamento_);
  auto* const sinistra = new QVBoxLayout;
  sinistra->addLayout(modulo);
  sinistra->addWidget(nota_, 1);
  if (!testi.avvertenza.isEmpty()) {
    auto* const avvertenza = new QLabel(testi.avvertenza, this);
    avvertenza->setWordWrap(true);
    sinistra->addWidget(avvertenza);
  }
  sinistra->addWidget(bottoni);
  auto* const tutto = new QHBoxLayout(this);
  tutto->addLayout(sinistra);
  tutto->addWidget(anteprima_, 1);
  nota_->setFixedWidth(kLarghezzaScelte);
  for (const QComboBox* lista : {unita_, scala_, carta_, orientamento_})
    connect(lista, &QComboBox::currentTextChanged, this, &DialogoCarta::Aggiorna);
  Aggiorna();
}

QComboBox* DialogoCarta::Lista(const char* nome, const QStringList& voci, int scelta) {
  auto* const lista = new QComboBox(this);
  lista->setObjectName(nome);
  lista->addItems(voci);
  lista->setCurrentIndex(scelta);
  return lista;
}

Resa DialogoCarta::Scelta() const {
  Resa resa;
  resa.unita = static_cast<Unita>(unita_->currentIndex());
  if (resa.unita != Unita::Ignota) resa.rapporto = LeggiScala(scala_->currentText()).value_or(0);
  resa.carta = static_cast<Carta>(carta_->currentIndex());
  resa.orientamento = static_cast<Orientamento>(orientamento_->currentIndex());
  return resa;
}

std::optional<QString> DialogoCarta::Difetto() const {
  if (scala_->isEnabled() && !LeggiScala(scala_->currentText()))
    return QString("\"%1\" non è una scala: si scrive 1:50, o \"adatta\".").arg(scala_->currentText());
  return std::nullopt;
}

void DialogoCarta::Aggiorna() {
  const Resa resa = Scelta();
  scala_->setEnabled(resa.unita != Unita::Ignota);
  anteprima_->Mostra(resa);
  const QPageLayout pagina = Pagina(disegno_, resa);
  const auto difetto = Difetto();
  const auto obiezione = Esamina(disegno_, resa, pagina);
  if (difetto)
    nota_->setText(*difetto);
  else if (obiezione)
    nota_->setText(obiezione->testo);
  else
    nota_->setText(Descrivi(disegno_, resa, pagina));
  nota_->setStyleSheet(difetto || obiezione ? "color: #b3261e;" : "");
}

void DialogoCarta::accept() {
  if (const auto difetto = Difetto()) {
    QMessageBox::warning(this, "Scala", *difetto);
    scala_->setFocus();
    return;
  }
  const Resa resa = Scelta();
  if (const auto obiezione = Esamina(disegno_, resa, Pagina(disegno_, resa)))
    switch (ChiediComunque(this, *obiezione)) {
      case Risposta::Annulla:
        return;
      case Risposta::AltraScala:
        scala_->setCurrentText(InTesto(obiezione->ciSta));
        return;
      case Risposta::Comunque:
        break;
    }
  QDialog::accept();
}

}  // namespace ostrel
