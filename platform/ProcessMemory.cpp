#include "ProcessMemory.h"

#include <QFile>
#include <QList>
#include <QtGlobal>

#include <sys/resource.h>

#if defined(Q_OS_MACOS)
#include <mach/mach.h>
#endif

namespace qf {

long residentMemoryKB()
{
#if defined(Q_OS_MACOS)
    mach_task_basic_info info;
    mach_msg_type_number_t count = MACH_TASK_BASIC_INFO_COUNT;
    if (task_info(mach_task_self(), MACH_TASK_BASIC_INFO, reinterpret_cast<task_info_t>(&info), &count) != KERN_SUCCESS)
        return 0;
    return long(info.resident_size / 1024);
#else
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').value(0).toLong();
    }
    return 0;
#endif
}

long peakResidentMemoryKB()
{
    rusage usage{};
    if (::getrusage(RUSAGE_SELF, &usage) != 0)
        return 0;
#if defined(Q_OS_MACOS)
    return long(usage.ru_maxrss / 1024); // bytes there
#else
    return long(usage.ru_maxrss); // kilobytes
#endif
}

} // namespace qf
