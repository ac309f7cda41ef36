// The windows that say what the viewer can do; they stay open while it is used.
#pragma once

class QMenuBar;
class QWidget;

namespace ostrel {

/// Lists every command of the menus with its keys, then what mouse and keys do on the drawing.
void MostraTasti(QWidget* padre, const QMenuBar& menu);

void MostraInformazioni(QWidget* padre);

}  // namespace ostrel
