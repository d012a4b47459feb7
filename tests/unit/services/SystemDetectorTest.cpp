#include "CoroTest.h"
#include "StdoutCapture.h"
#include "SystemDetector.h"
#include "TestMachine.h"

#include <QDir>

using namespace qf;
using qf::test::await;

namespace {

class SystemDetectorTest : public ::testing::Test, protected test::TestMachine {
protected:
    SystemDetector& detector = services.detector;
};

} // namespace

TEST(SystemDetectorRules, NodeVersions)
{
    struct Case {
        std::optional<QString> printed;
        NodeCheck expected;
    };
    const Case cases[] = {
        {QStringLiteral("v18.0.0"), {true, QStringLiteral("v18.0.0"), true}},
        {QStringLiteral("v17.9.1"), {true, QStringLiteral("v17.9.1"), false}},
        {QStringLiteral("v20.10.0"), {true, QStringLiteral("v20.10.0"), true}},
        {QStringLiteral("20.1.0"), {true, QStringLiteral("20.1.0"), true}},
        {QStringLiteral("v9.11.2"), {true, QStringLiteral("v9.11.2"), false}},
        {QStringLiteral("v..22"), {true, QStringLiteral("v..22"), true}}, // empty pieces are dropped
        {QStringLiteral("vabc"), {true, QStringLiteral("vabc"), false}},
        {QStringLiteral("v"), {true, QStringLiteral("v"), false}},
        {QString(), {true, QString(), false}},
        {std::nullopt, {false, std::nullopt, false}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(SystemDetector::evaluateNodeVersion(c.printed), c.expected)
            << c.printed.value_or(QStringLiteral("<none>")).toStdString();
}

TEST(SystemDetectorRules, EachToolNeedsTheNodeOfItsPackage)
{
    const auto meets = [](const char* version, CLITool tool) {
        return SystemDetector::evaluateNodeVersion(QString::fromLatin1(version), tool.minimumNodeMajorVersion())
            .meetsRequirement;
    };
    EXPECT_FALSE(meets("v19.9.0", CLITool::geminiCLI));
    EXPECT_TRUE(meets("v20.0.0", CLITool::geminiCLI));
    EXPECT_TRUE(meets("v19.9.0", CLITool::codex));
    EXPECT_FALSE(meets("v17.9.1", CLITool::codex));
    // No tool goes below the floor of 18.
    for (const CLITool& tool : CLITool::allCases())
        EXPECT_GE(tool.minimumNodeMajorVersion(), SystemDetector::minimumNodeMajorVersion);
}

TEST(SystemDetectorRules, DiskSpaceBoundaries)
{
    EXPECT_EQ(SystemDetector::bytesToMegabytes(209715200), 200);
    EXPECT_EQ(SystemDetector::bytesToMegabytes(209715199), 199);
    const RequirementStatus enough = SystemDetector::diskSpaceStatus(200);
    EXPECT_TRUE(enough.isMet);
    EXPECT_EQ(enough.details, QStringLiteral("200 MB available"));
    EXPECT_FALSE(SystemDetector::diskSpaceStatus(199).isMet);
    // Unreadable space counts as none at all.
    const RequirementStatus unknown = SystemDetector::diskSpaceStatus(std::nullopt);
    EXPECT_FALSE(unknown.isMet);
    EXPECT_EQ(unknown.details, QStringLiteral("0 MB available"));
}

TEST_F(SystemDetectorTest, NodeFromTheSearchPath)
{
    EXPECT_EQ(*await(detector.getNodeVersion()), std::nullopt);
    EXPECT_EQ(*await(detector.checkNodeJS()), (NodeCheck{false, std::nullopt, false}));

    sandbox.installFake(QStringLiteral("node"));
    sandbox.setEnv("FAKE_NODE_VERSION", "v16.20.2");
    EXPECT_EQ(*await(detector.checkNodeJS()), (NodeCheck{true, QStringLiteral("v16.20.2"), false}));

    // A Node.js installed through nvm is found too.
    sandbox.removeFake(QStringLiteral("node"));
    sandbox.installFakeAt(QStringLiteral("node"), sandbox.path(QStringLiteral(".nvm/versions/node/v20.10.0/bin/node")));
    sandbox.setEnv("FAKE_NODE_VERSION", "v20.10.0");
    EXPECT_EQ(*await(detector.checkNodeJS()), (NodeCheck{true, QStringLiteral("v20.10.0"), true}));
}

TEST_F(SystemDetectorTest, RequirementListsPerTool)
{
    sandbox.installFake(QStringLiteral("node"));
    sandbox.setEnv("FAKE_NODE_VERSION", "v19.0.0");
    platform.osCheck = {true, QStringLiteral("macOS 14.0.0")};
    platform.diskSpace = DiskSpace{209715199, QString()};

    const QList<RequirementStatus> gemini = *await(detector.checkAllRequirements(CLITool::geminiCLI));
    ASSERT_EQ(gemini.size(), 3);
    EXPECT_EQ(gemini[0], (RequirementStatus{SystemRequirement::macOSVersion, true, QStringLiteral("macOS 14.0.0")}));
    EXPECT_EQ(gemini[1], (RequirementStatus{SystemRequirement::diskSpace, false, QStringLiteral("199 MB available")}));
    // A Node.js too old for the tool shows its version and the one needed, and is not met;
    // the same Node.js is new enough for Codex.
    EXPECT_EQ(gemini[2],
              (RequirementStatus{SystemRequirement::nodeJS, false, QStringLiteral("v19.0.0 (needs 20 or newer)")}));
    EXPECT_EQ((*await(detector.checkAllRequirements(CLITool::codex)))[2],
              (RequirementStatus{SystemRequirement::nodeJS, true, QStringLiteral("v19.0.0")}));
    sandbox.setEnv("FAKE_NODE_VERSION", "v17.9.1");
    EXPECT_EQ((*await(detector.checkAllRequirements(CLITool::codex)))[2],
              (RequirementStatus{SystemRequirement::nodeJS, false, QStringLiteral("v17.9.1 (needs 18 or newer)")}));

    // Claude Code needs no Node.js: two records, and node is never asked.
    QFile::remove(sandbox.stateDirectory() + QStringLiteral("/node.log"));
    platform.osCheck = {false, QStringLiteral("macOS 13.6.1")};
    const QList<RequirementStatus> claude = *await(detector.checkAllRequirements(CLITool::claudeCode));
    ASSERT_EQ(claude.size(), 2);
    EXPECT_FALSE(claude[0].isMet);
    EXPECT_EQ(claude[0].details, QStringLiteral("macOS 13.6.1"));
    EXPECT_FALSE(QFile::exists(sandbox.stateDirectory() + QStringLiteral("/node.log")));

    sandbox.removeFake(QStringLiteral("node"));
    const QList<RequirementStatus> codex = *await(detector.checkAllRequirements(CLITool::codex));
    ASSERT_EQ(codex.size(), 3);
    EXPECT_EQ(codex[2], (RequirementStatus{SystemRequirement::nodeJS, false, QStringLiteral("Not installed")}));
}

TEST_F(SystemDetectorTest, DiskSpaceOfTheHomeVolume)
{
    const std::optional<qint64> mb = detector.availableDiskSpaceMB();
    ASSERT_TRUE(mb.has_value());
    EXPECT_GE(*mb, 0);

    // A volume that cannot be read: no value, and one diagnostic line that says why.
    platform.diskSpace = DiskSpace{std::nullopt, QStringLiteral("the volume went away")};
    test::StdoutCapture capture;
    EXPECT_EQ(detector.availableDiskSpaceMB(), std::nullopt);
    EXPECT_EQ(capture.text(), QStringLiteral("Error getting disk space: the volume went away\n"));
}

TEST_F(SystemDetectorTest, ToolVersionsAsPrinted)
{
    EXPECT_EQ(*await(detector.getToolVersion(CLITool::codex)), std::nullopt);
    sandbox.installFake(QStringLiteral("codex"));
    sandbox.setEnv("FAKE_TOOL_VERSION", "  codex-cli 0.5.0\nbuilt today  ");
    EXPECT_EQ(*await(detector.getToolVersion(CLITool::codex)), QStringLiteral("codex-cli 0.5.0\nbuilt today"));
    sandbox.setEnv("FAKE_TOOL_VERSION_FAIL", "1");
    EXPECT_EQ(*await(detector.getToolVersion(CLITool::codex)), std::nullopt);
}

TEST_F(SystemDetectorTest, ShellProfileChoice)
{
    EXPECT_EQ(detector.shellProfilePath(), sandbox.path(QStringLiteral(".zshrc"))); // need not exist
    sandbox.writeFile(QStringLiteral(".bashrc"), "");
    EXPECT_EQ(detector.shellProfilePath(), sandbox.path(QStringLiteral(".bashrc")));
    sandbox.writeFile(QStringLiteral(".bash_profile"), "");
    EXPECT_EQ(detector.shellProfilePath(), sandbox.path(QStringLiteral(".bash_profile")));
    // A folder of that name is not a profile.
    QDir().mkpath(sandbox.path(QStringLiteral(".zshrc")));
    EXPECT_EQ(detector.shellProfilePath(), sandbox.path(QStringLiteral(".bash_profile")));
    QDir(sandbox.path(QStringLiteral(".zshrc"))).removeRecursively();
    sandbox.writeFile(QStringLiteral(".zshrc"), "");
    EXPECT_EQ(detector.shellProfilePath(), sandbox.path(QStringLiteral(".zshrc")));
}
