#include "TerminalLauncher.h"

#include "Platform.h"

namespace qf {

void TerminalLauncher::openInTerminal(const QString& command, const QString& directory, TerminalOutcome outcome)
{
    m_platform.openTerminal(command, directory, std::move(outcome));
}

} // namespace qf
