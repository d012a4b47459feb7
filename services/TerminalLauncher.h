#pragma once

#include "Platform.h"

#include <QString>

namespace qf {

// Opens a terminal window in the projects folder with a tool already running in it.
class TerminalLauncher {
public:
    explicit TerminalLauncher(Platform& platform) : m_platform(platform) {}

    // The system's words for its terminal, and for a launch it refused.
    const SystemWording& wording() const { return m_platform.wording(); }

    // Where the tools start: the projects folder, as the shell in the window expands it.
    static QString projectsDirectory() { return QStringLiteral("~/Developer"); }
    // The line a person types to do by hand what a launch does: "cd ~/Developer && claude".
    static QString typedLine(const QString& command, const QString& directory = projectsDirectory())
    {
        return QStringLiteral("cd ") + directory + QStringLiteral(" && ") + command;
    }

    // Every call opens one more window. `outcome`, when given, learns whether it opened; the
    // reason of a failure goes to standard output.
    void openInTerminal(const QString& command, const QString& directory, TerminalOutcome outcome = {});

private:
    Platform& m_platform;
};

} // namespace qf
