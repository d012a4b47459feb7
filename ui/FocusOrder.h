#pragma once

#include <QList>

class QWidget;

namespace qf::ui {

// Every control under `root` that Tab stops at, in reading order: in the order the layouts place
// them (top to bottom in a column, leading to trailing in a row), then the children no layout
// places. Hidden controls are listed where they would show. Inside a scroll area only its
// content counts; other windows (sheets and dialogs) are left out.
QList<QWidget*> controlsInReadingOrder(const QWidget* root);

// Makes Tab go through the controls under `root` in reading order. Screens call it once they are
// built and again whenever they add controls.
void orderTabChain(const QWidget* root);

// Gives `control` the keyboard focus when it can take it (shown, enabled, a Tab stop) and no
// other control under `screen` has the focus yet; true when `control` has it afterwards. While
// `control` cannot take it, `screen` itself holds the focus (unless a control of it has it): the
// window then hands it to no other control, and Tab starts from the top of the screen.
bool focusUnlessTaken(QWidget* screen, QWidget* control);

} // namespace qf::ui
