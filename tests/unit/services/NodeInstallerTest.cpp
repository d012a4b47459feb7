#include "CoroTest.h"
#include "NodeInstaller.h"
#include "NodeReleaseFixture.h"
#include "SetupTest.h"
#include "TestSupport.h"

#include <QCryptographicHash>
#include <QProcess>
#include <QTest>

using namespace qf;
using qf::test::kDone;
using qf::test::kInProgress;
using qf::test::kPending;
using qf::test::kSkipped;
using qf::test::Report;
using qf::test::SetupRun;

namespace {

class NodeInstallerTest : public test::SetupTest {
protected:
    // Node.js `version` for this Linux computer, published in the sandbox, and the installer
    // pointed at it.
    void publishNodeRelease(const QString& version, const QByteArray& checksum = QByteArray())
    {
        nodeInstaller.setDistribution(test::publishNodeRelease(sandbox.stateDirectory() + QStringLiteral("/dist"),
                                                               version, QStringLiteral("linux-x64"),
                                                               QStringLiteral("tar"), checksum));
    }

    NodeInstaller& nodeInstaller = services.nodeInstaller;
};

} // namespace

TEST_F(NodeInstallerTest, WithoutHomebrewNodeComesFromTheNewestLTSRelease)
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

TEST_F(NodeInstallerTest, ACancelStopsTheUnpackingAndLeavesNothingOfIt)
{
    // tar (in the sandbox's folder of real utilities, which commands search first) writes part
    // of Node.js into the staging folder, then hangs.
    sandbox.installFakes({"git", "npm", "curl"});
    publishNodeRelease(QStringLiteral("v22.11.0"));
    const QString tools = QFileInfo(sandbox.binDirectory()).dir().filePath(QStringLiteral("tools"));
    QFile::remove(tools + QStringLiteral("/tar"));
    ASSERT_TRUE(test::writeExecutable(tools + QStringLiteral("/tar"),
                                      "#!/bin/sh\n"
                                      "while [ $# -gt 0 ]; do [ \"$1\" = -C ] && into=$2; shift; done\n"
                                      "mkdir -p \"$into/bin\" && echo half > \"$into/bin/node\"\n"
                                      "echo $$ > \"$FAKE_STATE/tar.pid\"\n"
                                      "exec sleep 600\n"));
    const Cancellation cancellation;
    QString log;
    QCoro::Task<Result<void>> installing = nodeInstaller.install([&log](const QString& text) { log += text; },
                                                                 cancellation);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !sandbox.readState("tar.pid").isEmpty(); }, 20000))
        << log.toStdString();
    const long long tar = sandbox.readState("tar.pid").trimmed().toLongLong();
    ASSERT_TRUE(sandbox.exists(QStringLiteral(".local")));

    cancellation.cancel();
    const std::optional<Result<void>> result = test::await(std::move(installing));
    ASSERT_TRUE(result.has_value());
    ASSERT_FALSE(result->ok());
    EXPECT_TRUE(result->error().isCancelled());
    EXPECT_TRUE(QTest::qWaitFor([tar] { return test::processEnded(tar); }, 5000)) << "tar outlived the cancel";
    // The staging folder and the ~/.local made for it are gone.
    EXPECT_FALSE(sandbox.exists(QStringLiteral(".local")));
}

TEST_F(NodeInstallerTest, ATamperedNodeArchiveIsRefusedWithNothingUnpacked)
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
    nodeInstaller.setDistribution(QStringLiteral("file:///nonexistent/dist"));
    EXPECT_TRUE(runSetup(CLITool::geminiCLI)
                    .error()
                    .startsWith(QStringLiteral("Could not download the list of Node.js releases. ")));
    EXPECT_FALSE(sandbox.exists(QStringLiteral(".local")));
}

TEST_F(NodeInstallerTest, AnOlderNodeFirstOnThePathFailsTheNodeStep)
{
    // An nvm Node.js 18 comes before ~/.local/bin, where the release installer puts Node.js 22.
    sandbox.installFakes({"git", "npm"});
    ASSERT_TRUE(test::writeExecutable(sandbox.path(QStringLiteral(".nvm/versions/node/v18.19.0/bin/node")),
                                      "#!/bin/sh\necho v18.19.0\n"));
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
    EXPECT_EQ(NodeInstaller::shadowedMessage(CLITool::geminiCLI, 20, oldOnly),
              QStringLiteral("Node.js was installed, but the Node.js found first is v18.19.0 in /usr/bin. Gemini CLI "
                             "needs Node.js 20 or newer."));
    EXPECT_EQ(NodeInstaller::shadowedMessage(CLITool::geminiCLI, 20, {}),
              QStringLiteral("Node.js was installed, but no Node.js is found on the search path. Gemini CLI needs "
                             "Node.js 20 or newer."));
}

TEST_F(NodeInstallerTest, HomebrewInstallsNodeAndItsFailuresEndTheRun)
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

    // An old Node.js is replaced through Homebrew.
    sandbox.setEnv("FAKE_BREW_NO_NODE", "");
    sandbox.installFake(QStringLiteral("node"));
    sandbox.setEnv("FAKE_NODE_VERSION", "v16.20.2");
    EXPECT_EQ(steps(CLITool::codex)[2], (SetupStep{SetupStepType::installNode, kPending, std::nullopt}));
    const SetupRun run = runSetup(CLITool::codex);
    ASSERT_TRUE(run.result && run.result->ok()) << run.error().toStdString();
    EXPECT_TRUE(run.reports.contains(Report{SetupStepType::installNode, kInProgress, std::nullopt}));
    EXPECT_TRUE(run.reports.contains(Report{SetupStepType::installNode, kDone, QStringLiteral("v21.5.0")}));
    EXPECT_TRUE(run.log.contains(QStringLiteral("Installing Node.js via Homebrew...\n==> Downloading")));
    EXPECT_TRUE(run.log.contains(QStringLiteral("Node.js v21.5.0 successfully!\n")));
}
