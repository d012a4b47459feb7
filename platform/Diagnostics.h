#pragma once

#include <QString>

namespace qf {

// Writes one diagnostic line (for example "AppleScript error: ...") to standard output, where
// support can read it; the user never sees it.
void printDiagnostic(const QString& line);

} // namespace qf
