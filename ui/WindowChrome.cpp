#include "WindowChrome.h"

#include "MacWindowStyle.h"

#include <QDialog>
#include <QEvent>
#include <QPointer>
#include <QStyle>
#include <QWidget>
#include <QWindow>

namespace qf::ui {

namespace {

// Keeps a sheet centred over the window it belongs to, for as long as the sheet is there (it
// is the sheet's child, and its watch of the window ends with it).
class SheetPlacement : public QObject {
public:
    SheetPlacement(QDialog* sheet, QWidget* window) : QObject(sheet), m_sheet(sheet), m_window(window)
    {
        sheet->installEventFilter(this);
        window->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const QEvent::Type type = event->type();
        const bool windowChanged = watched == m_window && (type == QEvent::Move || type == QEvent::Resize);
        const bool sheetChanged = watched == m_sheet && (type == QEvent::Show || type == QEvent::Resize);
        if (windowChanged || sheetChanged)
            centre();
        return false;
    }

private:
    void centre()
    {
        if (!m_window)
            return;
        QRect placed = m_sheet->geometry();
        placed.moveCenter(m_window->geometry().center());
        if (placed != m_sheet->geometry())
            m_sheet->setGeometry(placed);
    }

    QDialog* m_sheet;
    QPointer<QWidget> m_window;
};

} // namespace

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

Qt::WindowFlags sheetWindowFlags(const Platform& platform)
{
    if (platform.hasSheets())
        return Qt::Sheet;
    return Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;
}

void attachSheet(QDialog* sheet, const Platform& platform)
{
    QWidget* parent = sheet->parentWidget();
    if (platform.hasSheets() || !parent)
        return;
    new SheetPlacement(sheet, parent->window());
}

} // namespace qf::ui
