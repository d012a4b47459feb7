#include "StartupProbe.h"

#include "ProcessMemory.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <cstdio>

namespace qf {

namespace {

// Watches every paint of the application: the first one inside the window starts its first
// frame (the window's own area may be covered by its children and never painted itself).
// Once it has seen it, the watcher stops watching and goes away.
class FirstFrameWatcher : public QObject {
public:
    FirstFrameWatcher(QWidget* window, std::function<void()> work)
        : QObject(window), m_window(window), m_work(std::move(work))
    {
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* widget = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Paint && widget && widget->window() == m_window) {
            QCoreApplication::instance()->removeEventFilter(this);
            // Once the paint has reached the screen, on the next turn of the loop.
            QTimer::singleShot(0, m_window, std::move(m_work));
            deleteLater();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget* m_window;
    std::function<void()> m_work;
};

} // namespace

void afterFirstFrame(QWidget* window, std::function<void()> work)
{
    QCoreApplication::instance()->installEventFilter(new FirstFrameWatcher(window, std::move(work)));
}

void reportFirstFrameIfRequested(QWidget* window)
{
    if (qEnvironmentVariableIsEmpty("QUILLFORGE_REPORT_FIRST_FRAME"))
        return;
    afterFirstFrame(window, [] {
        std::printf("first-frame rss_kb=%ld\n", residentMemoryKB());
        std::fflush(stdout);
        QCoreApplication::exit(0);
    });
}

} // namespace qf
