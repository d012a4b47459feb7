// The screens after an installation: the completion screen, the terminal screen and the API
// key screen, in the real window with a fake platform and a sandboxed home folder.
#include "APIKeyStore.h"
#include "APIKeyView.h"
#include "CompletionView.h"
#include "CopiedToast.h"
#include "CopyButton.h"
#include "FlowWindowTest.h"
#include "Layout.h"
#include "TerminalScreenView.h"
#include "TextField.h"

#include <QAccessible>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QSignalSpy>

#include <algorithm>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

using namespace qf;

namespace {

const QString kKey = QStringLiteral("sk-ant-api03-Secret_Key.123");

class AfterInstallTest : public test::FlowWindowTest {
protected:
    void SetUp() override
    {
        FlowWindowTest::SetUp();
        // Every test starts without a profile and without the keys in the environment.
        for (const char* name : {"/.zshrc", "/.bash_profile", "/.bashrc"}) {
            const QString path = QDir::homePath() + QLatin1String(name);
            QFile::remove(path);
            QDir(path).removeRecursively();
        }
        for (CLITool tool : CLITool::allCases())
            qunsetenv(tool.apiKeyEnvVar().toUtf8().constData());
    }

    static QString profileText(const char* name)
    {
        QFile file(QDir::homePath() + QLatin1String(name));
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }
    ui::TextField* keyField() const { return screenAs<APIKeyView>()->keyField(); }
    void typeKey(const QString& key) const
    {
        keyField()->setFocus();
        QTest::keyClicks(keyField(), key);
    }
    void saveAndWait() const
    {
        click("saveButton");
        waitForSave();
    }
    void waitForSave() const
    {
        ASSERT_TRUE(QTest::qWaitFor(
            [this] {
                auto* view = qobject_cast<APIKeyView*>(screen());
                return !view || !view->isSaving();
            },
            10000));
        test::settle();
    }
};

TEST_F(AfterInstallTest, CompletionTellsAFreshInstallFromAnOpenedTool)
{
    open(InstallationStep::completion, CLITool::claudeCode);
    EXPECT_EQ(text("completionTitle"), QStringLiteral("You're All Set!"));
    EXPECT_EQ(text("completionSubtitle"), QStringLiteral("Claude Code is installed and ready to use"));
    EXPECT_EQ(text("tryCommand"), CLITool(CLITool::claudeCode).tryCommand());

    // The commands start closed, the first project open.
    auto* commands = test::child<CommonCommandsCard>(screen(), QStringLiteral("commonCommandsCard"));
    auto* tips = test::child<FirstProjectTipsCard>(screen(), QStringLiteral("firstProjectCard"));
    EXPECT_FALSE(commands->isExpanded());
    EXPECT_TRUE(tips->isExpanded());
    ASSERT_EQ(commands->rows().size(), 4);
    EXPECT_FALSE(shows(commands->rows().first()));
    click("commonCommandsHeader");
    EXPECT_TRUE(commands->isExpanded());
    for (qsizetype i = 0; i < commands->rows().size(); ++i) {
        EXPECT_TRUE(shows(commands->rows()[i]));
        EXPECT_EQ(commands->rows()[i]->command(), CLITool(CLITool::claudeCode).exampleCommands().value(i).command);
    }
    click("firstProjectHeader");
    EXPECT_FALSE(tips->isExpanded());

    // Step 3 is a title alone: no code box, no copy button.
    ASSERT_EQ(tips->steps().size(), 3);
    StepRow* third = tips->steps().last();
    EXPECT_EQ(third->number(), 3);
    EXPECT_FALSE(third->command().has_value());
    EXPECT_TRUE(third->findChildren<ui::CopyButton*>().isEmpty());
    EXPECT_EQ(third->findChild<QLabel*>(QStringLiteral("code")), nullptr);

    // The API key detour comes back to the same screen, fresh or opened; skipping writes nothing.
    for (const bool opening : {false, true}) {
        state.setIsOpeningExistingTool(opening);
        open(InstallationStep::completion, CLITool::claudeCode);
        click("useAPIKeyButton");
        EXPECT_EQ(state.currentStep(), InstallationStep::apiKey);
        click("skipButton");
        EXPECT_EQ(state.currentStep(), InstallationStep::completion);
        EXPECT_EQ(text("completionTitle"), opening ? QStringLiteral("Claude Code") : QStringLiteral("You're All Set!"));
    }
    EXPECT_FALSE(QFile::exists(QDir::homePath() + QStringLiteral("/.zshrc")));
    EXPECT_FALSE(qEnvironmentVariableIsSet("ANTHROPIC_API_KEY"));
    EXPECT_TRUE(state.apiKey().isEmpty());
    EXPECT_EQ(text("signInNote"), CLITool(CLITool::claudeCode).signInNote());

    for (CLITool tool : {CLITool(CLITool::geminiCLI), CLITool(CLITool::codex)}) {
        open(InstallationStep::completion, tool);
        EXPECT_EQ(text("completionTitle"), tool.displayName());
        EXPECT_EQ(text("completionSubtitle"), QStringLiteral("Ready to use"));
        EXPECT_EQ(test::child<CommonCommandsCard>(screen(), QStringLiteral("commonCommandsCard"))->rows().size(), 3);
    }

    // With a key saved, the screen no longer asks to sign in, and the link changes the key.
    state.setApiKey(QStringLiteral("sk-ant-1"));
    open(InstallationStep::completion, CLITool::claudeCode);
    EXPECT_EQ(
        text("signInNote"),
        QStringLiteral("Your API key is saved: new terminal windows give it to Claude Code as ANTHROPIC_API_KEY."));
    EXPECT_EQ(test::child<QAbstractButton>(screen(), QStringLiteral("useAPIKeyButton"))->text(),
              QStringLiteral("Change API Key"));
}

TEST_F(AfterInstallTest, WithoutAToolTheScreensAfterInstallOfferOnlyTheWayHome)
{
    for (const auto& [step, home] :
         {std::pair{InstallationStep::completion, "homeButton"}, {InstallationStep::terminal, "backToHomeButton"}}) {
        SCOPED_TRACE(home);
        state.setIsOpeningExistingTool(true);
        open(step, std::nullopt);
        EXPECT_EQ(test::focusableControls(screen()).size(), 1);
        click(home);
        EXPECT_EQ(state.currentStep(), InstallationStep::home);
        EXPECT_FALSE(state.isOpeningExistingTool());
        EXPECT_FALSE(state.selectedTool().has_value());
    }
    EXPECT_TRUE(platform.terminals.isEmpty());
}

TEST_F(AfterInstallTest, EveryCopyShowsOneToastAndOpenInTerminalSaysWhatToTypeWhenNoWindowOpens)
{
    open(InstallationStep::completion, CLITool::geminiCLI);
    auto* view = screenAs<CompletionView>();
    click("commonCommandsHeader");
    click("copyTryCommand");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), CLITool(CLITool::geminiCLI).tryCommand());
    EXPECT_TRUE(view->toastPresenter()->isShowing());
    const QTimer& hide = view->toastPresenter()->hideTimer();
    ASSERT_TRUE(hide.isActive());
    QSignalSpy hidden(&hide, &QTimer::timeout);
    const int remaining = hide.remainingTime();

    // Later copies while it shows change what is copied, not when the toast leaves.
    auto* commands = test::child<CommonCommandsCard>(screen(), QStringLiteral("commonCommandsCard"));
    commands->rows()[1]->findChild<ui::CopyButton*>()->click();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), CLITool(CLITool::geminiCLI).exampleCommands()[1].command);
    auto* tips = test::child<FirstProjectTipsCard>(screen(), QStringLiteral("firstProjectCard"));
    tips->steps()[1]->findChild<ui::CopyButton*>()->click();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("git init"));
    EXPECT_LE(hide.remainingTime(), remaining) << "a later copy restarted the toast's time";
    ASSERT_TRUE(QTest::qWaitFor([view] { return !view->toastPresenter()->isShowing(); }, 5000));
    EXPECT_EQ(hidden.count(), 1);

    const QPair<QString, QString> launch{QStringLiteral("gemini"), QStringLiteral("~/Developer")};
    click("openInTerminalButton");
    EXPECT_EQ(platform.terminals, (QList{launch}));
    EXPECT_FALSE(showsChild("terminalFallback"));
    EXPECT_EQ(state.currentStep(), InstallationStep::completion);

    platform.terminalOpens = false;
    click("openInTerminalButton");
    EXPECT_EQ(platform.terminals, (QList{launch, launch}));
    EXPECT_TRUE(showsChild("terminalFallback"));
    EXPECT_EQ(text("terminalFallbackLine"), QStringLiteral("cd ~/Developer && gemini"));
    test::child<ui::CopyButton>(test::child(screen(), QStringLiteral("terminalFallback")), QStringLiteral("copyButton"))
        ->click();
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("cd ~/Developer && gemini"));
    EXPECT_TRUE(view->toastPresenter()->isShowing());

    // Answers that come late (as on a Mac) and in any order: only the newest launch counts.
    platform.holdTerminalOutcomes = true;
    click("openInTerminalButton"); // fails
    platform.terminalOpens = true;
    click("openInTerminalButton"); // opens
    std::reverse(platform.heldOutcomes.begin(), platform.heldOutcomes.end());
    platform.releaseTerminalOutcomes();
    test::settle();
    EXPECT_FALSE(showsChild("terminalFallback"));
}

TEST_F(AfterInstallTest, TheTerminalScreenLaunchesOncePerArrivalAndOwnsUpToAFailedLaunch)
{
    // The system answers late, as a Mac does once its script has run, and no window opens.
    platform.holdTerminalOutcomes = true;
    platform.terminalOpens = false;
    open(InstallationStep::terminal, CLITool::codex);
    EXPECT_EQ(text("terminalTitle"), QStringLiteral("Codex launched in Terminal"));
    EXPECT_FALSE(showsChild("terminalFallback"));
    // Drawn, hidden and shown again: still the one launch of this arrival.
    for (int i = 0; i < 3; ++i) {
        screen()->repaint();
        screen()->hide();
        screen()->show();
        test::settle();
    }
    EXPECT_EQ(platform.terminals, (QList{QPair{QStringLiteral("codex"), QStringLiteral("~/Developer")}}));
    for (QLabel* tip : screen()->findChildren<QLabel*>(QStringLiteral("tipCommand")))
        EXPECT_TRUE(tip->text().startsWith(QStringLiteral("codex"))) << tip->text().toStdString();

    // Once the failure is known, the screen no longer claims the tool runs: the line to type,
    // with a copy button that says what it copies.
    platform.releaseTerminalOutcomes();
    test::settle();
    EXPECT_EQ(text("terminalTitle"), QStringLiteral("Start Codex in a terminal"));
    EXPECT_FALSE(showsChild("terminalSubtitle"));
    ASSERT_TRUE(showsChild("terminalFallback"));
    EXPECT_EQ(text("terminalFallbackLine"), QStringLiteral("cd ~/Developer && codex"));
    auto* copy = test::child<QWidget>(test::child(screen(), QStringLiteral("terminalFallback")),
                                      QStringLiteral("copyButton"));
    EXPECT_EQ(copy->accessibleName(), QStringLiteral("Copy the line to type"));
    EXPECT_EQ(copy->accessibleDescription(), text("terminalFallbackLine"));

    // A window that opens on the next try puts the screen right again.
    platform.holdTerminalOutcomes = false;
    platform.terminalOpens = true;
    click("openAgainButton");
    EXPECT_EQ(text("terminalTitle"), QStringLiteral("Codex launched in Terminal"));
    EXPECT_FALSE(showsChild("terminalFallback"));
    click("openAgainButton");
    EXPECT_EQ(platform.terminals.size(), 3);

    // Arriving again is a new arrival.
    open(InstallationStep::terminal, CLITool::claudeCode);
    EXPECT_EQ(platform.terminals.size(), 4);
    EXPECT_EQ(platform.terminals.last().first, QStringLiteral("claude"));
    EXPECT_EQ(screen()->findChildren<QLabel*>(QStringLiteral("tipCommand")).size(), 3);
    click("backToHomeButton");
    EXPECT_EQ(state.currentStep(), InstallationStep::home);
    EXPECT_FALSE(state.selectedTool().has_value());
}

TEST_F(AfterInstallTest, TheKeyFieldStaysSecretWhileMaskedAndAFailedSaveStaysUntilTheKeyChanges)
{
    // A profile that cannot be written, even by an administrator: a folder in its place.
    ASSERT_TRUE(QDir().mkpath(QDir::homePath() + QStringLiteral("/.zshrc")));
    open(InstallationStep::apiKey, CLITool::claudeCode, QSize(MainWindow::minimumWidth, MainWindow::minimumHeight));
    EXPECT_TRUE(keyField()->hasFocus()) << "the field is ready for the paste";
    EXPECT_FALSE(button("saveButton")->isEnabled());
    EXPECT_FALSE(showsChild("saveErrorRow"));
    button("openConsoleButton")->click();
    EXPECT_EQ(platform.openedURLs, QList<QUrl>{CLITool(CLITool::claudeCode).apiKeyURL()});

    typeKey(kKey);
    EXPECT_TRUE(button("saveButton")->isEnabled());
    ui::TextField* field = keyField();
    EXPECT_TRUE(field->isSecure());
    EXPECT_EQ(button("showKeyButton")->accessibleName(), QStringLiteral("Show key"));
    EXPECT_EQ(button("showKeyButton")->leadingSymbol(), QStringLiteral("eye"));

    // What assistive technology can read of a masked key: nothing of the key.
    QAccessibleInterface* readable = QAccessible::queryAccessibleInterface(field);
    ASSERT_NE(readable, nullptr);
    EXPECT_FALSE(readable->text(QAccessible::Value).contains(QStringLiteral("Secret")));
    if (QAccessibleTextInterface* textual = readable->textInterface()) {
        EXPECT_FALSE(textual->text(0, textual->characterCount()).contains(QStringLiteral("Secret")));
    }

    click("showKeyButton");
    EXPECT_FALSE(field->isSecure());
    EXPECT_EQ(field->text(), kKey);
    EXPECT_EQ(button("showKeyButton")->leadingSymbol(), QStringLiteral("eye.slash"));
    QTest::keyClicks(field, QStringLiteral("9"));
    click("showKeyButton");
    EXPECT_TRUE(field->isSecure());
    EXPECT_EQ(field->text(), kKey + QLatin1Char('9'));

    field->clear();
    EXPECT_FALSE(button("saveButton")->isEnabled());
    QTest::keyClick(field, Qt::Key_Return);
    test::settle();
    EXPECT_EQ(state.currentStep(), InstallationStep::apiKey);

    // The save fails: the screen stays, with the reason in view even in the smallest window,
    // and nothing of the key in it.
    typeKey(kKey);
    saveAndWait();
    EXPECT_EQ(state.currentStep(), InstallationStep::apiKey);
    ASSERT_TRUE(state.errorMessage().has_value());
    EXPECT_TRUE(showsChild("saveErrorRow"));
    EXPECT_EQ(text("saveError"), *state.errorMessage());
    const QWidget* viewport = screenAs<APIKeyView>()->scrollView()->viewport();
    const QWidget* row = test::child(screen(), QStringLiteral("saveErrorRow"));
    EXPECT_TRUE(viewport->rect().contains(QRect(row->mapTo(viewport, QPoint()), row->size())));
    EXPECT_FALSE(text("saveError").isEmpty());
    EXPECT_FALSE(text("saveError").contains(QStringLiteral("Secret"))) << "the key is shown in an error";
    EXPECT_TRUE(button("saveButton")->isEnabled());
    EXPECT_FALSE(button("saveButton")->showsActivity());
    EXPECT_FALSE(qEnvironmentVariableIsSet("ANTHROPIC_API_KEY"));
    EXPECT_TRUE(state.apiKey().isEmpty());

    QTest::keyClick(keyField(), Qt::Key_Backspace);
    EXPECT_FALSE(showsChild("saveErrorRow"));
}

TEST_F(AfterInstallTest, ASavedKeyLandsInTheProfileTheCaptionNames)
{
    // A bash user whose terminal reads ~/.bashrc: that is the profile written, and the one the
    // caption names.
    platform.terminalShell = QStringLiteral("/bin/bash");
    platform.loginTerminals = false;
    test::writeFile(QDir::homePath() + QStringLiteral("/.bashrc"), "alias ll='ls -l'\n");
    open(InstallationStep::apiKey, CLITool::codex);
    EXPECT_EQ(text("profileCaption"),
              QStringLiteral("This will be saved to your shell profile (~/.bashrc) as OPENAI_API_KEY"));
    typeKey(kKey);
    saveAndWait();

    EXPECT_EQ(state.currentStep(), InstallationStep::completion);
    EXPECT_EQ(state.apiKey(), kKey);
    EXPECT_EQ(qgetenv("OPENAI_API_KEY"), kKey.toUtf8());
    EXPECT_EQ(profileText("/.bashrc"), QStringLiteral("alias ll='ls -l'\n\n# Codex API Key\nexport OPENAI_API_KEY=\"") +
                                           kKey + QStringLiteral("\"\n"));
    EXPECT_FALSE(QFile::exists(QDir::homePath() + QStringLiteral("/.zshrc")));

    // Blanks alone are no key; around a pasted key they are dropped, inside one it is refused.
    open(InstallationStep::apiKey, CLITool::geminiCLI);
    typeKey(QStringLiteral("   "));
    EXPECT_FALSE(button("saveButton")->isEnabled());
    keyField()->setText(QStringLiteral(" gm-key gm-key "));
    click("saveButton");
    ASSERT_TRUE(QTest::qWaitFor([this] { return shows(test::child(screen(), QStringLiteral("saveError"))); }));
    EXPECT_EQ(text("saveError"), QStringLiteral("The API key contains a space. Copy only the key and paste it again."));
    keyField()->setText(QStringLiteral(" \tgm-key\n"));
    saveAndWait();
    EXPECT_EQ(state.currentStep(), InstallationStep::completion);
    EXPECT_EQ(state.apiKey(), QStringLiteral("gm-key"));
    EXPECT_EQ(qgetenv("GEMINI_API_KEY"), QByteArray("gm-key"));

    // A tcsh user: the caption names ~/.tcshrc and the key goes there in tcsh's words.
    platform.terminalShell = QStringLiteral("/usr/bin/tcsh");
    open(InstallationStep::apiKey, CLITool::claudeCode);
    EXPECT_EQ(text("profileCaption"),
              QStringLiteral("This will be saved to your shell profile (~/.tcshrc) as ANTHROPIC_API_KEY"));
    typeKey(kKey);
    saveAndWait();
    EXPECT_EQ(state.currentStep(), InstallationStep::completion);
    EXPECT_EQ(profileText("/.tcshrc"),
              QStringLiteral("\n# Claude Code API Key\nsetenv ANTHROPIC_API_KEY \"") + kKey + QStringLiteral("\"\n"));
}

TEST_F(AfterInstallTest, SkippingWhileAKeyIsSavedGoesOnOnceAndKeepsTheKey)
{
    platform.terminalShell = QStringLiteral("/bin/zsh");
    open(InstallationStep::apiKey, CLITool::codex);
    typeKey(kKey);
    // Another writer holds the profile's lock, so the save waits.
    const int folder = ::open(QFile::encodeName(QDir::homePath()).constData(), O_RDONLY | O_DIRECTORY);
    ASSERT_GE(folder, 0);
    ASSERT_EQ(::flock(folder, LOCK_EX), 0);
    click("saveButton");
    ASSERT_TRUE(screenAs<APIKeyView>()->isSaving());
    EXPECT_TRUE(button("skipButton")->isEnabled());
    click("skipButton");
    EXPECT_EQ(state.currentStep(), InstallationStep::completion);
    ::close(folder);
    // The save still ends, stores the key and does not move the flow a second time.
    ASSERT_TRUE(QTest::qWaitFor([] { return qgetenv("OPENAI_API_KEY") == kKey.toUtf8(); }, 10000));
    test::settle();
    EXPECT_EQ(state.currentStep(), InstallationStep::completion);
    EXPECT_TRUE(profileText("/.zshrc").contains(kKey));
    qunsetenv("OPENAI_API_KEY");
}

TEST_F(AfterInstallTest, AKeyTheProfileComputesIsFollowedAndTheScreenSaysSo)
{
    platform.terminalShell = QStringLiteral("/bin/zsh");
    test::writeFile(QDir::homePath() + QStringLiteral("/.zshrc"), "export OPENAI_API_KEY=$(cat ~/.openai-key)\n");
    open(InstallationStep::apiKey, CLITool::codex);
    EXPECT_FALSE(showsChild("savedNoticeRow"));
    typeKey(kKey);
    saveAndWait();
    // Saved, but the user reads why their line stayed before going on.
    EXPECT_EQ(state.currentStep(), InstallationStep::apiKey);
    EXPECT_TRUE(showsChild("savedNoticeRow"));
    EXPECT_EQ(text("savedNotice"),
              APIKeyStore::computedValueNotice(QStringLiteral("OPENAI_API_KEY"), QStringLiteral("~/.zshrc")));
    EXPECT_TRUE(
        profileText("/.zshrc").endsWith(QStringLiteral("\nexport OPENAI_API_KEY=\"") + kKey + QStringLiteral("\"\n")));
    EXPECT_FALSE(showsChild("skipButton"));
    EXPECT_FALSE(showsChild("profileCaption"));
    // It reads "Continue" and screen readers say so too.
    EXPECT_EQ(button("saveButton")->title(), QStringLiteral("Continue"));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(button("saveButton"))->text(QAccessible::Name),
              QStringLiteral("Continue"));
    button("saveButton")->click();
    EXPECT_EQ(state.currentStep(), InstallationStep::completion);
}

} // namespace
