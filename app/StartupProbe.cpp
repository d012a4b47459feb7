#include "StartupProbe.h"

#include "ProcessMemory.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <cstdio>

namespace qf {

namespace {

// Watches every paint of the application: the first one of a widget inside the window that
// `counts` starts the frame waited for (the window's own area may be covered by its children
// and never painted itself). Once it has seen it, the watcher stops watching and goes away.
class FrameWatcher : public QObject {
public:
    FrameWatcher(QWidget* window, std::function<bool(QWidget*)> counts, std::function<void()> work)
        : QObject(window), m_window(window), m_counts(std::move(counts)), m_work(std::move(work))
    {
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* widget = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Paint && widget && widget->window() == m_window && m_counts(widget)) {
            QCoreApplication::instance()->removeEventFilter(this);
            // Once the paint has reached the screen, on the next turn of the loop.
            QTimer::singleShot(0, m_window, std::move(m_work));
            deleteLater();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget* m_window;
    std::function<bool(QWidget*)> m_counts;
    std::function<void()> m_work;
};

void watchFrame(QWidget* window, std::function<bool(QWidget*)> counts, std::function<void()> work)
{
    QCoreApplication::instance()->installEventFilter(new FrameWatcher(window, std::move(counts), std::move(work)));
}

} // namespace

void afterFirstFrame(QWidget* window, std::function<void()> work)
{
    watchFrame(
        window, [](QWidget*) { return true; }, std::move(work));
}

void reportFirstFrameIfRequested(QWidget* window, std::function<QWidget*()> screen)
{
    if (qEnvironmentVariableIsEmpty("QUILLFORGE_REPORT_FIRST_FRAME"))
        return;
    QPointer<QWidget> guard(window);
    afterFirstFrame(window, [guard, screen = std::move(screen)] {
        std::printf("first-frame rss_kb=%ld\n", residentMemoryKB());
        std::fflush(stdout);
        if (!guard || !screen) {
            QCoreApplication::exit(0);
            return;
        }
        // Then the first frame that paints the screen itself.
        const auto inScreen = [screen](QWidget* widget) {
            QWidget* shown = screen();
            return shown && (widget == shown || shown->isAncestorOf(widget));
        };
        watchFrame(guard, inScreen, [] {
            std::printf("screen-frame rss_kb=%ld\n", residentMemoryKB());
            std::fflush(stdout);
            QCoreApplication::exit(0);
        });
    });
}

} // namespace qf
