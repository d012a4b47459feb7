#include "ShellRunner.h"

#include "SharedResult.h"

#include "Diagnostics.h"
#include "Platform.h"
#include "ProcessMemory.h"
#include "Utf8Stream.h"

#include <QCoreApplication>
#include <QCoro/QCoroTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QRandomGenerator>

#include <algorithm>
#include <chrono>
#include <coroutine>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include <unistd.h>

namespace qf {

using namespace std::chrono_literals;

namespace {

// Between a streamed command's end and the return of the call, so that every chunk of its
// output has been handled first.
constexpr auto kStreamCompletionDelay = 100ms;
// How much of a streamed command's last output a failure keeps.
constexpr qsizetype kKeptOutputTail = 4000;
// What a login shell's start-up files may print before a command's own output without that
// counting towards the command's output limit.
constexpr qsizetype kStartupOutputAllowance = 64 * 1024;

// Letters no start-up file prints by chance.
QByteArray randomToken()
{
    quint32 words[4];
    QRandomGenerator::system()->fillRange(words);
    return QByteArray(reinterpret_cast<const char*>(words), sizeof(words)).toHex();
}

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
    : m_configuration(std::move(configuration)), m_platform(platform), m_marker("quillforge-command-" + randomToken())
{
    if (!m_platform) {
        m_state.source = EnvironmentState::Source::loginShellPerCommand;
        m_state.reason = QStringLiteral("no login shell to read once");
    }
}

ShellRunner::~ShellRunner() = default;

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
    variables.insert("PATH", loginEnvironment::joinSearchPath(front, inherited.value_or(QByteArray())));
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
                                                ProcessRun::Channels channels) const
{
    ProcessRun::Options options;
    options.program = m_configuration.shell;
    options.channels = channels;
    if (start == Start::asLoginShell) {
        // The marker goes where each channel's own output begins: standard output, and also
        // standard error when it is kept apart.
        const QString marker = QString::fromLatin1(m_marker);
        QString line = QStringLiteral("printf '%s' ") + marker + QLatin1Char(';');
        if (channels == ProcessRun::Channels::separate)
            line += QStringLiteral(" printf '%s' ") + marker + QStringLiteral(" >&2;");
        options.arguments = {QStringLiteral("-l"), QStringLiteral("-c"), line + QLatin1Char('\n') + command};
    } else {
        options.arguments = {QStringLiteral("-f"), QStringLiteral("-c"), command};
    }
    options.environment = loginEnvironment::entries(commandVariables(login));
    options.workingDirectory = workingFolder();
    options.terminationGraceMs = m_configuration.terminationGraceMs;
    return options;
}

void ShellRunner::invalidateEnvironment() { ++m_generation; }

QCoro::Task<std::shared_ptr<const LoginEnvironment>> ShellRunner::environment()
{
    if (m_state.source == EnvironmentState::Source::loginShellPerCommand)
        co_return std::shared_ptr<const LoginEnvironment>();
    if (m_environment && m_environmentGeneration == m_generation) {
        std::shared_ptr<const LoginEnvironment> known = m_environment;
        co_return known;
    }
    // Commands that need it at the same time share one reading.
    if (m_reading && m_reading->generation() == m_generation) {
        const std::shared_ptr<Reading> reading = m_reading;
        std::shared_ptr<const LoginEnvironment> read = co_await Reading::result(reading);
        co_return read;
    }

    const auto reading = std::make_shared<Reading>(m_generation);
    m_reading = reading;
    std::shared_ptr<const LoginEnvironment> read = co_await readLoginShell();
    if (m_reading == reading)
        m_reading.reset();
    if (read) {
        // A reading that an invalidation overtook still serves the commands that waited for it.
        if (reading->generation() == m_generation) {
            m_environment = read;
            m_environmentGeneration = reading->generation();
        }
    } else {
        m_environment.reset();
    }
    reading->finish(read);
    co_return read;
}

QCoro::Task<std::shared_ptr<const LoginEnvironment>> ShellRunner::readLoginShell()
{
    const QByteArray token = randomToken();
    const QStringList invocation = m_platform->loginShellInvocation(loginEnvironment::script(token));
    const QString shown = invocation.mid(0, invocation.size() - 2).join(QLatin1Char(' '));

    // The shell starts from the application's environment and search path, as a terminal does.
    EnvironmentVariables started = loginEnvironment::applicationEnvironment();
    started.insert("PATH", inheritedSearchPath().toLocal8Bit());
    ProcessRun::Options options;
    options.program = invocation.value(0);
    options.arguments = invocation.mid(1);
    options.environment = loginEnvironment::entries(started);
    options.workingDirectory = workingFolder();
    options.channels = ProcessRun::Channels::separate;
    options.timeoutMs = m_configuration.loginEnvironmentTimeoutMs;
    options.terminationGraceMs = m_configuration.terminationGraceMs;
    options.captureLimitBytes = m_configuration.outputLimitBytes;

    QElapsedTimer clock;
    clock.start();
    auto* process = new ProcessRun(std::move(options));
    const ProcessOutcome outcome = co_await process->outcome();
    m_state.loginShell = shown;
    m_state.readingMs = clock.nsecsElapsed() / 1.0e6;

    QString failure;
    std::shared_ptr<LoginEnvironment> read;
    switch (outcome.kind) {
    case ProcessOutcome::failedToStart: failure = QStringLiteral("could not be started: ") + outcome.launchError; break;
    case ProcessOutcome::timedOut:
        failure = QStringLiteral("did not finish within ") +
                  ShellError::durationText(m_configuration.loginEnvironmentTimeoutMs / 1000.0);
        break;
    case ProcessOutcome::outputLimitReached: failure = QStringLiteral("printed too much"); break;
    case ProcessOutcome::stalled:
    case ProcessOutcome::exited: {
        // Whatever the shell's exit status, an environment between the markers is what it had.
        const std::optional<EnvironmentVariables> printed = loginEnvironment::parse(outcome.standardOutput, token);
        if (!printed)
            failure = QStringLiteral("gave no environment (exit code %1; a start-up file may end or replace the shell)")
                          .arg(outcome.exitCode);
        else if (printed->value("PATH").isEmpty())
            failure = QStringLiteral("gave no search path");
        else
            read = std::make_shared<LoginEnvironment>(loginEnvironment::difference(started, *printed));
        break;
    }
    }

    if (!read) {
        // For the rest of the run: a shell that failed once would only hold every later
        // command up again.
        const bool first = m_state.source != EnvironmentState::Source::loginShellPerCommand;
        m_state.source = EnvironmentState::Source::loginShellPerCommand;
        m_state.reason = shown + QLatin1Char(' ') + failure;
        if (first) {
            printDiagnostic(QStringLiteral("Login environment: %1; every command starts a login shell of its own "
                                           "from now on.")
                                .arg(m_state.reason));
        }
        co_return std::shared_ptr<const LoginEnvironment>();
    }
    // A reading that was under way when another one failed is no reason to go back.
    if (m_state.source != EnvironmentState::Source::loginShellPerCommand) {
        m_state.source = EnvironmentState::Source::loginShellOnce;
        m_state.path = QString::fromLocal8Bit(read->path);
    }
    std::shared_ptr<const LoginEnvironment> result = std::move(read);
    co_return result;
}

QCoro::Task<ShellRunner::EnvironmentState> ShellRunner::readEnvironment()
{
    co_await environment();
    const EnvironmentState state = m_state;
    co_return state;
}

QCoro::Task<Result<QString>> ShellRunner::run(QString command, double timeoutSeconds)
{
    const std::shared_ptr<const LoginEnvironment> login = co_await environment();
    const Start start = login ? Start::withoutStartupFiles : Start::asLoginShell;
    ProcessRun::Options options = processOptions(command, login.get(), start, ProcessRun::Channels::separate);
    // At least a millisecond, at most what a timer can wait.
    const int timeoutMs = timeoutSeconds > 0 ? static_cast<int>(std::clamp(timeoutSeconds * 1000.0, 1.0, 2.0e9)) : 0;
    options.timeoutMs = timeoutMs;
    // A login shell's start-up files may print a little before the command's own output, which
    // alone is held to the limit.
    const qsizetype limit = m_configuration.outputLimitBytes;
    options.captureLimitBytes = start == Start::asLoginShell && limit > 0 ? limit + kStartupOutputAllowance : limit;

    auto* process = new ProcessRun(std::move(options));
    ProcessOutcome outcome = co_await process->outcome();
    if (start == Start::asLoginShell && outcome.kind == ProcessOutcome::exited) {
        // The command's own output follows the marker; what came before is the start-up files'.
        std::optional<QByteArray> output = after(outcome.standardOutput, m_marker);
        std::optional<QByteArray> error = after(outcome.standardError, m_marker);
        if (output || error) {
            outcome.standardOutput = output.value_or(QByteArray());
            outcome.standardError = error.value_or(QByteArray());
            if (limit > 0 && std::max(outcome.standardOutput.size(), outcome.standardError.size()) > limit)
                outcome.kind = ProcessOutcome::outputLimitReached;
        } else {
            // No marker at all: the command never ran, because a start-up file ended or
            // replaced the shell first. It runs without them.
            ProcessRun::Options bare = processOptions(command, nullptr, Start::bare, ProcessRun::Channels::separate);
            bare.timeoutMs = timeoutMs;
            bare.captureLimitBytes = m_configuration.outputLimitBytes;
            auto* again = new ProcessRun(std::move(bare));
            outcome = co_await again->outcome();
        }
    }

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
                                                        QString activity)
{
    const std::shared_ptr<const LoginEnvironment> login = co_await environment();
    const Start start = login ? Start::withoutStartupFiles : Start::asLoginShell;
    // The end of the output, for the failure's message.
    auto tail = std::make_shared<QString>();
    const OutputHandler deliver = [tail, handler = std::move(onOutput)](const QString& text) {
        *tail += text;
        if (tail->size() > 2 * kKeptOutputTail)
            tail->remove(0, tail->size() - kKeptOutputTail);
        if (handler)
            handler(text);
    };
    // A login shell's output is the command's own only from the marker on.
    auto marked = std::make_shared<MarkedStream>(MarkedStream{QString::fromLatin1(m_marker), {}, false});

    ProcessRun::Options options = processOptions(command, login.get(), start, ProcessRun::Channels::merged);
    if (start == Start::asLoginShell) {
        options.onOutput = [marked, deliver](const QString& text) {
            const QString own = marked->feed(text);
            if (!own.isEmpty())
                deliver(own);
        };
    } else {
        options.onOutput = deliver;
    }
    options.context = context;
    options.hasContext = context != nullptr;
    options.inactivityTimeoutMs = m_configuration.streamInactivityMs;
    options.progress = [](long long group) { return processGroupIoBytes(group); };

    auto* process = new ProcessRun(options);
    ProcessOutcome outcome = co_await process->outcome();
    if (start == Start::asLoginShell && outcome.kind == ProcessOutcome::exited && !marked->found) {
        // The command never ran: a start-up file ended or replaced the shell first. It runs
        // without them.
        ProcessRun::Options bare = processOptions(command, nullptr, Start::bare, ProcessRun::Channels::merged);
        bare.onOutput = deliver;
        bare.context = options.context;
        bare.hasContext = options.hasContext;
        bare.inactivityTimeoutMs = options.inactivityTimeoutMs;
        bare.progress = options.progress;
        auto* again = new ProcessRun(std::move(bare));
        outcome = co_await again->outcome();
    }
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
