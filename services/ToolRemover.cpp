#include "ToolRemover.h"

#include "ShellQuote.h"
#include "ToolInstaller.h"

#include <QFileInfo>

namespace qf {

ToolRemover::ToolRemover(ShellRunner& shell, const Platform& platform) : m_shell(shell), m_platform(platform) {}

QCoro::Task<Result<void>> ToolRemover::uninstall(CLITool tool, Output log, Cancellation cancellation)
{
    const Result<void> removed = co_await remove(tool, log, cancellation);
    if (removed || !cancellation.isCancelled())
        co_return removed;
    // Stopped on its way: whatever it removed is gone, and the search says whether the tool is.
    const Result<QString> found = co_await m_shell.findProgram(tool.commandName());
    if (found) {
        co_return ServiceError::stopped(
            tr("The removal was stopped, and %1 is still found. Uninstall again to remove what is left of it.")
                .arg(tool.displayName()));
    }
    co_return ServiceError::stopped(tr("The removal was stopped, but %1 was already removed.").arg(tool.displayName()));
}

QCoro::Task<Result<void>> ToolRemover::remove(CLITool tool, Output log, Cancellation cancellation)
{
    log(QStringLiteral("Uninstalling ") + tool.displayName() + QStringLiteral("...\n"));
    // The removal line walks nvm's versions with a glob. In zsh a glob that matches nothing
    // aborts the whole line, so without nvm nothing after the loop would run (for Claude Code:
    // neither removal of its folders); with NOMATCH off the loop is simply skipped, as in sh.
    const Result<QString> removal = co_await m_shell.run(
        QStringLiteral("setopt nonomatch; ") + tool.uninstallCommand(m_platform.globalNpmPrograms()),
        ShellRunner::defaultTimeoutSeconds, cancellation);
    if (cancellation.isCancelled())
        co_return ShellError::cancellation();
    if (removal) {
        if (!removal.value().isEmpty())
            log(removal.value() + QLatin1Char('\n'));
    } else {
        log(QStringLiteral("Note: ") + removal.error().logDescription() + QLatin1Char('\n'));
    }

    Result<QString> stillThere = co_await m_shell.findProgram(tool.commandName());
    if (stillThere && tool.installsThroughNpm()) {
        // A copy in a global npm folder that the user cannot write (installed with sudo, say)
        // goes with administrator rights, asked for through the system's own dialog.
        const Result<QString> npm = co_await m_shell.findProgram(QStringLiteral("npm"));
        const Result<QString> prefix = co_await m_shell.run(QStringLiteral("npm prefix -g"));
        if (npm && prefix && stillThere.value() == prefix.value() + QStringLiteral("/bin/") + tool.commandName() &&
            !ToolInstaller::isWritableNpmPrefix(prefix.value())) {
            log(QStringLiteral("\nRemoving %1 from %2 needs administrator rights.\n")
                    .arg(tool.displayName(), prefix.value()));
            // The administrator's shell searches only the system's folders (on macOS
            // /usr/bin:/bin:/usr/sbin:/sbin), and npm starts through `env node`: node's own
            // folder goes first on that search path.
            QString line = shellQuote(npm.value()) + QStringLiteral(" uninstall -g ") + tool.npmPackage();
            const Result<QString> node = co_await m_shell.findProgram(QStringLiteral("node"));
            if (node) {
                line = QStringLiteral("PATH=") +
                       shellQuote(QFileInfo(node.value()).absolutePath() +
                                  QStringLiteral(":/usr/bin:/bin:/usr/sbin:/sbin")) +
                       QLatin1Char(' ') + line;
            }
            const QString command = m_platform.administratorCommand(line);
            const QString activity = tr("The removal of %1").arg(tool.displayName());
            const Result<void> ran = co_await m_shell.runWithStreaming(command, log, nullptr, activity, cancellation);
            if (cancellation.isCancelled())
                co_return ShellError::cancellation();
            const Result<void> removed = administratorRemovalResult(ran, tool.displayName());
            if (!removed) {
                if (removed.error().isDeclined())
                    co_return removed.error();
                log(QStringLiteral("Note: ") + removed.error().logDescription() + QLatin1Char('\n'));
            }
            stillThere = co_await m_shell.findProgram(tool.commandName());
        }
    }
    if (!stillThere) {
        // Only an answer of the search counts as "gone"; a search that could not run says nothing.
        const ShellError* error = stillThere.error().shellError();
        if (error && error->kind() != ShellError::commandFailed)
            co_return stillThere.error();
        log(QStringLiteral("\n") + tool.displayName() + QStringLiteral(" has been uninstalled.\n"));
        co_return Result<void>();
    }
    log(QStringLiteral("\nNote: '") + tool.commandName() +
        QStringLiteral("' is still found in PATH. You may have multiple installations.\n"));
    log(QStringLiteral("Run 'which ") + tool.commandName() + QStringLiteral("' in Terminal to find other copies.\n"));
    co_return Result<void>();
}

} // namespace qf
