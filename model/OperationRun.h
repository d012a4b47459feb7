#pragma once

#include "Cancellation.h"
#include "Errors.h"

#include <QCoro/QCoroTask>
#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace qf {

class LogBook;
class LogFile;

// One operation on the machine as its screen follows it (an update, a removal, an
// installation): where it is, its log, and how it ended. Each run's whole log goes to a file of
// its own in `logs` as it comes, also once nobody watches any more; the output of the newest run
// only is told to whoever watches. A failure is one plain sentence for the screen, and its whole
// description goes into the log.
class OperationRun : public QObject {
    Q_OBJECT

public:
    enum class Phase { ready, running, complete, failed };
    // What a cancelled password dialog means: a failure like any other, or nothing that
    // happened, so that the question stands again.
    enum class Declined { fails, asksAgain };
    using Output = std::function<void(const QString&)>;

    explicit OperationRun(const LogBook& logs, Declined declined = Declined::fails, QObject* parent = nullptr);

    Phase phase() const { return m_phase; }
    bool isRunning() const { return m_phase == Phase::running; }
    // What stopped the newest run, whole.
    const std::optional<ServiceError>& error() const { return m_error; }
    // What the screen says of that: one plain sentence.
    std::optional<QString> errorMessage() const;
    // Whether the newest run has said anything yet.
    bool hasOutput() const { return m_hasOutput; }
    // The whole log of the newest run; none until a run has begun.
    std::shared_ptr<const LogFile> logFile() const { return m_logFile; }

    // A new run, with a new log file for `title` ("Update Gemini CLI"): the error and the
    // output of the one before go, and whatever it still says goes to its own file only.
    // `cancellation` is what stops it (a new one unless given).
    void begin(const QString& title, Cancellation cancellation = Cancellation());
    // What stops the newest run: hand it to the operation.
    Cancellation cancellation() const { return m_cancellation; }
    // The user stops the newest run: the operation stops and ends, failing with
    // ServiceError::isCancelled().
    void cancel();
    // Where the output of the newest run goes from a command that may outlive this object: the
    // run's file always, and `outputAppended` while it is still the newest run.
    Output sink();
    void succeed();
    // The run failed with `error`: the log gets the whole description when the plain sentence
    // leaves something out, and a run the user stopped ends with saying so.
    void fail(const ServiceError& error);
    // Nothing runs for the screen any more (an attempt that has no run yet): back to ready with
    // no log; a run still going on writes its own file only.
    void detach();

    // Follows `task`, started with `sink()` as its output: its result ends the run, unless this
    // object is gone by then. `onSuccess` gets what the operation returned before the phase
    // changes.
    template <typename T>
    void follow(QCoro::Task<Result<T>> task, std::function<void(const T&)> onSuccess = {})
    {
        QCoro::connect(std::move(task), this, [this, onSuccess = std::move(onSuccess)](const Result<T>& result) {
            if (!result) {
                fail(result.error());
                return;
            }
            if (onSuccess)
                onSuccess(result.value());
            succeed();
        });
    }
    void follow(QCoro::Task<Result<void>> task);

Q_SIGNALS:
    // The phase or the error changed.
    void phaseChanged();
    // The newest run said `text`.
    void outputAppended(const QString& text);

private:
    void setPhase(Phase phase);
    void append(int generation, const QString& text);

    const LogBook& m_logs;
    Declined m_declined;
    Phase m_phase = Phase::ready;
    std::optional<ServiceError> m_error;
    bool m_hasOutput = false;
    std::shared_ptr<LogFile> m_logFile;
    // Counts the runs, so that an earlier one's output stays in its file.
    int m_generation = 0;
    Cancellation m_cancellation;
};

} // namespace qf
