// What the window can do, said in windows of their own, which leave it free to be used meanwhile.
#pragma once

class QMenuBar;
class QWidget;

namespace ostrel {

/// Every command of the menus with its keys, then what mouse and keys do on the drawing.
void MostraTasti(QWidget* padre, const QMenuBar& menu);

void MostraInformazioni(QWidget* padre);

}  // namespace ostrel
