#include "CoroTest.h"
#include "TestMachine.h"
#include "TestSupport.h"
#include "ToolRemover.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace qf;
using qf::test::await;

namespace {

class ToolRemoverTest : public ::testing::Test, protected test::TestMachine {
protected:
    // Removes `tool` with `remover`, with what the removal says in `log`.
    Result<void> uninstall(CLITool tool, ToolRemover& remover)
    {
        log.clear();
        const ShellRunner::OutputHandler onOutput = [this](const QString& text) { log += text; };
        return await(remover.uninstall(tool, onOutput)).value_or(ServiceError::message(QStringLiteral("unfinished")));
    }
    Result<void> uninstall(CLITool tool) { return uninstall(tool, services.remover); }

    QString log;
};

} // namespace

TEST_F(ToolRemoverTest, UninstallRemovesEveryNpmCopy)
{
    // Gemini CLI in Homebrew's npm, in an nvm version, in the npm the search path finds and in
    // the user's own prefix ~/.local: one line removes them all.
    sandbox.installFakeAt(QStringLiteral("npm"), sandbox.systemPath(QStringLiteral("/opt/homebrew/bin/npm")));
    sandbox.installFakeAt(QStringLiteral("gemini"), sandbox.systemPath(QStringLiteral("/opt/homebrew/bin/gemini")));
    const QString nvm = sandbox.path(QStringLiteral(".nvm/versions/node/v20.10.0/bin/"));
    sandbox.installFakeAt(QStringLiteral("npm"), nvm + QStringLiteral("npm"));
    sandbox.installFakeAt(QStringLiteral("gemini"), nvm + QStringLiteral("gemini"));
    sandbox.installFakes({"gemini"});
    sandbox.installFakeAt(QStringLiteral("gemini"), sandbox.path(QStringLiteral(".local/bin/gemini")));
    QDir().mkpath(sandbox.path(QStringLiteral(".local/lib/node_modules/@google/gemini-cli")));

    Result<void> result = uninstall(CLITool::geminiCLI);
    ASSERT_TRUE(result.ok());
    EXPECT_FALSE(QFile::exists(nvm + QStringLiteral("gemini")));
    EXPECT_FALSE(QFile::exists(sandbox.systemPath(QStringLiteral("/opt/homebrew/bin/gemini"))));
    EXPECT_FALSE(sandbox.exists(QStringLiteral(".local/bin/gemini")));
    EXPECT_FALSE(sandbox.exists(QStringLiteral(".local/lib/node_modules/@google/gemini-cli")));
    // nvm's npm is the one the search path finds here; the sandbox's own npm still holds its
    // copy, which is reported and which the next removal reaches.
    EXPECT_EQ(log,
              QStringLiteral("Uninstalling Gemini CLI...\nremoved 1 package\nremoved 1 package\nremoved 1 package\n"
                             "up to date, audited 1 package\n"
                             "\nNote: 'gemini' is still found in PATH. You may have multiple installations.\n"
                             "Run 'which gemini' in Terminal to find other copies.\n"));
    EXPECT_TRUE(QFile::exists(sandbox.binDirectory() + QStringLiteral("/gemini")));
    QFile::remove(nvm + QStringLiteral("npm"));
    sandbox.installFakes({"npm"});
    result = uninstall(CLITool::geminiCLI);
    ASSERT_TRUE(result.ok());
    EXPECT_FALSE(QFile::exists(sandbox.binDirectory() + QStringLiteral("/gemini")));
    EXPECT_EQ(log, QStringLiteral("Uninstalling Gemini CLI...\nup to date, audited 1 package\nremoved 1 package\n"
                                  "\nGemini CLI has been uninstalled.\n"));
}

TEST_F(ToolRemoverTest, UninstallRemovesClaudeCodesOwnLauncherAndTellsAboutOtherCopies)
{
    // Claude Code from its maker's installer (the launcher in ~/.local/bin, its versions in
    // ~/.local/share/claude) and another copy installed by other means.
    sandbox.installFakeAt(QStringLiteral("claude"), sandbox.path(QStringLiteral(".local/bin/claude")));
    sandbox.writeFile(QStringLiteral(".local/share/claude/versions/1.0.42"), "binary");
    sandbox.installFakes({"claude"});
    QDir().mkpath(sandbox.path(QStringLiteral(".claude/local")));
    QDir().mkpath(sandbox.path(QStringLiteral(".claude/downloads")));
    sandbox.writeFile(QStringLiteral(".claude/settings.json"), "{}");

    const Result<void> result = uninstall(CLITool::claudeCode);
    ASSERT_TRUE(result.ok());
    EXPECT_EQ(log, QStringLiteral("Uninstalling Claude Code...\n"
                                  "\nNote: 'claude' is still found in PATH. You may have multiple installations.\n"
                                  "Run 'which claude' in Terminal to find other copies.\n"));
    EXPECT_FALSE(sandbox.exists(QStringLiteral(".local/bin/claude")));
    EXPECT_FALSE(sandbox.exists(QStringLiteral(".local/share/claude")));
    EXPECT_FALSE(sandbox.exists(QStringLiteral(".claude/local")));
    EXPECT_FALSE(sandbox.exists(QStringLiteral(".claude/downloads")));
    EXPECT_TRUE(sandbox.exists(QStringLiteral(".claude/settings.json")));
}

TEST_F(ToolRemoverTest, ACopyInAFolderOnlyAnAdministratorMayChangeGoesThroughThePasswordDialog)
{
    // Gemini CLI in npm's global folder, which the user's npm may not change. npm starts through
    // `env node`, and the administrator's shell searches only the system's folders, where this
    // Node.js is not.
    sandbox.installFakes({"gemini", "sudo"});
    QFile npmFixture(QStringLiteral(QF_FIXTURES_DIR "/bin/npm"));
    ASSERT_TRUE(npmFixture.open(QIODevice::ReadOnly));
    const QByteArray npmBody = npmFixture.readAll();
    ASSERT_TRUE(test::writeExecutable(sandbox.binDirectory() + QStringLiteral("/npm"),
                                      "#!/usr/bin/env node\n" + npmBody.mid(npmBody.indexOf('\n') + 1)));
    ASSERT_TRUE(test::writeExecutable(sandbox.binDirectory() + QStringLiteral("/node"),
                                      "#!/bin/sh\nscript=$1; shift; exec /bin/sh \"$script\" \"$@\"\n"));
    const QString prefix = QFileInfo(sandbox.binDirectory()).absolutePath();
    test::writeFile(prefix + QStringLiteral("/lib"), "");
    sandbox.setEnv("FAKE_NPM_PREFIX", prefix.toUtf8());
    sandbox.setEnv("FAKE_NPM_DENIED", "1");
    sandbox.setEnv("FAKE_SUDO_PATH", "/usr/sbin:/sbin");

    // Cancelled: the removal fails with a plain message and the tool stays.
    sandbox.setEnv("FAKE_SUDO_CANCEL", "1");
    Result<void> result = uninstall(CLITool::geminiCLI);
    ASSERT_FALSE(result.ok());
    EXPECT_EQ(result.error().errorDescription(),
              QStringLiteral("The password dialog was cancelled, so Gemini CLI was not removed."));
    EXPECT_TRUE(QFile::exists(sandbox.binDirectory() + QStringLiteral("/gemini")));

    sandbox.setEnv("FAKE_SUDO_ALLOW", "1");
    result = uninstall(CLITool::geminiCLI);
    ASSERT_TRUE(result.ok()) << result.error().errorDescription().toStdString() << log.toStdString();
    EXPECT_FALSE(QFile::exists(sandbox.binDirectory() + QStringLiteral("/gemini")));
    EXPECT_TRUE(log.endsWith(QStringLiteral("\nRemoving Gemini CLI from %1 needs administrator rights.\n"
                                            "removed 1 package\n\nGemini CLI has been uninstalled.\n")
                                 .arg(prefix)))
        << log.toStdString();
}

TEST_F(ToolRemoverTest, UninstallThatCannotLookAfterwardsSaysSo)
{
    // A shell that cannot start, the login shell included: the removal is noted, and since
    // the search for the tool could not run either, nobody is told the tool is gone.
    ShellRunner::Configuration brokenShell = sandbox.shellConfiguration();
    brokenShell.shell = QStringLiteral("/nonexistent/zsh");
    platform.terminalShell = brokenShell.shell;
    Services broken(platform, brokenShell);
    const Result<void> result = uninstall(CLITool::codex, broken.remover);
    ASSERT_FALSE(result.ok());
    EXPECT_TRUE(result.error().errorDescription().startsWith(QStringLiteral("Process error: ")));
    EXPECT_TRUE(log.startsWith(QStringLiteral("Uninstalling Codex...\nNote: Process error: ")));
    EXPECT_FALSE(log.contains(QStringLiteral("has been uninstalled")));
}
