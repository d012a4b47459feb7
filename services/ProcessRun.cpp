#include "ProcessRun.h"

#include <csignal>

#include <sys/types.h>
#include <unistd.h>

namespace qf {

ProcessRun::ProcessRun(Options options) : m_options(std::move(options)), m_process(new QProcess(this))
{
    m_process->setProgram(m_options.program);
    m_process->setArguments(m_options.arguments);
    m_process->setProcessEnvironment(m_options.environment);
    m_process->setStandardInputFile(QProcess::nullDevice());
    m_process->setProcessChannelMode(m_options.channels == Channels::merged ? QProcess::MergedChannels
                                                                            : QProcess::SeparateChannels);
    // A session of its own: no controlling terminal (so sudo or a login file cannot ask a
    // question on the terminal Quillforge was started from) and one process group to stop.
    m_process->setChildProcessModifier([] { ::setsid(); });

    connect(m_process, &QProcess::readyReadStandardOutput, this, &ProcessRun::readOutput);
    connect(m_process, &QProcess::readyReadStandardError, this, &ProcessRun::readError);
    connect(m_process, &QProcess::finished, this, [this](int exitCode, QProcess::ExitStatus) {
        m_outcome.exitCode = exitCode;
        finish(m_timedOut ? ProcessOutcome::timedOut : ProcessOutcome::exited);
    });
    connect(m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            m_outcome.launchError = m_process->errorString();
            finish(ProcessOutcome::failedToStart);
        }
    });

    m_deadline.setSingleShot(true);
    connect(&m_deadline, &QTimer::timeout, this, [this] {
        m_timedOut = true;
        stopGroup(SIGTERM);
        m_grace.start(m_options.terminationGraceMs);
    });
    m_grace.setSingleShot(true);
    connect(&m_grace, &QTimer::timeout, this, [this] { stopGroup(SIGKILL); });

    QMetaObject::invokeMethod(this, &ProcessRun::start, Qt::QueuedConnection);
}

void ProcessRun::start()
{
    m_process->start();
    if (m_options.timeoutMs > 0 && !m_done)
        m_deadline.start(m_options.timeoutMs);
}

void ProcessRun::readOutput()
{
    const QByteArray bytes = m_process->readAllStandardOutput();
    if (m_options.channels == Channels::merged)
        deliver(m_decoder.feed(bytes));
    else
        m_outcome.standardOutput += bytes;
}

void ProcessRun::readError() { m_outcome.standardError += m_process->readAllStandardError(); }

void ProcessRun::deliver(const QString& text)
{
    if (text.isEmpty() || !m_options.onOutput)
        return;
    if (m_options.hasContext && !m_options.context)
        return;
    m_options.onOutput(text);
}

void ProcessRun::stopGroup(int signal)
{
    const qint64 pid = m_process->processId();
    if (pid <= 0)
        return;
    // The child leads its own process group: stopping the group reaches the shell and
    // everything it started. Should that not hold, stop the shell at least.
    if (::kill(-static_cast<pid_t>(pid), signal) != 0)
        ::kill(static_cast<pid_t>(pid), signal);
}

void ProcessRun::finish(ProcessOutcome::Kind kind)
{
    if (m_done)
        return;
    m_done = true;
    m_deadline.stop();
    m_grace.stop();
    if (kind != ProcessOutcome::failedToStart) {
        readOutput();
        if (m_options.channels == Channels::merged)
            deliver(m_decoder.finish());
        else
            readError();
    }
    m_outcome.kind = kind;
    // Resume the waiting coroutine outside QProcess's own signal handling; once it has taken
    // the outcome, the run (and the ended process) may go.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (auto waiter = std::exchange(m_waiter, {}))
                waiter.resume();
            deleteLater();
        },
        Qt::QueuedConnection);
}

} // namespace qf
