#pragma once

#include "BoundedLog.h"
#include "CLITool.h"
#include "SetupModel.h"

#include <QList>
#include <QObject>
#include <QString>

#include <optional>

namespace qf {

// The one shared, observable object of the application: which screen is shown, which tool
// is being set up, the system check's findings, the setup steps, the log and the last error.
// Every field has its own change signal; `changed()` follows any of them.
class InstallationState : public QObject {
    Q_OBJECT

public:
    // Starts on the introduction, or on Home when the introduction was completed before.
    explicit InstallationState(QObject* parent = nullptr);

    InstallationStep currentStep() const { return m_currentStep; }
    std::optional<CLITool> selectedTool() const { return m_selectedTool; }
    const QList<RequirementStatus>& requirements() const { return m_requirements; }
    const QList<SetupStep>& setupSteps() const { return m_setupSteps; }
    bool isLoading() const { return m_isLoading; }
    double installationProgress() const { return m_installationProgress; }
    // The log on screen: the newest part of a long one (the whole log is in the log file).
    const QString& installationOutput() const { return m_installationLog.text(); }
    const BoundedLog& installationLog() const { return m_installationLog; }
    const QString& apiKey() const { return m_apiKey; }
    const std::optional<QString>& errorMessage() const { return m_errorMessage; }
    // What a finished installation left for the user to know: each a sentence of what is off
    // and what to do.
    const QStringList& caveats() const { return m_caveats; }
    bool toolAlreadyInstalled() const { return m_toolAlreadyInstalled; }
    bool hasAnyInstalledTools() const { return m_hasAnyInstalledTools; }
    bool isOpeningExistingTool() const { return m_isOpeningExistingTool; }

    void setCurrentStep(InstallationStep step);
    void setSelectedTool(std::optional<CLITool> tool);
    void setRequirements(const QList<RequirementStatus>& requirements);
    void setSetupSteps(const QList<SetupStep>& steps);
    void setInstallationOutput(const QString& output);
    void appendInstallationOutput(const QString& text);
    void setApiKey(const QString& key);
    void setErrorMessage(const std::optional<QString>& message);
    void setCaveats(const QStringList& caveats);
    void setToolAlreadyInstalled(bool installed);
    void setIsOpeningExistingTool(bool opening);

    // Neighbour moves in flow order; nothing happens at either end.
    void goToNextStep();
    void goToPreviousStep();
    // Clears everything of one setup attempt. Leaves `currentStep` alone: callers go on to set it.
    void reset();
    // True when every requirement is met or is Node.js, which the installation installs itself.
    bool canProceed() const;

Q_SIGNALS:
    void currentStepChanged();
    void selectedToolChanged();
    void requirementsChanged();
    void setupStepsChanged();
    void isLoadingChanged();
    void installationProgressChanged();
    void installationOutputChanged();
    void apiKeyChanged();
    void errorMessageChanged();
    void caveatsChanged();
    void toolAlreadyInstalledChanged();
    void hasAnyInstalledToolsChanged();
    void isOpeningExistingToolChanged();
    void changed();

private:
    template <typename T, typename Signal>
    void assign(T& field, const T& value, Signal signal);

    InstallationStep m_currentStep = InstallationStep::onboarding;
    std::optional<CLITool> m_selectedTool;
    QList<RequirementStatus> m_requirements;
    QList<SetupStep> m_setupSteps;
    bool m_isLoading = false;
    double m_installationProgress = 0.0;
    BoundedLog m_installationLog;
    QString m_apiKey;
    std::optional<QString> m_errorMessage;
    QStringList m_caveats;
    bool m_toolAlreadyInstalled = false;
    bool m_hasAnyInstalledTools = false;
    bool m_isOpeningExistingTool = false;
};

} // namespace qf
