// Message boxes.
#include <QGridLayout>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>

#include "platform/desktop.h"
#include "platform/qt/fuoco.h"
#include "platform/qt/gestori.h"
#include "platform/qt/testo_qt.h"

namespace tarvel {
namespace {

QMessageBox::Icon InQt(Icona icona) {
  switch (icona) {
    case Icona::Stop:
      return QMessageBox::Critical;
    case Icona::Esclamazione:
      return QMessageBox::Warning;
    case Icona::Informazione:
      return QMessageBox::Information;
    case Icona::Nessuna:
      break;
  }
  return QMessageBox::NoIcon;
}

}  // namespace

Risposta MostraMessaggio(const Testo& testo, const Testo& titolo, Icona icona, Bottoni bottoni) {
  Risposta risposta = Risposta::Ok;
  // As a handler: timers wait until the box has gone.
  EseguiGestore([&] {
    const MessaggioAperto aperto;
    QMessageBox riquadro(InQt(icona), InQt(titolo), InQt(testo), QMessageBox::NoButton, FinestraAttiva());
    riquadro.setTextFormat(Qt::PlainText);
    riquadro.setObjectName("messaggio");
    QPushButton* si = nullptr;
    if (bottoni == Bottoni::SiNo) {
      si = riquadro.addButton(QStringLiteral("&Sì"), QMessageBox::AcceptRole);
      riquadro.setDefaultButton(si);
      // In the role of a No, Esc and the close box would press it.
      riquadro.addButton(QStringLiteral("&No"), QMessageBox::DestructiveRole);
    } else {
      riquadro.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    }
    // Wide enough for the title, which the window manager writes in bold beside its own buttons.
    const int titoloIntero = riquadro.fontMetrics().horizontalAdvance(riquadro.windowTitle()) * 5 / 4 + 160;
    auto& griglia = static_cast<QGridLayout&>(*riquadro.layout());
    griglia.addItem(new QSpacerItem(titoloIntero, 0), griglia.rowCount(), 0, 1, griglia.columnCount());
    const bool clessidra = QGuiApplication::overrideCursor() != nullptr;
    if (clessidra) QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
    riquadro.exec();
    if (clessidra) QGuiApplication::restoreOverrideCursor();
    if (si != nullptr) risposta = riquadro.clickedButton() == si ? Risposta::Si : Risposta::No;
  });
  return risposta;
}

}  // namespace tarvel
