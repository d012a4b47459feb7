#include "CoroTest.h"
#include "Diagnosis.h"
#include "TestMachine.h"
#include "ToolInstaller.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QProcess>

#include <ranges>

using namespace qf;
using qf::test::await;

namespace {

struct Report {
    SetupStepType type;
    SetupStepStatus status;
    std::optional<QString> details;
    friend bool operator==(const Report&, const Report&) = default;
};

void PrintTo(const Report& r, std::ostream* os)
{
    *os << r.type.rawValue().toStdString() << "/" << r.status.label().toStdString() << "/"
        << r.details.value_or(QStringLiteral("<none>")).toStdString();
}

struct SetupRun {
    QList<Report> reports;
    QString log;
    std::optional<Result<void>> result;

    QString error() const { return result && !result->ok() ? result->error().errorDescription() : QString(); }
    // The last status reported for a step.
    std::optional<SetupStepStatus> last(SetupStepType type) const
    {
        for (const Report& report : std::views::reverse(reports))
            if (report.type == type)
                return report.status;
        return std::nullopt;
    }
    bool mentions(SetupStepType type) const { return last(type).has_value(); }
};

class ToolInstallerTest : public ::testing::Test, protected test::TestMachine {
protected:
    SetupRun runSetup(CLITool tool)
    {
        SetupRun run;
        auto result = await(installer.runSetup(
            tool,
            [&](SetupStepType type, const SetupStepStatus& status, const std::optional<QString>& details) {
                run.reports.append({type, status, details});
            },
            [&](const QString& text) { run.log += text; }));
        if (result)
            run.result = *result;
        return run;
    }

    QList<SetupStep> steps(CLITool tool) { return *await(installer.setupSteps(tool)); }

    // A release folder as nodejs.org publishes it, in the sandbox, and the installer pointed
    // at it: an index with a newer current release, the newest LTS release `version` with a
    // Linux archive (whose node prints `version`) and its checksum list, and an older LTS
    // release. `checksum` replaces the archive's real checksum in the list.
    void publishNodeRelease(const QString& version, const QByteArray& checksum = QByteArray())
    {
        const QString dist = sandbox.stateDirectory() + QStringLiteral("/dist");
        const QString folder = QStringLiteral("node-") + version + QStringLiteral("-linux-x64");
        const QString staging = sandbox.stateDirectory() + QStringLiteral("/staging/") + folder;
        writeFile(staging + QStringLiteral("/bin/node"), "#!/bin/sh\necho " + version.toUtf8() + "\n");
        QFile::setPermissions(staging + QStringLiteral("/bin/node"), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
        for (const char* loose : {"/CHANGELOG.md", "/LICENSE", "/README.md", "/lib/node_modules/npm/package.json"})
            writeFile(staging + QLatin1String(loose), "{}\n");
        const QString archive = dist + QLatin1Char('/') + version + QLatin1Char('/') + folder +
                                QStringLiteral(".tar.gz");
        QDir().mkpath(QFileInfo(archive).absolutePath());
        QProcess tar;
        tar.setWorkingDirectory(QFileInfo(staging).absolutePath());
        tar.start(QStringLiteral("tar"), {QStringLiteral("-czf"), archive, folder});
        ASSERT_TRUE(tar.waitForFinished(10000) && tar.exitCode() == 0) << tar.readAllStandardError().constData();

        QFile file(archive);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray sum = checksum.isEmpty()
                                   ? QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha256).toHex()
                                   : checksum;
        writeFile(dist + QLatin1Char('/') + version + QStringLiteral("/SHASUMS256.txt"),
                  QByteArray(64, 'a') + "  node-" + version.toUtf8() + "-darwin-arm64.tar.gz\n" + sum + "  " +
                      folder.toUtf8() + ".tar.gz\n");
        writeFile(dist + QStringLiteral("/index.json"),
                  R"([{"version":"v25.2.0","files":["linux-x64","osx-arm64-tar"],"lts":false},
                      {"version":")" +
                      version.toUtf8() +
                      R"(","files":["linux-arm64","linux-x64"],"lts":"Jod"},
                      {"version":"v20.19.5","files":["linux-x64"],"lts":"Iron"}])");
        installer.setNodeDistribution(QStringLiteral("file://") + dist);
    }

    static void writeFile(const QString& path, const QByteArray& bytes)
    {
        QDir().mkpath(QFileInfo(path).absolutePath());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    ToolInstaller& installer = services.installer;
};

const SetupStepStatus kPending = SetupStepStatus::pending;
const SetupStepStatus kInProgress = SetupStepStatus::inProgress;
const SetupStepStatus kDone = SetupStepStatus::completed;
const SetupStepStatus kSkipped = SetupStepStatus::skipped;

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

TEST_F(ToolInstallerTest, AFailedDownloadFailsTheInstallWithItsOwnReason)
{
    // Offline: the maker's installer never arrives, so nothing runs and nothing is verified.
    sandbox.installFakes({"git", "curl"});
    sandbox.setEnv("FAKE_CURL_FAIL", "1");
    const SetupRun run = runSetup(CLITool::claudeCode);
    ASSERT_TRUE(run.result && !run.result->ok());
    EXPECT_EQ(run.result->error().shellError()->exitCode(), 22); // curl's own status
    EXPECT_EQ(run.result->error().plainDescription(), failureSentence(FailureCause::notFound));
    EXPECT_EQ(run.last(SetupStepType::installTool), kInProgress);
    EXPECT_FALSE(run.log.contains(QStringLiteral("Verifying"))) << run.log.toStdString();
    EXPECT_FALSE(QFile::exists(sandbox.binDirectory() + QStringLiteral("/claude")));
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
}

TEST_F(ToolInstallerTest, AnOldNodeIsReplacedThroughHomebrew)
{
    sandbox.installFakes({"git", "node", "npm", "brew"});
    sandbox.setEnv("FAKE_NODE_VERSION", "v16.20.2");

    EXPECT_EQ(steps(CLITool::codex)[2], (SetupStep{SetupStepType::installNode, kPending, std::nullopt}));
    const SetupRun run = runSetup(CLITool::codex);
    ASSERT_TRUE(run.result && run.result->ok()) << run.error().toStdString();
    EXPECT_TRUE(run.reports.contains(Report{SetupStepType::installNode, kInProgress, std::nullopt}));
    EXPECT_TRUE(run.reports.contains(Report{SetupStepType::installNode, kDone, QStringLiteral("v21.5.0")}));
    EXPECT_TRUE(run.log.contains(QStringLiteral("Installing Node.js via Homebrew...\n==> Downloading")));
    EXPECT_TRUE(run.log.contains(QStringLiteral("Node.js v21.5.0 successfully!\n")));
}

TEST_F(ToolInstallerTest, WithoutHomebrewNodeComesFromTheNewestLTSRelease)
{
    sandbox.installFakes({"git", "npm", "curl"});
    publishNodeRelease(QStringLiteral("v22.11.0"));
    const SetupRun run = runSetup(CLITool::codex);
    ASSERT_TRUE(run.result && run.result->ok()) << run.error().toStdString();
    EXPECT_TRUE(run.log.contains(QStringLiteral("Installing Node.js via official installer...\n"
                                                "Node.js v22.11.0 (LTS \"Jod\") for linux-x64 from file://")))
        << run.log.toStdString();
    EXPECT_TRUE(
        run.log.contains(QStringLiteral("SHA-256 checksum verified\nUnpacked Node.js v22.11.0 into ~/.local "
                                        "(node and npm are in ~/.local/bin)\nNode.js v22.11.0 successfully!\n")));
    EXPECT_TRUE(run.reports.contains(Report{SetupStepType::installNode, kDone, QStringLiteral("v22.11.0")}));
    // The archive's top folder is stripped and its loose files left out.
    EXPECT_EQ(QDir(sandbox.path(QStringLiteral(".local"))).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              (QStringList{QStringLiteral("bin"), QStringLiteral("lib")}));
    EXPECT_TRUE(sandbox.exists(QStringLiteral(".local/lib/node_modules/npm/package.json")));
}

TEST_F(ToolInstallerTest, ATamperedNodeArchiveIsRefusedWithNothingUnpacked)
{
    sandbox.installFakes({"git", "npm", "curl"});
    publishNodeRelease(QStringLiteral("v22.11.0"), QByteArray(64, '0'));
    const QString temporary = sandbox.stateDirectory() + QStringLiteral("/tmp");
    QDir().mkpath(temporary);
    sandbox.setEnv("TMPDIR", temporary.toUtf8());

    const SetupRun run = runSetup(CLITool::geminiCLI);
    EXPECT_EQ(run.error(), QStringLiteral("The Node.js download does not match its published checksum, so nothing "
                                          "was installed. Please try again."));
    EXPECT_FALSE(run.mentions(SetupStepType::installTool));
    EXPECT_FALSE(sandbox.exists(QStringLiteral(".local")));
    // The download went with the refusal.
    EXPECT_TRUE(QDir(temporary).isEmpty());

    // A list that does not name the archive, an index without an LTS release for this
    // computer, no release for its processor, no download at all: each says what went
    // wrong, and nothing is unpacked.
    publishNodeRelease(QStringLiteral("v22.11.0"));
    writeFile(sandbox.stateDirectory() + QStringLiteral("/dist/v22.11.0/SHASUMS256.txt"), "");
    EXPECT_EQ(runSetup(CLITool::geminiCLI).error(),
              QStringLiteral("The checksum list of Node.js v22.11.0 does not name node-v22.11.0-linux-x64.tar.gz, so "
                             "nothing was installed."));
    platform.releaseTarget = NodeReleaseTarget{QStringLiteral("darwin-arm64"), QStringLiteral("osx-arm64-tar")};
    EXPECT_TRUE(
        runSetup(CLITool::geminiCLI)
            .error()
            .startsWith(QStringLiteral("No long-term support release of Node.js for darwin-arm64 was found at ")));
    platform.releaseTarget.reset();
    EXPECT_EQ(runSetup(CLITool::geminiCLI).error(),
              QStringLiteral("Node.js publishes no release for this computer's "
                             "processor. Please install it manually from nodejs.org"));
    platform.releaseTarget = NodeReleaseTarget{QStringLiteral("linux-x64"), QStringLiteral("linux-x64")};
    installer.setNodeDistribution(QStringLiteral("file:///nonexistent/dist"));
    EXPECT_TRUE(runSetup(CLITool::geminiCLI)
                    .error()
                    .startsWith(QStringLiteral("Could not download the list of Node.js releases. ")));
    EXPECT_FALSE(sandbox.exists(QStringLiteral(".local")));
}

TEST_F(ToolInstallerTest, AnOlderNodeFirstOnThePathFailsTheNodeStep)
{
    // An nvm Node.js 18 comes before ~/.local/bin, where the release installer puts Node.js 22.
    sandbox.installFakes({"git", "npm"});
    sandbox.writeFile(QStringLiteral(".nvm/versions/node/v18.19.0/bin/node"), "#!/bin/sh\necho v18.19.0\n");
    QFile::setPermissions(sandbox.path(QStringLiteral(".nvm/versions/node/v18.19.0/bin/node")),
                          QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    sandbox.installFake(QStringLiteral("curl"));
    publishNodeRelease(QStringLiteral("v22.11.0"));

    const SetupRun gemini = runSetup(CLITool::geminiCLI);
    EXPECT_EQ(
        gemini.error(),
        QStringLiteral("Node.js v22.11.0 was installed in %1, but Node.js v18.19.0 in %2 comes first on the search "
                       "path. Gemini CLI needs Node.js 20 or newer. Remove the older Node.js, or put %1 before %2 "
                       "in your PATH.")
            .arg(sandbox.path(QStringLiteral(".local/bin")),
                 sandbox.path(QStringLiteral(".nvm/versions/node/v18.19.0/bin"))));
    EXPECT_FALSE(gemini.mentions(SetupStepType::installTool));
    // The log says what was installed, and then what commands find first.
    EXPECT_TRUE(gemini.log.contains(QStringLiteral("Node.js v22.11.0 successfully!\nNote: Node.js v18.19.0 in %1 is "
                                                   "found first on the search path.\n")
                                        .arg(sandbox.path(QStringLiteral(".nvm/versions/node/v18.19.0/bin")))))
        << gemini.log.toStdString();

    // The same Node.js 18 is enough for Codex: nothing is installed.
    QFile::remove(sandbox.path(QStringLiteral(".local/bin/node")));
    EXPECT_EQ(steps(CLITool::codex)[2], (SetupStep{SetupStepType::installNode, kSkipped, QStringLiteral("v18.19.0")}));
    const SetupRun codex = runSetup(CLITool::codex);
    ASSERT_TRUE(codex.result && codex.result->ok()) << codex.error().toStdString();
    EXPECT_FALSE(sandbox.exists(QStringLiteral(".local/bin/node")));
}

TEST(NodeShadowedMessage, SaysWhatWasFound)
{
    const QList<NodeInstall> oldOnly = {{QStringLiteral("/usr/bin"), QStringLiteral("v18.19.0")}};
    EXPECT_EQ(ToolInstaller::nodeShadowedMessage(CLITool::geminiCLI, oldOnly),
              QStringLiteral("Node.js was installed, but the Node.js found first is v18.19.0 in /usr/bin. Gemini CLI "
                             "needs Node.js 20 or newer."));
    EXPECT_EQ(ToolInstaller::nodeShadowedMessage(CLITool::geminiCLI, {}),
              QStringLiteral("Node.js was installed, but no Node.js is found on the search path. Gemini CLI needs "
                             "Node.js 20 or newer."));
}

TEST_F(ToolInstallerTest, NodeFailures)
{
    sandbox.installFakes({"git", "npm", "brew"});

    // The installer itself fails: its error ends the run and the step stays in progress.
    sandbox.setEnv("FAKE_BREW_FAIL", "1");
    SetupRun failed = runSetup(CLITool::geminiCLI);
    EXPECT_EQ(failed.error(), QStringLiteral("Command failed with exit code 1: Command failed"));
    EXPECT_EQ(failed.last(SetupStepType::installNode), kInProgress);
    EXPECT_FALSE(failed.mentions(SetupStepType::installTool));
    EXPECT_TRUE(failed.log.contains(QStringLiteral("failed to download resource")));

    // The installer succeeds but Node.js is still missing afterwards.
    sandbox.setEnv("FAKE_BREW_FAIL", "");
    sandbox.setEnv("FAKE_BREW_NO_NODE", "1");
    SetupRun missing = runSetup(CLITool::geminiCLI);
    EXPECT_EQ(missing.error(), QStringLiteral("Failed to install Node.js. Please install it manually from nodejs.org"));
    ASSERT_TRUE(missing.result);
    EXPECT_EQ(missing.result->error().installationError(), InstallationError::nodeInstallFailed);
    EXPECT_EQ(missing.last(SetupStepType::installNode), kInProgress);
}

TEST_F(ToolInstallerTest, MissingGitStopsEverything)
{
    sandbox.installFakes({"npm", "node"});
    const SetupRun run = runSetup(CLITool::geminiCLI);
    EXPECT_EQ(run.error(), QStringLiteral("Git is required but not found. Please install Xcode Command Line Tools by "
                                          "running: xcode-select --install"));
    EXPECT_EQ(run.reports.last(),
              (Report{SetupStepType::checkGit, SetupStepStatus::failure(QStringLiteral("Not found")), std::nullopt}));
    EXPECT_TRUE(run.log.endsWith(QStringLiteral("Git not found. Please install Xcode Command Line Tools.\n")));
    EXPECT_FALSE(QFile::exists(sandbox.stateDirectory() + QStringLiteral("/npm.log")));
}

TEST_F(ToolInstallerTest, ToolInstallAndVerificationFailures)
{
    sandbox.installFakes({"git", "node", "npm"});

    sandbox.setEnv("FAKE_NPM_FAIL", "1");
    const SetupRun failed = runSetup(CLITool::codex);
    EXPECT_EQ(failed.error(), QStringLiteral("Command failed with exit code 1: Command failed"));
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

TEST_F(ToolInstallerTest, AnUnreadableVersionKeepsTheDetails)
{
    sandbox.installFakes({"git", "node", "npm"});
    sandbox.setEnv("FAKE_TOOL_VERSION_FAIL", "1");
    const SetupRun run = runSetup(CLITool::geminiCLI);
    ASSERT_TRUE(run.result && run.result->ok());
    EXPECT_EQ(run.reports.last(), (Report{SetupStepType::installTool, kDone, std::nullopt}));
    EXPECT_TRUE(run.log.endsWith(QStringLiteral("\nGemini CLI installed successfully!\n")));
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

TEST_F(ToolInstallerTest, UninstallRemovesEveryNpmCopy)
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

    QString log;
    auto result = await(installer.uninstall(CLITool::geminiCLI, [&](const QString& t) { log += t; }));
    ASSERT_TRUE(result && result->ok());
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
    log.clear();
    result = await(installer.uninstall(CLITool::geminiCLI, [&](const QString& t) { log += t; }));
    ASSERT_TRUE(result && result->ok());
    EXPECT_FALSE(QFile::exists(sandbox.binDirectory() + QStringLiteral("/gemini")));
    EXPECT_EQ(log, QStringLiteral("Uninstalling Gemini CLI...\nup to date, audited 1 package\nremoved 1 package\n"
                                  "\nGemini CLI has been uninstalled.\n"));
}

TEST_F(ToolInstallerTest, UninstallRemovesClaudeCodesOwnLauncherAndTellsAboutOtherCopies)
{
    // Claude Code from its maker's installer (the launcher in ~/.local/bin, its versions in
    // ~/.local/share/claude) and another copy installed by other means.
    sandbox.installFakeAt(QStringLiteral("claude"), sandbox.path(QStringLiteral(".local/bin/claude")));
    sandbox.writeFile(QStringLiteral(".local/share/claude/versions/1.0.42"), "binary");
    sandbox.installFakes({"claude"});
    QDir().mkpath(sandbox.path(QStringLiteral(".claude/local")));
    QDir().mkpath(sandbox.path(QStringLiteral(".claude/downloads")));
    sandbox.writeFile(QStringLiteral(".claude/settings.json"), "{}");

    QString log;
    const auto result = await(installer.uninstall(CLITool::claudeCode, [&](const QString& t) { log += t; }));
    ASSERT_TRUE(result && result->ok());
    EXPECT_EQ(log, QStringLiteral("Uninstalling Claude Code...\n"
                                  "\nNote: 'claude' is still found in PATH. You may have multiple installations.\n"
                                  "Run 'which claude' in Terminal to find other copies.\n"));
    EXPECT_FALSE(sandbox.exists(QStringLiteral(".local/bin/claude")));
    EXPECT_FALSE(sandbox.exists(QStringLiteral(".local/share/claude")));
    EXPECT_FALSE(sandbox.exists(QStringLiteral(".claude/local")));
    EXPECT_FALSE(sandbox.exists(QStringLiteral(".claude/downloads")));
    EXPECT_TRUE(sandbox.exists(QStringLiteral(".claude/settings.json")));
}

TEST_F(ToolInstallerTest, AnUnwritableNpmFolderSendsTheToolToLocalAndTheTerminalFindsIt)
{
    sandbox.installFakes({"git", "node", "npm"});
    // npm's global folder cannot take the package: its lib is a file (as root, permissions
    // alone would not say no).
    const QString prefix = sandbox.stateDirectory() + QStringLiteral("/usr");
    writeFile(prefix + QStringLiteral("/lib"), "");
    sandbox.setEnv("FAKE_NPM_PREFIX", prefix.toUtf8());
    // The profile is a link into a dotfiles folder, with its own permissions and no line
    // break at its end.
    sandbox.writeFile(QStringLiteral("dotfiles/zshrc"), "alias ll='ls -l'");
    QFile::setPermissions(sandbox.path(QStringLiteral("dotfiles/zshrc")),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    QFile::link(sandbox.path(QStringLiteral("dotfiles/zshrc")), sandbox.path(QStringLiteral(".zshrc")));

    const SetupRun run = runSetup(CLITool::codex);
    ASSERT_TRUE(run.result && run.result->ok()) << run.error().toStdString();
    EXPECT_TRUE(run.log.contains(QStringLiteral("npm's global folder %1 is not writable for your user, so Codex goes "
                                                "into ~/.local instead (for this installation only; your npm settings "
                                                "stay as they are).\n")
                                     .arg(prefix)))
        << run.log.toStdString();
    QFile npmEnvironment(sandbox.stateDirectory() + QStringLiteral("/npm-env.log"));
    ASSERT_TRUE(npmEnvironment.open(QIODevice::ReadOnly));
    EXPECT_EQ(npmEnvironment.readAll(), "npm install -g @openai/codex with npm_config_prefix=" +
                                            sandbox.path(QStringLiteral(".local")).toUtf8() + "\n");
    EXPECT_TRUE(sandbox.exists(QStringLiteral(".local/bin/codex")));
    EXPECT_FALSE(sandbox.exists(QStringLiteral(".npmrc")));

    // The user's terminal did not search ~/.local/bin: the profile gets the block, once.
    EXPECT_TRUE(run.log.contains(
        QStringLiteral("Added ~/.local/bin to the search path in ~/.zshrc, so new terminal windows find Codex.\n")));
    const QByteArray profile = "alias ll='ls -l'\n"
                               "# Added by Quillforge: programs installed for your user live in ~/.local/bin\n"
                               "export PATH=\"$HOME/.local/bin:$PATH\"\n";
    EXPECT_EQ(sandbox.readFile(QStringLiteral("dotfiles/zshrc")), profile);
    EXPECT_TRUE(QFileInfo(sandbox.path(QStringLiteral(".zshrc"))).isSymLink());
    EXPECT_EQ(QFileInfo(sandbox.path(QStringLiteral("dotfiles/zshrc"))).permissions() & 0x7077, // owner, group, others
              QFileDevice::ReadOwner | QFileDevice::WriteOwner);

    // A second install finds it on the search path and adds nothing.
    const SetupRun again = runSetup(CLITool::codex);
    ASSERT_TRUE(again.result && again.result->ok()) << again.error().toStdString();
    EXPECT_FALSE(again.log.contains(QStringLiteral("search path"))) << again.log.toStdString();
    EXPECT_EQ(sandbox.readFile(QStringLiteral("dotfiles/zshrc")), profile);

    // The block makes bash find the programs too.
    platform.terminalShell = QStringLiteral("/bin/bash");
    QFile::remove(sandbox.path(QStringLiteral(".zshrc")));
    sandbox.writeFile(QStringLiteral(".bashrc"), "");
    sandbox.writeFile(QStringLiteral(".bash_profile"), ". ~/.bashrc\n");
    const SetupRun bash = runSetup(CLITool::codex);
    ASSERT_TRUE(bash.result && bash.result->ok()) << bash.error().toStdString();
    EXPECT_TRUE(bash.log.contains(QStringLiteral("Added ~/.local/bin to the search path in ~/.bash_profile")))
        << bash.log.toStdString();
    EXPECT_FALSE(bash.log.contains(QStringLiteral("Note:"))) << bash.log.toStdString();
}

TEST_F(ToolInstallerTest, EveryShellFamilyGetsTheSearchPathInTheFileItReads)
{
    sandbox.installFakes({"git", "node", "npm"});
    const QString prefix = sandbox.stateDirectory() + QStringLiteral("/usr");
    writeFile(prefix + QStringLiteral("/lib"), "");
    sandbox.setEnv("FAKE_NPM_PREFIX", prefix.toUtf8());
    sandbox.setEnv("XDG_CONFIG_HOME", "");

    struct Case {
        const char* shell;
        bool login;
        const char* file;
    };
    // A bash that terminal windows start without a login (as on Linux) reads ~/.bashrc, also
    // on an account that has no start-up file yet.
    int tried = 0;
    for (const Case& user : {Case{"/usr/bin/fish", true, ".config/fish/conf.d/quillforge.fish"},
                             Case{"/usr/bin/tcsh", true, ".tcshrc"}, Case{"/bin/bash", false, ".bashrc"}}) {
        if (!QFileInfo(QString::fromLatin1(user.shell)).isExecutable())
            continue;
        ++tried;
        SCOPED_TRACE(user.shell);
        platform.terminalShell = QString::fromLatin1(user.shell);
        platform.loginTerminals = user.login;
        const SetupRun run = runSetup(CLITool::codex);
        ASSERT_TRUE(run.result && run.result->ok()) << run.error().toStdString();
        // Written, and a new terminal window's shell (the real one) finds the programs.
        EXPECT_TRUE(run.log.contains(QStringLiteral("Added ~/.local/bin to the search path in ~/%1, so new terminal "
                                                    "windows find Codex.\n")
                                         .arg(QLatin1String(user.file))))
            << run.log.toStdString();
        EXPECT_FALSE(run.log.contains(QStringLiteral("Note:"))) << run.log.toStdString();
        EXPECT_TRUE(sandbox.readFile(QString::fromLatin1(user.file)).startsWith("\n# Added by Quillforge"));
        EXPECT_FALSE(sandbox.exists(QStringLiteral(".zshrc")));
    }
    if (tried < 3)
        GTEST_SKIP() << "fish or tcsh is not installed here (scripts/setup installs both): not every shell was tried";
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

    // npm set to skip install scripts.
    sandbox.setEnv("FAKE_NPM_IGNORE_SCRIPTS", "true");
    run = runSetup(CLITool::geminiCLI);
    ASSERT_TRUE(run.result && run.result->ok());
    ASSERT_EQ(installer.caveats().size(), 1);
    EXPECT_TRUE(installer.caveats().first().startsWith(QStringLiteral("npm is set to skip install scripts")));
    sandbox.setEnv("FAKE_NPM_IGNORE_SCRIPTS", "false");

    // A tool in ~/.local/bin that the user's shell will not find: it reads none of the files
    // Quillforge knows for it.
    const QString prefix = sandbox.stateDirectory() + QStringLiteral("/usr");
    writeFile(prefix + QStringLiteral("/lib"), "");
    sandbox.setEnv("FAKE_NPM_PREFIX", prefix.toUtf8());
    platform.terminalShell = QStringLiteral("/bin/dash");
    run = runSetup(CLITool::codex);
    ASSERT_TRUE(run.result && run.result->ok()) << run.error().toStdString();
    EXPECT_EQ(installer.caveats(),
              QStringList{ToolInstaller::terminalCaveat(CLITool::codex, QStringLiteral("~/.zshrc"),
                                                        QStringLiteral("export PATH=\"$HOME/.local/bin:$PATH\""))});
}

TEST_F(ToolInstallerTest, AWritableNpmFolderIsUsedAsItIs)
{
    sandbox.installFakes({"git", "node", "npm"});
    const SetupRun run = runSetup(CLITool::geminiCLI);
    ASSERT_TRUE(run.result && run.result->ok()) << run.error().toStdString();
    EXPECT_FALSE(run.log.contains(QStringLiteral("~/.local"))) << run.log.toStdString();
    EXPECT_FALSE(QFile::exists(sandbox.stateDirectory() + QStringLiteral("/npm-env.log")));
    EXPECT_FALSE(sandbox.exists(QStringLiteral(".zshrc")));
    EXPECT_TRUE(ToolInstaller::isWritableNpmPrefix(sandbox.stateDirectory()));
    EXPECT_FALSE(ToolInstaller::isWritableNpmPrefix(sandbox.stateDirectory() + QStringLiteral("/npm.log")));
}

TEST_F(ToolInstallerTest, ACopyInAFolderOnlyAnAdministratorMayChangeGoesThroughThePasswordDialog)
{
    // Gemini CLI in npm's global folder, which the user's npm may not change.
    sandbox.installFakes({"npm", "gemini", "sudo"});
    const QString prefix = QFileInfo(sandbox.binDirectory()).absolutePath();
    writeFile(prefix + QStringLiteral("/lib"), "");
    sandbox.setEnv("FAKE_NPM_PREFIX", prefix.toUtf8());
    sandbox.setEnv("FAKE_NPM_DENIED", "1");

    // Cancelled: the removal fails with a plain message and the tool stays.
    sandbox.setEnv("FAKE_SUDO_CANCEL", "1");
    QString log;
    auto result = await(installer.uninstall(CLITool::geminiCLI, [&](const QString& t) { log += t; }));
    ASSERT_TRUE(result && !result->ok());
    EXPECT_EQ(result->error().errorDescription(),
              QStringLiteral("The password dialog was cancelled, so Gemini CLI was not removed."));
    EXPECT_TRUE(QFile::exists(sandbox.binDirectory() + QStringLiteral("/gemini")));

    sandbox.setEnv("FAKE_SUDO_ALLOW", "1");
    log.clear();
    result = await(installer.uninstall(CLITool::geminiCLI, [&](const QString& t) { log += t; }));
    ASSERT_TRUE(result && result->ok()) << result->error().errorDescription().toStdString();
    EXPECT_FALSE(QFile::exists(sandbox.binDirectory() + QStringLiteral("/gemini")));
    EXPECT_TRUE(log.endsWith(QStringLiteral("\nRemoving Gemini CLI from %1 needs administrator rights.\n"
                                            "removed 1 package\n\nGemini CLI has been uninstalled.\n")
                                 .arg(prefix)))
        << log.toStdString();
}

TEST_F(ToolInstallerTest, TheAdministratorsRemovalFindsNodeOnItsOwnSearchPath)
{
    // npm starts through `env node`, and the administrator's shell searches only the system's
    // folders, where this Node.js is not.
    sandbox.installFakes({"gemini", "sudo"});
    QFile npmFixture(QStringLiteral(QF_FIXTURES_DIR "/bin/npm"));
    ASSERT_TRUE(npmFixture.open(QIODevice::ReadOnly));
    const QByteArray npmBody = npmFixture.readAll();
    writeFile(sandbox.binDirectory() + QStringLiteral("/npm"),
              "#!/usr/bin/env node\n" + npmBody.mid(npmBody.indexOf('\n') + 1));
    writeFile(sandbox.binDirectory() + QStringLiteral("/node"),
              "#!/bin/sh\nscript=$1; shift; exec /bin/sh \"$script\" \"$@\"\n");
    for (const char* program : {"/npm", "/node"})
        QFile::setPermissions(sandbox.binDirectory() + QLatin1String(program),
                              QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    const QString prefix = QFileInfo(sandbox.binDirectory()).absolutePath();
    writeFile(prefix + QStringLiteral("/lib"), "");
    sandbox.setEnv("FAKE_NPM_PREFIX", prefix.toUtf8());
    sandbox.setEnv("FAKE_NPM_DENIED", "1");
    sandbox.setEnv("FAKE_SUDO_ALLOW", "1");
    sandbox.setEnv("FAKE_SUDO_PATH", "/usr/sbin:/sbin");

    QString log;
    const auto result = await(installer.uninstall(CLITool::geminiCLI, [&](const QString& t) { log += t; }));
    ASSERT_TRUE(result && result->ok()) << result->error().errorDescription().toStdString();
    EXPECT_FALSE(QFile::exists(sandbox.binDirectory() + QStringLiteral("/gemini"))) << log.toStdString();
    EXPECT_TRUE(log.endsWith(QStringLiteral("\nGemini CLI has been uninstalled.\n"))) << log.toStdString();
}

TEST_F(ToolInstallerTest, UninstallThatCannotLookAfterwardsSaysSo)
{
    // A shell that cannot start: the removal is noted, and since the search for the tool
    // could not run either, nobody is told the tool is gone.
    ShellRunner::Configuration brokenShell = sandbox.shellConfiguration();
    brokenShell.shell = QStringLiteral("/nonexistent/zsh");
    Services broken(platform, brokenShell);
    QString log;
    const auto result = await(broken.installer.uninstall(CLITool::codex, [&](const QString& t) { log += t; }));
    ASSERT_TRUE(result.has_value());
    ASSERT_FALSE(result->ok());
    EXPECT_TRUE(result->error().errorDescription().startsWith(QStringLiteral("Process error: ")));
    EXPECT_TRUE(log.startsWith(QStringLiteral("Uninstalling Codex...\nNote: Process error: ")));
    EXPECT_FALSE(log.contains(QStringLiteral("has been uninstalled")));
}
