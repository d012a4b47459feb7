#include "BoundedLog.h"
#include "Button.h"
#include "CoroTest.h"
#include "Diagnosis.h"
#include "LogFile.h"
#include "LogView.h"
#include "SupportTools.h"
#include "Symbol.h"
#include "TestMachine.h"
#include "TestSupport.h"
#include "UninstallSheets.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTest>

using namespace qf;

namespace {

QString readText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

class SheetTest : public ::testing::Test, protected test::TestMachine {
protected:
    // The item as the dashboard knows it once it has looked at the machine.
    SystemTool detected(SystemToolID id) { return *test::await(services.supportTools.detect(item(id))); }

    SystemTool item(SystemToolID id) const
    {
        for (const SystemTool& tool : services.supportTools.catalogue())
            if (tool.id == id)
                return tool;
        return {};
    }
    SystemToolUninstallSheet* systemSheet(const SystemTool& tool)
    {
        auto* sheet = new SystemToolUninstallSheet(
            tool, services.supportTools, services.logs, [this] { ++reloads; }, Qt::Dialog, nullptr);
        sheet->setAttribute(Qt::WA_DeleteOnClose);
        sheet->open();
        return sheet;
    }
    static QAbstractButton* button(QWidget* sheet, const char* name)
    {
        return test::child<QAbstractButton>(sheet, QString::fromLatin1(name));
    }
    static bool offered(QWidget* sheet, const char* name) { return button(sheet, name)->isVisible(); }
    static bool shows(QWidget* sheet, const char* name) { return test::child(sheet, QLatin1String(name))->isVisible(); }
    static QString label(QWidget* sheet, const char* name)
    {
        return test::child<QLabel>(sheet, QLatin1String(name))->text();
    }
    static void waitUntilIdle(RemovalSheet* sheet)
    {
        ASSERT_TRUE(QTest::qWaitFor([&] { return !sheet->isUninstalling(); }, 20000)) << "the removal never ended";
    }

    int reloads = 0;
};

} // namespace

TEST_F(SheetTest, AIToolSheetFailsClearlyAndRetriesAfresh)
{
    // The search after the removal cannot run at first (the shell, the login shell too, is
    // missing), then can.
    const QString shell = sandbox.path(QStringLiteral("shell"));
    ShellRunner::Configuration configuration = sandbox.shellConfiguration();
    configuration.shell = shell;
    platform.terminalShell = shell;
    Services flaky(platform, configuration);
    UninstallSheet sheet(
        CLITool::codex, flaky.remover, flaky.logs, [this] { ++reloads; }, Qt::Dialog, nullptr);
    sheet.show();

    // Confirm: the question, the description, "Cancel" and "Uninstall".
    EXPECT_EQ(label(&sheet, "sheetTitle"), QStringLiteral("Uninstall Codex?"));
    EXPECT_EQ(label(&sheet, "sheetDescription"), QStringLiteral("Uninstall Codex via npm"));
    EXPECT_TRUE(offered(&sheet, "cancelButton"));
    EXPECT_TRUE(offered(&sheet, "uninstallButton"));
    EXPECT_FALSE(offered(&sheet, "doneButton"));
    EXPECT_EQ(sheet.focusWidget(), button(&sheet, "cancelButton"));

    button(&sheet, "uninstallButton")->click();
    EXPECT_TRUE(sheet.isUninstalling());
    EXPECT_EQ(label(&sheet, "sheetTitle"), QStringLiteral("Uninstall Codex?"));
    EXPECT_TRUE(offered(&sheet, "cancelButton")); // it stops the removal; Escape does not
    QTest::keyClick(&sheet, Qt::Key_Escape);
    EXPECT_TRUE(sheet.isVisible());
    waitUntilIdle(&sheet);

    // Failed: the error row with the runner's message, the log open, "Uninstall" again.
    ASSERT_TRUE(sheet.errorMessage().has_value());
    EXPECT_TRUE(sheet.errorMessage()->startsWith(QStringLiteral("Process error: ")));
    EXPECT_TRUE(shows(&sheet, "errorRow"));
    EXPECT_TRUE(shows(&sheet, "logView"));
    EXPECT_TRUE(offered(&sheet, "uninstallButton"));
    EXPECT_EQ(sheet.defaultButton(), button(&sheet, "cancelButton")); // trying again is no default either
    EXPECT_FALSE(sheet.uninstallComplete());
    EXPECT_GE(sheet.height(), 360); // grown if it must, never cut off

    // Retry with a working shell: the old error and log go before the new run.
    ASSERT_TRUE(QFile::link(QStringLiteral(QF_FIXTURES_DIR "/sandbox-shell"), shell));
    button(&sheet, "uninstallButton")->click();
    EXPECT_FALSE(sheet.errorMessage().has_value());
    EXPECT_FALSE(sheet.output().contains(QStringLiteral("Process error")));
    waitUntilIdle(&sheet);
    EXPECT_TRUE(sheet.uninstallComplete());
    EXPECT_EQ(label(&sheet, "sheetTitle"), QStringLiteral("Uninstall Complete"));
    EXPECT_FALSE(shows(&sheet, "errorRow"));
    EXPECT_TRUE(offered(&sheet, "cancelButton"));
    EXPECT_TRUE(offered(&sheet, "doneButton"));
    EXPECT_EQ(reloads, 0);
    button(&sheet, "doneButton")->click();
    EXPECT_EQ(reloads, 1);
    EXPECT_FALSE(sheet.isVisible());
}

TEST_F(SheetTest, SystemToolSheetRunsTheItemsCommand)
{
    sandbox.installFakes({"brew", "node"});
    SystemToolUninstallSheet* sheet = systemSheet(detected(SystemToolID::node));
    const QPointer<SystemToolUninstallSheet> guard(sheet);
    EXPECT_EQ(label(sheet, "sheetDescription"), QStringLiteral("This will remove Node.js from your system."));
    for (QWidget* control : test::focusableControls(sheet)) // shown or not, each has a name for screen readers
        EXPECT_FALSE(QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name).trimmed().isEmpty())
            << control->objectName().toStdString();
    button(sheet, "uninstallButton")->click();
    EXPECT_TRUE(offered(sheet, "cancelButton")); // this removal may be left to run
    waitUntilIdle(sheet);

    EXPECT_TRUE(sheet->uninstallComplete());
    EXPECT_TRUE(sheet->output().endsWith(QStringLiteral("60MB)\n\nNode.js has been uninstalled.\n")));
    EXPECT_TRUE(shows(sheet, "logView")); // always open
    button(sheet, "doneButton")->click();
    EXPECT_EQ(reloads, 1);
    test::settle();
    EXPECT_TRUE(guard.isNull());
}

// Removing is never the default: each removal opens on "Cancel", and Return there closes the
// sheet and removes nothing.
TEST_F(SheetTest, ReturnOnAnOpenedRemovalSheetRemovesNothing)
{
    sandbox.installFakes({"brew", "node"});
    UninstallSheet aiSheet(
        CLITool::codex, services.remover, services.logs, [this] { ++reloads; }, Qt::Dialog, nullptr);
    aiSheet.open();
    RemovalSheet* itemSheet = systemSheet(detected(SystemToolID::node));
    for (RemovalSheet* sheet : std::initializer_list<RemovalSheet*>{&aiSheet, itemSheet}) {
        SCOPED_TRACE(sheet->objectName().toStdString());
        const QPointer<RemovalSheet> guard(sheet);
        ASSERT_EQ(sheet->focusWidget(), button(sheet, "cancelButton"));
        QTest::keyClick(sheet->focusWidget(), Qt::Key_Return);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !guard || !guard->isVisible(); }, 5000));
        EXPECT_TRUE(!guard || !(guard->isUninstalling() || guard->uninstallComplete()));
    }
    test::settle();
    EXPECT_TRUE(LogBook::logFiles(platform.logs).isEmpty()); // no removal began
    EXPECT_EQ(reloads, 0);
}

TEST_F(SheetTest, ACancelledDialogAndAFailureEachSayWhatHappened)
{
    // osascript stands in for the system's password dialog and answers as told.
    sandbox.installFake(QStringLiteral("osascript"));
    SystemToolUninstallSheet* sheet = systemSheet(item(SystemToolID::developerTools));

    // Cancelled: a failed removal with a plain message, and nothing of osascript's.
    sandbox.setEnv("FAKE_DIALOG", "cancel");
    button(sheet, "uninstallButton")->click();
    waitUntilIdle(sheet);
    EXPECT_EQ(sheet->errorMessage(),
              QStringLiteral("The password dialog was cancelled, so Xcode CLI Tools was not removed."));
    EXPECT_EQ(sheet->output(),
              QStringLiteral("Running: rm -rf /Library/Developer/CommandLineTools (as administrator)\n\n"))
        << sheet->output().toStdString();
    EXPECT_TRUE(offered(sheet, "uninstallButton"));

    // Any other failure says plainly what happened; the log has the system's own words.
    sandbox.setEnv("FAKE_DIALOG", "fail");
    button(sheet, "uninstallButton")->click();
    waitUntilIdle(sheet);
    EXPECT_EQ(sheet->errorMessage(), failureSentence(FailureCause::permissionDenied));
    EXPECT_TRUE(sheet->output().endsWith(QStringLiteral("rm: Operation not permitted (1)\n\nError: Command failed "
                                                        "with exit code 1: Command failed\n")))
        << sheet->output().toStdString();

    sandbox.setEnv("FAKE_DIALOG", "");
    button(sheet, "uninstallButton")->click();
    waitUntilIdle(sheet);
    EXPECT_TRUE(sheet->uninstallComplete());
    sheet->close();
}

TEST_F(SheetTest, AnItemWithOnlyANoteOffersOK)
{
    SystemToolUninstallSheet* sheet = systemSheet(item(SystemToolID::developerFolder));
    EXPECT_EQ(label(sheet, "sheetDescription"), QStringLiteral("Open Finder to manage this folder"));
    EXPECT_TRUE(offered(sheet, "okButton"));
    EXPECT_TRUE(offered(sheet, "cancelButton"));
    EXPECT_FALSE(offered(sheet, "uninstallButton"));
    EXPECT_EQ(sheet->defaultButton(), button(sheet, "okButton")); // a note removes nothing
    // Information, not a removal: no trash can in red.
    EXPECT_EQ(test::child<ui::SymbolView>(sheet, QStringLiteral("sheetSymbol"))->name(), QStringLiteral("info.circle"));
    button(sheet, "okButton")->click();
    EXPECT_EQ(reloads, 0);

    // With neither a command nor a note there is nothing to acknowledge: only "Cancel".
    SystemTool silent = item(SystemToolID::homebrew);
    silent.uninstallCommand.reset();
    silent.uninstallNote.reset();
    SystemToolUninstallSheet* empty = systemSheet(silent);
    EXPECT_FALSE(offered(empty, "okButton"));
    EXPECT_TRUE(offered(empty, "cancelButton"));
    empty->close();
}

TEST_F(SheetTest, ASheetClosedMidRunLeavesTheCommandToFinish)
{
    SystemTool slow = item(SystemToolID::homebrew);
    const QString done = sandbox.path(QStringLiteral("done"));
    slow.uninstallCommand = QStringLiteral("echo start; sleep 0.5; echo more; touch '%1'").arg(done);
    QPointer<SystemToolUninstallSheet> sheet = systemSheet(slow);
    button(sheet, "uninstallButton")->click();
    ASSERT_TRUE(QTest::qWaitFor([&] { return sheet->output().contains(QStringLiteral("start")); }, 20000));
    button(sheet, "cancelButton")->click();
    test::settle();
    EXPECT_TRUE(sheet.isNull());
    // The command ran to its end and nothing reloaded; its late output reached the log file.
    ASSERT_TRUE(QTest::qWaitFor([&] { return QFile::exists(done); }, 20000));
    const QStringList files = LogBook::logFiles(platform.logs);
    ASSERT_EQ(files.size(), 1);
    const QString path = platform.logs + QLatin1Char('/') + files.front();
    // The removal's last word reaches the file as it ends: by then a reload would have come.
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return readText(path).endsWith(QStringLiteral("start\nmore\n\nHomebrew has been uninstalled.\n")); },
        20000))
        << readText(path).toStdString();
    EXPECT_EQ(reloads, 0);
}

TEST_F(SheetTest, TenMegabytesOfOutputShowTheNewestAndReachTheFileWhole)
{
    SystemTool chatty = item(SystemToolID::homebrew);
    // 10 MiB in lines of 100 characters, numbered so that nothing can go missing unseen.
    const QString dots(92, QLatin1Char('.'));
    chatty.uninstallCommand = QStringLiteral("seq -w 1 104857 | sed 's/$/ %1/'").arg(dots);
    SystemToolUninstallSheet* sheet = systemSheet(chatty);
    button(sheet, "uninstallButton")->click();
    // The window keeps answering while the text pours in.
    int turns = 0;
    while (sheet->isUninstalling() && turns < 1000000) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        ++turns;
    }
    ASSERT_FALSE(sheet->isUninstalling());
    EXPECT_GT(turns, 1);
    const QString header = QStringLiteral("Running: ") + *chatty.uninstallCommand + QStringLiteral("\n\n");
    const QString footer = QStringLiteral("\nHomebrew has been uninstalled.\n");
    const QString lastLine = QStringLiteral("104857 ") + dots + QLatin1Char('\n');

    // The sheet keeps the newest 4 MB at most, in whole lines, below the notice.
    const QString shown = sheet->output();
    const QString notice = BoundedLog::cutNotice() + QLatin1Char('\n');
    EXPECT_LE(shown.size(), 4 * 1024 * 1024);
    ASSERT_TRUE(shown.startsWith(notice));
    EXPECT_EQ(shown.sliced(notice.size()).indexOf(QLatin1Char('\n')), 99) << "the first line kept is not whole";
    EXPECT_TRUE(shown.endsWith(lastLine + footer));
    auto* log = test::child<ui::LogView>(sheet, QStringLiteral("logView"));
    EXPECT_TRUE(log->wasCut());
    EXPECT_TRUE(log->isFollowing()); // the newest line is in view

    // The removal's file has all of it.
    const QStringList files = LogBook::logFiles(platform.logs);
    ASSERT_EQ(files.size(), 1);
    EXPECT_TRUE(files.front().endsWith(QStringLiteral(" Uninstall Homebrew.log")));
    const QString path = platform.logs + QLatin1Char('/') + files.front();
    ASSERT_TRUE(QTest::qWaitFor([&] { return readText(path).endsWith(footer); }, 20000));
    const QString text = readText(path);
    ASSERT_TRUE(text.startsWith(header));
    const QString body = text.mid(header.size(), text.size() - header.size() - footer.size());
    EXPECT_EQ(body.size(), 104857 * 100);
    EXPECT_TRUE(body.startsWith(QStringLiteral("000001 ")) && body.endsWith(lastLine));
    sheet->close();
}
