#include "StartupProbe.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QTimer>
#include <QWidget>

#include <cstdio>

#if defined(Q_OS_MACOS)
#include <mach/mach.h>
#endif

namespace qf {

long residentMemoryKB()
{
#if defined(Q_OS_LINUX)
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').value(0).toLong();
    }
    return 0;
#elif defined(Q_OS_MACOS)
    mach_task_basic_info info;
    mach_msg_type_number_t count = MACH_TASK_BASIC_INFO_COUNT;
    if (task_info(mach_task_self(), MACH_TASK_BASIC_INFO, reinterpret_cast<task_info_t>(&info), &count) != KERN_SUCCESS)
        return 0;
    return long(info.resident_size / 1024);
#else
    return 0;
#endif
}

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
