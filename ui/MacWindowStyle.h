#pragma once

class QWidget;

namespace qf {

// Hides the title bar (content reaches the top edge) and rounds the content view's corners
// to 22 points. Does nothing on other systems.
void applyMacWindowStyle(QWidget* window);

} // namespace qf
