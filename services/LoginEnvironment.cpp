#include "LoginEnvironment.h"

#include "Errors.h"
#include "Platform.h"
#include "ProcessRun.h"
#include "TemporaryFolders.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcessEnvironment>
#include <QRandomGenerator>
#include <QTemporaryDir>

namespace qf {

namespace {

// What a shell sets for itself on start and a command's own shell sets again.
bool isShellBookkeeping(const QByteArray& name)
{
    return name == "PATH" || name == "_" || name == "SHLVL" || name == "PWD" || name == "OLDPWD" ||
           name == loginEnvironment::kEnvironmentFileVariable;
}

QByteArray beginMarker(const QByteArray& token) { return "quillforge-environment-" + token + "-begin"; }
// A variable that env prints with the others: the list is whole when it is there.
QByteArray endEntry(const QByteArray& token) { return "quillforge_environment_" + token + "_end=1"; }

} // namespace

EnvironmentVariables LoginEnvironment::appliedTo(EnvironmentVariables variables) const
{
    for (const QByteArray& name : removed)
        variables.remove(name);
    for (auto it = changed.cbegin(); it != changed.cend(); ++it)
        variables.insert(it.key(), it.value());
    return variables;
}

namespace loginEnvironment {

QByteArray randomToken()
{
    quint32 words[4];
    QRandomGenerator::system()->fillRange(words);
    return QByteArray(reinterpret_cast<const char*>(words), sizeof(words)).toHex();
}

QCoro::Task<LoginReading> read(ProcessRuns& runs, const Platform& platform, ReadingOptions options)
{
    const QByteArray token = randomToken();
    const QStringList invocation = platform.loginShellInvocation(script(token));
    LoginReading reading;
    reading.loginShell = invocation.mid(0, invocation.size() - 2).join(QLatin1Char(' '));

    // The shell writes its environment into a file of a folder only the user can enter: the
    // shell's own output may go wherever its start-up files send it (a session log), and an
    // environment holds keys.
    const QTemporaryDir folder(temporaryFolders::pattern(temporaryFolders::kEnvironment));
    const QString file = folder.filePath(QStringLiteral("environment"));

    // The shell starts from the application's environment and search path, as a terminal does.
    EnvironmentVariables started = applicationEnvironment();
    started.insert("PATH", options.path.toLocal8Bit());
    started.insert(kEnvironmentFileVariable, QFile::encodeName(file));
    ProcessRun::Options run;
    run.program = invocation.value(0);
    run.arguments = invocation.mid(1);
    run.environment = entries(started);
    run.workingDirectory = options.workingDirectory;
    run.channels = ProcessRun::Channels::separate;
    run.timeoutMs = options.timeoutMs;
    run.terminationGraceMs = options.terminationGraceMs;
    run.captureLimitBytes = options.outputLimitBytes;

    QElapsedTimer clock;
    clock.start();
    ProcessOutcome outcome;
    outcome.kind = ProcessOutcome::cancelled;
    if (!folder.isValid()) {
        outcome.kind = ProcessOutcome::failedToStart;
        outcome.launchError = QStringLiteral("no private folder in ") + QDir::tempPath();
    } else if (ProcessRun* process = runs.start(std::move(run))) {
        outcome = co_await process->outcome();
    }
    reading.milliseconds = clock.nsecsElapsed() / 1.0e6;

    switch (outcome.kind) {
    case ProcessOutcome::cancelled: reading.cancelled = true; break;
    case ProcessOutcome::failedToStart:
        reading.failure = QStringLiteral("could not be started: ") + outcome.launchError;
        break;
    case ProcessOutcome::timedOut:
        reading.failure = QStringLiteral("did not finish within ") +
                          ShellError::durationText(options.timeoutMs / 1000.0);
        break;
    case ProcessOutcome::outputLimitReached: reading.failure = QStringLiteral("printed too much"); break;
    case ProcessOutcome::stalled:
    case ProcessOutcome::exited: {
        // Whatever the shell's exit status, an environment between the markers is what it had.
        QFile written(file);
        const QByteArray contents = written.open(QIODevice::ReadOnly) ? written.readAll() : QByteArray();
        const std::optional<EnvironmentVariables> printed = parse(contents, token);
        if (!printed)
            reading.failure =
                QStringLiteral("gave no environment (exit code %1; a start-up file may end or replace the shell)")
                    .arg(outcome.exitCode);
        else if (printed->value("PATH").isEmpty())
            reading.failure = QStringLiteral("gave no search path");
        else
            reading.environment = std::make_shared<LoginEnvironment>(difference(started, *printed));
        break;
    }
    }
    co_return reading;
}

EnvironmentVariables applicationEnvironment()
{
    // The names as Qt lists them; the values as they are, bytes that are not UTF-8 included.
    EnvironmentVariables variables;
    const QStringList names = QProcessEnvironment::systemEnvironment().keys();
    for (const QString& name : names) {
        const QByteArray key = name.toLocal8Bit();
        if (qEnvironmentVariableIsSet(key.constData()))
            variables.insert(key, qgetenv(key.constData()));
    }
    return variables;
}

QList<QByteArray> entries(const EnvironmentVariables& variables)
{
    QList<QByteArray> list;
    list.reserve(variables.size());
    for (auto it = variables.cbegin(); it != variables.cend(); ++it)
        list << it.key() + '=' + it.value();
    return list;
}

QString script(const QByteArray& token)
{
    // env is called by its path: a start-up file may have left a search path without it. It
    // takes the shell's place, which saves starting one more process. The file does not exist
    // before: '>' creates it even where the shell refuses to overwrite files.
    return QStringLiteral("printf '%s' '%1' > \"$%3\"; exec /usr/bin/env -0 '%2' >> \"$%3\"")
        .arg(QString::fromLatin1(beginMarker(token)), QString::fromLatin1(endEntry(token)),
             QLatin1String(kEnvironmentFileVariable));
}

std::optional<EnvironmentVariables> parse(const QByteArray& output, const QByteArray& token)
{
    const QByteArray begin = beginMarker(token);
    const qsizetype start = output.indexOf(begin);
    if (start < 0)
        return std::nullopt;
    // NAME=value entries, each ended by a NUL (a value may hold anything but a NUL), up to the
    // last NUL: what a start-up file left running may print after it.
    const qsizetype from = start + begin.size();
    const qsizetype last = output.lastIndexOf('\0');
    if (last < from)
        return std::nullopt;
    const QByteArrayView block = QByteArrayView(output).sliced(from, last + 1 - from);
    const QByteArray end = endEntry(token);
    bool whole = false;
    EnvironmentVariables variables;
    qsizetype position = 0;
    while (position < block.size()) {
        const qsizetype terminator = block.indexOf('\0', position);
        const QByteArrayView entry = block.sliced(position, terminator - position);
        position = terminator + 1;
        if (entry == end) {
            whole = true;
            continue;
        }
        const qsizetype equals = entry.indexOf('=');
        if (equals <= 0)
            return std::nullopt;
        variables.insert(entry.first(equals).toByteArray(), entry.sliced(equals + 1).toByteArray());
    }
    if (!whole)
        return std::nullopt;
    return variables;
}

LoginEnvironment difference(const EnvironmentVariables& started, const EnvironmentVariables& printed)
{
    LoginEnvironment environment;
    environment.path = printed.value("PATH");
    for (auto it = printed.cbegin(); it != printed.cend(); ++it) {
        if (isShellBookkeeping(it.key()))
            continue;
        const auto before = started.constFind(it.key());
        if (before == started.cend() || before.value() != it.value())
            environment.changed.insert(it.key(), it.value());
    }
    for (auto it = started.cbegin(); it != started.cend(); ++it) {
        if (!isShellBookkeeping(it.key()) && !printed.contains(it.key()))
            environment.removed << it.key();
    }
    return environment;
}

QByteArray joinSearchPath(const QString& front, const QByteArray& tail)
{
    QByteArray path = front.toLocal8Bit();
    for (const QByteArray& element : tail.split(':')) {
        if (element.isEmpty())
            continue;
        if (!path.isEmpty())
            path += ':';
        path += element;
    }
    return path;
}

QByteArray completeSearchPath(const QByteArray& own, const QString& fallback)
{
    QList<QByteArray> elements;
    for (const QByteArray& element : own.split(':')) {
        if (!element.isEmpty())
            elements << element;
    }
    for (const QByteArray& element : fallback.toLocal8Bit().split(':')) {
        if (!element.isEmpty() && !elements.contains(element))
            elements << element;
    }
    return elements.join(':');
}

} // namespace loginEnvironment

} // namespace qf
