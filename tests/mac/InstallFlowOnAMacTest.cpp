#include "MacTest.h"
#include "NodeReleaseFixture.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

#include <optional>
#include <string>

using namespace qf;
using test::MacTest;
using test::SimulatedMac;

namespace {

class InstallFlowOnAMac : public MacTest {
protected:
    std::optional<RequirementStatus> requirement(SystemRequirement which) const
    {
        for (const RequirementStatus& status : state.requirements()) {
            if (status.requirement == which)
                return status;
        }
        return std::nullopt;
    }
    SetupStep step(SetupStepType type) const
    {
        for (const SetupStep& row : state.setupSteps()) {
            if (row.type == type)
                return row;
        }
        ADD_FAILURE() << "no step " << type.rawValue().toStdString();
        return {type};
    }
    // Node.js v22.11.0 as nodejs.org publishes it for a Mac with this processor
    // ("darwin-arm64", "darwin-x64"), packed with the Mac's tar, and the installer pointed at it.
    void publishNodeRelease(const QString& platformName)
    {
        services->nodeInstaller.setDistribution(test::publishNodeRelease(QDir::homePath() + QStringLiteral("/../dist"),
                                                                         QStringLiteral("v22.11.0"), platformName,
                                                                         QStringLiteral("/usr/bin/tar")));
    }
};

} // namespace

// The system check says what is missing without running git, whose stub would make the
// system offer the Command Line Tools in a dialog the user did not ask for; the failed
// installation's log is shown in Finder.
TEST_F(InstallFlowOnAMac, WithoutTheCommandLineToolsTheCheckNamesThemAndAsksNothing)
{
    mac.setDeveloperTools(false);
    open(InstallationStep::systemCheck, CLITool::claudeCode);
    waitForCheck();
    const std::optional<RequirementStatus> git = requirement(SystemRequirement::git);
    ASSERT_TRUE(git);
    EXPECT_FALSE(git->isMet);
    EXPECT_EQ(git->details, QStringLiteral("Xcode CLI Tools not installed"));
    EXPECT_EQ(mac.events(QStringLiteral("developer-tools-dialog")), QStringList());

    // The installation fails for want of git; "Show Log File" shows the log selected in Finder.
    open(InstallationStep::installation, CLITool::codex);
    waitForInstallation();
    click("showLogFileButton");
    ASSERT_TRUE(mac.waitForEvents(QStringLiteral("open")));
    EXPECT_TRUE(
        mac.events(QStringLiteral("open"))
            .constFirst()
            .startsWith(QStringLiteral("-R ") + QDir::homePath() + QStringLiteral("/Library/Logs/Quillforge/")));

    // With them, git is the Mac's.
    mac.setDeveloperTools(true);
    open(InstallationStep::systemCheck, CLITool::claudeCode);
    waitForCheck();
    EXPECT_EQ(requirement(SystemRequirement::git),
              (RequirementStatus{SystemRequirement::git, true, QStringLiteral("git version 2.39.5 (Apple Git-154)")}));
}

// The account's shell in the Mac's user database is zsh: the shell Terminal starts, whose
// profile gets the search path, even when the app's SHELL still names bash from before chsh,
// or when it has no SHELL at all.
TEST_F(InstallFlowOnAMac, TheAccountsShellOutranksSHELL)
{
    const QByteArray started = qgetenv("SHELL");
    const auto restore = qScopeGuard([&started] { qputenv("SHELL", started); });
    for (const std::optional<QByteArray>& shell :
         {std::optional<QByteArray>("/bin/bash"), std::optional<QByteArray>()}) {
        if (shell)
            qputenv("SHELL", *shell);
        else
            qunsetenv("SHELL");
        const std::string which = shell ? "SHELL=/bin/bash" : "no SHELL";
        EXPECT_EQ(platform->loginShell(), QStringLiteral("/bin/zsh")) << which;
        EXPECT_EQ(platform->loginShellInvocation(QStringLiteral("true")).value(0), QStringLiteral("/bin/zsh")) << which;
        EXPECT_EQ(services->detector.shellProfilePath(), QDir::homePath() + QStringLiteral("/.zshrc")) << which;
    }
}

// The operating system requirement reads the Mac's version: 13 is too old, 14 and 26 are fine.
TEST_F(InstallFlowOnAMac, TheMacOSVersionDecidesTheFirstRequirement)
{
    for (const auto& [version, met] : {std::pair{"13.6", false}, {"14.5", true}, {"26.1", true}}) {
        mac.setMacOS(QLatin1String(version));
        open(InstallationStep::systemCheck, CLITool::claudeCode);
        waitForCheck();
        const std::optional<RequirementStatus> os = requirement(SystemRequirement::macOSVersion);
        ASSERT_TRUE(os);
        EXPECT_EQ(os->isMet, met) << version;
        // The patch is always written, 0 included.
        EXPECT_EQ(os->details, QStringLiteral("macOS %1.0").arg(QLatin1String(version)));
    }
}

// Gemini CLI needs Node.js: Homebrew brings it into its own prefix on either processor, and
// npm puts the tool beside it. Without Homebrew, Node.js comes from nodejs.org's archive for the
// Mac's processor, unpacked by the Mac's tar (bsdtar) into ~/.local.
TEST_F(InstallFlowOnAMac, NodeComesThroughHomebrewOrFromTheReleaseForTheProcessor)
{
    using Homebrew = SimulatedMac::Homebrew;
    for (const auto& [homebrew, archive] : {std::pair{Homebrew::appleSilicon, ""},
                                            {Homebrew::intel, ""},
                                            {Homebrew::none, "darwin-arm64"},
                                            {Homebrew::intel, "darwin-x64"}}) {
        const bool fromRelease = *archive != '\0';
        SCOPED_TRACE(fromRelease ? archive : "Homebrew");
        mac.setHomebrew(homebrew);
        if (fromRelease && homebrew == Homebrew::intel)
            QFile::remove(QStringLiteral("/usr/local/bin/brew")); // an Intel Mac without Homebrew
        const QString local = QDir::homePath() + QStringLiteral("/.local");
        QDir(local).removeRecursively();
        if (fromRelease)
            publishNodeRelease(QLatin1String(archive));
        const QString prefix = fromRelease ? local : SimulatedMac::homebrewPrefix(homebrew);
        open(InstallationStep::installation, CLITool::geminiCLI);
        waitForInstallation();
        EXPECT_EQ(state.errorMessage(), std::nullopt) << state.installationOutput().toStdString();
        EXPECT_EQ(step(SetupStepType::installNode).status.kind(), SetupStepStatus::completed);
        EXPECT_TRUE(state.installationOutput().contains(fromRelease ? QLatin1String(archive)
                                                                    : QLatin1String("==> Pouring node")));
        EXPECT_FALSE(QFileInfo::exists(local + QStringLiteral("/README.md")));
        for (const char* program : {"/bin/node", "/bin/gemini", "/bin/npm"}) {
            EXPECT_TRUE(QFileInfo(prefix + QLatin1String(program)).isExecutable()) << program;
            QFile::remove(prefix + QLatin1String(program));
        }
    }
    EXPECT_EQ(mac.events(QStringLiteral("developer-tools-dialog")), QStringList());
}
