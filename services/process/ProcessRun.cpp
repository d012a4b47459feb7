#include "ProcessRun.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <csignal>
#include <set>

#include <sys/types.h>
#include <unistd.h>

namespace qf {

namespace {

// The process groups that may still have members: GUI thread only.
std::set<pid_t>& liveGroups()
{
    static std::set<pid_t> groups;
    return groups;
}

void addLiveGroup(pid_t group)
{
    static bool watching = false;
    if (!watching) {
        watching = true;
        // On quit, and at the latest when the application object goes.
        if (QCoreApplication* application = QCoreApplication::instance())
            QObject::connect(application, &QCoreApplication::aboutToQuit, &ProcessRun::stopEveryGroup);
        qAddPostRoutine(&ProcessRun::stopEveryGroup);
    }
    liveGroups().insert(group);
}

} // namespace

void ProcessRun::stopEveryGroup()
{
    for (const pid_t group : std::exchange(liveGroups(), {})) {
        ::kill(-group, SIGTERM);
        ::kill(-group, SIGKILL);
    }
}

ProcessRun::ProcessRun(Options options, ProcessRuns* owner)
    : QObject(owner), m_options(std::move(options)), m_process(new QProcess(this))
{
    m_process->setProgram(m_options.program);
    m_process->setArguments(m_options.arguments);
    if (!m_options.workingDirectory.isEmpty())
        m_process->setWorkingDirectory(m_options.workingDirectory);
    m_process->setStandardInputFile(QProcess::nullDevice());
    m_process->setProcessChannelMode(m_options.channels == Channels::merged ? QProcess::MergedChannels
                                                                            : QProcess::SeparateChannels);

    // QProcess would pass the environment as text, which loses bytes that are not UTF-8: the
    // child starts the program itself, with the entries as they are. Should that fail, QProcess
    // starts the same program and reports why it could not.
    QString executable = m_options.program;
    if (!QFileInfo(executable).isAbsolute()) {
        const QString found = QStandardPaths::findExecutable(executable);
        if (!found.isEmpty())
            executable = found;
    }
    m_executable = QFile::encodeName(executable);
    m_argumentBytes << QFile::encodeName(m_options.program);
    for (const QString& argument : std::as_const(m_options.arguments))
        m_argumentBytes << argument.toLocal8Bit();
    for (const QByteArray& argument : std::as_const(m_argumentBytes))
        m_argv.push_back(const_cast<char*>(argument.constData()));
    m_argv.push_back(nullptr);
    for (const QByteArray& entry : std::as_const(m_options.environment))
        m_envp.push_back(const_cast<char*>(entry.constData()));
    m_envp.push_back(nullptr);

    // Newer versions of Qt call the modifier before they put SIGPIPE and the signal mask back as
    // a program should find them; so does the modifier, before it starts the program. The child
    // may share this process's memory until it starts the program, so all it uses is prepared
    // here and it keeps nothing of its own.
    m_defaultAction.sa_handler = SIG_DFL;
    sigemptyset(&m_defaultAction.sa_mask);
    sigemptyset(&m_noSignals);
    // A session of its own: no controlling terminal (so sudo or a login file cannot ask a
    // question on the terminal Quillforge was started from) and one process group to stop.
    m_process->setChildProcessModifier([executable = m_executable.constData(), argv = m_argv.data(),
                                        envp = m_envp.data(), byDefault = &m_defaultAction, none = &m_noSignals,
                                        copies = m_options.outputAlsoOnThreeAndFour] {
        ::setsid();
        if (copies) {
            ::dup2(STDOUT_FILENO, 3);
            ::dup2(STDERR_FILENO, 4);
        }
        ::sigaction(SIGPIPE, byDefault, nullptr);
        ::sigprocmask(SIG_SETMASK, none, nullptr);
        ::execve(executable, argv, envp);
    });

    connect(m_process, &QProcess::readyReadStandardOutput, this, &ProcessRun::readOutput);
    connect(m_process, &QProcess::readyReadStandardError, this, &ProcessRun::readError);
    connect(m_process, &QProcess::started, this, [this] {
        m_pid = m_process->processId();
        addLiveGroup(static_cast<pid_t>(m_pid));
    });
    connect(m_process, &QProcess::finished, this, [this](int exitCode, QProcess::ExitStatus) {
        m_outcome.exitCode = exitCode;
        finish();
    });
    connect(m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            m_outcome.launchError = m_process->errorString();
            m_stopReason = ProcessOutcome::failedToStart;
            finish();
        }
    });

    m_deadline.setSingleShot(true);
    m_deadline.setTimerType(Qt::PreciseTimer); // never before the time it names
    connect(&m_deadline, &QTimer::timeout, this, [this] { stop(ProcessOutcome::timedOut); });
    m_idle.setSingleShot(true);
    connect(&m_idle, &QTimer::timeout, this, &ProcessRun::quietTimeOver);
    m_grace.setSingleShot(true);
    connect(&m_grace, &QTimer::timeout, this, [this] { stopGroup(SIGKILL); });

    QMetaObject::invokeMethod(this, &ProcessRun::start, Qt::QueuedConnection);
}

void ProcessRun::start()
{
    // Cancelled before it started: it never does.
    if (m_stopReason) {
        finish();
        return;
    }
    m_process->start();
    if (m_done)
        return;
    if (m_options.timeoutMs > 0)
        m_deadline.start(m_options.timeoutMs);
    if (m_options.inactivityTimeoutMs > 0)
        m_idle.start(m_options.inactivityTimeoutMs);
}

void ProcessRun::readOutput()
{
    const QByteArray bytes = m_process->readAllStandardOutput();
    if (!bytes.isEmpty() && m_idle.isActive())
        m_idle.start(); // output is progress: the quiet time starts again
    if (m_options.channels == Channels::merged)
        deliver(m_decoder.feed(bytes));
    else
        capture(m_outcome.standardOutput, bytes);
}

void ProcessRun::readError()
{
    const QByteArray bytes = m_process->readAllStandardError();
    if (!bytes.isEmpty() && m_idle.isActive())
        m_idle.start();
    capture(m_outcome.standardError, bytes);
}

void ProcessRun::capture(QByteArray& kept, const QByteArray& bytes)
{
    const qsizetype limit = m_options.captureLimitBytes;
    if (limit <= 0) {
        kept += bytes;
        return;
    }
    // Past the limit the process is stopped; what it still writes meanwhile is read and dropped.
    // Exactly the limit is still whole.
    const qsizetype room = std::max<qsizetype>(0, limit - kept.size());
    kept += QByteArrayView(bytes).first(std::min(bytes.size(), room));
    if (bytes.size() > room && !m_stopReason)
        stop(ProcessOutcome::outputLimitReached);
}

void ProcessRun::deliver(const QString& text)
{
    if (text.isEmpty() || !m_options.onOutput)
        return;
    if (m_options.hasContext && !m_options.context)
        return;
    m_options.onOutput(text);
}

void ProcessRun::quietTimeOver()
{
    if (m_options.progress && m_pid > 0) {
        const long long progress = m_options.progress(m_pid);
        if (progress >= 0 && progress != std::exchange(m_lastProgress, progress)) {
            m_idle.start();
            return;
        }
    }
    stop(ProcessOutcome::stalled);
}

void ProcessRun::cancel() { stop(ProcessOutcome::cancelled); }

void ProcessRun::stop(ProcessOutcome::Kind reason)
{
    if (m_stopReason || m_done)
        return;
    m_stopReason = reason;
    m_deadline.stop();
    m_idle.stop();
    stopGroup(SIGTERM);
    m_grace.start(m_options.terminationGraceMs);
}

void ProcessRun::stopGroup(int signal)
{
    const qint64 pid = m_pid > 0 ? m_pid : m_process->processId();
    if (pid <= 0)
        return;
    // The child leads its own process group: stopping the group reaches the shell and
    // everything it started. Should that not hold, stop the shell at least.
    if (::kill(-static_cast<pid_t>(pid), signal) != 0)
        ::kill(static_cast<pid_t>(pid), signal);
}

void ProcessRun::finish()
{
    if (m_done)
        return;
    m_done = true;
    m_deadline.stop();
    m_idle.stop();
    if (m_grace.isActive()) {
        // The shell may go on TERM while members of its group ignore it: once the grace has
        // passed they are killed, whether or not the shell is still there. The group keeps its
        // number while any member lives.
        // A group already stopped on quit needs nothing more.
        const auto group = static_cast<pid_t>(m_pid);
        if (liveGroups().count(group) != 0) {
            QTimer::singleShot(m_grace.remainingTime(), QCoreApplication::instance(), [group] {
                ::kill(-group, SIGKILL);
                liveGroups().erase(group);
            });
        }
        m_grace.stop();
    } else {
        liveGroups().erase(static_cast<pid_t>(m_pid));
    }
    const ProcessOutcome::Kind kind = m_stopReason.value_or(ProcessOutcome::exited);
    if (kind != ProcessOutcome::failedToStart) {
        readOutput();
        if (m_options.channels == Channels::merged)
            deliver(m_decoder.finish());
        else
            readError();
    }
    m_outcome.kind = kind;
    // Resume the waiting coroutine outside QProcess's own signal handling.
    QMetaObject::invokeMethod(this, &ProcessRun::handOver, Qt::QueuedConnection);
}

void ProcessRun::handOver()
{
    // Once the waiter has taken the outcome, the run (and the ended process) may go, unless
    // what the waiter did meanwhile closed its owner, which took the run along.
    const QPointer<ProcessRun> self(this);
    if (auto waiter = std::exchange(m_waiter, {}))
        waiter.resume();
    if (self)
        deleteLater();
}

ProcessRun::~ProcessRun()
{
    // The owner goes before the run was handed over: nothing of the process stays, and the
    // waiter learns that it was cancelled.
    if (!m_done) {
        m_done = true;
        m_process->disconnect(this);
        m_deadline.stop();
        m_idle.stop();
        m_grace.stop();
        if (m_process->state() != QProcess::NotRunning) {
            stopGroup(SIGTERM);
            stopGroup(SIGKILL);
            m_process->waitForFinished(5000);
        }
        liveGroups().erase(static_cast<pid_t>(m_pid));
    }
    if (auto waiter = std::exchange(m_waiter, {})) {
        m_outcome.kind = ProcessOutcome::cancelled;
        waiter.resume();
    }
}

struct ProcessRuns::Pause : QObject {
    explicit Pause(ProcessRuns* owner, int ms) : QObject(owner)
    {
        timer.setSingleShot(true);
        QObject::connect(&timer, &QTimer::timeout, this, [this] {
            const QPointer<Pause> self(this);
            if (auto resumed = std::exchange(waiter, {}))
                resumed.resume();
            if (self)
                deleteLater();
        });
        timer.start(ms);
    }
    // Cut short: the waiter goes on now.
    ~Pause() override
    {
        if (auto resumed = std::exchange(waiter, {}))
            resumed.resume();
    }
    QTimer timer;
    std::coroutine_handle<> waiter;
};

void ProcessRuns::PauseAwaiter::await_suspend(std::coroutine_handle<> waiter) noexcept { pause->waiter = waiter; }

ProcessRuns::PauseAwaiter ProcessRuns::pause(int ms)
{
    if (m_closed)
        return PauseAwaiter{nullptr};
    return PauseAwaiter{new Pause(this, ms)};
}

ProcessRun* ProcessRuns::start(ProcessRun::Options options)
{
    if (m_closed)
        return nullptr;
    return new ProcessRun(std::move(options), this);
}

void ProcessRuns::close()
{
    // A waiter that goes on may close again, which has nothing more to do; nor can it start
    // anything new.
    if (std::exchange(m_closed, true))
        return;
    while (!children().isEmpty())
        delete children().constFirst();
}

ProcessRuns::~ProcessRuns() { close(); }

} // namespace qf
