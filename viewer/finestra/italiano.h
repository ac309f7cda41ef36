// Makes the toolkit speak Italian where its own translation leaves a gap.
#pragma once

class QApplication;

namespace ostrel {

/// Sets numbers and dates to those of Italy, whatever the system speaks, and translates what file dialogs
/// call files, folders and drives.
void ParlaItaliano(QApplication& applicazione);

}  // namespace ostrel
