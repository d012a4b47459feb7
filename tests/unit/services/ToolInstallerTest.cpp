#include "Diagnosis.h"
#include "SearchPathFix.h"
#include "SetupTest.h"

using namespace qf;
using qf::test::await;
using qf::test::kDone;
using qf::test::kInProgress;
using qf::test::kPending;
using qf::test::kSkipped;
using qf::test::Report;
using qf::test::SetupRun;

namespace {

class ToolInstallerTest : public test::SetupTest {};

} // namespace

TEST_F(ToolInstallerTest, ClaudeCodeInstallsWithoutNode)
{
    sandbox.installFakes({"git", "curl", "node"});

    const QList<SetupStep> list = steps(CLITool::claudeCode);
    ASSERT_EQ(list.size(), 3);
    EXPECT_EQ(list[0], (SetupStep{SetupStepType::createDeveloperFolder, kPending, std::nullopt}));
    EXPECT_EQ(list[1], (SetupStep{SetupStepType::checkGit, kPending, std::nullopt}));
    EXPECT_EQ(list[2], (SetupStep{SetupStepType::installTool, kPending, QStringLiteral("Claude Code")}));

    const SetupRun run = runSetup(CLITool::claudeCode);
    ASSERT_TRUE(run.result && run.result->ok()) << run.error().toStdString();
    const QList<Report> expected = {
        {SetupStepType::createDeveloperFolder, kInProgress, std::nullopt},
        {SetupStepType::createDeveloperFolder, kDone, QStringLiteral("Created")},
        {SetupStepType::checkGit, kInProgress, std::nullopt},
        {SetupStepType::checkGit, kDone, QStringLiteral("git version 2.39.5")},
        {SetupStepType::installTool, kInProgress, QStringLiteral("Claude Code")},
        {SetupStepType::installTool, kDone, QStringLiteral("1.0.42 (claude)")},
    };
    EXPECT_EQ(run.reports, expected);
    EXPECT_EQ(run.log, QStringLiteral("Created ~/Developer folder for your projects\n"
                                      "Found git version 2.39.5\n"
                                      "\nInstalling Claude Code...\n"
                                      "Installing Claude Code native build...\n"
                                      "Claude Code successfully installed!\n"
                                      "\nVerifying installation...\n"
                                      "\nClaude Code 1.0.42 (claude) installed successfully!\n"));
    EXPECT_TRUE(QFileInfo(sandbox.path(QStringLiteral("Developer"))).isDir());
    EXPECT_FALSE(QFile::exists(sandbox.stateDirectory() + QStringLiteral("/node.log")));
    // The maker's own installer was fetched over TLS.
    EXPECT_TRUE(QFile(sandbox.stateDirectory() + QStringLiteral("/curl.log")).exists());
}

TEST_F(ToolInstallerTest, GeminiWithARecentNodeSkipsTheNodeStep)
{
    sandbox.installFakes({"git", "node", "npm"});
    QDir().mkpath(sandbox.path(QStringLiteral("Developer")));

    const QList<SetupStep> list = steps(CLITool::geminiCLI);
    ASSERT_EQ(list.size(), 4);
    EXPECT_EQ(list[2], (SetupStep{SetupStepType::installNode, kSkipped, QStringLiteral("v20.10.0")}));
    EXPECT_EQ(list[3].details, QStringLiteral("Gemini CLI"));

    const SetupRun run = runSetup(CLITool::geminiCLI);
    ASSERT_TRUE(run.result && run.result->ok()) << run.error().toStdString();
    EXPECT_EQ(run.reports[1],
              (Report{SetupStepType::createDeveloperFolder, kSkipped, QStringLiteral("Already exists")}));
    EXPECT_TRUE(run.reports.contains(Report{SetupStepType::installNode, kSkipped, QStringLiteral("v20.10.0")}));
    EXPECT_FALSE(run.reports.contains(Report{SetupStepType::installNode, kInProgress, std::nullopt}));
    EXPECT_EQ(run.last(SetupStepType::installTool), kDone);
    EXPECT_TRUE(run.log.startsWith(QStringLiteral("~/Developer folder already exists\n")));
    EXPECT_TRUE(run.log.contains(QStringLiteral("added 1 package in 2s\n")));
    EXPECT_TRUE(run.log.endsWith(QStringLiteral("\nGemini CLI 1.0.42 (gemini) installed successfully!\n")));
    // npm's own folder may be written: it is used as it is, and no profile is touched.
    EXPECT_FALSE(run.log.contains(QStringLiteral("~/.local"))) << run.log.toStdString();
    EXPECT_FALSE(QFile::exists(sandbox.stateDirectory() + QStringLiteral("/npm-env.log")));
    EXPECT_FALSE(sandbox.exists(QStringLiteral(".zshrc")));
    EXPECT_TRUE(ToolInstaller::isWritableNpmPrefix(sandbox.stateDirectory()));
    EXPECT_FALSE(ToolInstaller::isWritableNpmPrefix(sandbox.stateDirectory() + QStringLiteral("/npm.log")));

    // A version that cannot be read keeps the step's details empty.
    sandbox.setEnv("FAKE_TOOL_VERSION_FAIL", "1");
    const SetupRun unread = runSetup(CLITool::geminiCLI);
    ASSERT_TRUE(unread.result && unread.result->ok());
    EXPECT_EQ(unread.reports.last(), (Report{SetupStepType::installTool, kDone, std::nullopt}));
    EXPECT_TRUE(unread.log.endsWith(QStringLiteral("\nGemini CLI installed successfully!\n")));
}

TEST_F(ToolInstallerTest, DownloadInstallAndVerificationFailures)
{
    // Offline: the maker's installer never arrives, so nothing runs and nothing is verified.
    sandbox.installFakes({"git", "curl", "node", "npm"});
    sandbox.setEnv("FAKE_CURL_FAIL", "1");
    const SetupRun offline = runSetup(CLITool::claudeCode);
    ASSERT_TRUE(offline.result && !offline.result->ok());
    EXPECT_EQ(offline.result->error().shellError()->exitCode(), 22); // curl's own status
    EXPECT_EQ(offline.result->error().plainDescription(), failureSentence(FailureCause::notFound));
    EXPECT_EQ(offline.last(SetupStepType::installTool), kInProgress);
    EXPECT_FALSE(offline.log.contains(QStringLiteral("Verifying"))) << offline.log.toStdString();
    EXPECT_FALSE(QFile::exists(sandbox.binDirectory() + QStringLiteral("/claude")));

    sandbox.setEnv("FAKE_NPM_FAIL", "1");
    const SetupRun failed = runSetup(CLITool::codex);
    EXPECT_EQ(failed.error(), QStringLiteral("Command failed with exit code 1: Command failed"));
    EXPECT_TRUE(failed.result->error().plainDescription().startsWith(QStringLiteral("@openai/codex was not found")));
    EXPECT_EQ(failed.last(SetupStepType::installTool), kInProgress);
    EXPECT_TRUE(failed.log.contains(QStringLiteral("npm ERR! 404 Not Found")));
    EXPECT_FALSE(failed.log.contains(QStringLiteral("Verifying")));

    sandbox.setEnv("FAKE_NPM_FAIL", "");
    sandbox.setEnv("FAKE_NPM_SKIP_BIN", "1");
    const SetupRun unverified = runSetup(CLITool::codex);
    EXPECT_EQ(unverified.error(),
              QStringLiteral("Installation completed but the tool could not be verified. Please try again."));
    EXPECT_EQ(unverified.reports.last(),
              (Report{SetupStepType::installTool, SetupStepStatus::failure(QStringLiteral("Verification failed")),
                      std::nullopt}));
    EXPECT_TRUE(unverified.log.endsWith(QStringLiteral("\nVerifying installation...\n")));
}

TEST_F(ToolInstallerTest, TheProjectsFolder)
{
    // Anything already at the path counts, an ordinary file too.
    sandbox.writeFile(QStringLiteral("Developer"), "not a folder");
    QString log;
    EXPECT_FALSE(*await(installer.createDeveloperFolder([&](const QString& t) { log += t; })));
    EXPECT_EQ(log, QStringLiteral("~/Developer folder already exists\n"));

    // A folder that cannot be made is noted and the setup goes on.
    sandbox.setEnv("HOME", (sandbox.path(QStringLiteral("Developer")) + QStringLiteral("/inside")).toUtf8());
    sandbox.installFakes({"git", "curl"});
    const SetupRun run = runSetup(CLITool::claudeCode);
    EXPECT_TRUE(run.log.startsWith(QStringLiteral("Note: Could not create ~/Developer folder: ")));
    EXPECT_EQ(run.reports[1].type, SetupStepType::createDeveloperFolder);
    EXPECT_EQ(run.reports[1].status.kind(), SetupStepStatus::failed);
    EXPECT_TRUE(run.mentions(SetupStepType::installTool));
}

TEST_F(ToolInstallerTest, AnNpmFolderBehindABrokenLinkSendsTheToolToLocal)
{
    // npm's prefix is a link whose folder is gone: npm could make nothing there.
    sandbox.installFakes({"git", "node", "npm"});
    const QString prefix = sandbox.path(QStringLiteral("npm-global"));
    ASSERT_TRUE(QFile::link(sandbox.path(QStringLiteral("gone")), prefix));
    EXPECT_FALSE(ToolInstaller::isWritableNpmPrefix(prefix));
    EXPECT_FALSE(ToolInstaller::isWritableNpmPrefix(prefix + QStringLiteral("/deeper")));
    sandbox.setEnv("FAKE_NPM_PREFIX", prefix.toUtf8());
    const SetupRun run = runSetup(CLITool::geminiCLI);
    ASSERT_TRUE(run.result && run.result->ok()) << run.error().toStdString();
    EXPECT_TRUE(sandbox.exists(QStringLiteral(".local/bin/gemini")));
}

TEST_F(ToolInstallerTest, WhatASuccessfulInstallLeavesToKnowIsSaid)
{
    sandbox.installFakes({"git", "node", "npm"});
    // A plain run leaves nothing to know.
    SetupRun run = runSetup(CLITool::geminiCLI);
    ASSERT_TRUE(run.result && run.result->ok()) << run.error().toStdString();
    EXPECT_EQ(installer.caveats(), QStringList());

    // npm set to skip install scripts: the tools run without them.
    sandbox.setEnv("FAKE_NPM_IGNORE_SCRIPTS", "true");
    run = runSetup(CLITool::geminiCLI);
    ASSERT_TRUE(run.result && run.result->ok());
    EXPECT_EQ(installer.caveats(), QStringList());
    // npm set to refuse the scripts it was not told to allow.
    sandbox.setEnv("FAKE_NPM_STRICT_ALLOW_SCRIPTS", "true");
    run = runSetup(CLITool::geminiCLI);
    ASSERT_TRUE(run.result && run.result->ok());
    ASSERT_EQ(installer.caveats().size(), 1);
    EXPECT_TRUE(installer.caveats().first().startsWith(
        QStringLiteral("npm is set to refuse install scripts it was not told to allow")));
    EXPECT_TRUE(installer.caveats().first().contains(QStringLiteral("npm config delete strict-allow-scripts")));
    sandbox.setEnv("FAKE_NPM_IGNORE_SCRIPTS", "false");
    sandbox.setEnv("FAKE_NPM_STRICT_ALLOW_SCRIPTS", "false");

    // A tool in ~/.local/bin that the user's shell will not find: it reads none of the files
    // Quillforge knows for it.
    const QString prefix = sandbox.stateDirectory() + QStringLiteral("/usr");
    writeFile(prefix + QStringLiteral("/lib"), "");
    sandbox.setEnv("FAKE_NPM_PREFIX", prefix.toUtf8());
    platform.terminalShell = QStringLiteral("/bin/dash");
    run = runSetup(CLITool::codex);
    ASSERT_TRUE(run.result && run.result->ok()) << run.error().toStdString();
    EXPECT_EQ(installer.caveats(),
              QStringList{SearchPathFix::terminalCaveat(CLITool::codex, QStringLiteral("~/.zshrc"),
                                                        QStringLiteral("export PATH=\"$HOME/.local/bin:$PATH\""))});
}

TEST_F(ToolInstallerTest, NpmFoldersLeftToTheAdministratorAreWorkedAroundOnTryAgain)
{
    sandbox.installFakes({"git", "node", "npm"});
    const auto makeReadOnly = [this](const QString& relative) {
        const QString path = sandbox.path(relative);
        return QDir().mkpath(path) && QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    };

    // npm's own cache may not be written: Try Again uses a cache of Quillforge's own.
    ASSERT_TRUE(makeReadOnly(QStringLiteral(".npm")));
    const SetupRun denied = runSetup(CLITool::geminiCLI);
    ASSERT_TRUE(denied.result && !denied.result->ok());
    EXPECT_EQ(denied.result->error().plainDescription(),
              npmPermissionRetrySentence(QStringLiteral("Gemini CLI"), false));
    EXPECT_TRUE(denied.log.contains(QStringLiteral("npm ERR! code EACCES")));
    const SetupRun retried = runSetup(CLITool::geminiCLI);
    ASSERT_TRUE(retried.result && retried.result->ok()) << retried.error().toStdString() << retried.log.toStdString();
    EXPECT_TRUE(QFileInfo(platform.cache + QStringLiteral("/npm")).isDir());
    EXPECT_TRUE(QFile::exists(sandbox.binDirectory() + QStringLiteral("/gemini")));

    // The package's folder in npm's global folder may not be written: Try Again installs into
    // ~/.local.
    const QString prefix = sandbox.path(QStringLiteral("npm-global"));
    ASSERT_TRUE(QDir().mkpath(prefix + QStringLiteral("/bin")));
    ASSERT_TRUE(makeReadOnly(QStringLiteral("npm-global/lib/node_modules/@openai/codex")));
    sandbox.setEnv("FAKE_NPM_PREFIX", prefix.toUtf8());
    const SetupRun refused = runSetup(CLITool::codex);
    ASSERT_TRUE(refused.result && !refused.result->ok());
    EXPECT_EQ(refused.result->error().plainDescription(), npmPermissionRetrySentence(QStringLiteral("Codex"), true));
    const SetupRun local = runSetup(CLITool::codex);
    ASSERT_TRUE(local.result && local.result->ok()) << local.error().toStdString() << local.log.toStdString();
    EXPECT_TRUE(sandbox.exists(QStringLiteral(".local/bin/codex")));

    // Nothing left to try: the sentence says which folder to look at.
    ASSERT_TRUE(makeReadOnly(QStringLiteral(".local/lib/node_modules/@openai/codex")));
    const SetupRun stuck = runSetup(CLITool::codex);
    ASSERT_TRUE(stuck.result && !stuck.result->ok());
    EXPECT_EQ(stuck.result->error().plainDescription(), failureSentence(FailureCause::permissionDenied));
}
