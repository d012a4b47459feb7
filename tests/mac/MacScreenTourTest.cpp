#include "MacTest.h"

#include "Preferences.h"

#include <QMap>

#include <functional>

using namespace qf;
using test::MacTest;

namespace {

class MacScreenTour : public MacTest {
protected:
    // What only a Linux user reads: the texts of a Linux system's wording and developer-tools
    // item that a Mac says otherwise, and the system's name.
    static QStringList linuxWords()
    {
        const SystemWording linux = LinuxPlatform::wordingFor(
            {{QStringLiteral("ID"), QStringLiteral("debian")}, {QStringLiteral("NAME"), QStringLiteral("Debian")}});
        const SystemWording& mac = MacPlatform::standardWording();
        QStringList words{QStringLiteral("Linux"), QStringLiteral("Debian"), QStringLiteral("package manager"),
                          QStringLiteral("file manager"), QStringLiteral("terminal emulator")};
        const auto differing = [&words](const QString& linuxText, const QString& macText) {
            if (!linuxText.isEmpty() && linuxText != macText)
                words << QString(linuxText).remove(QStringLiteral("%1")).trimmed();
        };
        differing(linux.osRequirementTitle, mac.osRequirementTitle);
        differing(linux.osRequirementHelp, mac.osRequirementHelp);
        differing(linux.osRequirementFix, mac.osRequirementFix);
        differing(linux.diskSpaceHelp, mac.diskSpaceHelp);
        differing(linux.nodeFixSuggestion, mac.nodeFixSuggestion);
        differing(linux.toolInstallStep, mac.toolInstallStep);
        differing(linux.gitMissingError, mac.gitMissingError);
        differing(linux.developerFolderNote, mac.developerFolderNote);
        const DeveloperToolsItem linuxTools = LinuxPlatform::gitToolsItem();
        differing(linuxTools.name, MacPlatform::commandLineToolsItem().name);
        differing(*linuxTools.uninstallNote, QString());
        return words;
    }
};

} // namespace

// Every screen a first-time user meets on a Mac without the Command Line Tools, from the
// introduction to a failed installation and the terminal: the Mac's texts only, and not one
// system dialog the user did not ask for.
TEST_F(MacScreenTour, EveryScreenSpeaksMacAndAsksTheSystemNothing)
{
    mac.setDeveloperTools(false);
    mac.setHomebrew(test::SimulatedMac::Homebrew::none);
    const QList<std::pair<const char*, std::function<void()>>> visits = {
        {"introduction",
         [this] {
             Preferences::setHasCompletedOnboarding(false);
             open(InstallationStep::onboarding);
         }},
        {"dashboard",
         [this] {
             open(InstallationStep::home);
             waitForDashboard();
         }},
        {"tool choice", [this] { open(InstallationStep::welcome); }},
        {"account", [this] { open(InstallationStep::accountSetup, CLITool::geminiCLI); }},
        {"system check",
         [this] {
             open(InstallationStep::systemCheck, CLITool::geminiCLI);
             waitForCheck();
         }},
        {"installation",
         [this] {
             open(InstallationStep::installation, CLITool::geminiCLI);
             waitForInstallation();
         }},
        {"API key", [this] { open(InstallationStep::apiKey, CLITool::claudeCode); }},
        {"completion", [this] { open(InstallationStep::completion, CLITool::claudeCode); }},
        {"terminal", [this] { open(InstallationStep::terminal, CLITool::claudeCode); }},
    };
    const QStringList linux = linuxWords();
    for (const auto& [name, arrive] : visits) {
        arrive();
        for (const QString& text : visibleTexts()) {
            for (const QString& word : linux)
                EXPECT_FALSE(text.contains(word, Qt::CaseInsensitive))
                    << name << ": \"" << text.toStdString() << "\" says \"" << word.toStdString() << "\"";
        }
    }
    EXPECT_EQ(mac.events(QStringLiteral("developer-tools-dialog")), QStringList());
}
