#pragma once

#include "Platform.h"

class QWidget;

namespace qf::ui {

// The main window's chrome, the way the platform says this system has it: its shape and the
// frame the window system draws around it.

// What the window system says of `window` now: whether it exists there yet, the frame it
// reports (none until the window is on screen and framed) and how tall the widget style
// draws a title bar.
WindowFacts windowFacts(const QWidget* window);

// The frame around the main window, which its first size leaves room for so that the whole
// window fits the usable area of the screen.
WindowFrame mainWindowFrame(const QWidget* window, const Platform& platform);

// Shapes the main window once it is on screen, in the platform's style.
void shapeMainWindow(QWidget* window, const Platform& platform);

} // namespace qf::ui
