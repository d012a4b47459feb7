#include "TerminalLauncher.h"

#include "Platform.h"

namespace qf {

void TerminalLauncher::openInTerminal(const QString& command, const QString& directory)
{
    m_platform.openTerminal(command, directory);
}

} // namespace qf
