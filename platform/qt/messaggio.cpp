// Message boxes.
#include <QGridLayout>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>

#include "platform/comune/desktop/schermo.h"
#include "platform/comune/desktop/scrivania.h"
#include "platform/qt/finestra.h"
#include "platform/qt/testo_qt.h"

namespace tarvel {

Risposta Chiede(const Messaggio& messaggio) {
  static constexpr QMessageBox::Icon kIcone[] = {QMessageBox::NoIcon, QMessageBox::Critical,
                                                 QMessageBox::Warning, QMessageBox::Information};
  QMessageBox riquadro(kIcone[static_cast<int>(messaggio.icona)], InQt(messaggio.titolo),
                       InQt(messaggio.testo), QMessageBox::NoButton, FinestraDi(FormAttiva()));
  riquadro.setTextFormat(Qt::PlainText);
  riquadro.setObjectName("messaggio");
  QPushButton* si = nullptr;
  if (messaggio.bottoni == Bottoni::SiNo) {
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
  return si == nullptr ? Risposta::Ok : riquadro.clickedButton() == si ? Risposta::Si : Risposta::No;
}

}  // namespace tarvel
