#include "Badge.h"
#include "MacTest.h"

#include <QDir>
#include <QFileInfo>

using namespace qf;
using test::MacTest;
using test::SimulatedMac;

namespace {

using DashboardOnAMac = MacTest;

} // namespace

// A Mac without the Command Line Tools is the Mac of most first-time users: loading the
// dashboard, and loading it again as a sheet's "Done" does, asks the system nothing. "Install"
// starts the system's installer and, half a second later, brings it to the front through
// System Events. The projects folder is shown in Finder.
TEST_F(DashboardOnAMac, WithoutTheCommandLineToolsOnlyInstallOpensTheSystemsInstallerAndFinderShowsTheFolder)
{
    mac.setDeveloperTools(false);
    open(InstallationStep::home);
    waitForDashboard();
    EXPECT_FALSE(item("xcode")->tool().isInstalled);
    screenAs<HomeView>()->loadData();
    waitForDashboard();
    EXPECT_EQ(mac.events(QStringLiteral("developer-tools-dialog")), QStringList());

    ASSERT_NE(item("xcode")->actionButton(), nullptr);
    item("xcode")->actionButton()->click();
    ASSERT_TRUE(mac.waitForEvents(QStringLiteral("system-events")));
    const QStringList events = mac.events();
    ASSERT_EQ(events.size(), 3) << events.join(QLatin1Char('\n')).toStdString();
    EXPECT_EQ(events[0], QStringLiteral("developer-tools-dialog\txcode-select --install"));
    EXPECT_EQ(events[1], QStringLiteral("osascript\t") +
                             MacPlatform::systemEventsScript().replace(QLatin1Char('\n'), QStringLiteral("\\n")));
    EXPECT_EQ(events[2], QStringLiteral("system-events\t"));

    // Once the user has installed them, the next load shows them. Without Xcode the version
    // pipeline prints nothing (xcodebuild says it needs Xcode): no version, the badge says
    // they are ready, and still no dialog.
    mac.setDeveloperTools(true);
    screenAs<HomeView>()->loadData();
    waitForDashboard();
    EXPECT_TRUE(item("xcode")->tool().isInstalled);
    EXPECT_EQ(item("xcode")->tool().version, std::nullopt);
    EXPECT_EQ(test::child<ui::Badge>(item("xcode"), QStringLiteral("versionBadge"))->text(), QStringLiteral("Ready"));
    EXPECT_EQ(mac.events(QStringLiteral("developer-tools-dialog")).size(), 1);

    // The projects folder is made and shown in Finder, then in Finder again once it is there.
    const QString folder = QDir::homePath() + QStringLiteral("/Developer");
    item("developer")->actionButton()->click();
    ASSERT_TRUE(mac.waitForEvents(QStringLiteral("open")));
    EXPECT_TRUE(QFileInfo(folder).isDir());
    waitForDashboard();
    item("developer")->actionButton()->click();
    ASSERT_TRUE(mac.waitForEvents(QStringLiteral("open"), 2));
    EXPECT_EQ(mac.events(QStringLiteral("open")), QStringList({folder, folder}));
}

// Homebrew is found in either of its homes, with its version.
TEST_F(DashboardOnAMac, HomebrewIsFoundOnAppleSiliconAndOnIntel)
{
    for (const SimulatedMac::Homebrew homebrew :
         {SimulatedMac::Homebrew::appleSilicon, SimulatedMac::Homebrew::intel, SimulatedMac::Homebrew::none}) {
        mac.setHomebrew(homebrew);
        open(InstallationStep::home);
        waitForDashboard();
        const SystemTool& brew = item("homebrew")->tool();
        EXPECT_EQ(brew.isInstalled, homebrew != SimulatedMac::Homebrew::none);
        EXPECT_EQ(brew.version,
                  homebrew != SimulatedMac::Homebrew::none ? std::optional(QStringLiteral("4.4.9")) : std::nullopt);
        EXPECT_FALSE(item("node")->tool().isInstalled);
    }
}
