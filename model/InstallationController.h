#pragma once

#include "CLITool.h"
#include "Errors.h"
#include "OperationRun.h"
#include "SetupModel.h"

#include <QCoro/QCoroTask>
#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace qf {

class InstallationState;
class LogBook;
class LogFile;

// What an installation needs from the installer: the steps of a tool, and a run of them that
// reports each step's changes and streams a readable log.
class SetupService {
public:
    // A step changed: its type, its new status and, when given, new details (none keeps the
    // details the step had).
    using StepUpdate = std::function<void(SetupStepType, SetupStepStatus, std::optional<QString>)>;
    using Output = std::function<void(const QString&)>;

    virtual ~SetupService() = default;
    virtual QCoro::Task<QList<SetupStep>> setupSteps(CLITool tool) = 0;
    // Once `cancellation` is cancelled, the command running stops, no later step starts and
    // what an unfinished step began is undone; the run then fails with a ServiceError that
    // isCancelled() and says what of it stays.
    virtual QCoro::Task<Result<void>> runSetup(CLITool tool, StepUpdate onStepUpdate, Output onOutput,
                                               Cancellation cancellation) = 0;
    // What the last run that succeeded left for the user to know (nothing by default).
    virtual QStringList caveats() const { return {}; }

protected:
    SetupService() = default;
    SetupService(const SetupService&) = default;
    SetupService& operator=(const SetupService&) = default;
};

// Runs installation attempts for the installation screen and mirrors what the installer
// reports into the shared state: the step list with live statuses, the growing log and the
// error text. Each run's whole log also goes to a file of its own in `logs`. It lives as long as the window, so a
// screen that goes away mid-run leaves the run going to its end without anything touching the gone screen; a new screen
// starts a new attempt. Attempts never overlap: a new one waits for the run before it to end, and from its start on
// only its own reports reach the state.
class InstallationController : public QObject {
    Q_OBJECT

public:
    InstallationController(InstallationState& state, SetupService& installer, const LogBook& logs,
                           QObject* parent = nullptr);

    // A run of the current attempt is going on.
    bool isInstalling() const { return m_isInstalling; }
    // The current attempt succeeded.
    bool installationComplete() const { return m_installationComplete; }
    // Some attempt's run is still going on (perhaps one that nobody watches any more).
    bool isRunning() const { return m_running; }
    // The whole log of the current attempt's run; none until the run has started.
    std::shared_ptr<const LogFile> logFile() const { return m_run.logFile(); }

    // A new attempt for the selected tool: clears the log and the error, builds the step list
    // and runs it. Without a selected tool nothing starts and the attempt stays idle. Never
    // fails: a failure becomes the state's error message.
    QCoro::Task<> startInstallation();

    // The user stops the current attempt's run (its "Cancel"): it fails, saying what stays.
    void cancelInstallation();
    // The current attempt ended because the user stopped it.
    bool wasCancelled() const
    {
        const std::optional<ServiceError>& error = m_run.error();
        return error.has_value() && error->isCancelled();
    }

    // Sets the status of the step of `type`, and its details when some are given. A type that
    // is not in the list changes nothing.
    void updateStep(SetupStepType type, const SetupStepStatus& status, const std::optional<QString>& details);

Q_SIGNALS:
    void isInstallingChanged();
    void installationCompleteChanged();
    // A run ended, whichever attempt it belonged to.
    void runEnded();

private:
    // A run is over: an attempt waiting for it may go on.
    void endRun();
    void setInstalling(bool installing);
    void setComplete(bool complete);
    bool isCurrent(int attempt) const { return attempt == m_attempt; }
    // The installer leaves a step that failed inside a command in progress; it failed, or
    // was stopped.
    void markUnfinishedStepsFailed(bool stopped);

    InstallationState& m_state;
    SetupService& m_installer;
    // The current attempt's run: its log file, and its output and failure on their way to the
    // state.
    OperationRun m_run;
    // What stops the current attempt.
    Cancellation m_cancellation;
    int m_attempt = 0;
    bool m_running = false;
    bool m_isInstalling = false;
    bool m_installationComplete = false;
};

} // namespace qf
