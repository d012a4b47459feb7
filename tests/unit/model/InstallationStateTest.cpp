#include "InstallationState.h"
#include "Preferences.h"
#include "TestSupport.h"

#include <QFile>
#include <QSignalSpy>

using namespace qf;

namespace {

class InstallationStateTest : public ::testing::Test {
protected:
    void SetUp() override { m_preferences = test::clearPreferences(); }
    QString m_preferences;
};

void fillEverything(InstallationState& state)
{
    state.setCurrentStep(InstallationStep::installation);
    state.setSelectedTool(CLITool::geminiCLI);
    state.setRequirements({{SystemRequirement::macOSVersion, true, QStringLiteral("macOS 14.5.0")}});
    state.setSetupSteps({{SetupStepType::checkGit, SetupStepStatus::completed, QStringLiteral("git version 2.39")}});
    state.setInstallationOutput(QStringLiteral("Found git version 2.39\n"));
    state.setApiKey(QStringLiteral("key"));
    state.setErrorMessage(QStringLiteral("Command failed"));
    state.setToolAlreadyInstalled(true);
    state.setIsOpeningExistingTool(true);
}

} // namespace

// Everything that belongs to one setup attempt is at its initial value.
void expectNoAttempt(const InstallationState& state)
{
    EXPECT_FALSE(state.selectedTool().has_value());
    EXPECT_TRUE(state.requirements().isEmpty());
    EXPECT_TRUE(state.setupSteps().isEmpty());
    EXPECT_FALSE(state.isLoading());
    EXPECT_EQ(state.installationProgress(), 0.0);
    EXPECT_TRUE(state.installationOutput().isEmpty());
    EXPECT_TRUE(state.apiKey().isEmpty());
    EXPECT_FALSE(state.errorMessage().has_value());
    EXPECT_FALSE(state.toolAlreadyInstalled());
    EXPECT_FALSE(state.isOpeningExistingTool());
}

TEST_F(InstallationStateTest, StartsEmptyAtTheStepTheStoredPreferenceSays)
{
    {
        InstallationState state;
        EXPECT_EQ(state.currentStep(), InstallationStep::onboarding);
        expectNoAttempt(state);
        EXPECT_FALSE(state.hasAnyInstalledTools());
    }
    // Creating the state reads the preference and never writes it.
    EXPECT_FALSE(QFile::exists(m_preferences));

    Preferences::setHasCompletedOnboarding(false);
    EXPECT_EQ(InstallationState().currentStep(), InstallationStep::onboarding);

    Preferences::setHasCompletedOnboarding(true);
    InstallationState returning;
    EXPECT_EQ(returning.currentStep(), InstallationStep::home);
    EXPECT_TRUE(Preferences::hasCompletedOnboarding());
}

TEST_F(InstallationStateTest, NeighbourNavigationWalksTheFlowAndStopsAtBothEnds)
{
    InstallationState state;
    QSignalSpy changes(&state, &InstallationState::currentStepChanged);

    state.goToPreviousStep();
    EXPECT_EQ(state.currentStep(), InstallationStep::onboarding);
    EXPECT_EQ(changes.count(), 0);

    for (int raw = 1; raw <= 8; ++raw) {
        state.goToNextStep();
        EXPECT_EQ(rawValue(state.currentStep()), raw);
    }
    EXPECT_EQ(changes.count(), 8);
    state.goToNextStep();
    EXPECT_EQ(state.currentStep(), InstallationStep::terminal);
    EXPECT_EQ(changes.count(), 8);

    for (int raw = 7; raw >= 0; --raw) {
        state.goToPreviousStep();
        EXPECT_EQ(rawValue(state.currentStep()), raw);
    }
    state.goToPreviousStep();
    EXPECT_EQ(state.currentStep(), InstallationStep::onboarding);
}

TEST_F(InstallationStateTest, ResetClearsTheAttemptButNotTheStep)
{
    InstallationState state;
    fillEverything(state);
    QSignalSpy stepChanges(&state, &InstallationState::currentStepChanged);

    state.reset();

    EXPECT_EQ(state.currentStep(), InstallationStep::installation);
    EXPECT_EQ(stepChanges.count(), 0);
    expectNoAttempt(state);
}

TEST_F(InstallationStateTest, CanProceedIgnoresOnlyNodeJS)
{
    InstallationState state;
    EXPECT_TRUE(state.canProceed()); // nothing checked yet

    const RequirementStatus macOK{SystemRequirement::macOSVersion, true, QStringLiteral("macOS 14.5.0")};
    const RequirementStatus diskOK{SystemRequirement::diskSpace, true, QStringLiteral("512 MB available")};
    const RequirementStatus nodeMissing{SystemRequirement::nodeJS, false, QStringLiteral("Not installed")};

    state.setRequirements({macOK, diskOK, nodeMissing});
    EXPECT_TRUE(state.canProceed());

    state.setRequirements(
        {{SystemRequirement::macOSVersion, false, QStringLiteral("macOS 13.6.1")}, diskOK, nodeMissing});
    EXPECT_FALSE(state.canProceed());

    state.setRequirements({macOK, {SystemRequirement::diskSpace, false, QStringLiteral("199 MB available")}});
    EXPECT_FALSE(state.canProceed());

    state.setRequirements({macOK, diskOK, {SystemRequirement::nodeJS, true, QStringLiteral("v20.10.0")}});
    EXPECT_TRUE(state.canProceed());
}

TEST_F(InstallationStateTest, EveryChangeIsSignalledOnceAndRepeatsAreSilent)
{
    InstallationState state;
    QSignalSpy any(&state, &InstallationState::changed);
    QSignalSpy tool(&state, &InstallationState::selectedToolChanged);
    QSignalSpy output(&state, &InstallationState::installationOutputChanged);

    state.setSelectedTool(CLITool::codex);
    state.setSelectedTool(CLITool::codex);
    EXPECT_EQ(tool.count(), 1);

    state.appendInstallationOutput(QStringLiteral("a"));
    state.appendInstallationOutput(QString());
    state.appendInstallationOutput(QStringLiteral("b\n"));
    EXPECT_EQ(state.installationOutput(), QStringLiteral("ab\n"));
    EXPECT_EQ(output.count(), 2);
    EXPECT_EQ(any.count(), 3);

    // The absent tool is a state of its own, distinct from every tool.
    state.setSelectedTool(std::nullopt);
    EXPECT_EQ(tool.count(), 2);
    EXPECT_FALSE(state.selectedTool().has_value());
}
