// The window of a form: its controls, its schematic lines, its close box.
#include "platform/qt/finestra.h"

#include <QCloseEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/desktop.h"
#include "platform/qt/fuoco.h"
#include "platform/qt/gestori.h"
#include "platform/qt/scala.h"
#include "platform/qt/testo_qt.h"
#include "platform/qt/widget.h"

namespace tarvel {
namespace {

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
    if (tipo == QEvent::FocusIn) clickInterrotto_ = false;
    if (ragione == Qt::ActiveWindowFocusReason) {
      AttivaFinestra(finestra_);
      return false;
    }
    const int prima = LoopAperti();
    RaggiungeControllo(finestra_, &controllo_);
    if (LoopAperti() != prima) clickInterrotto_ = colMouse;
    if (tipo != QEvent::MouseButtonPress || !std::exchange(clickInterrotto_, false)) return false;
    if (auto* bottone = qobject_cast<QPushButton*>(widget_)) bottone->click();
    return true;
  }

 private:
  Finestra& finestra_;
  Controllo& controllo_;
  QWidget* const widget_;
  // The control left by this click has shown a message: the release may have gone there, and the
  // press alone counts.
  bool clickInterrotto_ = false;
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

Controllo* Finestra::ColFuoco() const {
  for (Controllo* controllo : form->controlli)
    if (WidgetDi(*controllo) == focusWidget()) return controllo;
  return nullptr;
}

void Finestra::VaiAlPrimo() {
  for (Controllo* controllo : form->controlli)
    if (QWidget* widget = WidgetDi(*controllo); widget->focusPolicy() != Qt::NoFocus) {
      widget->setFocus(Qt::TabFocusReason);
      if (controllo->tipo == TipoControllo::Casella) static_cast<QLineEdit*>(widget)->selectAll();
      return;
    }
}

void Finestra::Stacca() {
  for (const auto& [controllo, widget] : widget_) widget->blockSignals(true);
  widget_.clear();
  form = nullptr;
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
  if (form == nullptr || !Usabile(*this)) return;
  EseguiGestore([this] {
    LasciaControllo(*this);
    if (form != nullptr) ScaricaForm(*form);
  });
}

}  // namespace tarvel
