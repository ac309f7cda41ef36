// Controls as widgets.
#include "platform/qt/widget.h"

#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalBlocker>

#include "platform/comune/desktop/scrivania.h"
#include "platform/qt/casella.h"
#include "platform/qt/scala.h"
#include "platform/qt/testo_qt.h"

namespace tarvel {
namespace {

// How far a font may shrink for its text, as part of its nominal size. A line of variable text, as
// a path is, is shortened instead once it has become that small.
constexpr double kMinimo = 0.5;
constexpr double kMinimoRiga = 0.85;

/// A list that a Windows user knows: reaching it selects nothing, the first arrow selects the
/// first entry, a click beside the entries changes nothing, nor does Ctrl in a single list.
class Lista : public QListWidget {
 public:
  using QListWidget::QListWidget;

 protected:
  void focusInEvent(QFocusEvent*) override { viewport()->update(); }

  void keyPressEvent(QKeyEvent* evento) override {
    if (evento->key() == Qt::Key_End && !currentIndex().isValid() && count() > 0)
      return setCurrentRow(count() - 1);
    QListWidget::keyPressEvent(evento);
  }

  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& indice,
                                                       const QEvent* evento) const override {
    const bool trascina = evento != nullptr && evento->type() == QEvent::MouseMove;
    if (selectionMode() == ExtendedSelection && (indice.isValid() || trascina))
      return QListWidget::selectionCommand(indice, evento);
    return indice.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
  }
};

// Sizes of the text area inside a button's edges, at scale 1.
QSize DentroBottone(const QSize& tutto) {
  return tutto - QSize(6, 2) * Scala();
}

void AggiornaBottone(QPushButton& bottone, const Controllo& controllo) {
  const QString testo = InQt(controllo.testo);
  bottone.setFont(CarattereAdatto(controllo.carattere, testo, DentroBottone(bottone.size()),
                                  Qt::TextSingleLine, kMinimo));
  bottone.setText(QString(testo).replace('&', "&&"));
}

void AggiornaEtichetta(QLabel& etichetta, const Controllo& controllo) {
  const QString testo = InQt(controllo.testo);
  const bool nota = controllo.posto.altezza >= 2 * controllo.carattere.punti * 20;
  etichetta.setWordWrap(nota);
  etichetta.setFont(CarattereAdatto(controllo.carattere, testo, etichetta.size(),
                                    nota ? Qt::TextWordWrap : Qt::TextSingleLine,
                                    nota ? kMinimo : kMinimoRiga));
  const QFontMetrics misure(etichetta.font());
  const QString mostrato = nota ? testo : misure.elidedText(testo, Qt::ElideMiddle, etichetta.width());
  etichetta.setText(mostrato);
  etichetta.setToolTip(mostrato == testo ? QString() : InSuggerimento(controllo.testo));
}

void AggiornaLista(QListWidget& lista, const Controllo& controllo) {
  const QSignalBlocker zitta(&lista);
  lista.clear();
  for (const Testo& voce : controllo.voci) lista.addItem(InQt(voce));
  for (int i = 0; i < lista.count(); ++i) lista.item(i)->setSelected(controllo.scelte[std::size_t(i)]);
}

QWidget* CreaLista(Controllo& controllo, QWidget* padre) {
  auto* lista = new Lista(padre);
  lista->setSelectionMode(controllo.selezioneEstesa ? QListWidget::ExtendedSelection
                                                    : QListWidget::SingleSelection);
  lista->setUniformItemSizes(true);
  QObject::connect(lista, &QListWidget::itemSelectionChanged, lista, [lista, &controllo] {
    for (int i = 0; i < lista->count(); ++i) controllo.scelte[std::size_t(i)] = lista->item(i)->isSelected();
  });
  QObject::connect(lista, &QListWidget::itemDoubleClicked, lista, [lista, &controllo](QListWidgetItem* voce) {
    lista->setCurrentItem(voce, QItemSelectionModel::ClearAndSelect);
    Esegui(controllo.doppioClick);
  });
  return lista;
}

QWidget* Crea(Controllo& controllo, QWidget* padre) {
  switch (controllo.tipo) {
    case TipoControllo::Bottone: {
      auto* bottone = new QPushButton(padre);
      bottone->setAutoDefault(true);  // Enter presses the button that has the focus
      QObject::connect(bottone, &QPushButton::clicked, bottone, [&controllo] { Esegui(controllo.click); });
      return bottone;
    }
    case TipoControllo::Casella:
      return new Casella(controllo, padre);
    case TipoControllo::Lista:
      return CreaLista(controllo, padre);
    case TipoControllo::Etichetta:
      break;
  }
  auto* etichetta = new QLabel(padre);
  etichetta->setTextFormat(Qt::PlainText);
  etichetta->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  etichetta->setAutoFillBackground(true);
  etichetta->lower();  // where a label and a button share some pixels the button is whole
  return etichetta;
}

}  // namespace

QWidget* CreaWidget(Controllo& controllo, QWidget* padre) {
  QWidget* const widget = Crea(controllo, padre);
  widget->setObjectName(InQt(controllo.nome));
  const bool conTestoProprio =
      controllo.tipo == TipoControllo::Bottone || controllo.tipo == TipoControllo::Etichetta;
  if (!conTestoProprio) widget->setAccessibleName(InQt(NomeAccessibile(controllo)));
  widget->setGeometry(Pixel(controllo.posto));
  widget->setFocusPolicy(controllo.tipo == TipoControllo::Etichetta ? Qt::NoFocus : Qt::StrongFocus);
  const QColor colore(controllo.coloreTesto.r, controllo.coloreTesto.g, controllo.coloreTesto.b);
  QPalette colori = widget->palette();
  for (const auto ruolo : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
    colori.setColor(ruolo, colore);
  widget->setPalette(colori);
  // A box's and a list's text varies; only its height has to fit.
  if (!conTestoProprio)
    widget->setFont(
        CarattereAdatto(controllo.carattere, "X", widget->size() - QSize(0, 2), Qt::TextSingleLine, kMinimo));
  AggiornaWidget(widget, controllo);
  return widget;
}

void AggiornaWidget(QWidget* widget, const Controllo& controllo) {
  switch (controllo.tipo) {
    case TipoControllo::Bottone:
      return AggiornaBottone(static_cast<QPushButton&>(*widget), controllo);
    case TipoControllo::Etichetta:
      return AggiornaEtichetta(static_cast<QLabel&>(*widget), controllo);
    case TipoControllo::Casella:
      return static_cast<Casella*>(widget)->Mostra();
    case TipoControllo::Lista:
      return AggiornaLista(static_cast<QListWidget&>(*widget), controllo);
  }
}

}  // namespace tarvel
