// What the shared desktop shows as windows: their order and owners, the pointer, the clock.
#include <QEventLoop>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <chrono>
#include <map>

#include "platform/comune/desktop/schermo.h"
#include "platform/comune/desktop/scrivania.h"
#include "platform/comune/scala.h"
#include "platform/qt/finestra.h"
#include "platform/qt/scala.h"
#include "platform/qt/widget.h"

namespace tarvel {
namespace {

std::map<const Form*, Finestra*> finestre;  // of the loaded forms that have been shown

void Centra(Finestra& finestra, const Finestra& su) {
  QRect posto(QPoint(), finestra.size());
  posto.moveCenter(su.geometry().center());
  const QRect schermo = su.screen()->availableGeometry();
  finestra.move(std::max(posto.left(), schermo.left()), std::max(posto.top(), schermo.top()));
}

// The wanted corner, as far as the window, with its frame, then stands whole on the screen.
QPoint Angolo(const Finestra& finestra) {
  const QRect schermo = finestra.screen()->availableGeometry();
  const int resto = std::max(0, schermo.width() - finestra.width());
  return schermo.topLeft() + QPoint(std::min(int(Pixel(kPostoVisualizzatore.sinistra)), resto / 2), 0);
}

// The one that owns this window so far is its own master then: no window can own its owner.
void Appartiene(QWindow* finestra, QWindow* a) {
  for (QWindow* sopra = a; sopra != nullptr; sopra = sopra->transientParent())
    if (sopra->transientParent() == finestra) sopra->setTransientParent(nullptr);
  finestra->setTransientParent(a);
}

}  // namespace

Finestra* FinestraDi(const Form* form) {
  const auto trovata = finestre.find(form);
  return trovata == finestre.end() ? nullptr : trovata->second;
}

// The control that the user sees with the keyboard is the one that has the focus, whenever the
// window manager gets round to making the window the active one.
void PortaDavanti(Form& form, Form* davanti, bool nuova, bool modale) {
  AttivaFinestra(nullptr);
  if (FinestraDi(&form) == nullptr) finestre[&form] = new Finestra(form);
  Finestra& finestra = *FinestraDi(&form);
  const Finestra* const sotto = davanti == &form ? nullptr : FinestraDi(davanti);
  // One on the screen already goes for a moment, as its kind cannot change there.
  if (nuova || (modale && !finestra.isModal())) {
    const QPoint posto = finestra.pos();
    // Window managers let only a dialog belong to its owner.
    finestra.setWindowFlags((finestra.windowFlags() & ~Qt::WindowType_Mask) |
                            (modale ? Qt::Dialog : Qt::Window));
    finestra.setWindowModality(modale ? Qt::ApplicationModal : Qt::NonModal);
    if (nuova) finestra.Metti(FuocoDi(form));
    if (!nuova)
      finestra.move(posto);
    else if (modale && sotto != nullptr)
      Centra(finestra, *sotto);
    else if (sotto == nullptr)
      finestra.move(Angolo(finestra));
  }
  // While a modal form is shown, what its handlers show has to belong to it to be usable.
  finestra.winId();
  if (LivelloModale() > 0 && sotto != nullptr) Appartiene(finestra.windowHandle(), sotto->windowHandle());
  finestra.setWindowState(finestra.windowState() & ~Qt::WindowMinimized);
  finestra.show();
  finestra.raise();
  finestra.activateWindow();
}

void Togli(Form& form, bool scaricata) {
  Finestra* const finestra = FinestraDi(&form);
  finestra->hide();
  if (scaricata) {
    finestra->Stacca();
    finestre.erase(&form);
  }
  if (Finestra* const resta = FinestraDi(FormAttiva())) resta->activateWindow();
}

void Aggiorna(Controllo& controllo, bool) {
  for (const auto& [form, finestra] : finestre)
    if (QWidget* const widget = finestra->WidgetDi(controllo)) AggiornaWidget(widget, controllo);
}

void Attende(const bool& finito) {
  QEventLoop ciclo;
  while (!finito) ciclo.processEvents(QEventLoop::WaitForMoreEvents);
}

long long Adesso() {
  return std::chrono::duration_cast<std::chrono::milliseconds>(
             std::chrono::steady_clock::now().time_since_epoch())
      .count();
}

void NuovaScadenza() {
  static QTimer* const orologio = [] {
    auto* nuovo = new QTimer(qGuiApp);
    nuovo->setSingleShot(true);
    nuovo->setTimerType(Qt::PreciseTimer);
    nuovo->callOnTimeout([] {
      if (!ScattaProssimo() && !Occupato()) NuovaScadenza();
    });
    return nuovo;
  }();
  orologio->stop();
  if (const auto prossima = ProssimaScadenza()) orologio->start(int(std::max(0LL, *prossima - Adesso())));
}

void ImpostaPuntatore(Puntatore puntatore) {
  while (QGuiApplication::overrideCursor() != nullptr) QGuiApplication::restoreOverrideCursor();
  if (puntatore == Puntatore::Clessidra) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

}  // namespace tarvel
