// Forms on the desktop: loading, showing, modality, unloading.
#include "platform/desktop.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <list>
#include <utility>

#include "platform/comune/descrizione.h"
#include "platform/comune/scala.h"
#include "platform/qt/finestra.h"
#include "platform/qt/fuoco.h"
#include "platform/qt/gestori.h"
#include "platform/qt/scala.h"
#include "platform/qt/widget.h"

namespace tarvel {
namespace {

struct Caricata {
  Form* form;
  Descrizione descritta;
  Finestra* finestra = nullptr;  // made when the form is first shown
  bool inScarico = false;
};

std::list<Caricata> caricate;

Caricata* Cerca(const Form& form) {
  const auto trovata =
      std::find_if(caricate.begin(), caricate.end(), [&](const Caricata& c) { return c.form == &form; });
  return trovata == caricate.end() ? nullptr : &*trovata;
}

QWidget* WidgetDi(const Controllo& controllo) {
  for (const Caricata& caricata : caricate)
    if (caricata.finestra != nullptr)
      if (QWidget* widget = caricata.finestra->WidgetDi(controllo)) return widget;
  return nullptr;
}

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

// The control that the user sees with the keyboard is the one that has the focus, whenever the
// window manager gets round to making the window the active one.
void Mostra(Caricata& caricata, bool modale) {
  if (caricata.finestra == nullptr) caricata.finestra = new Finestra(*caricata.form);
  Finestra& finestra = *caricata.finestra;
  finestra.livello = LivelloModale();
  const bool nuova = !finestra.isVisible();
  // One on the screen already goes for a moment, as its kind cannot change there.
  if (nuova || (modale && !finestra.isModal())) {
    const QPoint posto = finestra.pos();
    // Window managers let only a dialog belong to its owner.
    finestra.setWindowFlags((finestra.windowFlags() & ~Qt::WindowType_Mask) |
                            (modale ? Qt::Dialog : Qt::Window));
    finestra.setWindowModality(modale ? Qt::ApplicationModal : Qt::NonModal);
    if (nuova) finestra.VaiAlPrimo();
    if (!nuova)
      finestra.move(posto);
    else if (modale && FinestraAttiva() != nullptr)
      Centra(finestra, *FinestraAttiva());
    else if (FinestraAttiva() == nullptr)
      finestra.move(Angolo(finestra));
  }
  // While a modal form is shown, what its handlers show has to belong to it to be usable.
  finestra.winId();
  if (LivelloModale() > 0 && FinestraAttiva() != nullptr && FinestraAttiva() != &finestra)
    finestra.windowHandle()->setTransientParent(FinestraAttiva()->windowHandle());
  finestra.setWindowState(finestra.windowState() & ~Qt::WindowMinimized);
  finestra.show();
  finestra.raise();
  finestra.activateWindow();
  RaggiungeControllo(finestra, finestra.ColFuoco());
}

void Togli(Finestra& finestra) {
  RendeFuoco(finestra);
  finestra.hide();
  if (QEventLoop* ciclo = std::exchange(finestra.ciclo, nullptr)) ciclo->quit();
  if (FinestraAttiva() != nullptr) FinestraAttiva()->activateWindow();
}

}  // namespace

void CaricaForm(Form& form) {
  if (Cerca(form) != nullptr) return;
  caricate.push_back({&form, Descritta(form)});
  EseguiGestore([&] { form.Form_Load(); });
}

void MostraForm(Form& form) {
  CaricaForm(form);
  if (Caricata* caricata = Cerca(form)) Mostra(*caricata, false);
}

void MostraFormModale(Form& form) {
  CaricaForm(form);
  Caricata* const caricata = Cerca(form);
  if (caricata == nullptr) return;
  const LivelloInPiu livello;
  Mostra(*caricata, true);
  Finestra& finestra = *caricata->finestra;
  QEventLoop ciclo;
  QEventLoop* const esterno = std::exchange(finestra.ciclo, &ciclo);
  const AttesaModale attesa;
  // The control left hears of it first, and its handler may have unloaded the form.
  if (finestra.ciclo == &ciclo) ciclo.exec();
  if (esterno != nullptr) esterno->quit();
}

void NascondiForm(Form& form) {
  const Caricata* caricata = Cerca(form);
  if (caricata != nullptr && caricata->finestra != nullptr && caricata->finestra->isVisible())
    Togli(*caricata->finestra);
}

void ScaricaForm(Form& form) {
  Caricata* const caricata = Cerca(form);
  if (caricata == nullptr || caricata->inScarico) return;
  caricata->inScarico = true;
  EseguiGestore([&] { form.Form_Unload(); });
  const Caricata scaricata = std::move(*caricata);
  caricate.remove_if([&](const Caricata& c) { return &c == caricata; });
  if (Finestra* const finestra = scaricata.finestra) {
    Togli(*finestra);
    finestra->Stacca();
    // A handler of this form may be on the stack, or one that waits for it.
    FinitiTutti([finestra] { finestra->deleteLater(); });
  }
  Ripristina(form, scaricata.descritta);
}

void ImpostaTesto(Controllo& controllo, const Testo& testo) {
  controllo.testo = controllo.tipo == TipoControllo::Casella ? testo.substr(0, kMassimoCasella) : testo;
  if (QWidget* widget = WidgetDi(controllo)) AggiornaWidget(widget, controllo);
}

void ImpostaVoci(Controllo& lista, std::vector<Testo> voci) {
  lista.voci = std::move(voci);
  lista.scelte.assign(lista.voci.size(), false);
  if (QWidget* widget = WidgetDi(lista)) AggiornaWidget(widget, lista);
}

void ImpostaPuntatore(Puntatore puntatore) {
  while (QGuiApplication::overrideCursor() != nullptr) QGuiApplication::restoreOverrideCursor();
  if (puntatore == Puntatore::Clessidra) QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

}  // namespace tarvel
