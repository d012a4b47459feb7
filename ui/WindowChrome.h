#pragma once

#include "Platform.h"

#include <qnamespace.h>

class QDialog;
class QWidget;

namespace qf::ui {

// The main window's chrome, the way the platform says this system has it: its shape, the
// frame the window system draws around it and how its sheets are attached to it.

// What the window system says of `window` now: whether it exists there yet, the frame it
// reports (none until the window is on screen and framed) and how tall the widget style
// draws a title bar.
WindowFacts windowFacts(const QWidget* window);

// The frame around the main window, which its first size leaves room for so that the whole
// window fits the usable area of the screen.
WindowFrame mainWindowFrame(const QWidget* window, const Platform& platform);

// Shapes the main window once it is on screen, in the platform's style.
void shapeMainWindow(QWidget* window, const Platform& platform);

// How a sheet of the main window is made: a real sheet where the system has them; elsewhere a
// dialog with a title and a close button, and nothing to minimise or maximise on its own.
Qt::WindowFlags sheetWindowFlags(const Platform& platform);

// Attaches `sheet`, a window-modal dialog made with `sheetWindowFlags` and a parent in the main
// window, to that window before it opens. A real sheet the system attaches itself; elsewhere the
// dialog, which the window system already keeps in front of the window, is kept centred over
// it: as it opens, as its own size changes and as the window moves or resizes.
void attachSheet(QDialog* sheet, const Platform& platform);

} // namespace qf::ui
