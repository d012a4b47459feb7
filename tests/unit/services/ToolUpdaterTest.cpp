#include "CoroTest.h"
#include "Diagnosis.h"
#include "Preferences.h"
#include "TestMachine.h"
#include "TestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace qf;
using qf::test::await;

namespace {

// What one update logged and ended with.
struct UpdateRun {
    QString log;
    std::optional<Result<UpdateOutcome>> result;

    bool ok() const { return result && result->ok(); }
    QString error() const { return result && !result->ok() ? result->error().errorDescription() : QString(); }
};

class ToolUpdaterTest : public ::testing::Test, protected test::TestMachine {
protected:
    void SetUp() override
    {
        test::clearPreferences();
        sandbox.installFakes({"npm", "node"});
        sandbox.setEnv("FAKE_TOOL_VERSION", "0.60.0");
        sandbox.setEnv("FAKE_NPM_LATEST", "0.61.0");
        sandbox.setEnv("FAKE_NPM_ENGINES", ">=20");
    }

    UpdateRun update(CLITool tool, bool installingNode = false)
    {
        UpdateRun run;
        const auto log = [&run](const QString& text) { run.log += text; };
        run.result = installingNode ? await(updater.installNodeThenUpdate(tool, log))
                                    : await(updater.update(tool, log));
        return run;
    }
    // Gemini CLI as the installer leaves it without write access to npm's global folder.
    void installGeminiInLocal()
    {
        sandbox.installFakeAt(QStringLiteral("gemini"), sandbox.path(QStringLiteral(".local/bin/gemini")));
        QDir().mkpath(sandbox.path(QStringLiteral(".local/lib/node_modules/@google/gemini-cli")));
    }
    QString npmPrefix() const { return QFileInfo(sandbox.binDirectory()).absolutePath(); }

    ToolUpdater& updater = services.updater;
};

} // namespace

TEST_F(ToolUpdaterTest, AnUpdateGoesWhereTheToolWasInstalledAndIsVerified)
{
    // Gemini CLI in ~/.local, Codex in npm's own global folder.
    installGeminiInLocal();
    sandbox.installFakes({"codex"});

    const UpdateRun gemini = update(CLITool::geminiCLI);
    ASSERT_TRUE(gemini.ok()) << gemini.error().toStdString() << gemini.log.toStdString();
    EXPECT_EQ(gemini.result->value().previousVersion, QStringLiteral("0.60.0"));
    EXPECT_EQ(gemini.result->value().newVersion, QStringLiteral("0.61.0"));
    EXPECT_TRUE(gemini.result->value().changed());
    EXPECT_EQ(sandbox.readState("npm-env.log"),
              QStringLiteral("npm install -g @google/gemini-cli@0.61.0 with npm_config_prefix=%1\n")
                  .arg(sandbox.path(QStringLiteral(".local")))
                  .toUtf8());
    // No second copy in npm's global folder.
    EXPECT_FALSE(QFile::exists(sandbox.binDirectory() + QStringLiteral("/gemini")));
    EXPECT_TRUE(gemini.log.endsWith(QStringLiteral("\nGemini CLI updated from 0.60.0 to 0.61.0.\n")))
        << gemini.log.toStdString();
    // The badge goes: nothing newer is known once the check is asked again.
    EXPECT_EQ(Preferences::updateCheck(CLITool::geminiCLI), std::nullopt);
    const std::optional<QList<ToolUpdateInfo>> after = await(services.updateChecker.check({CLITool::geminiCLI}));
    ASSERT_TRUE(after && after->size() == 1);
    EXPECT_FALSE(after->first().updateAvailable());

    const UpdateRun codex = update(CLITool::codex);
    ASSERT_TRUE(codex.ok()) << codex.error().toStdString() << codex.log.toStdString();
    EXPECT_TRUE(sandbox.readState("npm.log").contains("npm install -g @openai/codex@0.61.0\n"));
    EXPECT_FALSE(sandbox.readState("npm-env.log").contains("codex")); // npm's own prefix needs no pointing at
    EXPECT_EQ(codex.result->value().newVersion, QStringLiteral("0.61.0"));

    // Up to date: nothing runs.
    const QByteArray before = sandbox.readState("npm.log");
    const UpdateRun again = update(CLITool::codex);
    ASSERT_TRUE(again.ok());
    EXPECT_FALSE(again.result->value().changed());
    EXPECT_FALSE(sandbox.readState("npm.log").mid(before.size()).contains("install"));
}

TEST_F(ToolUpdaterTest, AToolOnlyAnAdministratorMayChangeIsUpdatedThroughThePasswordDialog)
{
    // Gemini CLI in npm's global folder, which the user's npm may not change.
    sandbox.installFakes({"gemini", "sudo"});
    QFile blocker(npmPrefix() + QStringLiteral("/lib"));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();
    sandbox.setEnv("FAKE_NPM_DENIED", "1");

    sandbox.setEnv("FAKE_SUDO_CANCEL", "1");
    UpdateRun run = update(CLITool::geminiCLI);
    ASSERT_TRUE(run.result && !run.ok());
    EXPECT_TRUE(run.result->error().isDeclined());
    EXPECT_EQ(run.error(), QStringLiteral("The password dialog was cancelled, so Gemini CLI was not updated."));

    sandbox.setEnv("FAKE_SUDO_ALLOW", "1");
    run = update(CLITool::geminiCLI);
    ASSERT_TRUE(run.ok()) << run.error().toStdString() << run.log.toStdString();
    EXPECT_EQ(run.result->value().newVersion, QStringLiteral("0.61.0"));
    EXPECT_TRUE(
        run.log.contains(QStringLiteral("Updating Gemini CLI in %1 needs administrator rights.\n").arg(npmPrefix())))
        << run.log.toStdString();
    EXPECT_TRUE(sandbox.readState("npm-env.log")
                    .contains(QStringLiteral("npm install -g @google/gemini-cli@0.61.0 with npm_config_prefix=%1\n")
                                  .arg(npmPrefix())
                                  .toUtf8()));
}

TEST_F(ToolUpdaterTest, AnUpdateNeedingANewerNodeIsRefusedBeforeAnythingRuns)
{
    sandbox.installFakes({"gemini", "brew"});
    sandbox.setEnv("FAKE_NPM_LATEST", "0.62.0");
    sandbox.setEnv("FAKE_NPM_ENGINES", ">=22.0.0");

    const UpdateRun refused = update(CLITool::geminiCLI);
    ASSERT_TRUE(refused.result && !refused.ok());
    EXPECT_EQ(refused.result->error().requiredNodeMajor(), 22);
    EXPECT_EQ(refused.error(), QStringLiteral("Gemini CLI 0.62.0 needs Node.js 22 or newer; this Mac has v20.10.0."));
    EXPECT_FALSE(sandbox.readState("npm.log").contains("install"));

    // The way on: a newer Node.js, then the update.
    sandbox.setEnv("FAKE_BREW_NODE_VERSION", "v22.11.0");
    const UpdateRun updated = update(CLITool::geminiCLI, true);
    ASSERT_TRUE(updated.ok()) << updated.error().toStdString() << updated.log.toStdString();
    EXPECT_EQ(updated.result->value().newVersion, QStringLiteral("0.62.0"));
}

TEST_F(ToolUpdaterTest, ClaudeCodeFromItsMakersInstallerUpdatesItself)
{
    // The maker's launcher links to its versions; its own runtime needs no Node.js, whatever the
    // npm package declares.
    const QString version = sandbox.path(QStringLiteral(".local/share/claude/versions/2.1.330"));
    sandbox.installFakeAt(QStringLiteral("claude"), version);
    QDir().mkpath(sandbox.path(QStringLiteral(".local/bin")));
    ASSERT_TRUE(QFile::link(version, sandbox.path(QStringLiteral(".local/bin/claude"))));
    sandbox.setEnv("FAKE_TOOL_VERSION", "2.1.330 (Claude Code)");
    sandbox.setEnv("FAKE_NPM_LATEST", "2.1.332");
    sandbox.setEnv("FAKE_NPM_ENGINES", ">=22.0.0");
    sandbox.setEnv("FAKE_CLAUDE_UPDATE", "2.1.332 (Claude Code)");

    const UpdateRun run = update(CLITool::claudeCode);
    ASSERT_TRUE(run.ok()) << run.error().toStdString() << run.log.toStdString();
    EXPECT_EQ(run.result->value().previousVersion, QStringLiteral("2.1.330"));
    EXPECT_EQ(run.result->value().newVersion, QStringLiteral("2.1.332"));
    EXPECT_EQ(sandbox.readState("claude.log"), "claude update\n");
    EXPECT_FALSE(sandbox.readState("npm.log").contains("install"));
    EXPECT_TRUE(run.log.contains(QStringLiteral("Successfully updated to version 2.1.332")));
}

TEST_F(ToolUpdaterTest, AFailedUpdateSaysWhetherTheVersionBeforeStillWorks)
{
    installGeminiInLocal();

    // npm fails and leaves the version before in place.
    sandbox.setEnv("FAKE_NPM_FAIL", "1");
    UpdateRun run = update(CLITool::geminiCLI);
    ASSERT_TRUE(run.result && !run.ok());
    EXPECT_TRUE(run.error().startsWith(QStringLiteral("Gemini CLI was not updated. ")));
    EXPECT_TRUE(run.error().endsWith(QStringLiteral(" Gemini CLI 0.60.0 still works."))) << run.error().toStdString();
    // The badge stays.
    EXPECT_NE(Preferences::updateCheck(CLITool::geminiCLI), std::nullopt);

    // The update ran but the tool did not change.
    sandbox.setEnv("FAKE_NPM_FAIL", "");
    sandbox.setEnv("FAKE_NPM_SKIP_BIN", "1");
    run = update(CLITool::geminiCLI);
    ASSERT_TRUE(run.result && !run.ok());
    EXPECT_EQ(run.error(),
              QStringLiteral("The update of Gemini CLI finished, but Gemini CLI still reports version 0.60.0, which "
                             "still works."));

    // npm fails half way and the tool no longer starts.
    sandbox.setEnv("FAKE_NPM_FAIL", "1");
    sandbox.setEnv("FAKE_NPM_SCRIPT", "rm -f \"$HOME/.local/bin/gemini\"");
    run = update(CLITool::geminiCLI);
    ASSERT_TRUE(run.result && !run.ok());
    EXPECT_TRUE(run.error().endsWith(
        QStringLiteral(" Gemini CLI 0.60.0 no longer starts: install it again from the dashboard.")))
        << run.error().toStdString();
}

TEST_F(ToolUpdaterTest, TryAgainUsesAPrivateNpmCacheWhenNpmsOwnMayNotBeWritten)
{
    // An earlier "sudo npm" left npm's cache to the administrator.
    installGeminiInLocal();
    const QString cache = sandbox.path(QStringLiteral(".npm"));
    ASSERT_TRUE(QDir().mkpath(cache));
    ASSERT_TRUE(QFile::setPermissions(cache, QFileDevice::ReadOwner | QFileDevice::ExeOwner));
    const UpdateRun refused = update(CLITool::geminiCLI);
    ASSERT_TRUE(refused.result && !refused.ok());
    EXPECT_TRUE(refused.error().contains(npmPermissionRetrySentence(QStringLiteral("Gemini CLI"), false)))
        << refused.error().toStdString();

    const UpdateRun retried = update(CLITool::geminiCLI);
    ASSERT_TRUE(retried.ok()) << retried.error().toStdString() << retried.log.toStdString();
    EXPECT_EQ(retried.result->value().newVersion, QStringLiteral("0.61.0"));
    EXPECT_TRUE(QFileInfo(platform.cache + QStringLiteral("/npm")).isDir());
}
