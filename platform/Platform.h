#pragma once

#include <QString>

class QWidget;

namespace qf {

// The only place that knows which operating system Quillforge runs on. One backend is
// chosen at start; tests may put in their own.
class Platform {
public:
    virtual ~Platform() = default;

    static Platform& current();
    // Replaces the backend (tests); nullptr returns to the one for this system.
    static void setCurrent(Platform* platform);

    virtual QString name() const = 0;

    // Shapes the main window once it is on screen: on macOS a hidden title bar with the
    // content reaching the top edge and rounded content; elsewhere an ordinary window.
    virtual void configureMainWindow(QWidget* window) = 0;
};

} // namespace qf
