#pragma once

#include "Platform.h"

#include <QColor>
#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QUrl>

#include <array>
#include <optional>

namespace qf {

// One step of a tool's account setup, shown as a numbered row.
struct AccountSetupStep {
    QString title;
    QString description;
    friend bool operator==(const AccountSetupStep&, const AccountSetupStep&) = default;
};

// One example command with what it does, shown with a copy button.
struct ExampleCommand {
    QString command;
    QString description;
    friend bool operator==(const ExampleCommand&, const ExampleCommand&) = default;
};

// The AI coding tools Quillforge knows. Every per-tool text, command, colour and web
// page lives here, so that screens and services never spell a tool's text themselves.
// Adding a tool means adding a case and a value to every property.
class CLITool {
    Q_DECLARE_TR_FUNCTIONS(CLITool)

public:
    enum Case { claudeCode, geminiCLI, codex };

    constexpr CLITool(Case value) : m_case(value) {}

    // All tools in the order every list shows them.
    static const std::array<CLITool, 3>& allCases();
    // Case-sensitive: only "claudeCode", "geminiCLI" and "codex" yield a tool.
    static std::optional<CLITool> fromRawValue(const QString& rawValue);

    constexpr operator Case() const { return m_case; }
    constexpr int index() const { return static_cast<int>(m_case); }

    QString rawValue() const;
    QString id() const { return rawValue(); }

    QString displayName() const;
    QString provider() const;
    QString commandName() const;
    QString iconName() const;      // symbol name
    QString logoImageName() const; // image asset name
    QColor brandColor() const;
    bool requiresNodeJS() const;
    // Installed as a global npm package (Claude Code comes from its maker's installer).
    bool installsThroughNpm() const { return m_case != claudeCode; }
    // The oldest major version of Node.js the tool's package runs on (never below 18), as
    // known when this was written: the registry's answer for its newest release, when there is
    // one, may ask for more (SystemDetector::requiredNodeMajor).
    int minimumNodeMajorVersion() const;
    // "Gemini CLI needs Node.js 20 or newer." (`major`: the version needed; 0: the one above).
    QString nodeRequirementNote(int major = 0) const;

    QString toolDescription() const;
    QString accountRequirement() const;
    QString pricingInfo() const;
    QString signInNote() const;
    QString tryCommand() const;
    QString uninstallDescription() const;

    const QStringList& features() const;
    // The step that installs the tool names the system, so the steps come in its wording.
    const QList<AccountSetupStep>& accountSetupSteps(const SystemWording& wording) const;
    const QList<ExampleCommand>& exampleCommands() const;

    QString npmPackage() const;
    QString apiKeyEnvVar() const;
    QString installCommand() const;
    // Removes the tool from every place npm may have put it: each of `npmPrograms` (the
    // system's usual npm programs), then every Node.js version installed through nvm.
    QString uninstallCommand(const QStringList& npmPrograms) const;

    QUrl apiKeyURL() const;
    QUrl signUpURL() const;
    QUrl docsURL() const;

private:
    Case m_case;
};

// The line that removes an npm package through each of `npmPrograms` and through the npm of
// every Node.js version installed through nvm, ignoring errors and missing programs.
QString npmRemovalChain(const QString& package, const QStringList& npmPrograms);

// A line that downloads the script at `url` completely and only then runs it with
// `interpreter`: when the download fails the line fails with curl's own reason, and nothing
// runs a script cut off halfway.
QString downloadThenRunLine(const QString& url, const QString& interpreter);

// Addresses that more than one part of the app needs.
namespace web {
inline constexpr auto claudeInstallScript = "https://claude.ai/install.sh";
inline constexpr auto homebrewUninstallScript = "https://raw.githubusercontent.com/Homebrew/install/HEAD/uninstall.sh";
} // namespace web

} // namespace qf
