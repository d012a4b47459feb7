#include "CoroTest.h"
#include "FakePlatform.h"
#include "ShellSandbox.h"
#include "SystemTool.h"
#include "TerminalLauncher.h"

#include <QDir>
#include <QFileInfo>

using namespace qf;
using qf::test::await;

namespace {

class SystemToolTest : public ::testing::Test {
protected:
    QList<SystemTool> detect() { return *await(detectSystemTools(systemToolCatalogue())); }
    const SystemTool& item(const QList<SystemTool>& tools, const char* id)
    {
        for (const SystemTool& tool : tools)
            if (tool.id == QLatin1String(id))
                return tool;
        ADD_FAILURE() << "no item " << id;
        return tools.first();
    }

    test::ShellSandbox sandbox;
    test::FakePlatform platform;
};

} // namespace

TEST_F(SystemToolTest, TheCatalogue)
{
    const QList<SystemTool> tools = systemToolCatalogue();
    ASSERT_EQ(tools.size(), 4);
    EXPECT_EQ(tools[0], (SystemTool{"xcode", "Xcode CLI Tools", "hammer", "Provides Git and build tools", false,
                                    std::nullopt, QStringLiteral("sudo rm -rf /Library/Developer/CommandLineTools"),
                                    std::nullopt, 1, false}));
    EXPECT_EQ(tools[1], (SystemTool{"developer", "Developer Folder", "folder.badge.plus", "Where your projects live",
                                    false, std::nullopt, std::nullopt,
                                    QStringLiteral("Open Finder to manage this folder"), 2, false}));
    EXPECT_EQ(tools[2], (SystemTool{"homebrew", "Homebrew", "mug", "Only needed for Gemini or Codex", false,
                                    std::nullopt,
                                    QStringLiteral("/bin/bash -c \"$(curl -fsSL "
                                                   "https://raw.githubusercontent.com/Homebrew/install/HEAD/"
                                                   "uninstall.sh)\""),
                                    std::nullopt, 3, true}));
    EXPECT_EQ(tools[3], (SystemTool{"node", "Node.js", "server.rack", "Only needed for Gemini or Codex", false,
                                    std::nullopt, QStringLiteral("brew uninstall node"), std::nullopt, 4, true}));

    // The projects folder is known when the catalogue is built; any entry at the path counts.
    sandbox.writeFile(QStringLiteral("Developer"), "a file");
    EXPECT_TRUE(systemToolCatalogue()[1].isInstalled);
}

TEST_F(SystemToolTest, NothingInstalled)
{
    for (const SystemTool& tool : detect()) {
        EXPECT_FALSE(tool.isInstalled) << tool.id.toStdString();
        EXPECT_FALSE(tool.version.has_value()) << tool.id.toStdString();
    }
}

TEST_F(SystemToolTest, VersionsAsTheyAreShown)
{
    sandbox.installFake(QStringLiteral("xcode-select"));
    sandbox.installFake(QStringLiteral("xcodebuild"));
    sandbox.installFake(QStringLiteral("brew"));
    sandbox.installFake(QStringLiteral("node"));
    QDir().mkpath(sandbox.path(QStringLiteral("Developer")));

    // Only the Command Line Tools: the version pipeline prints nothing, an empty version.
    QList<SystemTool> tools = detect();
    EXPECT_TRUE(item(tools, "xcode").isInstalled);
    EXPECT_EQ(item(tools, "xcode").version, QString());
    EXPECT_TRUE(item(tools, "developer").isInstalled);
    EXPECT_FALSE(item(tools, "developer").version.has_value());
    EXPECT_EQ(item(tools, "homebrew").version, QStringLiteral("4.2.0"));  // first line only
    EXPECT_EQ(item(tools, "node").version, QStringLiteral("v20.10.0"));  // with its v

    sandbox.setEnv("FAKE_FULL_XCODE", "1");
    EXPECT_EQ(item(detect(), "xcode").version, QStringLiteral("15.2"));

    // On Linux the item is git: its presence line gives the version too.
    platform.developerTools = {QStringLiteral("xcode"), QStringLiteral("Git & Build Tools"), QStringLiteral("hammer"),
                               QStringLiteral("Provides Git and build tools"), QStringLiteral("git --version"),
                               QString(), QStringLiteral("git version "), std::nullopt,
                               QStringLiteral("Use your system's package manager to remove Git")};
    EXPECT_FALSE(item(detect(), "xcode").isInstalled);
    sandbox.installFake(QStringLiteral("git"));
    EXPECT_EQ(item(detect(), "xcode").version, QStringLiteral("2.39.5"));
}

TEST_F(SystemToolTest, ButtonActions)
{
    int reloads = 0;
    const auto reload = [&] { ++reloads; };
    QList<SystemTool> tools = systemToolCatalogue();

    // A missing projects folder is created, with any missing parents, shown, and reloaded.
    sandbox.setEnv("HOME", sandbox.path(QStringLiteral("not/yet/here")).toUtf8());
    tools = systemToolCatalogue();
    handleSystemToolAction(tools[1], reload);
    const QString folder = sandbox.path(QStringLiteral("not/yet/here/Developer"));
    EXPECT_TRUE(QFileInfo(folder).isDir());
    EXPECT_EQ(platform.revealed, QStringList{folder});
    EXPECT_EQ(reloads, 1);
    EXPECT_TRUE(systemToolCatalogue()[1].isInstalled);

    // An existing one is only shown.
    handleSystemToolAction(systemToolCatalogue()[1], reload);
    EXPECT_EQ(platform.revealed.size(), 2);
    EXPECT_EQ(reloads, 1);

    // Missing developer tools start their installer; installed ones do nothing.
    handleSystemToolAction(tools[0], reload);
    EXPECT_EQ(platform.installersStarted, 1);
    SystemTool installed = tools[0];
    installed.isInstalled = true;
    handleSystemToolAction(installed, reload);
    EXPECT_EQ(platform.installersStarted, 1);

    // Homebrew and Node.js come with the setup, not from here.
    handleSystemToolAction(tools[2], reload);
    handleSystemToolAction(tools[3], reload);
    EXPECT_EQ(platform.installersStarted, 1);
    EXPECT_EQ(platform.revealed.size(), 2);
    EXPECT_EQ(reloads, 1);
}

TEST_F(SystemToolTest, TerminalLaunchesGoToThePlatformEveryTime)
{
    TerminalLauncher::shared().openInTerminal(QStringLiteral("codex"), QStringLiteral("~/Developer"));
    TerminalLauncher::shared().openInTerminal(QStringLiteral("codex"), QStringLiteral("~/Developer"));
    ASSERT_EQ(platform.terminals.size(), 2);
    EXPECT_EQ(platform.terminals[0], qMakePair(QStringLiteral("codex"), QStringLiteral("~/Developer")));
}
