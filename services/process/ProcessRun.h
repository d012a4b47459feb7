#pragma once

#include "Utf8Stream.h"

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QProcess>
#include <QTimer>

#include <coroutine>
#include <functional>
#include <optional>
#include <vector>

// POSIX's sigaction and sigprocmask, which <csignal> need not declare.
#include <signal.h> // NOLINT(modernize-deprecated-headers)

namespace qf {

// How one child process ended.
struct ProcessOutcome {
    // Stopped ones: `timedOut` (ran too long), `outputLimitReached` (wrote more than is kept),
    // `stalled` (no output for too long).
    enum Kind { exited, failedToStart, timedOut, outputLimitReached, stalled };
    Kind kind = exited;
    int exitCode = 0;
    QByteArray standardOutput;
    QByteArray standardError;
    QString launchError;
};

// One child process from start to end, awaited with `co_await run->outcome()`. It owns its
// QProcess and deletes itself (and the process) only after the process has ended and the
// outcome was handed over, so a running process is never destroyed and nothing ever blocks
// waiting for one.
class ProcessRun : public QObject {
    Q_OBJECT

public:
    enum class Channels { separate, merged };

    struct Options {
        QString program;
        QStringList arguments;
        // "NAME=value" entries, given to the program byte for byte: values may hold line
        // breaks and bytes that are not UTF-8.
        QList<QByteArray> environment;
        QString workingDirectory;
        Channels channels = Channels::separate;
        int timeoutMs = 0; // 0: no limit
        int terminationGraceMs = 3000;
        // Separate channels: at most this many bytes of each are kept (0: no limit); a process
        // that writes more is stopped.
        qsizetype captureLimitBytes = 0;
        // A process without any output for this long is stopped (0: no limit), unless
        // `progress` (given the process group) tells a different count than the last time:
        // a download that prints nothing while bytes arrive is working.
        int inactivityTimeoutMs = 0;
        std::function<long long(long long group)> progress;
        // Merged output as text, chunk by chunk, while `context` (when set) is alive.
        std::function<void(const QString&)> onOutput;
        QPointer<QObject> context;
        bool hasContext = false;
        // The child also finds its standard output on descriptor 3 and its standard error on
        // descriptor 4, where a shell's start-up files, which may send 1 and 2 elsewhere,
        // leave them alone.
        bool outputAlsoOnThreeAndFour = false;
    };

    // Starts on the next turn of the event loop, so that the outcome can be awaited first.
    explicit ProcessRun(Options options);
    ~ProcessRun() override;

    // How many runs exist now, ended ones not yet gone included: work that nobody waits for
    // (a quiet check in the background) has ended when this is 0.
    static int existing();

    struct Awaiter {
        ProcessRun* run;
        bool await_ready() const noexcept { return false; }
        void await_suspend(std::coroutine_handle<> waiter) noexcept { run->m_waiter = waiter; }
        ProcessOutcome await_resume() const { return run->m_outcome; }
    };
    // Await this once, right after construction.
    Awaiter outcome() { return Awaiter{this}; }

    // Kills the process group of every command still running, and of every stopped one whose
    // grace has not passed yet. Runs by itself when the application quits, so that nothing a
    // command started outlives it.
    static void stopEveryGroup();

private:
    void start();
    void readOutput();
    void readError();
    // Keeps `bytes` of one channel, up to the limit.
    void capture(QByteArray& kept, const QByteArray& bytes);
    void deliver(const QString& text);
    // Stops the whole process group for `reason`: TERM now, KILL once the grace has passed.
    void stop(ProcessOutcome::Kind reason);
    void stopGroup(int signal);
    // The quiet time is over: stopped, unless the process made progress meanwhile.
    void quietTimeOver();
    void finish();

    Options m_options;
    // What the child is started with, prepared before the fork: the child only reads it.
    QByteArray m_executable;
    QList<QByteArray> m_argumentBytes;
    std::vector<char*> m_argv;
    std::vector<char*> m_envp;
    struct sigaction m_defaultAction {};
    sigset_t m_noSignals{};
    QProcess* m_process;
    QTimer m_deadline;
    QTimer m_idle;
    QTimer m_grace;
    Utf8StreamDecoder m_decoder;
    ProcessOutcome m_outcome;
    qint64 m_pid = 0;
    long long m_lastProgress = -1;
    std::optional<ProcessOutcome::Kind> m_stopReason;
    bool m_done = false;
    std::coroutine_handle<> m_waiter;
};

} // namespace qf
