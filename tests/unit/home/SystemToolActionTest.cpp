#include "SupportTools.h"
#include "SystemToolAction.h"
#include "TestMachine.h"

#include <QFileInfo>

#include <gtest/gtest.h>

using namespace qf;

namespace {

class SystemToolActionTest : public ::testing::Test, protected test::TestMachine {
protected:
    QList<SystemTool> catalogue() const { return systemToolCatalogue(platform); }
    void act(const SystemTool& tool)
    {
        handleSystemToolAction(tool, platform, [this] { ++reloads; });
    }

    int reloads = 0;
};

} // namespace

TEST_F(SystemToolActionTest, ButtonActions)
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

TEST_F(SystemToolActionTest, AFolderThatCannotBeMadeIsStillShownAndReloaded)
{
    // HOME is an ordinary file: nothing can be created under it.
    sandbox.writeFile(QStringLiteral("plain-file"), "");
    sandbox.setEnv("HOME", sandbox.path(QStringLiteral("plain-file")).toUtf8());
    act(catalogue()[1]);
    EXPECT_EQ(platform.revealed, QStringList{sandbox.path(QStringLiteral("plain-file/Developer"))});
    EXPECT_EQ(reloads, 1);
    EXPECT_FALSE(catalogue()[1].isInstalled);
}

TEST_F(SystemToolActionTest, APlainFileNamedDeveloperIsSelectedNotOpened)
{
    sandbox.writeFile(QStringLiteral("Developer"), "notes");
    act(catalogue()[1]);
    EXPECT_EQ(platform.revealedFiles, QStringList{sandbox.path(QStringLiteral("Developer"))});
    EXPECT_TRUE(platform.revealed.isEmpty());
    EXPECT_EQ(reloads, 0);
}
