#include "WindowChrome.h"

#include "MacWindowStyle.h"

#include <QStyle>
#include <QWidget>
#include <QWindow>

namespace qf::ui {

WindowFacts windowFacts(const QWidget* window)
{
    if (!window)
        return {};
    const QWindow* handle = window->windowHandle();
    return {.created = window->testAttribute(Qt::WA_WState_Created) && handle,
            .reported = handle ? handle->frameMargins() : QMargins(),
            .titleBarHeight = window->style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, window)};
}

WindowFrame mainWindowFrame(const QWidget* window, const Platform& platform)
{
    return platform.mainWindowFrame(windowFacts(window));
}

void shapeMainWindow(QWidget* window, const Platform& platform)
{
    switch (platform.mainWindowStyle()) {
    case WindowStyle::decorated:
        // An ordinary decorated window: the window manager draws the title bar and corners.
        break;
    case WindowStyle::fullSizeContent: applyMacWindowStyle(window); break;
    }
}

} // namespace qf::ui
