#pragma once

#include "CLITool.h"
#include "Errors.h"
#include "NodeInstaller.h"
#include "Platform.h"
#include "ShellRunner.h"
#include "SystemDetector.h"
#include "UpdateChecker.h"

#include <QCoreApplication>
#include <QCoro/QCoroTask>
#include <QString>

#include <functional>
#include <memory>

namespace qf {

// What a successful update did: the versions the tool reported before and after.
struct UpdateOutcome {
    CLITool tool;
    QString previousVersion;
    QString newVersion;

    // False when there was nothing newer to install, and nothing was run.
    bool changed() const { return previousVersion != newVersion; }
};

// How an installed AI tool is brought up to date: where its command lives decides.
struct UpdateRoute {
    enum Kind {
        notFound,      // the command is not on the search path
        npm,           // an npm prefix the user may write: ~/.local, npm's own, an nvm version's
        npmAsAdmin,    // an npm prefix only an administrator may change (installed with sudo)
        makersUpdater, // Claude Code from its maker's installer: `claude update`
        unknownOrigin, // neither: another package manager's copy, which Quillforge leaves alone
    };
    Kind kind = notFound;
    // Where the command was found, as the search path finds it.
    QString command;
    // For the npm routes: the prefix whose bin/ holds the command and lib/node_modules/ the
    // package.
    QString prefix;
    // For the npm routes: whether the prefix is npm's own global one, which needs no
    // npm_config_prefix to be reached.
    bool npmsOwnPrefix = false;
};

// Updates an installed AI tool to the newest published version, in the place it was installed
// and with the rights it was installed with, never as a second copy:
// - installed with npm into a prefix the user may write (~/.local, the installer's fallback,
//   npm's own global prefix, an nvm version): `npm install -g <package>@<version>` into that
//   prefix (npm_config_prefix set unless it is npm's own);
// - installed with npm into a global prefix only an administrator may change: the same command
//   with administrator rights, through the system's password dialog, as a removal does;
// - Claude Code from its maker's installer: its own `claude update`.
// The version installed through npm is the newest one a forced check of the registry has just
// found, the one whose Node.js requirement was checked; an update that needs a newer Node.js
// than the one found is refused before anything runs (ServiceError::requiredNodeMajor).
//
// The update counts as done only when the tool, run again, reports a version newer than the
// one before (npm puts the version asked for in place; `claude update` follows its maker's
// release channel, which may be a little behind npm's "latest"). npm replaces a package in place
// and keeps the old one when it fails, so after a failure the tool is run again and the message
// says whether the version before still works or the tool must be installed again.
//
// After a successful update the remembered check of the tool is forgotten (its badge goes
// away at the next check) and commands read the login shell's environment again.
class ToolUpdater {
    Q_DECLARE_TR_FUNCTIONS(ToolUpdater)

public:
    using Output = std::function<void(const QString&)>;

    ToolUpdater(ShellRunner& shell, SystemDetector& detector, const Platform& platform, UpdateChecker& checker,
                NodeInstaller& node);
    ToolUpdater(const ToolUpdater&) = delete;
    ToolUpdater& operator=(const ToolUpdater&) = delete;

    // Updates `tool`, telling the log (`onOutput`) what runs and what it prints. Fails, with a
    // message a person can read, when the tool is not there or not from npm or its maker's
    // installer, when the newest version cannot be learned, when it needs a newer Node.js
    // (requiredNodeMajor() says which), when the password dialog was cancelled (isDeclined()),
    // or when the update failed or the tool does not report a newer version afterwards. Once
    // `cancellation` is cancelled, the command running stops and nothing more starts: the
    // update fails with a ServiceError that isCancelled() and says what stays.
    QCoro::Task<Result<UpdateOutcome>> update(CLITool tool, Output onOutput,
                                              Cancellation cancellation = Cancellation());
    // Installs the newest long-term Node.js as the installer would (NodeInstaller::install),
    // then updates `tool`: the way on after `update` asked for a newer Node.js.
    QCoro::Task<Result<UpdateOutcome>> installNodeThenUpdate(CLITool tool, Output onOutput,
                                                             Cancellation cancellation = Cancellation());
    // How `tool` would be updated now.
    QCoro::Task<UpdateRoute> route(CLITool tool);

private:
    // How far an update got, for what a stopped one says.
    struct Progress {
        QString before;
        bool commandStarted = false;
        bool nodeInstalled = false;
    };
    // `update`, telling `progress` how far it got.
    QCoro::Task<Result<UpdateOutcome>> bringUpToDate(CLITool tool, Output log, Cancellation cancellation,
                                                     std::shared_ptr<Progress> progress);
    // What an update stopped after `progress` says of `tool`.
    QCoro::Task<ServiceError> stoppedUpdate(CLITool tool, std::shared_ptr<Progress> progress);
    // The line that updates `tool` to `version` along `route`.
    QCoro::Task<QString> updateCommand(CLITool tool, UpdateRoute route, QString version);
    // The error of an update that failed with `failure`, saying whether the version before
    // still works.
    QCoro::Task<ServiceError> failedUpdate(CLITool tool, ServiceError failure, QString previous);
    // An npm update along `route` failed with `error`. When npm could not write to its cache,
    // the next update uses a private one and the error says so.
    ServiceError afterNpmFailure(CLITool tool, const UpdateRoute& route, const ServiceError& error);

    ShellRunner& m_shell;
    SystemDetector& m_detector;
    const Platform& m_platform;
    UpdateChecker& m_checker;
    NodeInstaller& m_node;
    // npm could not write to its own cache: updates use a private one from then on.
    bool m_privateNpmCache = false;
};

} // namespace qf
