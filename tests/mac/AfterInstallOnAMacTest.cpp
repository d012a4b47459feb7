#include "MacTest.h"

#include "UninstallSheets.h"

#include "Button.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>

using namespace qf;
using test::MacTest;

namespace {

class AfterInstallOnAMac : public MacTest {
protected:
    QWidget* fallback() const { return test::child(screen(), QStringLiteral("terminalFallback")); }
    QString fallbackText(const char* name) const
    {
        return test::child<QLabel>(fallback(), QLatin1String(name))->text();
    }
    // The removal sheet of a dashboard item, opened as its remove button opens it.
    RemovalSheet* openRemoval(const char* key) const
    {
        SystemToolCard* card = item(key);
        card->setHovered(true); // the remove button shows on a hovered card
        test::settle();
        EXPECT_NE(card->removeButton(), nullptr) << key;
        if (!card->removeButton())
            return nullptr;
        card->removeButton()->click();
        test::settle();
        RemovalSheet* sheet = screenAs<HomeView>()->sheet();
        EXPECT_NE(sheet, nullptr);
        return sheet;
    }
    static void uninstall(RemovalSheet* sheet)
    {
        test::child<QAbstractButton>(sheet, QStringLiteral("uninstallButton"))->click();
        ASSERT_TRUE(QTest::qWaitFor([sheet] { return !sheet->isUninstalling(); }, 20000));
        test::settle();
    }
};

} // namespace

// A user who answered "Don't Allow" when macOS asked whether Quillforge may control Terminal
// learns where to allow it, with the line to type meanwhile. Once allowed, "Open in Terminal"
// sends Terminal the script that opens a window in ~/Developer running the tool; the screen
// that says so offers it again.
TEST_F(AfterInstallOnAMac, TheToolOpensInTerminalInTheProjectsFolderOnceAutomationIsAllowed)
{
    mac.answer("automation", "denied");
    open(InstallationStep::completion, CLITool::claudeCode);
    click("openInTerminalButton");
    ASSERT_TRUE(QTest::qWaitFor([this] { return fallback()->isVisible(); }, 10000));
    EXPECT_EQ(fallbackText("terminalFallbackTitle"), QStringLiteral("Quillforge is not allowed to control Terminal"));
    EXPECT_TRUE(fallbackText("terminalFallbackHint")
                    .contains(QStringLiteral("System Settings > Privacy & Security > Automation")));
    EXPECT_EQ(fallbackText("terminalFallbackLine"), QStringLiteral("cd ~/Developer && claude"));
    EXPECT_EQ(mac.events(QStringLiteral("terminal-window")), QStringList());

    mac.answer("automation", "allowed");
    click("openInTerminalButton");
    ASSERT_TRUE(mac.waitForEvents(QStringLiteral("terminal-window")));
    EXPECT_EQ(mac.events(QStringLiteral("osascript")).constLast(),
              QStringLiteral("tell application \"Terminal\"\\n    activate\\n    do script \"cd "
                             "~/Developer && claude\"\\nend tell"));
    EXPECT_EQ(mac.events(QStringLiteral("terminal-window")), QStringList{QStringLiteral("cd ~/Developer && claude")});
    ASSERT_TRUE(QTest::qWaitFor([this] { return !fallback()->isVisible(); }, 10000));

    open(InstallationStep::terminal, CLITool::geminiCLI);
    click("openAgainButton");
    ASSERT_TRUE(mac.waitForEvents(QStringLiteral("terminal-window"), 2));
    EXPECT_EQ(mac.events(QStringLiteral("terminal-window")).constLast(), QStringLiteral("cd ~/Developer && gemini"));
}

// Removing the Command Line Tools needs an administrator: the system's password dialog asks.
// Cancelling it returns to the confirmation with nothing removed; typing it removes them.
TEST_F(AfterInstallOnAMac, RemovingTheCommandLineToolsAsksForThePassword)
{
    open(InstallationStep::home);
    waitForDashboard();
    RemovalSheet* sheet = openRemoval("xcode");
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(sheet->windowType(), Qt::Sheet); // a Mac's own sheet
    EXPECT_EQ(sheet->defaultButton(), test::child(sheet, QStringLiteral("cancelButton")));

    mac.answer("password", "cancelled");
    uninstall(sheet);
    EXPECT_EQ(mac.events(QStringLiteral("password-dialog")).size(), 1);
    EXPECT_FALSE(sheet->uninstallComplete());
    EXPECT_EQ(sheet->errorMessage(),
              QStringLiteral("The password dialog was cancelled, so Xcode CLI Tools was not removed."));
    EXPECT_TRUE(test::child(sheet, QStringLiteral("uninstallButton"))->isVisible());
    EXPECT_TRUE(QFileInfo::exists(QStringLiteral("/Library/Developer/CommandLineTools")));

    mac.answer("password", "typed");
    uninstall(sheet);
    EXPECT_TRUE(sheet->uninstallComplete()) << sheet->output().toStdString();
    EXPECT_FALSE(QFileInfo::exists(QStringLiteral("/Library/Developer/CommandLineTools")));
    test::child<QAbstractButton>(sheet, QStringLiteral("doneButton"))->click();
    waitForDashboard();
    EXPECT_FALSE(item("xcode")->tool().isInstalled);
    EXPECT_EQ(mac.events(QStringLiteral("developer-tools-dialog")), QStringList());
}

// Homebrew's Node.js goes with "brew uninstall node", in whichever home Homebrew has.
TEST_F(AfterInstallOnAMac, HomebrewsNodeIsRemovedThroughHomebrew)
{
    QProcess brew;
    brew.start(QStringLiteral("/opt/homebrew/bin/brew"), {QStringLiteral("install"), QStringLiteral("node")});
    ASSERT_TRUE(brew.waitForFinished(10000) && brew.exitCode() == 0) << brew.readAllStandardError().constData();
    open(InstallationStep::home);
    waitForDashboard();
    EXPECT_EQ(item("node")->tool().uninstallCommand, QStringLiteral("brew uninstall node"));
    RemovalSheet* sheet = openRemoval("node");
    ASSERT_NE(sheet, nullptr);
    uninstall(sheet);
    EXPECT_TRUE(sheet->uninstallComplete()) << sheet->output().toStdString();
    EXPECT_FALSE(QFileInfo::exists(QStringLiteral("/opt/homebrew/bin/node")));
    EXPECT_TRUE(sheet->output().startsWith(QStringLiteral("Running: brew uninstall node\n\n")));
}
