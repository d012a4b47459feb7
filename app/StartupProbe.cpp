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
class FirstFrameWatcher : public QObject {
public:
    explicit FirstFrameWatcher(QWidget* window) : QObject(window), m_window(window) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* widget = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Paint && !m_seen && widget && widget->window() == m_window) {
            m_seen = true;
            // Report once the paint has reached the screen, on the next turn of the loop.
            QTimer::singleShot(0, this, [] {
                std::printf("first-frame rss_kb=%ld\n", residentMemoryKB());
                std::fflush(stdout);
                QCoreApplication::exit(0);
            });
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QWidget* m_window;
    bool m_seen = false;
};

} // namespace

void reportFirstFrameIfRequested(QWidget* window)
{
    if (qEnvironmentVariableIsEmpty("QUILLFORGE_REPORT_FIRST_FRAME"))
        return;
    QCoreApplication::instance()->installEventFilter(new FirstFrameWatcher(window));
}

} // namespace qf
