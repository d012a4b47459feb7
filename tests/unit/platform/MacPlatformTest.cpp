#include "PlatformBackends.h"
#include "PlatformTestTools.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <ostream>
#include <string>

using qf::MacPlatform;

namespace {

// Where there is no osascript (every system but macOS) the launch fails, which must come out
// as exactly one diagnostic line. On a Mac this would open a real Terminal window.
TEST(MacPlatformTerminal, LaunchFailureIsOneDiagnosticLine)
{
    if (QFile::exists(QStringLiteral("/usr/bin/osascript")))
        GTEST_SKIP() << "osascript is present; opening Terminal is not hermetic";

    qf::test::StdoutCapture capture;
    std::optional<bool> opened;
    MacPlatform().openTerminal(QStringLiteral("claude"), QStringLiteral("~/Developer"),
                               [&opened](qf::TerminalAnswer answer) { opened = answer == qf::TerminalAnswer::opened; });
    const bool reported = QTest::qWaitFor([&] { return opened && capture.text().contains(QLatin1Char('\n')); }, 20000);
    // Lets the failed process be deleted and anything else it might print come out.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    const QString text = capture.text();
    capture.restore();

    ASSERT_TRUE(reported) << text.toStdString();
    EXPECT_EQ(opened, false);
    EXPECT_TRUE(text.startsWith(QStringLiteral("AppleScript error: "))) << text.toStdString();
    EXPECT_GT(text.trimmed().size(), QStringLiteral("AppleScript error:").size()) << "the reason is missing";
    EXPECT_EQ(text.count(QLatin1Char('\n')), 1) << text.toStdString();
    EXPECT_TRUE(text.endsWith(QLatin1Char('\n')));
}

// The environment of commands comes from the account's shell as an interactive login shell:
// zsh when the account names none that can run.
TEST(MacPlatformShell, TheLoginEnvironmentComesFromTheAccountsShell)
{
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    const QString line = QStringLiteral("printf x");
    const QString missing = folder.filePath(QStringLiteral("missing"));
    const auto account = [](const QString& shell) { return [shell] { return shell; }; };
    {
        qf::test::ScopedEnv shell("SHELL", missing.toUtf8());
        EXPECT_EQ(MacPlatform(account(missing)).loginShellInvocation(line),
                  (QStringList{QStringLiteral("/bin/zsh"), QStringLiteral("-l"), QStringLiteral("-i"),
                               QStringLiteral("-c"), line}));
    }
    // What SHELL says does not count while the account's shell can run.
    const QString named = folder.filePath(QStringLiteral("sh"));
    ASSERT_TRUE(qf::test::writeExecutable(named, "#!/bin/sh\n"));
    qf::test::ScopedEnv shell("SHELL", named.toUtf8());
    for (const char* name : {"bash", "tcsh", "ksh"}) {
        const QString path = folder.filePath(QLatin1String(name));
        ASSERT_TRUE(qf::test::writeExecutable(path, "#!/bin/sh\n"));
        // csh and tcsh take "-l" only alone; a shell not known to take "-i" with "-c" gets "-l".
        const QString which = QLatin1String(name);
        const QStringList expected = which == QLatin1String("tcsh") ? QStringList{path, QStringLiteral("-c"), line}
                                     : which == QLatin1String("ksh")
                                         ? QStringList{path, QStringLiteral("-l"), QStringLiteral("-c"), line}
                                         : QStringList{path, QStringLiteral("-l"), QStringLiteral("-i"),
                                                       QStringLiteral("-c"), line};
        EXPECT_EQ(MacPlatform(account(path)).loginShellInvocation(line), expected);
        EXPECT_EQ(qf::LinuxPlatform(account(path)).loginShellInvocation(line), expected);
        // A login shell per command is never interactive: what only a terminal's shell reads
        // (a ~/.bashrc that starts tmux) stays out.
        const QStringList plain = which == QLatin1String("tcsh")
                                      ? QStringList{path, QStringLiteral("-c"), line}
                                      : QStringList{path, QStringLiteral("-l"), QStringLiteral("-c"), line};
        EXPECT_EQ(MacPlatform(account(path)).plainLoginShellInvocation(line), plain);
        EXPECT_EQ(qf::LinuxPlatform(account(path)).plainLoginShellInvocation(line), plain);
    }
}

} // namespace

// Where the capacity for important usage cannot be read (every system but macOS), the free
// space still comes from the volume as Qt sees it.
TEST(MacPlatformDiskSpace, AlwaysAnAnswerForARealVolume)
{
    const qf::DiskSpace space = qf::MacPlatform().availableDiskSpace(QDir::tempPath());
    ASSERT_TRUE(space.bytes.has_value()) << space.error.toStdString();
    EXPECT_GT(space.bytes.value_or(0), 0);
    EXPECT_TRUE(space.error.isEmpty());
}
