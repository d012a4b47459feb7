#pragma once

#include "CLITool.h"
#include "DeveloperFolder.h"
#include "Errors.h"
#include "InstallationController.h"
#include "NodeInstaller.h"
#include "SearchPathFix.h"
#include "SetupModel.h"
#include "ShellRunner.h"
#include "SystemDetector.h"

#include <QCoreApplication>
#include <QCoro/QCoroTask>

#include <optional>

namespace qf {

// Installs an AI tool: proposes the setup steps of a tool and runs them with step reports and
// a readable log. Node.js comes through the NodeInstaller, and a tool that lands in
// ~/.local/bin is made findable for new terminal windows through the SearchPathFix.
class ToolInstaller : public SetupService {
    Q_DECLARE_TR_FUNCTIONS(ToolInstaller)

public:
    struct GitCheck {
        bool found = false;
        std::optional<QString> version;
    };

    ToolInstaller(ShellRunner& shell, SystemDetector& detector, const Platform& platform, NodeInstaller& node,
                  SearchPathFix& searchPath);
    ToolInstaller(const ToolInstaller&) = delete;
    ToolInstaller& operator=(const ToolInstaller&) = delete;

    QCoro::Task<QList<SetupStep>> setupSteps(CLITool tool) override;
    // A run that is cancelled takes back the ~/Developer folder it made while it is still empty
    // (Node.js unpacked half-way never reaches ~/.local) and says what stays: Node.js, or the
    // tool, once installed.
    QCoro::Task<Result<void>> runSetup(CLITool tool, StepUpdate onStepUpdate, Output onOutput,
                                       Cancellation cancellation) override;
    // A new terminal window that will not find the tool, an older Node.js found first, npm
    // set to skip install scripts: each in words, with what to do.
    QStringList caveats() const override { return m_caveats; }

    // True when this call created ~/Developer.
    QCoro::Task<bool> createDeveloperFolder(Output onOutput);
    QCoro::Task<GitCheck> checkGit(Output onOutput);

    // Whether a global npm install into `prefix` needs no more rights than the user has.
    static bool isWritableNpmPrefix(const QString& prefix);
    // The assignment that points one npm command at Quillforge's private npm cache, with the
    // space that ends it.
    static QString privateNpmCache(const Platform& platform);

private:
    // The steps of `runSetup`, each started only while `cancellation` is not cancelled.
    QCoro::Task<Result<void>> runSteps(CLITool tool, StepUpdate report, Output log, Cancellation cancellation);
    // What a stopped run says: what of it stays.
    QString stoppedMessage(CLITool tool) const;
    // Makes ~/Developer unless something is there, and says which in the log.
    FolderCreation::Outcome prepareDeveloperFolder(const Output& onOutput);
    ServiceError failure(InstallationError error) const { return {error, m_platform.wording()}; }
    // An npm install of `tool` into `prefix` failed with `error`. When npm could not write to
    // its folders and there is something left to try, the next installation tries it (a
    // private npm cache, then ~/.local when npm's folder in `prefix` is what it could not
    // change) and the error says so.
    ServiceError afterNpmFailure(CLITool tool, const ServiceError& error, const QString& prefix);

    ShellRunner& m_shell;
    SystemDetector& m_detector;
    const Platform& m_platform;
    NodeInstaller& m_node;
    SearchPathFix& m_searchPath;
    QStringList m_caveats;
    // What the run going on has done that stays should it be stopped.
    bool m_madeDeveloperFolder = false;
    bool m_installedNode = false;
    bool m_installedTool = false;
    // npm could not write to its own cache: installations use a private one from then on.
    bool m_privateNpmCache = false;
    // The tools npm could not install into its global folder, which go into ~/.local instead.
    QList<CLITool::Case> m_toOwnFolder;
};

} // namespace qf
