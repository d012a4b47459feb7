#include "AccountSetupView.h"
#include "ContentView.h"
#include "CopiedToast.h"
#include "Diagnosis.h"
#include "FlowWindowTest.h"
#include "InstallationController.h"
#include "InstallationState.h"
#include "InstallationView.h"
#include "Label.h"
#include "Layout.h"
#include "LogFile.h"
#include "LogView.h"
#include "MainWindow.h"
#include "SystemCheckView.h"
#include "TestSupport.h"
#include "WelcomeView.h"

#include "CoroTest.h"

#include <QClipboard>
#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace qf;

namespace {

class InstallFlowTest : public test::FlowWindowTest {};

} // namespace

TEST_F(InstallFlowTest, FromTheAccountScreenToACompletedInstallation)
{
    sandbox.installFakes({"git", "curl"});
    open(InstallationStep::accountSetup, CLITool::claudeCode);
    auto* account = screenAs<AccountSetupView>();
    ASSERT_EQ(account->stepRows().size(), 4);
    EXPECT_TRUE(shows(button("createAccountButton")));
    button("createAccountButton")->click();
    EXPECT_EQ(platform.openedURLs, QList<QUrl>{CLITool(CLITool::claudeCode).signUpURL()});
    EXPECT_EQ(state.currentStep(), InstallationStep::accountSetup);

    // Back to the tool choice: the chosen tool is the one expanded card.
    click("backButton");
    auto* welcome = screenAs<WelcomeView>();
    const auto expanded = [welcome] {
        QList<CLITool> open;
        for (ToolCard* card : welcome->toolCards()) {
            if (test::child(card, QStringLiteral("toolDetails"))->isVisible())
                open << card->tool();
        }
        return open;
    };
    EXPECT_EQ(expanded(), QList<CLITool>{CLITool::claudeCode});
    state.setSelectedTool(std::nullopt);
    EXPECT_TRUE(expanded().isEmpty());
    EXPECT_FALSE(button("continueButton")->isEnabled());
    QTest::mouseClick(welcome->toolCards()[1], Qt::LeftButton);
    QTest::mouseClick(welcome->toolCards()[0], Qt::LeftButton);
    QTest::mouseClick(welcome->toolCards()[0], Qt::LeftButton); // choosing it again keeps it chosen
    EXPECT_EQ(expanded(), QList<CLITool>{CLITool::claudeCode});
    EXPECT_EQ(state.selectedTool(), CLITool::claudeCode);
    // The explainer for newcomers opens and closes.
    for (const bool open : {false, true, false}) {
        EXPECT_EQ(showsChild("whatIsAIBody"), open);
        click("whatIsAIHeader");
    }

    // Return presses the main button, wherever the focus is.
    button("continueButton")->setFocus();
    QTest::keyClick(window.get(), Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([this] { return state.currentStep() == InstallationStep::accountSetup; }));
    click("haveAccountButton");

    ASSERT_EQ(state.currentStep(), InstallationStep::systemCheck);
    waitForCheck();
    EXPECT_EQ(button("mainButton")->title(), QStringLiteral("Install"));
    EXPECT_EQ(screenAs<SystemCheckView>()->requirementRows().size(), 3); // Claude Code needs no Node.js
    click("mainButton");

    ASSERT_EQ(state.currentStep(), InstallationStep::installation);
    waitForInstallation();
    EXPECT_EQ(text("installationTitle"), QStringLiteral("Installation Complete!"));
    EXPECT_EQ(step(SetupStepType::installTool).status, SetupStepStatus(SetupStepStatus::completed));
    EXPECT_FALSE(showsChild("errorCard"));
    EXPECT_TRUE(shows(button("backButton")));
    EXPECT_EQ(button("mainButton")->title(), QStringLiteral("Continue"));
    click("mainButton");
    EXPECT_EQ(state.currentStep(), InstallationStep::completion);
}

TEST_F(InstallFlowTest, AToolAlreadyOnThePathIsOfferedInTheTerminal)
{
    sandbox.installFakes({"claude"});
    open(InstallationStep::systemCheck, CLITool::claudeCode);
    waitForCheck();
    EXPECT_TRUE(state.toolAlreadyInstalled());
    EXPECT_TRUE(state.requirements().isEmpty());
    EXPECT_EQ(text("alreadyInstalledTitle"), QStringLiteral("Claude Code is already installed!"));
    EXPECT_EQ(text("installedVersion"), QStringLiteral("Version: 1.0.42 (claude)"));
    click("mainButton");
    EXPECT_EQ(state.currentStep(), InstallationStep::terminal);

    // Without a readable version the card says nothing about one.
    sandbox.setEnv("FAKE_TOOL_VERSION_FAIL", "1");
    open(InstallationStep::systemCheck, CLITool::claudeCode);
    waitForCheck();
    EXPECT_TRUE(showsChild("alreadyInstalled"));
    EXPECT_FALSE(showsChild("installedVersion"));
    EXPECT_EQ(button("mainButton")->title(), QStringLiteral("Open Terminal"));
}

TEST_F(InstallFlowTest, RequirementsDecideWhetherTheInstallationMayStart)
{
    // Node.js missing does not block: the installation brings it.
    sandbox.installFake(QStringLiteral("git"));
    open(InstallationStep::systemCheck, CLITool::geminiCLI);
    waitForCheck();
    QList<RequirementRow*> rows = screenAs<SystemCheckView>()->requirementRows();
    ASSERT_EQ(rows.size(), 4);
    auto* nodeRow = test::child<RequirementRow>(screen(), QStringLiteral("requirementRow.nodeJS"));
    auto* nodeStatus = test::child<ui::Label>(nodeRow, QStringLiteral("requirementStatus"));
    EXPECT_EQ(nodeStatus->text(), QStringLiteral("Will be installed for you"));
    EXPECT_EQ(nodeStatus->tint(), ui::Tint(ui::Role::orange));
    // Its help agrees: nothing for the user to do.
    EXPECT_EQ(textIn(nodeRow, "requirementFix"),
              QStringLiteral("Quillforge installs it for you as part of the setup."));
    EXPECT_FALSE(showsChild("blockedNotice"));
    EXPECT_EQ(button("mainButton")->title(), QStringLiteral("Install"));
    EXPECT_TRUE(button("mainButton")->isEnabled());

    // Help opens per row, and a second press closes it again.
    rows[0]->helpButton()->click();
    rows[3]->helpButton()->click();
    rows[3]->helpButton()->click();
    EXPECT_TRUE(rows[0]->showsHelp());
    EXPECT_FALSE(rows[1]->showsHelp());
    EXPECT_FALSE(rows[3]->showsHelp());
    EXPECT_FALSE(shows(test::child(nodeRow, QStringLiteral("requirementFix"))));
    rows[3]->helpButton()->click();
    EXPECT_TRUE(shows(test::child(nodeRow, QStringLiteral("requirementFix"))));
    // The help says which Node.js the chosen tool needs.
    EXPECT_TRUE(
        textIn(nodeRow, "requirementExplanation").endsWith(QStringLiteral("Gemini CLI needs Node.js 20 or newer.")));

    // Too little space blocks, and Return does nothing then.
    platform.diskSpace = DiskSpace{100 * 1024 * 1024, {}};
    open(InstallationStep::systemCheck, CLITool::geminiCLI);
    waitForCheck();
    EXPECT_EQ(button("mainButton")->title(), QStringLiteral("Requirements Not Met"));
    EXPECT_FALSE(button("mainButton")->isEnabled());
    // What is wrong, in red, and the screen says what blocks "Install".
    auto* diskRow = test::child<RequirementRow>(screen(), QStringLiteral("requirementRow.diskSpace"));
    EXPECT_EQ(textIn(diskRow, "requirementStatus"), QStringLiteral("Not enough space"));
    EXPECT_EQ(test::child<ui::Label>(diskRow, QStringLiteral("requirementStatus"))->tint(), ui::Tint(ui::Role::red));
    EXPECT_EQ(textIn(diskRow, "requirementDetails"), QStringLiteral("100 MB free, 1024 MB needed"));
    EXPECT_TRUE(showsChild("blockedNotice"));
    EXPECT_EQ(
        text("blockedReason"),
        QStringLiteral("Install is not available until this is fixed: 1GB disk space (100 MB free, 1024 MB needed)."));
    QSignalSpy pressed(button("mainButton"), &QAbstractButton::pressed);
    QTest::keyClick(window.get(), Qt::Key_Return);
    EXPECT_EQ(pressed.count(), 0);
    EXPECT_EQ(state.currentStep(), InstallationStep::systemCheck);
    // "Back" to the dashboard is a plain bordered button, without the chevron of a step back.
    EXPECT_EQ(button("backButton")->leadingSymbol(), QString());
    click("backButton");
    EXPECT_EQ(state.currentStep(), InstallationStep::home);
    EXPECT_TRUE(state.requirements().isEmpty());
}

TEST_F(InstallFlowTest, MissingGitBlocksTheInstallationAndOffersItsInstaller)
{
    open(InstallationStep::systemCheck, CLITool::claudeCode); // no git here
    waitForCheck();
    auto* gitRow = test::child<RequirementRow>(screen(), QStringLiteral("requirementRow.git"));
    EXPECT_EQ(textIn(gitRow, "requirementStatus"), QStringLiteral("Not installed"));
    EXPECT_FALSE(button("mainButton")->isEnabled());
    EXPECT_EQ(text("blockedReason"),
              QStringLiteral("Install is not available until this is fixed: Git (Xcode CLI Tools not installed)."));
    // The row offers the system's installer, as the dashboard does, and the screen starts there.
    auto* fix = test::child<QAbstractButton>(gitRow, QStringLiteral("requirementFixButton"));
    EXPECT_EQ(QApplication::focusWidget(), fix);
    // Where it cannot start, the screen says so with the line to type.
    platform.terminalOpens = false;
    // Return presses it: the main button is not available.
    QTest::keyClick(fix, Qt::Key_Return);
    EXPECT_TRUE(QTest::qWaitFor([this] { return platform.installersStarted == 1; }));
    const QWidget* fallback = test::child(screen(), QStringLiteral("installerFallback"));
    ASSERT_TRUE(shows(fallback));
    bool namesTheLine = false;
    for (const QLabel* label : fallback->findChildren<QLabel*>())
        namesTheLine = namesTheLine || label->text() == platform.developerToolsItem().installLine;
    EXPECT_TRUE(namesTheLine);
    // Once git is there, a second look lets the installation start, and the advice goes.
    platform.terminalOpens = true;
    fix->click();
    EXPECT_EQ(screen()->findChild<QWidget*>(QStringLiteral("installerFallback")), nullptr);
    sandbox.installFake(QStringLiteral("git"));
    click("checkAgainButton");
    waitForCheck();
    EXPECT_TRUE(button("mainButton")->isEnabled());
    EXPECT_FALSE(showsChild("blockedNotice"));
}

TEST_F(InstallFlowTest, MissingGitStopsTheRunAndTryAgainStartsOver)
{
    open(InstallationStep::installation, CLITool::claudeCode);
    // While the run goes on, neither "Back" nor a main button is offered.
    bool buttonWhileRunning = false;
    QObject::connect(&state, &InstallationState::setupStepsChanged, screen(), [this, &buttonWhileRunning] {
        if (controller().isInstalling())
            buttonWhileRunning |= button("backButton")->isVisibleTo(screen()) ||
                                  button("mainButton")->isVisibleTo(screen());
    });
    waitForInstallation();
    EXPECT_FALSE(buttonWhileRunning);

    const SetupStep git = step(SetupStepType::checkGit);
    EXPECT_EQ(git.status, SetupStepStatus::failure(QStringLiteral("Not found")));
    EXPECT_EQ(test::child<ui::Label>(screen()->findChild<SetupStepRow*>(QStringLiteral("setupStepRow.checkGit")),
                                     QStringLiteral("stepStatus"))
                  ->tint(),
              ui::Tint(ui::Role::red));
    EXPECT_EQ(step(SetupStepType::installTool).status, SetupStepStatus(SetupStepStatus::pending));
    EXPECT_EQ(text("errorMessage"), errorDescription(InstallationError::gitNotFound, platform.wording()));
    EXPECT_TRUE(state.installationOutput().endsWith(platform.wording().gitMissingLog));
    EXPECT_EQ(button("mainButton")->title(), QStringLiteral("Try Again"));

    // With git there, "Try Again" runs every step again from a clean log.
    sandbox.installFakes({"git", "curl"});
    click("mainButton");
    waitForInstallation();
    EXPECT_EQ(step(SetupStepType::checkGit).status, SetupStepStatus(SetupStepStatus::completed));
    EXPECT_FALSE(state.installationOutput().contains(platform.wording().gitMissingLog));
    EXPECT_FALSE(showsChild("errorCard"));
    EXPECT_EQ(button("mainButton")->title(), QStringLiteral("Continue"));
}

TEST_F(InstallFlowTest, ACaveatShowsOnTheResultAndTheCompletionScreen)
{
    sandbox.installFakes({"git", "npm", "node"});
    sandbox.setEnv("FAKE_NPM_STRICT_ALLOW_SCRIPTS", "true");
    open(InstallationStep::installation, CLITool::geminiCLI);
    waitForInstallation();
    EXPECT_EQ(text("installationTitle"), QStringLiteral("Installation Complete!"));
    ASSERT_TRUE(showsChild("caveats"));
    EXPECT_TRUE(text("caveat").startsWith(QStringLiteral("npm is set to refuse install scripts")));
    click("mainButton");
    ASSERT_EQ(state.currentStep(), InstallationStep::completion);
    EXPECT_TRUE(showsChild("caveats"));
    EXPECT_EQ(text("caveat"), state.caveats().first());

    // A run without caveats shows none, also after one that had them.
    sandbox.setEnv("FAKE_NPM_STRICT_ALLOW_SCRIPTS", "false");
    open(InstallationStep::installation, CLITool::geminiCLI);
    waitForInstallation();
    EXPECT_TRUE(state.caveats().isEmpty());
    const auto* caveats = screen()->findChild<QWidget*>(QStringLiteral("caveats"));
    EXPECT_FALSE(caveats && shows(caveats));
}

TEST_F(InstallFlowTest, LeavingDuringARunAndComingBackIsSafe)
{
    sandbox.installFakes({"git", "npm", "node"});
    sandbox.setEnv("FAKE_NPM_DELAY", "0.5");
    open(InstallationStep::installation, CLITool::codex);
    ASSERT_TRUE(QTest::qWaitFor([this] { return state.installationOutput().contains(QStringLiteral("Installing")); }));
    QPointer<QWidget> first = screen();
    state.setCurrentStep(InstallationStep::home);
    test::settle();
    EXPECT_TRUE(first.isNull());
    EXPECT_TRUE(controller().isRunning()); // the run goes on without its screen

    state.setCurrentStep(InstallationStep::installation);
    test::settle();
    waitForInstallation();
    EXPECT_TRUE(controller().installationComplete());
    EXPECT_EQ(text("installationTitle"), QStringLiteral("Installation Complete!"));
    // The log on screen is the new attempt's, whole.
    EXPECT_EQ(screenAs<InstallationView>()->logView()->text(), state.installationOutput());
    EXPECT_EQ(state.installationOutput().count(QStringLiteral("Installing Codex")), 1);
}

TEST_F(InstallFlowTest, CancelStopsTheRunWithItsCommandsAndTryAgainInstalls)
{
    // npm hangs in a process of its own, which says who it is.
    sandbox.installFakes({"git", "npm", "node"});
    sandbox.setEnv("FAKE_NPM_SCRIPT", "echo $$ > \"$FAKE_STATE/npm.pid\"; exec sleep 600");
    open(InstallationStep::installation, CLITool::codex);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !sandbox.readState("npm.pid").isEmpty(); }, 20000));
    const long long npm = sandbox.readState("npm.pid").trimmed().toLongLong();
    ASSERT_TRUE(sandbox.exists(QStringLiteral("Developer")));
    // While it runs, "Cancel" is the one button, and it has the focus.
    EXPECT_FALSE(shows(button("backButton")));
    EXPECT_FALSE(shows(button("mainButton")));
    EXPECT_EQ(screen()->window()->focusWidget(), button("cancelButton"));

    click("cancelButton");
    waitForInstallation();
    EXPECT_TRUE(QTest::qWaitFor([npm] { return test::processEnded(npm); }, 5000)) << "npm outlived the cancel";
    EXPECT_EQ(text("errorTitle"), QStringLiteral("Installation Stopped"));
    EXPECT_EQ(text("errorMessage"), QStringLiteral("The installation was stopped. Nothing was changed."));
    EXPECT_EQ(step(SetupStepType::installTool).status, SetupStepStatus::failure(QStringLiteral("Stopped")));
    EXPECT_TRUE(state.installationOutput().endsWith(QStringLiteral("\nCancelled by the user\n")));
    QFile file(controller().logFile()->path());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().endsWith("\nCancelled by the user\n"));
    // Nothing of the run stays: not the tool, not the ~/Developer folder it had just made.
    EXPECT_FALSE(sandbox.exists(QStringLiteral("Developer")));
    EXPECT_FALSE(QFileInfo::exists(sandbox.binDirectory() + QStringLiteral("/codex")));
    EXPECT_FALSE(shows(button("cancelButton")));

    sandbox.setEnv("FAKE_NPM_SCRIPT", "");
    click("mainButton");
    waitForInstallation();
    EXPECT_TRUE(controller().installationComplete());
    EXPECT_FALSE(state.installationOutput().contains(QStringLiteral("Cancelled")));
}

TEST_F(InstallFlowTest, TheLogShowsEveryByteAndIsCopiedEvenWithoutALogFile)
{
    sandbox.installFakes({"git", "npm", "node"});
    // A file stands where the log folder's parent should be: the installation goes on without a
    // log file, and its failure has none to show.
    sandbox.writeFile(QStringLiteral("Library/Logs"), "not a folder");
    sandbox.setEnv("FAKE_NPM_FAIL", "1");
    open(InstallationStep::installation, CLITool::geminiCLI);
    auto* view = screenAs<InstallationView>();
    ui::LogView* log = view->logView();
    waitForInstallation();
    EXPECT_TRUE(state.installationOutput().contains(QStringLiteral("404 Not Found")));
    EXPECT_FALSE(shows(button("showLogFileButton")));

    // A euro sign split across two reads, an invalid byte, then many lines, read as they come.
    sandbox.setEnv("FAKE_NPM_FAIL", "");
    sandbox.setEnv("FAKE_NPM_SCRIPT", "printf 'price \\342\\202'; sleep 0.2; printf '\\254 \\377 ok\\n'; seq 1 400");
    click("mainButton");
    QTest::mouseClick(test::child<QWidget>(screen(), QStringLiteral("detailsButton")), Qt::LeftButton);
    EXPECT_TRUE(view->showDetails());
    waitForInstallation();

    EXPECT_TRUE(state.installationOutput().contains(QStringLiteral("price \u20AC \uFFFD ok\n1\n2\n")));
    EXPECT_EQ(log->text(), state.installationOutput());
    EXPECT_TRUE(log->isFollowing());

    // A reader who scrolled up (LogView's own tests follow that) finds the newest line on
    // closing and opening the log again.
    QScrollBar* bar = log->textView()->verticalScrollBar();
    ASSERT_GT(bar->maximum(), 0);
    bar->setValue(3);
    ASSERT_FALSE(log->isFollowing());
    QTest::mouseClick(test::child<QWidget>(screen(), QStringLiteral("detailsButton")), Qt::LeftButton);
    QTest::mouseClick(test::child<QWidget>(screen(), QStringLiteral("detailsButton")), Qt::LeftButton);
    test::settle();
    EXPECT_TRUE(log->isFollowing());
    EXPECT_EQ(bar->value(), bar->maximum());

    click("copyLogButton");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), state.installationOutput());
    EXPECT_TRUE(view->toastPresenter()->isShowing());
    EXPECT_TRUE(QTest::qWaitFor([view] { return !view->toastPresenter()->isShowing(); }, 5000));
    EXPECT_FALSE(sandbox.exists(QStringLiteral("Library/Logs/Quillforge")));
}

TEST_F(InstallFlowTest, ALongLogShowsItsNewestPartAndIsCopiedWhole)
{
    sandbox.installFakes({"git", "npm", "node"});
    // 4.9 MB of numbered lines.
    sandbox.setEnv("FAKE_NPM_SCRIPT", "seq -w 1 700000");
    open(InstallationStep::installation, CLITool::geminiCLI);
    auto* view = screenAs<InstallationView>();
    QTest::mouseClick(test::child<QWidget>(screen(), QStringLiteral("detailsButton")), Qt::LeftButton);
    waitForInstallation();
    ASSERT_TRUE(controller().installationComplete());

    // On screen and in the state: the cut notice, then at most 4 MB of the newest lines.
    const QString notice = BoundedLog::cutNotice() + QLatin1Char('\n');
    const QString shown = view->logView()->text();
    const QString& kept = state.installationOutput();
    for (const QString& text : {shown, kept}) {
        EXPECT_TRUE(text.startsWith(notice));
        EXPECT_LE(text.size(), 4 * 1024 * 1024);
        EXPECT_TRUE(text.contains(QStringLiteral("\n699999\n700000\n")));
    }
    EXPECT_TRUE(shown.endsWith(kept.right(1000)));

    // "Copy Log" copies all of it, as the log file has it.
    const std::optional<std::optional<QString>> file = test::await(controller().logFile()->readWhole());
    ASSERT_TRUE(file && *file);
    const QString& whole = **file;
    EXPECT_TRUE(whole.contains(QStringLiteral("\n000001\n000002\n")));
    EXPECT_TRUE(whole.endsWith(kept.sliced(notice.size())));
    EXPECT_GE(whole.count(QLatin1Char('\n')), 700000);
    QGuiApplication::clipboard()->clear();
    click("copyLogButton");
    ASSERT_TRUE(QTest::qWaitFor([] { return !QGuiApplication::clipboard()->text().isEmpty(); }, 20000));
    EXPECT_TRUE(QGuiApplication::clipboard()->text() == whole)
        << "the clipboard holds " << QGuiApplication::clipboard()->text().size() << " characters, the log "
        << whole.size();
    EXPECT_TRUE(view->toastPresenter()->isShowing());
}

TEST_F(InstallFlowTest, FailingCommandsEndInTheErrorCardWithTheirLogFile)
{
    sandbox.installFakes({"git", "npm", "node"});
    sandbox.setEnv("FAKE_NPM_FAIL", "1");
    // The smallest window: the card lies below the steps.
    open(InstallationStep::installation, CLITool::geminiCLI,
         QSize(MainWindow::minimumWidth, MainWindow::minimumHeight));
    EXPECT_FALSE(shows(button("showLogFileButton"))); // not while it runs
    waitForInstallation();
    EXPECT_EQ(step(SetupStepType::installNode).status, SetupStepStatus(SetupStepStatus::skipped));
    EXPECT_EQ(step(SetupStepType::installTool).status.kind(), SetupStepStatus::failed);
    // The command's own words are in the log; the card says that it failed, and is scrolled
    // into view.
    EXPECT_TRUE(state.installationOutput().contains(QStringLiteral("404 Not Found")));
    EXPECT_TRUE(
        text("errorMessage").startsWith(QStringLiteral("@google/gemini-cli was not found on the npm registry.")))
        << text("errorMessage").toStdString();
    const QWidget* viewport = screenAs<InstallationView>()->scrollView()->viewport();
    const QWidget* sentence = test::child(screen(), QStringLiteral("errorMessage"));
    EXPECT_TRUE(QTest::qWaitFor([viewport, sentence] {
        return viewport->rect().contains(QRect(sentence->mapTo(viewport, QPoint()), sentence->size()));
    })) << "the error is out of sight";

    // "Show Log File" (the screen tour sees it whole beside "Try Again" in the smallest window).
    const QString path = controller().logFile()->path();
    EXPECT_EQ(QFileInfo(path).absolutePath(), QFileInfo(platform.logs).absoluteFilePath());
    EXPECT_TRUE(QFileInfo(path).fileName().endsWith(QStringLiteral(" Install Gemini CLI.log")));
    click("showLogFileButton");
    EXPECT_EQ(platform.revealedFiles, QStringList{path});
    EXPECT_EQ(screen()->findChild<QWidget*>(QStringLiteral("logFilePath")), nullptr);
    // Where no file manager answers, the path shows, to copy.
    platform.fileManagerAnswers = false;
    click("showLogFileButton");
    ASSERT_TRUE(showsChild("logFilePath"));
    bool namesThePath = false;
    for (const QLabel* label : test::child(screen(), QStringLiteral("logFilePath"))->findChildren<QLabel*>())
        namesThePath = namesThePath || label->text() == path;
    EXPECT_TRUE(namesThePath);
    const std::optional<std::optional<QString>> whole = test::await(controller().logFile()->readWhole());
    ASSERT_TRUE(whole && *whole);
    EXPECT_TRUE((*whole)->contains(QStringLiteral("404 Not Found")));

    // npm reports success but the command never appears.
    sandbox.setEnv("FAKE_NPM_FAIL", "");
    sandbox.setEnv("FAKE_NPM_SKIP_BIN", "1");
    click("mainButton");
    waitForInstallation();
    EXPECT_EQ(step(SetupStepType::installTool).status, SetupStepStatus::failure(QStringLiteral("Verification failed")));
    EXPECT_EQ(text("errorMessage"), errorDescription(InstallationError::verificationFailed, platform.wording()));

    // A run that succeeds has no log file to show.
    sandbox.setEnv("FAKE_NPM_SKIP_BIN", "");
    click("mainButton");
    waitForInstallation();
    EXPECT_TRUE(controller().installationComplete());
    EXPECT_FALSE(shows(button("showLogFileButton")));
    EXPECT_FALSE(showsChild("logFilePath"));
    EXPECT_EQ(platform.revealedFiles.size(), 2);
}

TEST_F(InstallFlowTest, TryAgainWorksAroundAnNpmCacheLeftToTheAdministrator)
{
    sandbox.installFakes({"git", "npm", "node"});
    const QString cache = sandbox.path(QStringLiteral(".npm"));
    ASSERT_TRUE(QDir().mkpath(cache));
    ASSERT_TRUE(QFile::setPermissions(cache, QFileDevice::ReadOwner | QFileDevice::ExeOwner));
    open(InstallationStep::installation, CLITool::geminiCLI);
    waitForInstallation();
    // The card says what Try Again will do.
    EXPECT_EQ(text("errorMessage"), npmPermissionRetrySentence(QStringLiteral("Gemini CLI"), false));
    EXPECT_EQ(button("mainButton")->title(), QStringLiteral("Try Again"));
    EXPECT_TRUE(shows(button("showLogFileButton")));

    click("mainButton");
    waitForInstallation();
    EXPECT_TRUE(controller().installationComplete());
    EXPECT_TRUE(state.installationOutput().contains(platform.cache + QStringLiteral("/npm")));
    EXPECT_TRUE(QFile::exists(sandbox.binDirectory() + QStringLiteral("/gemini")));
}
