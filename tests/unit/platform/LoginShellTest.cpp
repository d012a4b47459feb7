#include "LoginShell.h"
#include "PlatformBackends.h"
#include "PlatformTestTools.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <initializer_list>
#include <optional>
#include <string>

#include <pwd.h>
#include <unistd.h>

using qf::chooseLoginShell;
using qf::test::ScopedEnv;

namespace {

QString shellPath(const char* text) { return QString::fromUtf8(text); }

// The account's shell first, then SHELL, then the system's own; each only when it can run: an
// absolute path to an executable file.
TEST(LoginShell, TheAccountsShellComesFirstThenSHELLThenTheDefault)
{
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    const QString zsh = folder.filePath(shellPath("bin/zsh"));
    const QString bash = folder.filePath(shellPath("bin/bash"));
    ASSERT_TRUE(qf::test::writeExecutable(zsh, "#!/bin/sh\n"));
    ASSERT_TRUE(qf::test::writeExecutable(bash, "#!/bin/sh\n"));
    const QString fallback = shellPath("/bin/default-shell");

    EXPECT_EQ(chooseLoginShell(zsh, bash, fallback), zsh); // SHELL is stale after chsh
    EXPECT_EQ(chooseLoginShell(zsh, QString(), fallback), zsh);
    EXPECT_EQ(chooseLoginShell(QString(), bash, fallback), bash);
    EXPECT_EQ(chooseLoginShell(QString(), QString(), fallback), fallback);

    // Names that cannot be started as they are: "bin/zsh" exists relative to the working
    // folder, which is no place a terminal starts a shell from.
    ASSERT_TRUE(qf::test::writeExecutable(folder.filePath(shellPath("plain")), "#!/bin/sh\n"));
    QFile(folder.filePath(shellPath("plain"))).setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    const QString previous = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(folder.path()));
    const auto back = qScopeGuard([&previous] { QDir::setCurrent(previous); });
    for (const QString& unusable : {shellPath("bin/zsh"), shellPath("zsh"), folder.filePath(shellPath("missing")),
                                    folder.filePath(shellPath("bin")), folder.filePath(shellPath("plain"))}) {
        EXPECT_EQ(chooseLoginShell(unusable, bash, fallback), bash) << unusable.toStdString();
        EXPECT_EQ(chooseLoginShell(unusable, unusable, fallback), fallback) << unusable.toStdString();
        EXPECT_EQ(chooseLoginShell(zsh, unusable, fallback), zsh) << unusable.toStdString();
    }
}

// Both backends start the shell the user database records, whether SHELL names another or is
// not set at all; without a usable shell in the database they take SHELL's, and without that
// their system's: zsh on a Mac, bash elsewhere. The login environment and terminal windows
// start that shell.
TEST(LoginShell, BothBackendsTakeTheAccountsShellOverSHELL)
{
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    const QString zsh = folder.filePath(shellPath("zsh"));
    const QString fish = folder.filePath(shellPath("fish"));
    ASSERT_TRUE(qf::test::writeExecutable(zsh, "#!/bin/sh\n"));
    ASSERT_TRUE(qf::test::writeExecutable(fish, "#!/bin/sh\n"));
    const auto account = [](const QString& shell) { return [shell] { return QString(shell); }; };
    const QString line = shellPath("true");

    for (const std::optional<QString>& environment : {std::optional<QString>(fish), std::optional<QString>()}) {
        const std::string which = environment ? "SHELL names fish" : "no SHELL";
        std::optional<ScopedEnv> shell;
        if (environment)
            shell.emplace("SHELL", environment->toUtf8());
        else
            shell.emplace("SHELL", std::nullopt);

        const qf::MacPlatform mac(account(zsh));
        const qf::LinuxPlatform linuxPlatform(account(zsh));
        for (const qf::Platform* platform : std::initializer_list<const qf::Platform*>{&mac, &linuxPlatform}) {
            EXPECT_EQ(platform->loginShell(), zsh) << which;
            EXPECT_EQ(platform->loginShellInvocation(line).value(0), zsh) << which;
            EXPECT_EQ(platform->plainLoginShellInvocation(line).value(0), zsh) << which;
            EXPECT_EQ(platform->terminalShellInvocation(line).value(0), zsh) << which;
        }
        // A terminal here starts zsh as a login shell, where bash would start without "-l".
        EXPECT_TRUE(linuxPlatform.terminalStartsLoginShell()) << which;

        // The database records no shell, or one that cannot run.
        for (const QString& recorded : {QString(), folder.filePath(shellPath("missing"))}) {
            EXPECT_EQ(qf::MacPlatform(account(recorded)).loginShell(), environment.value_or(shellPath("/bin/zsh")))
                << which;
            EXPECT_EQ(qf::LinuxPlatform(account(recorded)).loginShell(), environment.value_or(shellPath("/bin/bash")))
                << which;
        }
    }
}

// What the user database says of this account, read as getpwuid reads it.
TEST(LoginShell, TheUserDatabaseIsAskedForThisAccount)
{
    const struct passwd* entry = getpwuid(getuid());
    const QString recorded = entry && entry->pw_shell ? QFile::decodeName(entry->pw_shell) : QString();
    EXPECT_EQ(qf::userDatabaseShell(), recorded);
    // Without a reader of their own, the backends ask the database.
    ScopedEnv shell("SHELL", std::nullopt);
    EXPECT_EQ(qf::LinuxPlatform().loginShell(), chooseLoginShell(recorded, QString(), shellPath("/bin/bash")));
    EXPECT_EQ(qf::MacPlatform().loginShell(), chooseLoginShell(recorded, QString(), shellPath("/bin/zsh")));
}

} // namespace
