#include "SearchPathFix.h"

#include "APIKeyStore.h"
#include "ProfileWriter.h"
#include "ShellExport.h"
#include "ShellQuote.h"
#include "TemporaryFolders.h"

#include <QCoro/QCoroFuture>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtConcurrent/QtConcurrentRun>

namespace qf {

SearchPathFix::SearchPathFix(ShellRunner& shell, SystemDetector& detector, const Platform& platform)
    : m_shell(shell), m_detector(detector), m_platform(platform)
{
}

QCoro::Task<bool> SearchPathFix::newTerminalSearches(QString folder, Cancellation cancellation)
{
    // The line runs as a new terminal window's shell would run it: the user's shell, reading
    // its start-up files, from the search path the application was started with. It writes
    // the search path into a file of a private folder: what a start-up file prints is never
    // taken for a folder, and a start-up file that sends the shell's output to a session log
    // neither hides the answer nor gets it.
    const QTemporaryDir answer(temporaryFolders::pattern(temporaryFolders::kCommand));
    if (!answer.isValid())
        co_return false;
    const QString file = answer.filePath(QStringLiteral("path"));
    QString line = QStringLiteral("PATH=") + shellQuote(m_shell.inheritedSearchPath()) +
                   QStringLiteral("; export PATH; QUILLFORGE_PATH_FILE=") + shellQuote(file) +
                   QStringLiteral("; export QUILLFORGE_PATH_FILE; exec");
    for (const QString& word :
         m_platform.terminalShellInvocation(QStringLiteral("printf '%s' \"$PATH\" > \"$QUILLFORGE_PATH_FILE\"")))
        line += QLatin1Char(' ') + shellQuote(word);
    const Result<QString> ran = co_await m_shell.run(line, 30, cancellation);
    QFile written(file);
    if (!ran || !written.open(QIODevice::ReadOnly))
        co_return false;
    const QString path = QFile::decodeName(written.readAll());
    const QString home = QDir::homePath();
    for (QString entry : path.split(QLatin1Char(':'))) {
        if (entry.startsWith(QLatin1String("~/")))
            entry.replace(0, 1, home);
        while (entry.size() > 1 && entry.endsWith(QLatin1Char('/')))
            entry.chop(1);
        if (entry == folder)
            co_return true;
    }
    co_return false;
}

QCoro::Task<std::optional<QString>> SearchPathFix::addLocalPrograms(CLITool tool, Output log, Cancellation cancellation)
{
    const QString folder = QDir::homePath() + QStringLiteral("/.local/bin");
    const bool searched = co_await newTerminalSearches(folder, cancellation);
    if (searched || cancellation.isCancelled())
        co_return std::nullopt;
    // The start-up file of the user's own shell, in that shell's words: a fish or tcsh user
    // never reads ~/.zshrc.
    const ShellProfile profile = m_detector.shellProfile();
    const QString shown = APIKeyStore::displayedPath(profile.path);
    const QString line = shellExport::searchPathLine(profile.family);
    QFuture<Result<bool>> adding =
        QtConcurrent::run([profile] { return ProfileWriter::addSearchPathBlock(profile.path, profile.family); });
    const Result<bool> added = co_await adding;
    if (added && added.value())
        m_shell.invalidateEnvironment(); // the start-up file changed
    if (!added) {
        log(QStringLiteral("Note: ") + added.error().logDescription() +
            QStringLiteral("\nTo start %1 from a terminal, add this line to %2:\n%3\n")
                .arg(tool.displayName(), shown, line));
        co_return terminalCaveat(tool, shown, line);
    }
    const bool found = co_await newTerminalSearches(folder, cancellation);
    if (cancellation.isCancelled())
        co_return std::nullopt;
    if (found && added.value())
        log(QStringLiteral("Added ~/.local/bin to the search path in %1, so new terminal windows find %2.\n")
                .arg(shown, tool.displayName()));
    if (found)
        co_return std::nullopt;
    log(QStringLiteral("Note: %1 puts ~/.local/bin on the search path, but a new terminal window does not read it. "
                       "To start %2 there, add ~/.local/bin to the search path in your shell's own start-up file.\n")
            .arg(shown, tool.displayName()));
    co_return terminalCaveat(tool, shown, line);
}

QString SearchPathFix::terminalCaveat(CLITool tool, const QString& profile, const QString& line)
{
    return tr("A new terminal window will not find %1 yet: your shell does not read %2. Add this line to your "
              "shell's start-up file, then open a new window: %3")
        .arg(tool.displayName(), profile, line);
}

} // namespace qf
