#include "ProcessMemory.h"

#include <QFile>
#include <QList>
#include <QtGlobal>

#include <sys/resource.h>

#if defined(Q_OS_MACOS)
#include <libproc.h>
#include <mach/mach.h>
#include <sys/proc_info.h>

#include <algorithm>
#include <vector>
#else
#include <QDir>
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

long long processGroupIoBytes(long long group)
{
    if (group <= 0)
        return -1;
#if defined(Q_OS_MACOS)
    std::vector<pid_t> members(256);
    // The number of members found (the wrapper turns the system's byte count into one).
    const int count = proc_listpgrppids(static_cast<pid_t>(group), members.data(),
                                        static_cast<int>(members.size() * sizeof(pid_t)));
    if (count <= 0)
        return -1;
    long long total = 0;
    for (int i = 0; i < std::min(count, static_cast<int>(members.size())); ++i) {
        rusage_info_v2 usage{};
        if (proc_pid_rusage(members[static_cast<size_t>(i)], RUSAGE_INFO_V2,
                            reinterpret_cast<rusage_info_t*>(&usage)) == 0)
            total += static_cast<long long>(usage.ri_diskio_bytesread + usage.ri_diskio_byteswritten);
    }
    return total;
#else
    // The members are the processes whose stat names the group (its fifth field, after the
    // command name in parentheses, which may itself hold blanks and parentheses).
    long long total = 0;
    bool any = false;
    const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& entry : entries) {
        if (entry.isEmpty() || !entry.front().isDigit())
            continue;
        QFile stat(QStringLiteral("/proc/") + entry + QStringLiteral("/stat"));
        if (!stat.open(QIODevice::ReadOnly))
            continue;
        const QByteArray line = stat.readAll();
        const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
        if (fields.size() < 3 || fields.at(2).toLongLong() != group)
            continue;
        QFile io(QStringLiteral("/proc/") + entry + QStringLiteral("/io"));
        if (!io.open(QIODevice::ReadOnly))
            continue;
        for (const QByteArray& counter : io.readAll().split('\n')) {
            if (counter.startsWith("rchar:") || counter.startsWith("wchar:")) {
                total += counter.mid(6).trimmed().toLongLong();
                any = true;
            }
        }
    }
    return any ? total : -1;
#endif
}

} // namespace qf
