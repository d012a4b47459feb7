// Saves to a profile from a process of its own, as a second copy of the app or a save still
// running would: the key `key-<i>` for i from 0, and the search-path block, `iterations` times.
// With a size limit every write past that many bytes fails, as on a disk that fills up there.
//   qf_profile_writer_helper <profile> <variable> <display name> <iterations> [<size limit>]

#include "ProfileWriter.h"

#include <QCoreApplication>

#include <csignal>
#include <cstdio>

#include <sys/resource.h>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 5)
        return 2;
    if (arguments.size() > 5) {
        // A write past the limit fails with EFBIG instead of ending the process.
        std::signal(SIGXFSZ, SIG_IGN);
        const rlim_t limit = arguments.at(5).toULongLong();
        const rlimit size{limit, limit};
        if (setrlimit(RLIMIT_FSIZE, &size) != 0)
            return 2;
    }
    const QString& path = arguments.at(1);
    const QString& variable = arguments.at(2);
    for (int i = 0; i < arguments.at(4).toInt(); ++i) {
        const QString line = qf::shellExport::exportLine(variable, QStringLiteral("key-%1").arg(i));
        const auto stored = qf::ProfileWriter::store(path, variable, arguments.at(3), line);
        if (!stored) {
            std::printf("%s\n", qUtf8Printable(stored.error().errorDescription()));
            return 1;
        }
        const auto added = qf::ProfileWriter::addSearchPathBlock(path);
        if (!added) {
            std::printf("%s\n", qUtf8Printable(added.error().errorDescription()));
            return 1;
        }
    }
    return 0;
}
