#include "InstallationState.h"

#include "Preferences.h"

#include <algorithm>

namespace qf {

InstallationState::InstallationState(QObject* parent) : QObject(parent)
{
    if (Preferences::hasCompletedOnboarding())
        m_currentStep = InstallationStep::home;
}

template <typename T, typename Signal>
void InstallationState::assign(T& field, const T& value, Signal signal)
{
    if (field == value)
        return;
    field = value;
    Q_EMIT(this->*signal)();
    Q_EMIT changed();
}

void InstallationState::setCurrentStep(InstallationStep step)
{
    assign(m_currentStep, step, &InstallationState::currentStepChanged);
}

void InstallationState::setSelectedTool(std::optional<CLITool> tool)
{
    assign(m_selectedTool, tool, &InstallationState::selectedToolChanged);
}

void InstallationState::setRequirements(const QList<RequirementStatus>& requirements)
{
    assign(m_requirements, requirements, &InstallationState::requirementsChanged);
}

void InstallationState::setSetupSteps(const QList<SetupStep>& steps)
{
    assign(m_setupSteps, steps, &InstallationState::setupStepsChanged);
}

void InstallationState::setInstallationOutput(const QString& output)
{
    if (m_installationLog.text() == output && !m_installationLog.wasCut())
        return;
    m_installationLog.clear();
    m_installationLog.append(output);
    Q_EMIT installationOutputChanged();
    Q_EMIT changed();
}

void InstallationState::appendInstallationOutput(const QString& text)
{
    if (text.isEmpty())
        return;
    m_installationLog.append(text);
    Q_EMIT installationOutputChanged();
    Q_EMIT changed();
}

void InstallationState::setApiKey(const QString& key) { assign(m_apiKey, key, &InstallationState::apiKeyChanged); }

void InstallationState::setErrorMessage(const std::optional<QString>& message)
{
    assign(m_errorMessage, message, &InstallationState::errorMessageChanged);
}

void InstallationState::setCaveats(const QStringList& caveats)
{
    assign(m_caveats, caveats, &InstallationState::caveatsChanged);
}

void InstallationState::setToolAlreadyInstalled(bool installed)
{
    assign(m_toolAlreadyInstalled, installed, &InstallationState::toolAlreadyInstalledChanged);
}

void InstallationState::setIsOpeningExistingTool(bool opening)
{
    assign(m_isOpeningExistingTool, opening, &InstallationState::isOpeningExistingToolChanged);
}

void InstallationState::goToNextStep()
{
    if (auto next = installationStepFromRawValue(rawValue(m_currentStep) + 1))
        setCurrentStep(*next);
}

void InstallationState::goToPreviousStep()
{
    if (auto previous = installationStepFromRawValue(rawValue(m_currentStep) - 1))
        setCurrentStep(*previous);
}

void InstallationState::reset()
{
    setSelectedTool(std::nullopt);
    setRequirements({});
    setSetupSteps({});
    assign(m_isLoading, false, &InstallationState::isLoadingChanged);
    assign(m_installationProgress, 0.0, &InstallationState::installationProgressChanged);
    setInstallationOutput(QString());
    setApiKey(QString());
    setErrorMessage(std::nullopt);
    setCaveats({});
    setToolAlreadyInstalled(false);
    setIsOpeningExistingTool(false);
}

bool InstallationState::canProceed() const
{
    return std::all_of(m_requirements.cbegin(), m_requirements.cend(), [](const RequirementStatus& status) {
        return status.isMet || status.requirement.isInstalledBySetup();
    });
}

} // namespace qf
