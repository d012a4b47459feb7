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
    // `stalled` (no output for too long), `cancelled` (its owner stopped it, or went away).
    enum Kind { exited, failedToStart, timedOut, outputLimitReached, stalled, cancelled };
    Kind kind = exited;
    int exitCode = 0;
    QByteArray standardOutput;
    QByteArray standardError;
    QString launchError;
};

class ProcessRuns;

// One child process from start to end, awaited with `co_await run->outcome()`. It belongs to
// the ProcessRuns that started it and deletes itself (and the process) once the process has
// ended and the outcome was handed over, so a running process is never left behind and
// nothing blocks waiting for one. Should its owner go first, the run stops the process group,
// waits for the process, and resumes its waiter with `cancelled` before it goes.
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

    ~ProcessRun() override;

    struct Awaiter {
        ProcessRun* run;
        bool await_ready() const noexcept { return false; }
        void await_suspend(std::coroutine_handle<> waiter) noexcept { run->m_waiter = waiter; }
        ProcessOutcome await_resume() const { return run->m_outcome; }
    };
    // Await this once, right after the run was started.
    Awaiter outcome() { return Awaiter{this}; }

    // Stops the process group as a time-out does (TERM now, KILL once the grace has passed);
    // the waiter resumes with `cancelled` once the process has ended. A run that has ended
    // already keeps its outcome.
    void cancel();

    // Kills the process group of every command still running, and of every stopped one whose
    // grace has not passed yet. Runs by itself when the application quits, so that nothing a
    // command started outlives it.
    static void stopEveryGroup();

private:
    friend class ProcessRuns;
    // Starts on the next turn of the event loop, so that the outcome can be awaited first.
    ProcessRun(Options options, ProcessRuns* owner);

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
    // Hands the outcome to the waiter; the run goes afterwards.
    void handOver();

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

// The runs one service started, and the waits between them: it can stop them, and when it
// goes, nothing it started outlives it. Closing stops every process group still running,
// waits for the processes and resumes every waiter at once (`cancelled` for a run), so the
// coroutines that waited end while their services are still there; a run started after that
// never starts and is cancelled at once.
class ProcessRuns : public QObject {
    Q_OBJECT

public:
    ProcessRuns() = default;
    ~ProcessRuns() override;

    // A run of `options`, started on the next turn of the event loop; await its outcome once.
    // Nothing once closed.
    ProcessRun* start(ProcessRun::Options options);

    // A wait of `ms` that ends early when the owner closes.
    struct Pause;
    struct PauseAwaiter {
        Pause* pause;
        bool await_ready() const noexcept { return pause == nullptr; }
        void await_suspend(std::coroutine_handle<> waiter) noexcept;
        void await_resume() const noexcept {}
    };
    PauseAwaiter pause(int ms);

    // Stops and ends everything now, as described above.
    void close();
    bool isClosed() const { return m_closed; }

private:
    bool m_closed = false;
};

} // namespace qf
