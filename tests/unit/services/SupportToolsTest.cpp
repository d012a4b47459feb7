#include "CoroTest.h"
#include "Diagnosis.h"
#include "PlatformBackends.h"
#include "SupportTools.h"
#include "TestMachine.h"

#include <QDir>
#include <QFile>
#include <QPair>
#include <QSet>

using namespace qf;
using qf::test::await;

namespace {

class SupportToolsTest : public ::testing::Test, protected test::TestMachine {
protected:
    QList<SystemTool> catalogue() const { return services.supportTools.catalogue(); }
    QList<SystemTool> detect() { return *await(services.supportTools.detectAll()); }
    static const SystemTool& item(const QList<SystemTool>& tools, SystemToolID id)
    {
        for (const SystemTool& tool : tools)
            if (tool.id == id)
                return tool;
        ADD_FAILURE() << "no item " << int(id);
        return tools.first();
    }
    SystemTool item(SystemToolID id) const { return item(catalogue(), id); }
    // Removes `tool`, with what the removal says in `log`.
    Result<void> remove(const SystemTool& tool)
    {
        log.clear();
        const ShellRunner::OutputHandler onOutput = [this](const QString& text) { log += text; };
        return *await(services.supportTools.remove(tool, onOutput));
    }

    QString log;
};

} // namespace

TEST_F(SupportToolsTest, TheCatalogueListsHomebrewOnlyWhereTheSetupUsesIt)
{
    const QList<SystemTool> tools = catalogue();
    ASSERT_EQ(tools.size(), 4); // their order and numbers follow below
    QSet<QString> keys;
    for (const SystemTool& tool : tools) {
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
    // Detected with nothing installed: nothing is there, and no version.
    for (const SystemTool& tool : detect())
        EXPECT_TRUE(!tool.isInstalled && !tool.version.has_value()) << tool.key.toStdString();

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

    // Homebrew is listed only where the setup uses it.
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

TEST_F(SupportToolsTest, VersionsAsTheyAreShown)
{
    sandbox.installFakes({"xcode-select", "xcodebuild", "brew", "node"});
    QDir().mkpath(sandbox.path(QStringLiteral("Developer")));

    // Only the Command Line Tools: the version pipeline prints nothing, so no version is known.
    // Homebrew's is its first line only; Node.js's with its v.
    QList<std::pair<bool, std::optional<QString>>> shown;
    for (const SystemTool& tool : detect())
        shown.append({tool.isInstalled, tool.version});
    EXPECT_EQ(shown, (QList<std::pair<bool, std::optional<QString>>>{{true, std::nullopt},
                                                                     {true, std::nullopt},
                                                                     {true, QStringLiteral("4.2.0")},
                                                                     {true, QStringLiteral("v20.10.0")}}));

    sandbox.setEnv("FAKE_FULL_XCODE", "1");
    EXPECT_EQ(item(detect(), SystemToolID::developerTools).version, QStringLiteral("15.2"));

    // On Linux the item is git: its presence line gives the version too.
    platform.developerTools = LinuxPlatform::gitToolsItem();
    EXPECT_FALSE(item(detect(), SystemToolID::developerTools).isInstalled);
    sandbox.installFake(QStringLiteral("git"));
    EXPECT_EQ(item(detect(), SystemToolID::developerTools).version, QStringLiteral("2.39.5"));
}

TEST_F(SupportToolsTest, NodeIsOfferedForRemovalOnlyAsACopyQuillforgeCanRemoveAndRemovedByItsLine)
{
    // Homebrew's Node.js goes through Homebrew, which says what it does.
    sandbox.installFakes({"brew", "node"});
    const SystemTool homebrews = *await(services.supportTools.detect(item(SystemToolID::node)));
    EXPECT_EQ(homebrews.uninstallCommand, QStringLiteral("brew uninstall node"));
    EXPECT_TRUE(remove(homebrews).ok());
    EXPECT_EQ(log, QStringLiteral("Running: brew uninstall node\n\n"
                                  "Uninstalling /opt/homebrew/Cellar/node/21.5.0... (2,000 files, 60MB)\n"
                                  "\nNode.js has been uninstalled.\n"));
    EXPECT_FALSE(QFile::exists(sandbox.binDirectory() + QStringLiteral("/node")));

    // The release archive's copy in ~/.local: its files go, the global packages beside it stay.
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

    // An item without a line of its own is not removed from here.
    const Result<void> folder = remove(item(SystemToolID::developerFolder));
    ASSERT_FALSE(folder.ok());
    EXPECT_EQ(folder.error().installationError(), InstallationError::manualUninstallRequired);
    EXPECT_TRUE(log.isEmpty());
}

TEST_F(SupportToolsTest, HomebrewIsRemovedOnlyOnceItIsGone)
{
    sandbox.installFakes({"brew", "curl"});

    // Offline: the removal script never arrives, and the error says so with curl's reason.
    sandbox.setEnv("FAKE_CURL_FAIL", "1");
    const Result<void> offline = remove(item(SystemToolID::homebrew));
    ASSERT_FALSE(offline.ok());
    EXPECT_EQ(offline.error().plainDescription(), failureSentence(FailureCause::notFound));
    // The command's own words are in the log.
    EXPECT_TRUE(log.contains(QStringLiteral("curl: (22) The requested URL returned error: 404")));

    // A script that ends well but leaves Homebrew in place is no removal.
    sandbox.setEnv("FAKE_CURL_FAIL", "");
    SystemTool homebrew = item(SystemToolID::homebrew);
    homebrew.uninstallCommand = QStringLiteral("echo 'Homebrew uninstalled!'");
    const Result<void> kept = remove(homebrew);
    ASSERT_FALSE(kept.ok());
    EXPECT_FALSE(kept.error().isDeclined());
    EXPECT_EQ(kept.error().plainDescription(), QStringLiteral("Homebrew is still installed at %1: its removal did not "
                                                              "finish. The output above says why.")
                                                   .arg(sandbox.binDirectory() + QStringLiteral("/brew")));
    EXPECT_FALSE(log.contains(QStringLiteral("has been uninstalled")));

    homebrew.uninstallCommand = QStringLiteral("rm %1/brew").arg(sandbox.binDirectory());
    EXPECT_TRUE(remove(homebrew).ok());
    EXPECT_FALSE(QFile::exists(sandbox.binDirectory() + QStringLiteral("/brew")));
    EXPECT_TRUE(log.endsWith(QStringLiteral("\nHomebrew has been uninstalled.\n"))) << log.toStdString();
}
