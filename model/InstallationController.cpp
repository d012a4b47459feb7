#include "InstallationController.h"

#include "InstallationState.h"

#include <QCoro/QCoroSignal>
#include <QPointer>

namespace qf {

InstallationController::InstallationController(InstallationState& state, SetupService& installer, const LogBook& logs,
                                               QObject* parent)
    : QObject(parent), m_state(state), m_installer(installer), m_run(logs)
{
    connect(&m_run, &OperationRun::outputAppended, this,
            [this](const QString& text) { m_state.appendInstallationOutput(text); });
}

QCoro::Task<> InstallationController::startInstallation()
{
    // From here on only this attempt's reports reach the state. The controller normally lives
    // as long as the window; should it go first, its attempts end at their next step.
    const QPointer<InstallationController> self(this);
    const int attempt = ++m_attempt;
    const Cancellation cancellation;
    m_cancellation = cancellation;
    m_run.detach();
    const std::optional<CLITool> tool = m_state.selectedTool();
    if (!tool) {
        setInstalling(false);
        setComplete(false);
        co_return;
    }
    setInstalling(true);
    setComplete(false);
    m_state.setErrorMessage(std::nullopt);
    m_state.setCaveats({});
    m_state.setInstallationOutput(QString());

    // A run of an earlier attempt may still be going on (its screen went away); two
    // installations at once would fight over the same files.
    while (m_running) {
        co_await qCoro(this, &InstallationController::runEnded);
        if (!self || !isCurrent(attempt))
            co_return;
    }

    m_running = true;
    const QList<SetupStep> steps = co_await m_installer.setupSteps(*tool);
    if (!self)
        co_return;
    if (!isCurrent(attempt)) {
        endRun();
        co_return;
    }
    m_state.setSetupSteps(steps);
    m_run.begin(QStringLiteral("Install ") + tool->displayName(), cancellation);

    // The callbacks are named before the run: GCC 12 destroys some temporaries of a co_await
    // expression twice. The file gets the whole run, also once a newer attempt has taken over
    // the screen.
    const SetupService::StepUpdate onStepUpdate = [self, attempt](SetupStepType type, const SetupStepStatus& status,
                                                                  const std::optional<QString>& details) {
        if (self && self->isCurrent(attempt))
            self->updateStep(type, status, details);
    };
    const SetupService::Output onOutput = m_run.sink();
    const Result<void> result = co_await m_installer.runSetup(*tool, onStepUpdate, onOutput, cancellation);
    if (!self)
        co_return;
    if (isCurrent(attempt)) {
        setInstalling(false);
        if (result) {
            m_run.succeed();
            m_state.setCaveats(m_installer.caveats());
            setComplete(true);
        } else {
            markUnfinishedStepsFailed(result.error().isCancelled());
            m_run.fail(result.error());
            m_state.setErrorMessage(m_run.errorMessage());
        }
    }
    endRun();
}

void InstallationController::endRun()
{
    m_running = false;
    Q_EMIT runEnded();
}

void InstallationController::updateStep(SetupStepType type, const SetupStepStatus& status,
                                        const std::optional<QString>& details)
{
    QList<SetupStep> steps = m_state.setupSteps();
    const auto step = std::find_if(steps.begin(), steps.end(),
                                   [type](const SetupStep& candidate) { return candidate.type == type; });
    if (step == steps.end())
        return;
    step->status = status;
    if (details)
        step->details = details;
    m_state.setSetupSteps(steps);
}

void InstallationController::markUnfinishedStepsFailed(bool stopped)
{
    const QList<SetupStep> steps = m_state.setupSteps();
    const SetupStepStatus status = SetupStepStatus::failure(stopped ? tr("Stopped") : tr("Failed"));
    for (const SetupStep& step : steps) {
        if (step.status.kind() == SetupStepStatus::inProgress)
            updateStep(step.type, status, std::nullopt);
    }
}

void InstallationController::cancelInstallation()
{
    if (m_isInstalling)
        m_cancellation.cancel();
}

void InstallationController::setInstalling(bool installing)
{
    if (m_isInstalling == installing)
        return;
    m_isInstalling = installing;
    Q_EMIT isInstallingChanged();
}

void InstallationController::setComplete(bool complete)
{
    if (m_installationComplete == complete)
        return;
    m_installationComplete = complete;
    Q_EMIT installationCompleteChanged();
}

} // namespace qf
