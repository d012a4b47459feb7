#pragma once

#include "Utf8Stream.h"

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QProcess>
#include <QTimer>

#include <coroutine>
#include <functional>

namespace qf {

// How one child process ended.
struct ProcessOutcome {
    enum Kind { exited, failedToStart, timedOut };
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
        QProcessEnvironment environment;
        Channels channels = Channels::separate;
        int timeoutMs = 0; // 0: no limit
        int terminationGraceMs = 3000;
        // Merged output as text, chunk by chunk, while `context` (when set) is alive.
        std::function<void(const QString&)> onOutput;
        QPointer<QObject> context;
        bool hasContext = false;
    };

    // Starts on the next turn of the event loop, so that the outcome can be awaited first.
    explicit ProcessRun(Options options);

    struct Awaiter {
        ProcessRun* run;
        bool await_ready() const noexcept { return false; }
        void await_suspend(std::coroutine_handle<> waiter) noexcept { run->m_waiter = waiter; }
        ProcessOutcome await_resume() const { return run->m_outcome; }
    };
    // Await this once, right after construction.
    Awaiter outcome() { return Awaiter{this}; }

private:
    void start();
    void readOutput();
    void readError();
    void deliver(const QString& text);
    void stopGroup(int signal);
    void finish(ProcessOutcome::Kind kind);

    Options m_options;
    QProcess* m_process;
    QTimer m_deadline;
    QTimer m_grace;
    Utf8StreamDecoder m_decoder;
    ProcessOutcome m_outcome;
    bool m_timedOut = false;
    bool m_done = false;
    std::coroutine_handle<> m_waiter;
};

} // namespace qf
