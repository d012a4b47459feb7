#include "ShellRunner.h"

#include "SharedResult.h"
#include "TemporaryFolders.h"

#include "Diagnostics.h"
#include "Platform.h"
#include "ProcessMemory.h"
#include "Utf8Stream.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <coroutine>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include <unistd.h>

namespace qf {

namespace {

// Between a streamed command's end and the return of the call, so that every chunk of its
// output has been handled first.
constexpr int kStreamCompletionDelayMs = 100;
// How much of a streamed command's last output a failure keeps.
constexpr qsizetype kKeptOutputTail = 4000;
// What a login shell's start-up files may print before a command's own output without that
// counting towards the command's output limit.
constexpr qsizetype kStartupOutputAllowance = 64 * 1024;

// The home folder, or the root when the home folder is not there: never wherever the
// application happened to be started.
QString workingFolder()
{
    const QString home = QDir::homePath();
    return QFileInfo(home).isDir() ? home : QDir::rootPath();
}

// What follows `marker` in `bytes`; nothing when the marker is not there.
std::optional<QByteArray> after(const QByteArray& bytes, const QByteArray& marker)
{
    const qsizetype found = bytes.indexOf(marker);
    if (found < 0)
        return std::nullopt;
    return bytes.sliced(found + marker.size());
}

// Hands a login shell's merged output on from the command's marker: what the start-up files
// printed before it is dropped.
struct MarkedStream {
    QString marker;
    QString pending;
    bool found = false;

    // The part of `text` that is the command's own.
    QString feed(const QString& text)
    {
        if (found)
            return text;
        pending += text;
        const qsizetype at = pending.indexOf(marker);
        if (at < 0) {
            // Only the end may still turn out to be the start of the marker.
            if (pending.size() > marker.size())
                pending.remove(0, pending.size() - marker.size());
            return QString();
        }
        found = true;
        QString rest = pending.sliced(at + marker.size());
        pending.clear();
        return rest;
    }
};

// Where a command run as a login shell of its own notes that its own shell has started: a
// file in a folder only the user can enter, which no start-up file sends elsewhere as it may
// send the shell's output. Only a command that provably never started may run again.
class StartMark {
public:
    StartMark() : m_folder(temporaryFolders::pattern(temporaryFolders::kCommand)) {}

    QString path() const
    {
        return m_folder.isValid() ? m_folder.filePath(QStringLiteral("started")) : QStringLiteral("/dev/null");
    }
    bool provesNoStart() const { return m_folder.isValid() && !QFileInfo::exists(path()); }

private:
    QTemporaryDir m_folder;
};

} // namespace

// One reading of the login shell's environment, shared by the commands waiting for it, for
// the generation of the environment it reads.
class ShellRunner::Reading : public SharedResult<std::shared_ptr<const LoginEnvironment>> {
public:
    explicit Reading(quint64 generation) : m_generation(generation) {}

    quint64 generation() const { return m_generation; }

private:
    quint64 m_generation;
};

ShellRunner::Configuration ShellRunner::standardConfiguration(const Platform& platform)
{
    Configuration configuration;
    configuration.fixedDirectories = platform.programDirectories();
    return configuration;
}

ShellRunner::ShellRunner(Configuration configuration, const Platform* platform)
    : m_configuration(std::move(configuration)),
      m_platform(platform),
      m_marker("quillforge-command-" + loginEnvironment::randomToken())
{
    if (!m_platform) {
        m_state.source = EnvironmentState::Source::loginShellPerCommand;
        m_state.reason = QStringLiteral("no login shell to read once");
    }
}

ShellRunner::~ShellRunner() { shutDown(); }

void ShellRunner::shutDown() { m_runs.close(); }

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

EnvironmentVariables ShellRunner::commandVariables(const LoginEnvironment* login) const
{
    EnvironmentVariables variables = loginEnvironment::applicationEnvironment();
    // The search path's last part: the login shell's, or else the application's own.
    std::optional<QByteArray> inherited;
    if (login) {
        variables = login->appliedTo(std::move(variables));
        inherited = login->path;
    } else if (m_configuration.inheritedPath) {
        inherited = m_configuration.inheritedPath->toLocal8Bit();
    } else if (variables.contains("PATH")) {
        inherited = variables.value("PATH");
    }
    const QString home = QDir::homePath();
    // Every entry of nvm's version folder, hidden ones included; a missing folder adds nothing.
    const QStringList versions = QDir(home + QStringLiteral("/.nvm/versions/node"))
                                     .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                                QDir::NoSort);
    const QString front = searchPath(home, versions, m_configuration.fixedDirectories, std::nullopt);
    // The login shell's own order wins, as in the user's terminal; without one, the folders
    // every command searches come first.
    variables.insert("PATH", login ? loginEnvironment::completeSearchPath(login->path, front)
                                   : loginEnvironment::joinSearchPath(front, inherited.value_or(QByteArray())));
    return variables;
}

QProcessEnvironment ShellRunner::commandEnvironment() const
{
    const EnvironmentVariables variables = commandVariables(m_environment.get());
    QProcessEnvironment environment;
    for (auto it = variables.cbegin(); it != variables.cend(); ++it)
        environment.insert(QString::fromLocal8Bit(it.key()), QString::fromLocal8Bit(it.value()));
    return environment;
}

ProcessRun::Options ShellRunner::processOptions(const QString& command, const LoginEnvironment* login, Start start,
                                                ProcessRun::Options settings, const QString& startMark) const
{
    ProcessRun::Options options = std::move(settings);
    const ProcessRun::Channels channels = options.channels;
    EnvironmentVariables variables = commandVariables(login);
    if (start == Start::asLoginShell) {
        // The user's shell reads its start-up files and hands over to the commands' shell,
        // which takes its output back where a start-up file sent it elsewhere (descriptors 3
        // and 4, where the shell keeps them), marks that it started, and puts a marker where
        // each channel's own output begins: standard output, and standard error when it is
        // kept apart. The command travels in the environment, safe from every shell's quoting;
        // the line is one line of plain words that sh, zsh, bash, fish and csh read alike.
        const QString marker = QString::fromLatin1(m_marker);
        QString inner = QStringLiteral("if { : >&3 } 2>/dev/null; then exec 1>&3 2>&4; fi; exec 3>&- 4>&-; "
                                       ": >> \"$QUILLFORGE_STARTED\"; quillforge_command=$QUILLFORGE_COMMAND; "
                                       "unset QUILLFORGE_COMMAND QUILLFORGE_STARTED QUILLFORGE_SHELL; printf %s ") +
                        marker + QLatin1Char(';');
        if (channels == ProcessRun::Channels::separate)
            inner += QStringLiteral(" printf %s ") + marker + QStringLiteral(" >&2;");
        inner += QStringLiteral(" eval \"$quillforge_command\"");
        const QString line = QStringLiteral("exec \"$QUILLFORGE_SHELL\" -f -c '") + inner + QLatin1Char('\'');
        const QStringList invocation = m_platform ? m_platform->plainLoginShellInvocation(line)
                                                  : QStringList{m_configuration.shell, QStringLiteral("-l"),
                                                                QStringLiteral("-c"), line};
        options.program = invocation.value(0);
        options.arguments = invocation.mid(1);
        options.outputAlsoOnThreeAndFour = true;
        variables.insert("QUILLFORGE_COMMAND", command.toLocal8Bit());
        variables.insert("QUILLFORGE_SHELL", QFile::encodeName(m_configuration.shell));
        variables.insert("QUILLFORGE_STARTED", QFile::encodeName(startMark));
    } else {
        options.program = m_configuration.shell;
        options.arguments = {QStringLiteral("-f"), QStringLiteral("-c"), command};
    }
    options.environment = loginEnvironment::entries(variables);
    options.workingDirectory = workingFolder();
    options.terminationGraceMs = m_configuration.terminationGraceMs;
    return options;
}

void ShellRunner::invalidateEnvironment() { ++m_generation; }

QCoro::Task<std::shared_ptr<const LoginEnvironment>> ShellRunner::environment()
{
    if (!m_platform)
        co_return std::shared_ptr<const LoginEnvironment>();
    if (m_environment && m_environmentGeneration == m_generation) {
        std::shared_ptr<const LoginEnvironment> known = m_environment;
        co_return known;
    }
    // A reading that failed is tried again once something may have changed it (a profile
    // written, an installation, the user back after a while), not for every command.
    if (m_failedGeneration == m_generation)
        co_return std::shared_ptr<const LoginEnvironment>();
    // Commands that need it at the same time share one reading.
    if (m_reading && m_reading->generation() == m_generation) {
        const std::shared_ptr<Reading> reading = m_reading;
        std::shared_ptr<const LoginEnvironment> read = co_await Reading::result(reading);
        co_return read;
    }

    const auto reading = std::make_shared<Reading>(m_generation);
    m_reading = reading;
    loginEnvironment::ReadingOptions options;
    options.path = inheritedSearchPath();
    options.workingDirectory = workingFolder();
    options.timeoutMs = m_configuration.loginEnvironmentTimeoutMs;
    options.terminationGraceMs = m_configuration.terminationGraceMs;
    options.outputLimitBytes = m_configuration.outputLimitBytes;
    const LoginReading outcome = co_await loginEnvironment::read(m_runs, *m_platform, options);
    const std::shared_ptr<const LoginEnvironment>& read = outcome.environment;
    m_state.loginShell = outcome.loginShell;
    m_state.readingMs = outcome.milliseconds;
    if (m_reading == reading)
        m_reading.reset();
    // A reading that an invalidation overtook still serves the commands that waited for it,
    // but says nothing about the environment of later ones; nor does one that was stopped
    // because the runner shut down.
    if (reading->generation() == m_generation && !outcome.cancelled) {
        if (read) {
            m_environment = read;
            m_environmentGeneration = reading->generation();
            m_state.source = EnvironmentState::Source::loginShellOnce;
            m_state.path = QString::fromLocal8Bit(read->path);
            m_state.reason.clear();
        } else {
            m_environment.reset();
            m_failedGeneration = reading->generation();
            const bool first = m_state.source != EnvironmentState::Source::loginShellPerCommand;
            m_state.source = EnvironmentState::Source::loginShellPerCommand;
            m_state.reason = m_state.loginShell + QLatin1Char(' ') + outcome.failure;
            if (first) {
                printDiagnostic(QStringLiteral("Login environment: %1; every command starts a login shell of its "
                                               "own until the start-up files may have changed.")
                                    .arg(m_state.reason));
            }
        }
    }
    reading->finish(read);
    co_return read;
}

QCoro::Task<ShellRunner::EnvironmentState> ShellRunner::readEnvironment()
{
    co_await environment();
    const EnvironmentState state = m_state;
    co_return state;
}

QCoro::Task<ProcessOutcome> ShellRunner::runProcess(ProcessRun::Options options, Cancellation cancellation)
{
    ProcessRun* process = cancellation.isCancelled() ? nullptr : m_runs.start(std::move(options));
    if (!process) {
        ProcessOutcome cancelled;
        cancelled.kind = ProcessOutcome::cancelled;
        co_return cancelled;
    }
    cancellation.whileAlive(process, [process] { process->cancel(); });
    ProcessOutcome outcome = co_await process->outcome();
    co_return outcome;
}

QCoro::Task<ProcessOutcome> ShellRunner::execute(QString command, ProcessRun::Options settings,
                                                 Cancellation cancellation)
{
    const std::shared_ptr<const LoginEnvironment> login = co_await environment();
    const Start start = login ? Start::withoutStartupFiles : Start::asLoginShell;
    const bool separate = settings.channels == ProcessRun::Channels::separate;
    const qsizetype limit = settings.captureLimitBytes;
    const StartMark mark;
    ProcessRun::Options options = processOptions(command, login.get(), start, settings, mark.path());
    if (start == Start::asLoginShell) {
        // A login shell's start-up files may print a little before the command's own output,
        // which alone is held to the limit and handed on.
        if (limit > 0)
            options.captureLimitBytes = limit + kStartupOutputAllowance;
        if (options.onOutput) {
            auto marked = std::make_shared<MarkedStream>(MarkedStream{QString::fromLatin1(m_marker), {}, false});
            options.onOutput = [marked, deliver = settings.onOutput](const QString& text) {
                const QString own = marked->feed(text);
                if (!own.isEmpty())
                    deliver(own);
            };
        }
    }

    ProcessOutcome outcome = co_await runProcess(options, cancellation);
    if (start == Start::asLoginShell && outcome.kind == ProcessOutcome::exited) {
        if (mark.provesNoStart()) {
            // The command never ran: a start-up file ended or replaced the shell first. It
            // runs without them.
            const ProcessRun::Options bare = processOptions(command, nullptr, Start::bare, settings);
            outcome = co_await runProcess(bare, cancellation);
        } else if (separate) {
            // The command's own output follows the marker; what came before is the start-up
            // files'. Without a marker, its output went where a start-up file sent it.
            outcome.standardOutput = after(outcome.standardOutput, m_marker).value_or(QByteArray());
            outcome.standardError = after(outcome.standardError, m_marker).value_or(QByteArray());
            if (limit > 0 && std::max(outcome.standardOutput.size(), outcome.standardError.size()) > limit)
                outcome.kind = ProcessOutcome::outputLimitReached;
        }
    }
    co_return outcome;
}

QCoro::Task<Result<QString>> ShellRunner::run(QString command, double timeoutSeconds, Cancellation cancellation)
{
    // At least a millisecond, at most what a timer can wait.
    const int timeoutMs = timeoutSeconds > 0 ? static_cast<int>(std::clamp(timeoutSeconds * 1000.0, 1.0, 2.0e9)) : 0;
    ProcessRun::Options settings;
    settings.channels = ProcessRun::Channels::separate;
    settings.timeoutMs = timeoutMs;
    settings.captureLimitBytes = m_configuration.outputLimitBytes;
    const ProcessOutcome outcome = co_await execute(command, settings, cancellation);

    switch (outcome.kind) {
    case ProcessOutcome::failedToStart: co_return ShellError::launchFailed(outcome.launchError);
    // The limit that was applied: a timer waits at most about 23 days.
    case ProcessOutcome::timedOut: co_return ShellError::timeout(timeoutMs / 1000.0);
    case ProcessOutcome::outputLimitReached: co_return ShellError::outputLimit(m_configuration.outputLimitBytes);
    case ProcessOutcome::cancelled: co_return ShellError::cancellation();
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

QCoro::Task<Result<QString>> ShellRunner::findProgram(QString program)
{
    if (program.isEmpty() || program.contains(QLatin1Char('/')))
        co_return ShellError::failed(1, program + QStringLiteral(" not found"));
    const std::shared_ptr<const LoginEnvironment> login = co_await environment();
    if (!login) {
        // Every command is a login shell of its own: only a shell knows its search path.
        const Result<QString> found = co_await run(QStringLiteral("which ") + program);
        co_return found;
    }
    const EnvironmentVariables variables = commandVariables(login.get());
    for (const QByteArray& folder : variables.value("PATH").split(':')) {
        // A relative folder would depend on where the command runs; no command is looked for there.
        if (!folder.startsWith('/'))
            continue;
        const QByteArray candidate = folder + '/' + QFile::encodeName(program);
        const QFileInfo info(QFile::decodeName(candidate));
        if (info.isFile() && ::access(candidate.constData(), X_OK) == 0)
            co_return QFile::decodeName(candidate);
    }
    co_return ShellError::failed(1, program + QStringLiteral(" not found"));
}

QCoro::Task<Result<void>> ShellRunner::runWithStreaming(QString command, OutputHandler onOutput, QObject* context,
                                                        QString activity, Cancellation cancellation)
{
    // The end of the output, for the failure's message.
    auto tail = std::make_shared<QString>();
    ProcessRun::Options settings;
    settings.channels = ProcessRun::Channels::merged;
    settings.onOutput = [tail, handler = std::move(onOutput)](const QString& text) {
        *tail += text;
        if (tail->size() > 2 * kKeptOutputTail)
            tail->remove(0, tail->size() - kKeptOutputTail);
        if (handler)
            handler(text);
    };
    settings.context = context;
    settings.hasContext = context != nullptr;
    settings.inactivityTimeoutMs = m_configuration.streamInactivityMs;
    settings.progress = [](long long group) { return processGroupIoBytes(group); };
    const ProcessOutcome outcome = co_await execute(command, settings, cancellation);
    if (outcome.kind == ProcessOutcome::failedToStart)
        co_return ShellError::launchFailed(outcome.launchError);
    if (outcome.kind == ProcessOutcome::stalled)
        co_return ShellError::stalled(m_configuration.streamInactivityMs / 1000.0, activity);
    if (outcome.kind == ProcessOutcome::cancelled)
        co_return ShellError::cancellation();

    co_await m_runs.pause(kStreamCompletionDelayMs);
    if (outcome.exitCode == 0)
        co_return Result<void>();
    // The output went to the handler; its end stays with the error, to say what went wrong.
    co_return ShellError::failed(outcome.exitCode, QStringLiteral("Command failed"), tail->right(kKeptOutputTail));
}

} // namespace qf
