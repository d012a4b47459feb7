#include "MacTest.h"

#include "Preferences.h"

#include <QMap>

#include <algorithm>
#include <functional>
#include <tuple>

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
        for (QString SystemWording::*text :
             {&SystemWording::osRequirementTitle, &SystemWording::osRequirementHelp, &SystemWording::osRequirementFix,
              &SystemWording::diskSpaceHelp, &SystemWording::nodeFixSuggestion, &SystemWording::toolInstallStep,
              &SystemWording::gitMissingError, &SystemWording::developerFolderNote})
            differing(linux.*text, mac.*text);
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
    const SystemWording& words = platform->wording();
    // Each visit, and a text of the Mac's that it shows.
    const QList<std::tuple<const char*, std::function<void()>, QString>> visits = {
        {"introduction",
         [this] {
             Preferences::setHasCompletedOnboarding(false);
             open(InstallationStep::onboarding);
         },
         QStringLiteral("Get Started")},
        {"dashboard",
         [this] {
             open(InstallationStep::home);
             waitForDashboard();
         },
         QStringLiteral("Xcode CLI Tools")},
        {"tool choice", [this] { open(InstallationStep::welcome); }, QStringLiteral("Gemini CLI")},
        {"account", [this] { open(InstallationStep::accountSetup, CLITool::geminiCLI); }, words.toolInstallStep},
        {"system check",
         [this] {
             open(InstallationStep::systemCheck, CLITool::geminiCLI);
             waitForCheck();
         },
         words.osRequirementTitle},
        {"installation",
         [this] {
             open(InstallationStep::installation, CLITool::geminiCLI);
             waitForInstallation();
         },
         words.gitMissingError},
        {"API key", [this] { open(InstallationStep::apiKey, CLITool::claudeCode); }, QStringLiteral("~/.zshrc")},
        {"completion", [this] { open(InstallationStep::completion, CLITool::claudeCode); },
         QStringLiteral("Open in Terminal")},
        {"terminal", [this] { open(InstallationStep::terminal, CLITool::claudeCode); },
         words.toolLaunchedTitle.arg(QStringLiteral("Claude Code"))},
    };
    const QStringList linux = linuxWords();
    for (const auto& [name, arrive, macText] : visits) {
        arrive();
        const QStringList texts = visibleTexts();
        EXPECT_TRUE(
            std::any_of(texts.cbegin(), texts.cend(), [&](const QString& text) { return text.contains(macText); }))
            << name << " does not say \"" << macText.toStdString() << "\"";
        for (const QString& text : texts) {
            for (const QString& word : linux)
                EXPECT_FALSE(text.contains(word, Qt::CaseInsensitive))
                    << name << ": \"" << text.toStdString() << "\" says \"" << word.toStdString() << "\"";
        }
    }
    // The maker's sign-up page opens in the browser through the Mac's open.
    open(InstallationStep::accountSetup, CLITool::claudeCode);
    click("createAccountButton");
    ASSERT_TRUE(mac.waitForEvents(QStringLiteral("open")));
    EXPECT_TRUE(mac.events(QStringLiteral("open")).constFirst().startsWith(QStringLiteral("https://")));
    EXPECT_EQ(mac.events(QStringLiteral("developer-tools-dialog")), QStringList());
}
