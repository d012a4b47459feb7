#include "CoroTest.h"
#include "StdoutCapture.h"
#include "SystemDetector.h"
#include "TestMachine.h"
#include "TestSupport.h"

#include <QDate>
#include <QDir>
#include <QFile>

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
    // No tool goes below the floor of 18 (each tool's own minimum is met in RequirementListsPerTool).
    for (const CLITool& tool : CLITool::allCases())
        EXPECT_GE(tool.minimumNodeMajorVersion(), SystemDetector::minimumNodeMajorVersion);
}

TEST(SystemDetectorRules, ANodeJSPastItsEndOfLifeIsNamedButStillCounts)
{
    QDate today(2026, 11, 26);
    const auto status = [&today](const char* version, int minimum) {
        return SystemDetector::nodeStatus(SystemDetector::evaluateNodeVersion(QString::fromLatin1(version), minimum),
                                          minimum, today);
    };
    const QString ended = QStringLiteral(" \u2013 no longer receives security fixes");
    EXPECT_EQ(status("v20.20.2", 20),
              (RequirementStatus{SystemRequirement::nodeJS, true, QStringLiteral("v20.20.2") + ended, 20}));
    EXPECT_EQ(status("v18.20.8", 18).details, QStringLiteral("v18.20.8") + ended);
    EXPECT_EQ(status("v25.1.0", 18).details, QStringLiteral("v25.1.0") + ended); // an odd line, ended in June
    // Supported lines, a line not known yet, and one too old (which says what it needs instead).
    for (const char* current : {"v22.11.0", "v24.3.0", "v26.0.0", "v31.0.0"})
        EXPECT_EQ(status(current, 20).details, QString::fromLatin1(current));
    EXPECT_EQ(status("v18.20.8", 22), (RequirementStatus{SystemRequirement::nodeJS, false,
                                                         QStringLiteral("v18.20.8 (needs 22 or newer)"), 22}));
    // The day itself still counts as supported.
    today = QDate(2027, 4, 30);
    EXPECT_EQ(status("v22.1.0", 18).details, QStringLiteral("v22.1.0"));
    today = QDate(2027, 5, 1);
    EXPECT_EQ(status("v22.1.0", 18).details, QStringLiteral("v22.1.0") + ended);
}

TEST(SystemDetectorRules, DiskSpaceBoundaries)
{
    EXPECT_EQ(SystemDetector::bytesToMegabytes(1073741824), 1024);
    EXPECT_EQ(SystemDetector::bytesToMegabytes(1073741823), 1023);
    // A gigabyte: what one tool and Node.js take today. Unreadable space counts as none at all.
    EXPECT_EQ(SystemDetector::diskSpaceStatus(1024),
              (RequirementStatus{SystemRequirement::diskSpace, true, QStringLiteral("1024 MB available")}));
    EXPECT_FALSE(SystemDetector::diskSpaceStatus(1023).isMet);
    EXPECT_EQ(SystemDetector::diskSpaceStatus(std::nullopt),
              (RequirementStatus{SystemRequirement::diskSpace, false, QStringLiteral("0 MB free, 1024 MB needed")}));
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
    platform.diskSpace = DiskSpace{1073741823, QString()};

    const QList<RequirementStatus> gemini = *await(detector.checkAllRequirements(CLITool::geminiCLI));
    ASSERT_EQ(gemini.size(), 4);
    EXPECT_EQ(gemini[0], (RequirementStatus{SystemRequirement::macOSVersion, true, QStringLiteral("macOS 14.0.0")}));
    EXPECT_EQ(gemini[1],
              (RequirementStatus{SystemRequirement::diskSpace, false, QStringLiteral("1023 MB free, 1024 MB needed")}));
    // git is checked for every tool; without the developer tools it is not run, and the row
    // names what is missing.
    EXPECT_EQ(gemini[2],
              (RequirementStatus{SystemRequirement::git, false, QStringLiteral("Xcode CLI Tools not installed")}));
    // A Node.js too old for the tool shows its version and the one needed, and is not met;
    // the same Node.js is new enough for Codex.
    EXPECT_EQ(gemini[3],
              (RequirementStatus{SystemRequirement::nodeJS, false, QStringLiteral("v19.0.0 (needs 20 or newer)"), 20}));
    sandbox.installFake(QStringLiteral("git"));
    const QList<RequirementStatus> codex = *await(detector.checkAllRequirements(CLITool::codex));
    EXPECT_EQ(codex[2], (RequirementStatus{SystemRequirement::git, true, QStringLiteral("git version 2.39.5")}));
    EXPECT_EQ(codex[3], (RequirementStatus{SystemRequirement::nodeJS, true,
                                           QStringLiteral("v19.0.0 \u2013 no longer receives security fixes"), 18}));
    sandbox.setEnv("FAKE_NODE_VERSION", "v17.9.1");
    EXPECT_EQ((*await(detector.checkAllRequirements(CLITool::codex)))[3],
              (RequirementStatus{SystemRequirement::nodeJS, false, QStringLiteral("v17.9.1 (needs 18 or newer)"), 18}));

    // Claude Code needs no Node.js: three records, and node is never asked.
    QFile::remove(sandbox.stateDirectory() + QStringLiteral("/node.log"));
    platform.osCheck = {false, QStringLiteral("macOS 13.6.1")};
    const QList<RequirementStatus> claude = *await(detector.checkAllRequirements(CLITool::claudeCode));
    ASSERT_EQ(claude.size(), 3);
    EXPECT_EQ(claude[0], (RequirementStatus{SystemRequirement::macOSVersion, false, QStringLiteral("macOS 13.6.1")}));
    EXPECT_FALSE(QFile::exists(sandbox.stateDirectory() + QStringLiteral("/node.log")));

    sandbox.removeFake(QStringLiteral("node"));
    EXPECT_EQ((*await(detector.checkAllRequirements(CLITool::codex)))[3],
              (RequirementStatus{SystemRequirement::nodeJS, false, QStringLiteral("Not installed"), 18}));
}

TEST_F(SystemDetectorTest, TheNewestReleaseSaysWhichNodeItNeeds)
{
    // Node.js 20, enough for Gemini CLI by the catalogue; its newest release asks for 22.
    sandbox.installFakes({"node", "npm", "git"});
    sandbox.setEnv("FAKE_NPM_ENGINES", ">=22");
    EXPECT_EQ(
        (*await(detector.checkAllRequirements(CLITool::geminiCLI)))[3],
        (RequirementStatus{SystemRequirement::nodeJS, false, QStringLiteral("v20.10.0 (needs 22 or newer)"), 22}));
    EXPECT_EQ(*await(detector.requiredNodeMajor(CLITool::geminiCLI)), 22);
    // The installation plans Node.js for it too.
    EXPECT_TRUE(await(services.installer.setupSteps(CLITool::geminiCLI))
                    ->contains(SetupStep{SetupStepType::installNode, SetupStepStatus::pending, std::nullopt}));

    // A registry that cannot be reached leaves the catalogue's word, and a release that asks
    // for less never lowers it. Node.js 20 has had its last security fix: the row says so and
    // still counts it.
    sandbox.setEnv("FAKE_NPM_OFFLINE", "1");
    services.updateChecker.forget(CLITool::geminiCLI);
    EXPECT_EQ((*await(detector.checkAllRequirements(CLITool::geminiCLI)))[3],
              (RequirementStatus{SystemRequirement::nodeJS, true,
                                 QStringLiteral("v20.10.0 \u2013 no longer receives security fixes"), 20}));
    qunsetenv("FAKE_NPM_OFFLINE");
    sandbox.setEnv("FAKE_NPM_ENGINES", ">=16");
    services.updateChecker.forget(CLITool::codex);
    EXPECT_EQ(*await(detector.requiredNodeMajor(CLITool::codex)), 18);
}

TEST_F(SystemDetectorTest, DiskSpaceOfTheHomeVolume)
{
    platform.diskSpace = std::nullopt; // the real volume
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

    // One that never answers (it waits for a sign-in) is unknown once the bound has passed, not
    // after the ten minutes any command gets.
    ASSERT_TRUE(test::writeExecutable(sandbox.binDirectory() + QStringLiteral("/codex"), "#!/bin/sh\nsleep 120\n"));
    detector.setVersionTimeoutSeconds(0.5);
    const std::optional<std::optional<QString>> version = await(detector.getToolVersion(CLITool::codex), 15000);
    ASSERT_TRUE(version.has_value()) << "still waiting for the version";
    EXPECT_EQ(*version, std::nullopt);
}

TEST_F(SystemDetectorTest, AToolCountsOnlyWhenItsCommandIsOnTheSearchPath)
{
    EXPECT_EQ(*await(detector.findTool(CLITool::codex)), std::nullopt);
    EXPECT_TRUE(await(detector.findInstalledTools())->isEmpty());

    // Gemini CLI's package is there, but its command lies in a folder no search looks in.
    sandbox.writeFile(QStringLiteral(".npm-global/lib/node_modules/@google/gemini-cli/package.json"), "{}");
    sandbox.installFakeAt(QStringLiteral("gemini"), sandbox.path(QStringLiteral(".npm-global/bin/gemini")));
    sandbox.installFakes({"codex"});
    EXPECT_EQ(*await(detector.findTool(CLITool::codex)), sandbox.binDirectory() + QStringLiteral("/codex"));
    EXPECT_EQ(*await(detector.findTool(CLITool::geminiCLI)), std::nullopt);
    EXPECT_EQ(*await(detector.findInstalledTools()), QList<CLITool>{CLITool::codex});

    // ~/.local/bin is searched too; the tools come in catalogue order.
    sandbox.installFakeAt(QStringLiteral("claude"), sandbox.path(QStringLiteral(".local/bin/claude")));
    EXPECT_EQ(*await(detector.findInstalledTools()), (QList<CLITool>{CLITool::claudeCode, CLITool::codex}));
}

TEST_F(SystemDetectorTest, TheCheckOfAToolLooksForItBeforeTheRequirements)
{
    const auto check = [this](CLITool tool) {
        const ToolCheck result = *await(detector.checkForTool(tool));
        return std::tuple(result.isInstalled, result.version, result.requirements);
    };
    // Not there: what installing it needs. There: its version, if it can be read, and no requirements.
    EXPECT_EQ(check(CLITool::geminiCLI),
              std::tuple(false, std::optional<QString>(), *await(detector.checkAllRequirements(CLITool::geminiCLI))));
    sandbox.installFake(QStringLiteral("claude"));
    EXPECT_EQ(check(CLITool::claudeCode),
              std::tuple(true, std::optional(QStringLiteral("1.0.42 (claude)")), QList<RequirementStatus>()));
    sandbox.setEnv("FAKE_TOOL_VERSION_FAIL", "1");
    EXPECT_EQ(check(CLITool::claudeCode), std::tuple(true, std::optional<QString>(), QList<RequirementStatus>()));
}

// The profile that gets the search path is the one of the shell a new terminal starts: the
// account's zsh, whether SHELL names bash (as it does until the next login after chsh) or is
// not set at all (an app started by the desktop without it).
TEST_F(SystemDetectorTest, ShellProfileFollowsTheAccountsShellNotSHELL)
{
    const QString zsh = sandbox.path(QStringLiteral("shells/zsh"));
    ASSERT_TRUE(test::writeExecutable(zsh, "#!/bin/sh\n"));
    const LinuxPlatform linuxPlatform([zsh] { return QString(zsh); });
    const MacPlatform mac([zsh] { return QString(zsh); });
    SystemDetector onLinux(services.runner, linuxPlatform);
    SystemDetector onAMac(services.runner, mac);
    const auto chosen = [](const SystemDetector& detector) {
        const ShellProfile profile = detector.shellProfile();
        return std::pair(profile.path, profile.family);
    };
    const std::pair<QString, ShellFamily> expected(sandbox.home() + QStringLiteral("/.zshrc"), ShellFamily::posix);
    sandbox.writeFile(QStringLiteral(".bashrc"), "");
    sandbox.writeFile(QStringLiteral(".bash_profile"), "");
    sandbox.setEnv("SHELL", "/bin/bash");
    EXPECT_EQ(chosen(onLinux), expected);
    EXPECT_EQ(chosen(onAMac), expected);
    qunsetenv("SHELL"); // the sandbox puts it back
    EXPECT_EQ(chosen(onLinux), expected);
    EXPECT_EQ(chosen(onAMac), expected);
}

TEST_F(SystemDetectorTest, ShellProfileChoiceFollowsTheUsersShell)
{
    const auto choice = [this](const char* shell) {
        platform.terminalShell = QString::fromLatin1(shell);
        const ShellProfile profile = detector.shellProfile();
        return std::pair(QDir(sandbox.home()).relativeFilePath(profile.path), profile.family);
    };
    using enum ShellFamily;
    sandbox.setEnv("XDG_CONFIG_HOME", "");
    // Nothing there yet: the file the shell of a new terminal window would read.
    EXPECT_EQ(choice("/bin/zsh"), std::pair(QStringLiteral(".zshrc"), posix));
    EXPECT_EQ(choice("/usr/bin/fish"), std::pair(QStringLiteral(".config/fish/conf.d/quillforge.fish"), fish));
    EXPECT_EQ(choice("/bin/tcsh"), std::pair(QStringLiteral(".tcshrc"), csh));
    EXPECT_EQ(choice("/bin/csh"), std::pair(QStringLiteral(".cshrc"), csh));
    EXPECT_EQ(choice("/bin/bash"), std::pair(QStringLiteral(".bash_profile"), posix)); // as a login shell
    platform.loginTerminals = false;
    EXPECT_EQ(choice("/bin/bash"), std::pair(QStringLiteral(".bashrc"), posix));
    platform.loginTerminals = true;

    // Files of other shells never count.
    sandbox.writeFile(QStringLiteral(".zshrc"), "");
    sandbox.writeFile(QStringLiteral(".cshrc"), "");
    EXPECT_EQ(choice("/bin/tcsh"), std::pair(QStringLiteral(".cshrc"), csh)); // tcsh reads it when alone
    sandbox.writeFile(QStringLiteral(".tcshrc"), "");
    EXPECT_EQ(choice("/bin/tcsh"), std::pair(QStringLiteral(".tcshrc"), csh));
    // A login bash reads the first of its files; a new ~/.bash_profile would hide ~/.profile.
    sandbox.writeFile(QStringLiteral(".bashrc"), "");
    sandbox.writeFile(QStringLiteral(".profile"), "");
    EXPECT_EQ(choice("/bin/bash"), std::pair(QStringLiteral(".profile"), posix));
    sandbox.writeFile(QStringLiteral(".bash_profile"), "");
    EXPECT_EQ(choice("/bin/bash"), std::pair(QStringLiteral(".bash_profile"), posix));
    platform.loginTerminals = false;
    EXPECT_EQ(choice("/bin/bash"), std::pair(QStringLiteral(".bashrc"), posix));
    // fish's configuration folder moves with XDG_CONFIG_HOME.
    sandbox.setEnv("XDG_CONFIG_HOME", sandbox.path(QStringLiteral("conf")).toUtf8());
    EXPECT_EQ(choice("/opt/fish/bin/fish"), std::pair(QStringLiteral("conf/fish/conf.d/quillforge.fish"), fish));

    // Any other shell: the first of ~/.zshrc, ~/.bash_profile and ~/.bashrc that is a file.
    EXPECT_EQ(choice("/bin/dash"), std::pair(QStringLiteral(".zshrc"), posix));
    QFile::remove(sandbox.path(QStringLiteral(".zshrc")));
    QDir().mkpath(sandbox.path(QStringLiteral(".zshrc"))); // a folder of that name is not a profile
    EXPECT_EQ(choice("/bin/ksh"), std::pair(QStringLiteral(".bash_profile"), posix));
}
