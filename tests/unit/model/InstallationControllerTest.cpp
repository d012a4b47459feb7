#include "CoroTest.h"
#include "Diagnosis.h"
#include "InstallationController.h"
#include "InstallationState.h"
#include "LogFile.h"
#include "TestSupport.h"

#include <QTemporaryDir>

#include <QCoro/QCoroTimer>

using namespace qf;

namespace {

// An installer that plays a script: its steps, what a run reports, and how the runs end (the
// first ones with `failures`, in order, the rest well). A run can be held at its end until the
// test lets it go.
class ScriptedSetup : public SetupService {
public:
    QList<SetupStep> steps;
    std::function<void(const StepUpdate&, const Output&)> script;
    QList<ServiceError> failures;
    bool hold = false; // runs started from now on wait at their end for `release()`
    bool released = false;
    int runsStarted = 0;
    int runsFinished = 0;

    void release() { released = true; }

    QCoro::Task<QList<SetupStep>> setupSteps(CLITool) override
    {
        QList<SetupStep> copy = steps;
        co_return copy;
    }

    QCoro::Task<Result<void>> runSetup(CLITool, StepUpdate update, Output output, Cancellation) override
    {
        ++runsStarted;
        const bool held = hold;
        if (script)
            script(update, output);
        while (held && !released)
            co_await QCoro::sleepFor(std::chrono::milliseconds(1));
        ++runsFinished;
        if (!failures.isEmpty())
            co_return failures.takeFirst();
        co_return Result<void>();
    }
};

class InstallationControllerTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        test::clearPreferences();
        state.setSelectedTool(CLITool::claudeCode);
        setup.steps = {{SetupStepType::createDeveloperFolder},
                       {SetupStepType::checkGit},
                       {SetupStepType::installTool, SetupStepStatus::pending, QStringLiteral("Claude Code")}};
    }

    SetupStep step(SetupStepType type) const
    {
        for (const SetupStep& entry : state.setupSteps()) {
            if (entry.type == type)
                return entry;
        }
        ADD_FAILURE() << "no step " << type.rawValue().toStdString();
        return {type};
    }

    InstallationState state;
    ScriptedSetup setup;
    QTemporaryDir logRoot;
    LogBook logs{logRoot.filePath(QStringLiteral("logs"))};
    InstallationController controller{state, setup, logs};
};

} // namespace

TEST_F(InstallationControllerTest, ReportsReachTheStateAsTheyCome)
{
    setup.script = [this](const SetupService::StepUpdate& update, const SetupService::Output& output) {
        EXPECT_TRUE(controller.isInstalling());
        EXPECT_EQ(state.setupSteps(), setup.steps); // the list is there before the run reports
        update(SetupStepType::createDeveloperFolder, SetupStepStatus::skipped, QStringLiteral("Already exists"));
        output(QStringLiteral("Found git "));
        output(QStringLiteral("version 2.39.5\n"));
        // Claude Code has no Node.js step: that report goes nowhere.
        update(SetupStepType::installNode, SetupStepStatus::completed, QStringLiteral("v22.1.0"));
        // No details: the tool's name stays.
        update(SetupStepType::installTool, SetupStepStatus::inProgress, std::nullopt);
        EXPECT_EQ(step(SetupStepType::installTool).details, QStringLiteral("Claude Code"));
        update(SetupStepType::installTool, SetupStepStatus::completed, QStringLiteral("1.0.42"));
    };
    ASSERT_TRUE(test::await(controller.startInstallation()));

    EXPECT_FALSE(controller.isInstalling());
    EXPECT_TRUE(controller.installationComplete());
    EXPECT_EQ(state.installationOutput(), QStringLiteral("Found git version 2.39.5\n"));
    EXPECT_EQ(state.setupSteps().size(), 3);
    EXPECT_EQ(step(SetupStepType::createDeveloperFolder).status, SetupStepStatus(SetupStepStatus::skipped));
    EXPECT_EQ(step(SetupStepType::checkGit).status, SetupStepStatus(SetupStepStatus::pending));
    EXPECT_EQ(step(SetupStepType::installTool).details, QStringLiteral("1.0.42"));
    EXPECT_FALSE(state.errorMessage().has_value());
}

TEST_F(InstallationControllerTest, AFailureIsToldAndTheNextAttemptStartsClean)
{
    setup.script = [](const SetupService::StepUpdate& update, const SetupService::Output& output) {
        update(SetupStepType::createDeveloperFolder, SetupStepStatus::completed, QStringLiteral("Created"));
        update(SetupStepType::checkGit, SetupStepStatus::completed, QStringLiteral("git version 2.39.5"));
        update(SetupStepType::installTool, SetupStepStatus::inProgress, std::nullopt);
        output(QStringLiteral("npm ERR! 404\n"));
    };
    const ServiceError npmFailed(ShellError::failed(1, QStringLiteral("npm ERR! 404")));
    setup.failures = {npmFailed};
    ASSERT_TRUE(test::await(controller.startInstallation()));

    EXPECT_FALSE(controller.isInstalling());
    EXPECT_FALSE(controller.installationComplete());
    // The screen says it plainly; the log keeps the command's own words.
    EXPECT_EQ(state.errorMessage(), failureSentence(FailureCause::notFound));
    EXPECT_TRUE(state.installationOutput().endsWith(QStringLiteral("\nError: ") + npmFailed.errorDescription() +
                                                    QLatin1Char('\n')));
    // The step that was running when the command failed ends red; finished steps stay done.
    EXPECT_EQ(step(SetupStepType::installTool).status.kind(), SetupStepStatus::failed);
    EXPECT_EQ(step(SetupStepType::checkGit).status, SetupStepStatus(SetupStepStatus::completed));

    // Trying again clears the log and the error first and starts from fresh steps.
    setup.script = [this](const SetupService::StepUpdate&, const SetupService::Output&) {
        EXPECT_TRUE(state.installationOutput().isEmpty());
        EXPECT_FALSE(state.errorMessage().has_value());
        EXPECT_EQ(state.setupSteps(), setup.steps);
    };
    ASSERT_TRUE(test::await(controller.startInstallation()));
    EXPECT_TRUE(controller.installationComplete());
    EXPECT_EQ(setup.runsStarted, 2);
}

TEST_F(InstallationControllerTest, AttemptsNeverOverlapAndOnlyTheNewestIsShown)
{
    // The first attempt's screen went away mid-run; a new screen starts a new attempt.
    setup.hold = true;
    setup.script = [](const SetupService::StepUpdate& update, const SetupService::Output& output) {
        update(SetupStepType::checkGit, SetupStepStatus::inProgress, std::nullopt);
        output(QStringLiteral("first\n"));
    };
    QCoro::Task<> first = controller.startInstallation();
    ASSERT_EQ(setup.runsStarted, 1);
    QCoro::Task<> second = controller.startInstallation();
    EXPECT_EQ(setup.runsStarted, 1); // it waits for the first run to end
    EXPECT_TRUE(controller.isInstalling());
    EXPECT_TRUE(state.installationOutput().isEmpty());

    setup.hold = false;
    setup.script = [](const SetupService::StepUpdate&, const SetupService::Output& output) {
        output(QStringLiteral("second\n"));
    };
    setup.failures = {ServiceError(ShellError::failed(1, QStringLiteral("stale")))}; // the first run's end
    setup.release();
    ASSERT_TRUE(test::await(std::move(first)));
    ASSERT_TRUE(test::await(std::move(second)));

    EXPECT_EQ(setup.runsStarted, 2);
    EXPECT_EQ(state.installationOutput(), QStringLiteral("second\n"));
    EXPECT_FALSE(state.errorMessage().has_value());
    EXPECT_TRUE(controller.installationComplete());
    EXPECT_EQ(step(SetupStepType::checkGit).status, SetupStepStatus(SetupStepStatus::pending));
}

TEST_F(InstallationControllerTest, WithoutAToolNothingStarts)
{
    state.setSelectedTool(std::nullopt);
    state.setInstallationOutput(QStringLiteral("kept\n"));
    ASSERT_TRUE(test::await(controller.startInstallation()));
    EXPECT_EQ(setup.runsStarted, 0);
    EXPECT_FALSE(controller.isInstalling());
    EXPECT_FALSE(controller.installationComplete());
    EXPECT_EQ(state.installationOutput(), QStringLiteral("kept\n"));
}

namespace {

// The whole log of a run, once the file has taken all of it.
std::optional<QString> wholeLog(const std::shared_ptr<const LogFile>& file)
{
    std::optional<std::optional<QString>> text = test::await(file->readWhole());
    return text ? *text : std::nullopt;
}

} // namespace

TEST_F(InstallationControllerTest, ARunThatLostTheScreenStillWritesItsOwnFile)
{
    SetupService::Output firstOutput;
    setup.hold = true;
    setup.script = [&firstOutput](const SetupService::StepUpdate&, const SetupService::Output& output) {
        firstOutput = output;
        output(QStringLiteral("first\n"));
    };
    QCoro::Task<> first = controller.startInstallation();
    const std::shared_ptr<const LogFile> firstFile = controller.logFile();
    ASSERT_TRUE(firstFile);
    QCoro::Task<> second = controller.startInstallation();
    EXPECT_FALSE(controller.logFile()); // no file before the new run starts

    firstOutput(QStringLiteral("late\n"));
    EXPECT_TRUE(state.installationOutput().isEmpty()); // the screen shows the new attempt only
    setup.hold = false;
    setup.script = [](const SetupService::StepUpdate&, const SetupService::Output& output) {
        output(QStringLiteral("second\n"));
    };
    setup.release();
    ASSERT_TRUE(test::await(std::move(first)));
    ASSERT_TRUE(test::await(std::move(second)));

    EXPECT_EQ(wholeLog(firstFile), QStringLiteral("first\nlate\n"));
    ASSERT_TRUE(controller.logFile());
    EXPECT_EQ(wholeLog(controller.logFile()), QStringLiteral("second\n"));
}
