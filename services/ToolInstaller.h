#pragma once

#include "CLITool.h"
#include "DeveloperFolder.h"
#include "Errors.h"
#include "InstallationController.h"
#include "SetupModel.h"
#include "ShellRunner.h"
#include "SystemDetector.h"

#include <QCoro/QCoroTask>
#include <QDir>

#include <functional>
#include <optional>

namespace qf {

// Installs, removes and configures the AI tools: proposes the setup steps of a tool, runs
// them with step reports and a readable log, removes a tool from every place npm may have put
// it, and stores a tool's API key in the shell profile.
class ToolInstaller : public SetupService {
public:
    struct GitCheck {
        bool found = false;
        std::optional<QString> version;
    };

    ToolInstaller(ShellRunner& shell, SystemDetector& detector, const Platform& platform);
    ToolInstaller(const ToolInstaller&) = delete;
    ToolInstaller& operator=(const ToolInstaller&) = delete;

    QCoro::Task<QList<SetupStep>> setupSteps(CLITool tool) override;
    QCoro::Task<Result<void>> runSetup(CLITool tool, StepUpdate onStepUpdate, Output onOutput) override;
    // A new terminal window that will not find the tool, an older Node.js found first, npm
    // set to skip install scripts: each in words, with what to do.
    QStringList caveats() const override { return m_caveats; }
    // The caveat for a tool that a new terminal window will not find.
    static QString terminalCaveat(CLITool tool, const QString& profile, const QString& line);

    // True when this call created ~/Developer.
    QCoro::Task<bool> createDeveloperFolder(Output onOutput);
    QCoro::Task<GitCheck> checkGit(Output onOutput);
    // Through Homebrew when it is there, otherwise from the official Node.js release.
    QCoro::Task<Result<void>> installNodeJS(Output onOutput);
    // The newest long-term support release of Node.js for this computer, from the release
    // archive, into ~/.local: no administrator rights needed. The archive's checksum is
    // checked against the release's published list before anything is unpacked. The version
    // installed comes back.
    QCoro::Task<Result<QString>> installNodeRelease(Output onOutput);
    // Where Node.js releases are fetched from (tests point it at a folder of their own).
    void setNodeDistribution(const QString& baseAddress) { m_nodeDistribution = baseAddress; }

    // What the removal did is told in the log, leftovers included. It fails only when the
    // search for the tool afterwards could not run, so that nobody is told a tool is gone
    // without looking.
    QCoro::Task<Result<void>> uninstall(CLITool tool, Output onOutput);

    // Stores `key` as the tool's environment variable in the start-up file of the user's shell
    // (rewriting an existing export line in place, or appending one) and sets it in this
    // process too. What the user should know about the save comes back (nothing: empty), such
    // as a computed value that was left and followed by the new line.
    QCoro::Task<Result<QString>> saveAPIKey(QString key, CLITool tool);
    static QString computedValueNotice(const QString& variable, const QString& profile);

    // `path` as the user knows it: "~/.bashrc" for a file in the home folder.
    static QString displayedPath(const QString& path, const QString& home = QDir::homePath());

    // Why the Node.js step failed although an installation ran: the first Node.js on the
    // search path (`installs`, in search order) is older than `tool` needs. Names both
    // versions and their folders when a new enough one is there too.
    static QString nodeShadowedMessage(CLITool tool, const QList<NodeInstall>& installs);

    // What a removal says when the user cancelled the administrator password dialog.
    static QString administratorDeclinedMessage(const QString& name);
    // Whether a global npm install into `prefix` needs no more rights than the user has.
    static bool isWritableNpmPrefix(const QString& prefix);

    // Whether the shell of a new terminal window has `folder` on its search path.
    QCoro::Task<bool> newTerminalSearches(const QString& folder);

private:
    // Adds the block that puts ~/.local/bin on the search path to the shell profile when a new
    // terminal window would not find programs there, and says what it did in the log.
    QCoro::Task<void> addLocalProgramsToSearchPath(CLITool tool, const Output& log);
    // Makes ~/Developer unless something is there, and says which in the log.
    FolderCreation::Outcome prepareDeveloperFolder(const Output& onOutput);
    ServiceError failure(InstallationError error) const { return {error, m_platform.wording()}; }

    ShellRunner& m_shell;
    SystemDetector& m_detector;
    const Platform& m_platform;
    QString m_nodeDistribution = QLatin1String(kNodeDistribution);
    QStringList m_caveats;
};

} // namespace qf
