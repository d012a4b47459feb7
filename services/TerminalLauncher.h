#pragma once

#include <QString>

namespace qf {

// Opens a terminal window in the projects folder with a tool already running in it.
class TerminalLauncher {
public:
    static TerminalLauncher& shared();

    // Every call opens one more window. Failures are reported only on standard output.
    void openInTerminal(const QString& command, const QString& directory);

private:
    TerminalLauncher() = default;
};

} // namespace qf
