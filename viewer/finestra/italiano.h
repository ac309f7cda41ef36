// Italian where the toolkit's own translation leaves a gap.
#pragma once

class QApplication;

namespace ostrel {

/// Numbers, dates and kinds of files as in Italy, whatever the system speaks; what file dialogs call folders
/// and drives.
void ParlaItaliano(QApplication& applicazione);

}  // namespace ostrel
