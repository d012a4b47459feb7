#pragma once

#include <QString>

namespace qf {

class Platform;

// Opens a terminal window in the projects folder with a tool already running in it.
class TerminalLauncher {
public:
    explicit TerminalLauncher(Platform& platform) : m_platform(platform) {}

    // Every call opens one more window. Failures are reported only on standard output.
    void openInTerminal(const QString& command, const QString& directory);

private:
    Platform& m_platform;
};

} // namespace qf
