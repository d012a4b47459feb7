#include "ShellRunner.h"

#include "ProcessMemory.h"
#include "Utf8Stream.h"

#include <QCoro/QCoroTimer>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>

namespace qf {

using namespace std::chrono_literals;

namespace {

// Between a streamed command's end and the return of the call, so that every chunk of its
// output has been handled first.
constexpr auto kStreamCompletionDelay = 100ms;
// How much of a streamed command's last output a failure keeps.
constexpr qsizetype kKeptOutputTail = 4000;

} // namespace

ShellRunner::Configuration ShellRunner::standardConfiguration(const Platform& platform)
{
    Configuration configuration;
    configuration.fixedDirectories = platform.programDirectories();
    return configuration;
}

ShellRunner::ShellRunner(Configuration configuration) : m_configuration(std::move(configuration)) {}

QString ShellRunner::searchPath(const QString& home, QStringList nvmVersionNames, const QStringList& fixedDirectories,
                                const std::optional<QString>& inheritedPath)
{
    QStringList directories;
    // Descending plain text order, not version order: v9.11.2 comes before v20.10.0.
    std::sort(nvmVersionNames.begin(), nvmVersionNames.end(), std::greater<>());
    const QString versions = home + QStringLiteral("/.nvm/versions/node");
    for (const QString& name : std::as_const(nvmVersionNames))
        directories << versions + QLatin1Char('/') + name + QStringLiteral("/bin");
    directories << home + QStringLiteral("/.local/bin");
    directories << fixedDirectories;
    if (inheritedPath)
        directories << inheritedPath->split(QLatin1Char(':'));
    directories.removeAll(QString());
    return directories.join(QLatin1Char(':'));
}

QString ShellRunner::inheritedSearchPath() const
{
    return m_configuration.inheritedPath.value_or(qEnvironmentVariable("PATH"));
}

QProcessEnvironment ShellRunner::commandEnvironment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QString home = QDir::homePath();
    // Every entry of nvm's version folder, hidden ones included; a missing folder adds nothing.
    const QStringList versions = QDir(home + QStringLiteral("/.nvm/versions/node"))
                                     .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                                QDir::NoSort);
    std::optional<QString> inherited = m_configuration.inheritedPath;
    if (!inherited && environment.contains(QStringLiteral("PATH")))
        inherited = environment.value(QStringLiteral("PATH"));
    environment.insert(QStringLiteral("PATH"), searchPath(home, versions, m_configuration.fixedDirectories, inherited));
    return environment;
}

ProcessRun::Options ShellRunner::processOptions(const QString& command) const
{
    ProcessRun::Options options;
    options.program = m_configuration.shell;
    options.arguments = {QStringLiteral("-l"), QStringLiteral("-c"), command};
    options.environment = commandEnvironment();
    // Never wherever the application happened to be started: the home folder, or the root
    // when the home folder is not there.
    const QString home = QDir::homePath();
    options.workingDirectory = QFileInfo(home).isDir() ? home : QDir::rootPath();
    options.terminationGraceMs = m_configuration.terminationGraceMs;
    return options;
}

QCoro::Task<Result<QString>> ShellRunner::run(QString command, double timeoutSeconds)
{
    ProcessRun::Options options = processOptions(command);
    options.channels = ProcessRun::Channels::separate;
    // At least a millisecond, at most what a timer can wait.
    const int timeoutMs = timeoutSeconds > 0 ? static_cast<int>(std::clamp(timeoutSeconds * 1000.0, 1.0, 2.0e9)) : 0;
    options.timeoutMs = timeoutMs;
    options.captureLimitBytes = m_configuration.outputLimitBytes;

    auto* process = new ProcessRun(std::move(options));
    const ProcessOutcome outcome = co_await process->outcome();

    switch (outcome.kind) {
    case ProcessOutcome::failedToStart: co_return ShellError::launchFailed(outcome.launchError);
    // The limit that was applied: a timer waits at most about 23 days.
    case ProcessOutcome::timedOut: co_return ShellError::timeout(timeoutMs / 1000.0);
    case ProcessOutcome::outputLimitReached: co_return ShellError::outputLimit(m_configuration.outputLimitBytes);
    case ProcessOutcome::stalled:
    case ProcessOutcome::exited: break;
    }

    const QString output = decodeUtf8Lossily(outcome.standardOutput);
    if (outcome.exitCode == 0)
        co_return output.trimmed();
    const QString error = decodeUtf8Lossily(outcome.standardError);
    const QString combined = output.isEmpty() ? error : output + QLatin1Char('\n') + error;
    co_return ShellError::failed(outcome.exitCode, combined.trimmed());
}

QCoro::Task<Result<void>> ShellRunner::runWithStreaming(QString command, OutputHandler onOutput, QObject* context,
                                                        QString activity)
{
    ProcessRun::Options options = processOptions(command);
    options.channels = ProcessRun::Channels::merged;
    // The end of the output, for the failure's message.
    auto tail = std::make_shared<QString>();
    options.onOutput = [tail, handler = std::move(onOutput)](const QString& text) {
        *tail += text;
        if (tail->size() > 2 * kKeptOutputTail)
            tail->remove(0, tail->size() - kKeptOutputTail);
        if (handler)
            handler(text);
    };
    options.context = context;
    options.hasContext = context != nullptr;
    options.inactivityTimeoutMs = m_configuration.streamInactivityMs;
    options.progress = [](long long group) { return processGroupIoBytes(group); };

    auto* process = new ProcessRun(std::move(options));
    const ProcessOutcome outcome = co_await process->outcome();
    if (outcome.kind == ProcessOutcome::failedToStart)
        co_return ShellError::launchFailed(outcome.launchError);
    if (outcome.kind == ProcessOutcome::stalled)
        co_return ShellError::stalled(m_configuration.streamInactivityMs / 1000.0, activity);

    co_await QCoro::sleepFor(kStreamCompletionDelay);
    if (outcome.exitCode == 0)
        co_return Result<void>();
    // The output went to the handler; its end stays with the error, to say what went wrong.
    co_return ShellError::failed(outcome.exitCode, QStringLiteral("Command failed"), tail->right(kKeptOutputTail));
}

} // namespace qf
