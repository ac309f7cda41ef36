// The window of a form: its controls, its schematic lines, its close box.
#include "platform/qt/finestra.h"

#include <QCloseEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

#include "platform/comune/desktop/scrivania.h"
#include "platform/qt/scala.h"
#include "platform/qt/testo_qt.h"
#include "platform/qt/widget.h"

namespace tarvel {
namespace {

QPointer<Finestra> attivata;  // whose control is not reached yet

// It counts as reached now.
void FinisceAttivazione() {
  const QPointer<Finestra> finestra = std::exchange(attivata, nullptr);
  if (finestra != nullptr && finestra->form != nullptr) Raggiungi(*finestra->form, FuocoDi(*finestra->form));
}

/// Sees the user reach a control, before the control sees it.
class Vedetta : public QObject {
 public:
  Vedetta(Finestra& finestra, Controllo& controllo, QWidget* widget)
      : finestra_(finestra), controllo_(controllo), widget_(widget) {
    for (QObject* osservato : {static_cast<QObject*>(widget),
                               static_cast<QObject*>(widget->findChild<QWidget*>("qt_scrollarea_viewport"))})
      if (osservato != nullptr) osservato->installEventFilter(this);
  }

  bool eventFilter(QObject*, QEvent* evento) override {
    if (finestra_.form == nullptr) return false;
    const auto tipo = evento->type();
    if (tipo != QEvent::FocusIn && tipo != QEvent::KeyPress && tipo != QEvent::MouseButtonPress) return false;
    const auto ragione =
        tipo == QEvent::FocusIn ? static_cast<QFocusEvent*>(evento)->reason() : Qt::OtherFocusReason;
    const bool colMouse = tipo == QEvent::MouseButtonPress || ragione == Qt::MouseFocusReason;
    if (ragione == Qt::ActiveWindowFocusReason) {
      AttivaFinestra(&finestra_);
      return false;
    }
    // A press in a control without the focus has reached it already.
    if (tipo != QEvent::MouseButtonPress || click_ == Click::Intero) {
      const int prima = LoopAperti();
      AttivaFinestra(nullptr);
      const bool raggiunto = Raggiungi(*finestra_.form, &controllo_);
      if (tipo == QEvent::KeyPress) return !raggiunto;
      click_ = !colMouse               ? Click::Intero
               : !raggiunto            ? Click::Perso
               : LoopAperti() != prima ? Click::Premuto
                                       : Click::Intero;
    }
    if (tipo != QEvent::MouseButtonPress) return false;
    const Click click = std::exchange(click_, Click::Intero);
    if (auto* bottone = qobject_cast<QPushButton*>(widget_); bottone != nullptr && click == Click::Premuto)
      bottone->click();
    return click != Click::Intero;
  }

 private:
  enum class Click {
    Intero,
    Premuto,  // the control left by it has shown a message: the release may have gone there, the press alone
              // counts
    Perso,    // the control left by it has taken the focus elsewhere
  };

  Finestra& finestra_;
  Controllo& controllo_;
  QWidget* const widget_;
  Click click_ = Click::Intero;
};

QColor InQColor(Colore colore) {
  return {colore.r, colore.g, colore.b};
}

}  // namespace

Finestra::Finestra(Form& descrizione)
    : QWidget(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                           Qt::WindowCloseButtonHint),
      form(&descrizione) {
  setObjectName(InQt(form->nome));
  setWindowRole(InQt(form->nome));
  // An empty title would be replaced by the program's name.
  setWindowTitle(form->titolo.empty() ? QStringLiteral(" ") : InQt(form->titolo));
  setFixedSize(Pixel({0, 0, form->larghezza, form->altezza}).size());
  QPalette colori = palette();
  colori.setColor(QPalette::Window, InQColor(form->sfondo));
  setPalette(colori);

  QWidget* precedente = nullptr;
  for (Controllo* controllo : form->controlli) {
    QWidget* const widget = CreaWidget(*controllo, this);
    widget_[controllo] = widget;
    if (widget->focusPolicy() == Qt::NoFocus) continue;
    vedette_.push_back(std::make_unique<Vedetta>(*this, *controllo, widget));
    if (precedente != nullptr) setTabOrder(precedente, widget);
    precedente = widget;
  }
}

QWidget* Finestra::WidgetDi(const Controllo& controllo) const {
  const auto trovato = widget_.find(&controllo);
  return trovato == widget_.end() ? nullptr : trovato->second;
}

void Finestra::Metti(const Controllo* controllo) {
  if (controllo == nullptr) return;
  WidgetDi(*controllo)->setFocus(Qt::TabFocusReason);
  if (auto* casella = qobject_cast<QLineEdit*>(WidgetDi(*controllo))) casella->selectAll();
}

void Finestra::Stacca() {
  for (const auto& [controllo, widget] : widget_) widget->blockSignals(true);
  widget_.clear();
  form = nullptr;
  constexpr std::chrono::milliseconds kRiprova{500};
  startTimer(kRiprova);
}

void Finestra::timerEvent(QTimerEvent*) {
  if (ARiposo()) deleteLater();
}

void Finestra::paintEvent(QPaintEvent*) {
  if (form == nullptr) return;
  QPainter penna(this);
  penna.setRenderHint(QPainter::Antialiasing);
  for (const LineaForm& linea : form->linee) {
    const double spessore = std::max(1.0, std::round(linea.spessore * Scala()));
    const double centro = std::fmod(spessore, 2) / 2;  // level lines cover whole pixels
    penna.setPen(QPen(InQColor(linea.colore), spessore, Qt::SolidLine, Qt::SquareCap));
    penna.drawLine(QPointF(Pixel(linea.x1) + centro, Pixel(linea.y1) + centro),
                   QPointF(Pixel(linea.x2) + centro, Pixel(linea.y2) + centro));
  }
}

void Finestra::closeEvent(QCloseEvent* evento) {
  evento->ignore();  // the window goes when the form is unloaded
  FinisceAttivazione();
  if (form != nullptr) Chiudi(*form);
}

void AttivaFinestra(Finestra* finestra) {
  constexpr std::chrono::milliseconds kAttesaClick{150};
  attivata = finestra;
  if (finestra != nullptr) QTimer::singleShot(kAttesaClick, finestra, FinisceAttivazione);
}

}  // namespace tarvel
