// Controls as widgets: made from their description, their state kept equal to what the user sees,
// their events fired.
#pragma once

#include <QWidget>

#include "platform/controlli.h"

namespace tarvel {

/// The widget that shows a control; its events fire the control's handlers.
QWidget* CreaWidget(Controllo& controllo, QWidget* padre);
/// Shows the control's present text or entries.
void AggiornaWidget(QWidget* widget, const Controllo& controllo);

}  // namespace tarvel
