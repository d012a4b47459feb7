// What a Linux user reads: no text of the catalogues, the system check, the setup's log and
// errors or the dashboard's items may speak of a Mac, macOS, Xcode or Finder there.
#include "CLITool.h"
#include "CoroTest.h"
#include "Errors.h"
#include "PlatformBackends.h"
#include "SetupModel.h"
#include "SupportTools.h"
#include "TestMachine.h"

#include <QRegularExpression>

using namespace qf;

namespace {

const QRegularExpression kMacWords(QStringLiteral("\\b(Mac|macOS|Xcode|Finder|Apple|Terminal\\.app)\\b"));

QMap<QString, QString> debian()
{
    return {{QStringLiteral("ID"), QStringLiteral("debian")},
            {QStringLiteral("PRETTY_NAME"), QStringLiteral("Debian GNU/Linux 12 (bookworm)")}};
}

// Every text a person can read that does not come from a command's own output.
QStringList readableTexts(const Platform& platform)
{
    const SystemWording& wording = platform.wording();
    QStringList texts = {wording.osRequirementTitle, wording.osRequirementHelp, wording.osRequirementFix,
                         wording.diskSpaceHelp,      wording.nodeFixSuggestion, wording.toolInstallStep,
                         wording.gitMissingLog,      wording.gitMissingError,   wording.developerFolderNote,
                         wording.toolLaunchedTitle,  wording.switchToTerminal,  wording.nodeTooOldForUpdate};
    for (SystemRequirement requirement : SystemRequirement::allCases())
        texts << requirement.title(wording) << requirement.helpText(wording) << requirement.fixSuggestion(wording);
    for (CLITool tool : CLITool::allCases()) {
        texts << tool.displayName() << tool.provider() << tool.toolDescription() << tool.accountRequirement()
              << tool.pricingInfo() << tool.signInNote() << tool.uninstallDescription() << tool.features();
        for (const AccountSetupStep& step : tool.accountSetupSteps(wording))
            texts << step.title << step.description;
        for (const ExampleCommand& example : tool.exampleCommands())
            texts << example.description;
    }
    for (InstallationError error : {InstallationError::verificationFailed, InstallationError::nodeInstallFailed,
                                    InstallationError::gitNotFound, InstallationError::uninstallFailed,
                                    InstallationError::manualUninstallRequired, InstallationError::folderNotEmpty}) {
        texts << errorDescription(error, wording);
    }
    for (const SystemTool& item : systemToolCatalogue(platform))
        texts << item.name << item.description << item.uninstallNote.value_or(QString());
    for (SetupStepType type : SetupStepType::allCases())
        texts << type.title();
    return texts;
}

} // namespace

TEST(Wording, LinuxUsersReadNoMacWords)
{
    const LinuxPlatform platform;
    for (const QString& text : readableTexts(platform))
        EXPECT_FALSE(kMacWords.match(text).hasMatch()) << text.toStdString();
    EXPECT_FALSE(platform.developerToolsItem().key.contains(QStringLiteral("xcode")));
    EXPECT_FALSE(platform.wording().gitMissingError.isEmpty());
}

TEST(Wording, LinuxGitAdviceNamesTheDistributionsPackageManager)
{
    const SystemWording wording = LinuxPlatform::wordingFor(debian());
    EXPECT_TRUE(wording.gitMissingError.endsWith(LinuxPlatform::packageInstallLine(debian())));
    QMap<QString, QString> fedora{{QStringLiteral("ID"), QStringLiteral("fedora")}};
    EXPECT_TRUE(LinuxPlatform::wordingFor(fedora).gitMissingError.contains(QStringLiteral("dnf install")));
}

TEST(Wording, MacTextsNameTheMac)
{
    // The same texts on a Mac are the ones the design was written with.
    const MacPlatform platform;
    const SystemWording& wording = platform.wording();
    EXPECT_EQ(SystemRequirement(SystemRequirement::macOSVersion).title(wording), QStringLiteral("macOS 14 or later"));
    EXPECT_EQ(wording.gitMissingLog, QStringLiteral("Git not found. Please install Xcode Command Line Tools.\n"));
    EXPECT_EQ(systemToolCatalogue(platform)[1].uninstallNote, QStringLiteral("Open Finder to manage this folder"));
}

// A failed setup on Linux: its log and its error speak of git and the build tools.
TEST(Wording, ASetupWithoutGitOnLinuxSaysWhatToInstall)
{
    test::TestMachine machine;
    machine.platform.words = LinuxPlatform::wordingFor(debian());
    machine.sandbox.installFake(QStringLiteral("curl"));
    QString log;
    const auto result = test::await(machine.services.installer.runSetup(
        CLITool::claudeCode, [](SetupStepType, const SetupStepStatus&, const std::optional<QString>&) {},
        [&](const QString& text) { log += text; }, Cancellation()));
    ASSERT_TRUE(result.has_value());
    ASSERT_FALSE(result->ok());
    EXPECT_EQ(result->error().installationError(), InstallationError::gitNotFound);
    EXPECT_EQ(result->error().errorDescription(),
              QStringLiteral("Git is required but not found. Please install it by running: sudo apt-get install -y "
                             "git build-essential"));
    EXPECT_TRUE(log.endsWith(QStringLiteral("Git not found. Please install Git and the build tools.\n")));
    EXPECT_FALSE(kMacWords.match(log).hasMatch()) << log.toStdString();
}
