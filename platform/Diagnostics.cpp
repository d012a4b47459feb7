#include "Diagnostics.h"

#include <cstdio>

namespace qf {

void printDiagnostic(const QString& line)
{
    const QByteArray bytes = (line + QLatin1Char('\n')).toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

} // namespace qf
