#include "CoroTest.h"
#include "PlatformBackends.h"
#include "SystemTool.h"
#include "TestMachine.h"

#include <QDir>
#include <QFileInfo>
#include <QPair>
#include <QSet>

using namespace qf;
using qf::test::await;

namespace {

class SystemToolTest : public ::testing::Test, protected test::TestMachine {
protected:
    QList<SystemTool> catalogue() const { return systemToolCatalogue(platform); }
    QList<SystemTool> detect()
    {
        return *await(detectSystemTools(catalogue(), services.runner, platform.developerToolsItem()));
    }
    static const SystemTool& item(const QList<SystemTool>& tools, SystemToolID id)
    {
        for (const SystemTool& tool : tools)
            if (tool.id == id)
                return tool;
        ADD_FAILURE() << "no item " << int(id);
        return tools.first();
    }
    void act(const SystemTool& tool)
    {
        handleSystemToolAction(tool, platform, [this] { ++reloads; });
    }

    int reloads = 0;
};

} // namespace

TEST_F(SystemToolTest, TheCatalogue)
{
    const QList<SystemTool> tools = catalogue();
    ASSERT_EQ(tools.size(), 4);
    const QList<SystemToolID> order = {SystemToolID::developerTools, SystemToolID::developerFolder,
                                       SystemToolID::homebrew, SystemToolID::node};
    QSet<QString> keys;
    for (int i = 0; i < tools.size(); ++i) {
        const SystemTool& tool = tools[i];
        EXPECT_EQ(tool.id, order[i]);
        EXPECT_EQ(tool.stepNumber, i + 1);
        // Only the two items the setup installs itself are optional.
        EXPECT_EQ(tool.isOptional, tool.id == SystemToolID::homebrew || tool.id == SystemToolID::node);
        // Every item says how it goes away: a command, or a note why it does not. Node.js
        // knows only once its copy has been found.
        if (tool.id != SystemToolID::node) {
            EXPECT_NE(tool.uninstallCommand.has_value(), tool.uninstallNote.has_value()) << tool.key.toStdString();
        }
        EXPECT_FALSE(tool.name.isEmpty());
        EXPECT_FALSE(tool.version.has_value());
        keys.insert(tool.key);
    }
    EXPECT_EQ(keys.size(), 4);

    // The developer-tools item and the folder's note are the platform's.
    const DeveloperToolsItem developerTools = platform.developerToolsItem();
    EXPECT_EQ(tools[0].key, developerTools.key);
    EXPECT_EQ(tools[0].name, developerTools.name);
    EXPECT_EQ(tools[0].uninstallCommand, developerTools.uninstallCommand);
    EXPECT_EQ(tools[1].uninstallNote, platform.wording().developerFolderNote);

    // The projects folder is known when the catalogue is built; any entry at the path counts.
    EXPECT_FALSE(tools[1].isInstalled);
    sandbox.writeFile(QStringLiteral("Developer"), "a file");
    EXPECT_TRUE(catalogue()[1].isInstalled);
}

TEST_F(SystemToolTest, HomebrewIsListedOnlyWhereTheSetupUsesIt)
{
    const auto listed = [](const QList<SystemTool>& tools) {
        QList<QPair<SystemToolID, int>> items;
        for (const SystemTool& tool : tools)
            items.append({tool.id, tool.stepNumber.value_or(0)});
        return items;
    };
    const QList<QPair<SystemToolID, int>> withHomebrew{{SystemToolID::developerTools, 1},
                                                       {SystemToolID::developerFolder, 2},
                                                       {SystemToolID::homebrew, 3},
                                                       {SystemToolID::node, 4}};
    const QList<QPair<SystemToolID, int>> withoutHomebrew{
        {SystemToolID::developerTools, 1}, {SystemToolID::developerFolder, 2}, {SystemToolID::node, 3}};

    EXPECT_EQ(listed(catalogue()), withHomebrew);
    platform.homebrew = false;
    EXPECT_EQ(listed(catalogue()), withoutHomebrew);
    // As the systems themselves say: a Mac's setup installs Node.js through Homebrew, a Linux one
    // from the release archive.
    EXPECT_EQ(listed(systemToolCatalogue(MacPlatform())), withHomebrew);
    EXPECT_EQ(listed(systemToolCatalogue(LinuxPlatform())), withoutHomebrew);
}

TEST_F(SystemToolTest, NothingInstalled)
{
    for (const SystemTool& tool : detect()) {
        EXPECT_FALSE(tool.isInstalled) << tool.key.toStdString();
        EXPECT_FALSE(tool.version.has_value()) << tool.key.toStdString();
    }
}

TEST_F(SystemToolTest, VersionsAsTheyAreShown)
{
    sandbox.installFakes({"xcode-select", "xcodebuild", "brew", "node"});
    QDir().mkpath(sandbox.path(QStringLiteral("Developer")));

    // Only the Command Line Tools: the version pipeline prints nothing, an empty version.
    QList<SystemTool> tools = detect();
    EXPECT_TRUE(item(tools, SystemToolID::developerTools).isInstalled);
    EXPECT_EQ(item(tools, SystemToolID::developerTools).version, QString());
    EXPECT_TRUE(item(tools, SystemToolID::developerFolder).isInstalled);
    EXPECT_FALSE(item(tools, SystemToolID::developerFolder).version.has_value());
    EXPECT_EQ(item(tools, SystemToolID::homebrew).version, QStringLiteral("4.2.0")); // first line only
    EXPECT_EQ(item(tools, SystemToolID::node).version, QStringLiteral("v20.10.0"));  // with its v

    sandbox.setEnv("FAKE_FULL_XCODE", "1");
    EXPECT_EQ(item(detect(), SystemToolID::developerTools).version, QStringLiteral("15.2"));

    // On Linux the item is git: its presence line gives the version too.
    platform.developerTools = LinuxPlatform::gitToolsItem();
    EXPECT_FALSE(item(detect(), SystemToolID::developerTools).isInstalled);
    sandbox.installFake(QStringLiteral("git"));
    EXPECT_EQ(item(detect(), SystemToolID::developerTools).version, QStringLiteral("2.39.5"));
}

TEST_F(SystemToolTest, ButtonActions)
{
    const QList<SystemTool> tools = catalogue();

    // A missing projects folder is created, with any missing parents, shown, and reloaded.
    sandbox.setEnv("HOME", sandbox.path(QStringLiteral("not/yet/here")).toUtf8());
    act(catalogue()[1]);
    const QString folder = sandbox.path(QStringLiteral("not/yet/here/Developer"));
    EXPECT_TRUE(QFileInfo(folder).isDir());
    EXPECT_EQ(platform.revealed, QStringList{folder});
    EXPECT_EQ(reloads, 1);
    EXPECT_TRUE(catalogue()[1].isInstalled);

    // An existing one is only shown.
    act(catalogue()[1]);
    EXPECT_EQ(platform.revealed.size(), 2);
    EXPECT_EQ(reloads, 1);

    // Missing developer tools start their installer; installed ones do nothing.
    act(tools[0]);
    EXPECT_EQ(platform.installersStarted, 1);
    SystemTool installed = tools[0];
    installed.isInstalled = true;
    act(installed);
    EXPECT_EQ(platform.installersStarted, 1);

    // Homebrew and Node.js come with the setup, not from here.
    act(tools[2]);
    act(tools[3]);
    EXPECT_EQ(platform.installersStarted, 1);
    EXPECT_EQ(platform.revealed.size(), 2);
    EXPECT_EQ(reloads, 1);
}

TEST_F(SystemToolTest, AFolderThatCannotBeMadeIsStillShownAndReloaded)
{
    // HOME is an ordinary file: nothing can be created under it.
    sandbox.writeFile(QStringLiteral("plain-file"), "");
    sandbox.setEnv("HOME", sandbox.path(QStringLiteral("plain-file")).toUtf8());
    act(catalogue()[1]);
    EXPECT_EQ(platform.revealed, QStringList{sandbox.path(QStringLiteral("plain-file/Developer"))});
    EXPECT_EQ(reloads, 1);
    EXPECT_FALSE(catalogue()[1].isInstalled);
}

TEST_F(SystemToolTest, APlainFileNamedDeveloperIsSelectedNotOpened)
{
    sandbox.writeFile(QStringLiteral("Developer"), "notes");
    act(catalogue()[1]);
    EXPECT_EQ(platform.revealedFiles, QStringList{sandbox.path(QStringLiteral("Developer"))});
    EXPECT_TRUE(platform.revealed.isEmpty());
    EXPECT_EQ(reloads, 0);
}

TEST_F(SystemToolTest, TerminalLaunchesGoToThePlatformEveryTime)
{
    services.terminal.openInTerminal(QStringLiteral("codex"), QStringLiteral("~/Developer"));
    services.terminal.openInTerminal(QStringLiteral("codex"), QStringLiteral("~/Developer"));
    ASSERT_EQ(platform.terminals.size(), 2);
    EXPECT_EQ(platform.terminals[0], qMakePair(QStringLiteral("codex"), QStringLiteral("~/Developer")));
}

TEST_F(SystemToolTest, NodeIsOfferedForRemovalOnlyAsACopyQuillforgeCanRemove)
{
    // Homebrew's Node.js goes through Homebrew.
    sandbox.installFakes({"brew", "node"});
    EXPECT_EQ(item(detect(), SystemToolID::node).uninstallCommand, QStringLiteral("brew uninstall node"));

    // The release archive's copy in ~/.local: its files go, the global packages beside it stay.
    sandbox.removeFake(QStringLiteral("node"));
    for (const char* file : {".local/bin/npm", ".local/bin/npx", ".local/lib/node_modules/npm/package.json",
                             ".local/include/node/node.h", ".local/share/man/man1/node.1",
                             ".local/lib/node_modules/@google/gemini-cli/package.json", ".local/bin/gemini"})
        sandbox.writeFile(QString::fromLatin1(file), "x");
    sandbox.installFakeAt(QStringLiteral("node"), sandbox.path(QStringLiteral(".local/bin/node")));
    const SystemTool local = item(detect(), SystemToolID::node);
    ASSERT_TRUE(local.uninstallCommand.has_value());
    ASSERT_TRUE(await(services.runner.run(*local.uninstallCommand))->ok());
    for (const char* gone : {".local/bin/node", ".local/bin/npm", ".local/bin/npx", ".local/lib/node_modules/npm",
                             ".local/include/node", ".local/share/man/man1/node.1"})
        EXPECT_FALSE(sandbox.exists(QString::fromLatin1(gone))) << gone;
    EXPECT_TRUE(sandbox.exists(QStringLiteral(".local/lib/node_modules/@google/gemini-cli/package.json")));
    EXPECT_TRUE(sandbox.exists(QStringLiteral(".local/bin/gemini")));

    // Any other copy (here nvm's, with no Homebrew at all) is not offered, and says why.
    sandbox.removeFake(QStringLiteral("brew"));
    const QString nvm = sandbox.path(QStringLiteral(".nvm/versions/node/v22.11.0/bin/node"));
    sandbox.installFakeAt(QStringLiteral("node"), nvm);
    const SystemTool other = item(detect(), SystemToolID::node);
    EXPECT_TRUE(other.isInstalled);
    EXPECT_EQ(other.uninstallCommand, std::nullopt);
    EXPECT_EQ(other.uninstallNote,
              QStringLiteral("This Node.js (%1) was installed by another program. Remove it the way it was installed.")
                  .arg(nvm));
}
