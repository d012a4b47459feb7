#include "TerminalLauncher.h"

#include "Platform.h"

namespace qf {

TerminalLauncher& TerminalLauncher::shared()
{
    static TerminalLauncher launcher;
    return launcher;
}

void TerminalLauncher::openInTerminal(const QString& command, const QString& directory)
{
    Platform::current().openTerminal(command, directory);
}

} // namespace qf
