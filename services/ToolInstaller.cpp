#include "ToolInstaller.h"

#include "NodeRelease.h"
#include "ProfileWriter.h"
#include "ShellQuote.h"
#include "StagedInstall.h"

#include <QCoro/QCoroFuture>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QVersionNumber>
#include <QtConcurrent/QtConcurrentRun>

#include <unistd.h>

namespace qf {

ToolInstaller::ToolInstaller(ShellRunner& shell, SystemDetector& detector, const Platform& platform)
    : m_shell(shell), m_detector(detector), m_platform(platform)
{
}

QCoro::Task<QList<SetupStep>> ToolInstaller::setupSteps(CLITool tool)
{
    QList<SetupStep> steps;
    steps << SetupStep{SetupStepType::createDeveloperFolder, SetupStepStatus::pending, std::nullopt};
    steps << SetupStep{SetupStepType::checkGit, SetupStepStatus::pending, std::nullopt};
    if (tool.requiresNodeJS()) {
        const NodeCheck node = co_await m_detector.checkNodeJS(tool.minimumNodeMajorVersion());
        if (node.isInstalled && node.meetsRequirement)
            steps << SetupStep{SetupStepType::installNode, SetupStepStatus::skipped, node.version};
        else
            steps << SetupStep{SetupStepType::installNode, SetupStepStatus::pending, std::nullopt};
    }
    steps << SetupStep{SetupStepType::installTool, SetupStepStatus::pending, tool.displayName()};
    co_return steps;
}

FolderCreation::Outcome ToolInstaller::prepareDeveloperFolder(const Output& onOutput)
{
    const FolderCreation creation = makeDeveloperFolder();
    switch (creation.outcome) {
    case FolderCreation::alreadyThere: onOutput(QStringLiteral("~/Developer folder already exists\n")); break;
    case FolderCreation::created: onOutput(QStringLiteral("Created ~/Developer folder for your projects\n")); break;
    case FolderCreation::failed:
        onOutput(QStringLiteral("Note: Could not create ~/Developer folder: ") + creation.error + QLatin1Char('\n'));
        break;
    }
    return creation.outcome;
}

QCoro::Task<bool> ToolInstaller::createDeveloperFolder(Output onOutput)
{
    co_return prepareDeveloperFolder(onOutput) == FolderCreation::created;
}

QCoro::Task<ToolInstaller::GitCheck> ToolInstaller::checkGit(Output onOutput)
{
    const Result<QString> result = co_await m_shell.run(QStringLiteral("git --version"));
    if (!result) {
        onOutput(m_platform.wording().gitMissingLog);
        co_return GitCheck{false, std::nullopt};
    }
    const QString version = result.value().trimmed();
    onOutput(QStringLiteral("Found ") + version + QLatin1Char('\n'));
    co_return GitCheck{true, version};
}

QCoro::Task<Result<void>> ToolInstaller::installNodeJS(Output onOutput)
{
    const Result<QString> brew = co_await m_shell.run(QStringLiteral("which brew"));
    Result<QString> installed = QString();
    if (brew) {
        onOutput(QStringLiteral("Installing Node.js via Homebrew...\n"));
        const Result<void> ran = co_await m_shell.runWithStreaming(
            QStringLiteral("brew install node"), onOutput, nullptr,
            QObject::tr("The installation of Node.js through Homebrew"));
        if (!ran)
            co_return ran.error();
        installed = co_await m_shell.run(QStringLiteral("\"$(brew --prefix)/bin/node\" --version"));
    } else {
        onOutput(QStringLiteral("Installing Node.js via official installer...\n"));
        installed = co_await installNodeRelease(onOutput);
        if (!installed)
            co_return installed.error();
    }

    const NodeCheck node = co_await m_detector.checkNodeJS();
    if (!node.isInstalled)
        co_return failure(InstallationError::nodeInstallFailed);
    // What was installed, and then whether commands find another Node.js first.
    const std::optional<QString> version = installed && !installed.value().isEmpty() ? std::optional(installed.value())
                                                                                     : node.version;
    onOutput(QStringLiteral("Node.js ") + version.value_or(QStringLiteral("installed")) +
             QStringLiteral(" successfully!\n"));
    if (version && node.version && *node.version != *version) {
        const Result<QString> first = co_await m_shell.run(QStringLiteral("command -v node"));
        onOutput(QStringLiteral("Note: Node.js %1%2 is found first on the search path.\n")
                     .arg(*node.version,
                          first ? QStringLiteral(" in ") + QFileInfo(first.value()).absolutePath() : QString()));
    }
    co_return Result<void>();
}

QCoro::Task<Result<QString>> ToolInstaller::installNodeRelease(Output log)
{
    const std::optional<NodeReleaseTarget> target = m_platform.nodeReleaseTarget();
    if (!target) {
        co_return ServiceError::message(QObject::tr("Node.js publishes no release for this computer's processor. "
                                                    "Please install it manually from nodejs.org"));
    }
    const QString base = m_nodeDistribution;
    const auto fetchFailed = [](const QString& what, const ServiceError& error) {
        return ServiceError::message(QObject::tr("Could not download %1. %2").arg(what, error.plainDescription()));
    };

    // The newest long-term support release, as the release index says today.
    const QString indexURL = base + QStringLiteral("/index.json");
    const Result<QString> index = co_await m_shell.run(QStringLiteral("curl -fsSL ") + shellQuote(indexURL));
    if (!index)
        co_return fetchFailed(QObject::tr("the list of Node.js releases"), index.error());
    const std::optional<NodeRelease> release = nodeRelease::newestLTS(index.value().toUtf8(), *target);
    if (!release) {
        co_return ServiceError::message(
            QObject::tr("No long-term support release of Node.js for %1 was found at %2.").arg(target->platform, base));
    }
    log(QStringLiteral("Node.js %1 (LTS \"%2\") for %3 from %4\n")
            .arg(release->version, release->codename, target->platform, base));

    // The archive goes into a folder of its own that disappears with this call, so nothing of
    // a failed or refused download stays behind.
    QTemporaryDir downloads(QDir::tempPath() + QStringLiteral("/quillforge-node-XXXXXX"));
    if (!downloads.isValid())
        co_return ServiceError::message(
            QObject::tr("Could not make a folder for the Node.js download: %1").arg(downloads.errorString()));
    const QString folder = base + QLatin1Char('/') + release->version + QLatin1Char('/');
    const QString archive = downloads.filePath(release->archiveName);
    const Result<void> fetched = co_await m_shell.runWithStreaming(
        QStringLiteral("curl -fsSL -o ") + shellQuote(archive) + QLatin1Char(' ') +
            shellQuote(folder + release->archiveName),
        log, nullptr, QObject::tr("The download of %1").arg(release->archiveName));
    if (!fetched)
        co_return fetchFailed(release->archiveName, fetched.error());

    // Nothing is unpacked unless the archive is byte for byte the one nodejs.org published.
    const Result<QString> sums =
        co_await m_shell.run(QStringLiteral("curl -fsSL ") + shellQuote(folder + QStringLiteral("SHASUMS256.txt")));
    if (!sums)
        co_return fetchFailed(QObject::tr("the checksums of Node.js %1").arg(release->version), sums.error());
    const std::optional<QByteArray> expected = nodeRelease::publishedChecksum(sums.value().toUtf8(),
                                                                              release->archiveName);
    if (!expected) {
        co_return ServiceError::message(
            QObject::tr("The checksum list of Node.js %1 does not name %2, so nothing was installed.")
                .arg(release->version, release->archiveName));
    }
    QFuture<std::optional<QByteArray>> hashing = QtConcurrent::run(nodeRelease::sha256OfFile, archive);
    const std::optional<QByteArray> actual = co_await hashing;
    if (actual != expected) {
        co_return ServiceError::message(QObject::tr("The Node.js download does not match its published checksum, so "
                                                    "nothing was installed. Please try again."));
    }
    log(QStringLiteral("SHA-256 checksum verified\n"));

    // The archive is unpacked into a hidden folder inside ~/.local, on the same volume, and its
    // files are moved into place only once all of it is there: a full disk or a broken archive
    // leaves ~/.local as it was, never a node that runs and does nothing. A folder the user
    // linked elsewhere (~/.local/bin into a dotfiles folder, say) stays a link and receives the
    // files.
    const QString local = QDir::homePath() + QStringLiteral("/.local");
    QFuture<Result<stagedInstall::Staging>> preparing = QtConcurrent::run(stagedInstall::begin, local);
    const Result<stagedInstall::Staging> staging = co_await preparing;
    if (!staging)
        co_return staging.error();

    // The archive's top folder is stripped, so bin/node lands in bin; its three loose files are
    // left out so they do not litter ~/.local. What tar says goes to the log and, should it
    // fail, into the error, which then names the cause (a full disk, say).
    const QString top = release->folderName + QLatin1Char('/');
    QString tarOutput;
    const Result<void> unpacked = co_await m_shell.runWithStreaming(
        QStringLiteral("tar -xzf ") + shellQuote(archive) + QStringLiteral(" -C ") +
            shellQuote(staging.value().folder) + QStringLiteral(" --strip-components=1 --exclude=") +
            shellQuote(top + QStringLiteral("CHANGELOG.md")) + QStringLiteral(" --exclude=") +
            shellQuote(top + QStringLiteral("LICENSE")) + QStringLiteral(" --exclude=") +
            shellQuote(top + QStringLiteral("README.md")),
        [&log, &tarOutput](const QString& text) {
            tarOutput += text;
            if (tarOutput.size() > ShellError::shownOutputLength)
                tarOutput = tarOutput.right(ShellError::shownOutputLength);
            log(text);
        },
        nullptr, QObject::tr("Unpacking Node.js %1").arg(release->version));
    if (!unpacked) {
        QFuture<void> abandoning = QtConcurrent::run(stagedInstall::abandon, staging.value());
        co_await abandoning;
        const ShellError* error = unpacked.error().shellError();
        if (!error || error->kind() != ShellError::commandFailed || tarOutput.trimmed().isEmpty())
            co_return unpacked.error();
        co_return ServiceError::message(
            QObject::tr("Could not unpack Node.js %1: %2").arg(release->version, tarOutput.trimmed()));
    }
    // node and its commands go in last, once everything they need is there.
    const QStringList last{QStringLiteral("bin/corepack"), QStringLiteral("bin/npx"), QStringLiteral("bin/npm"),
                           QStringLiteral("bin/node")};
    QFuture<Result<void>> placing = QtConcurrent::run(stagedInstall::complete, staging.value(), local, last);
    const Result<void> placed = co_await placing;
    if (!placed)
        co_return placed.error();
    log(QStringLiteral("Unpacked Node.js %1 into ~/.local (node and npm are in ~/.local/bin)\n").arg(release->version));
    co_return release->version;
}

QCoro::Task<Result<void>> ToolInstaller::runSetup(CLITool tool, StepUpdate report, Output log)
{
    m_caveats.clear();
    // 1. The projects folder. A folder that cannot be created is reported and setup goes on.
    report(SetupStepType::createDeveloperFolder, SetupStepStatus::inProgress, std::nullopt);
    switch (prepareDeveloperFolder(log)) {
    case FolderCreation::created:
        report(SetupStepType::createDeveloperFolder, SetupStepStatus::completed, QStringLiteral("Created"));
        break;
    case FolderCreation::alreadyThere:
        report(SetupStepType::createDeveloperFolder, SetupStepStatus::skipped, QStringLiteral("Already exists"));
        break;
    case FolderCreation::failed:
        report(SetupStepType::createDeveloperFolder, SetupStepStatus::failure(QStringLiteral("Could not create")),
               std::nullopt);
        break;
    }

    // 2. git.
    report(SetupStepType::checkGit, SetupStepStatus::inProgress, std::nullopt);
    const GitCheck git = co_await checkGit(log);
    if (!git.found) {
        report(SetupStepType::checkGit, SetupStepStatus::failure(QStringLiteral("Not found")), std::nullopt);
        co_return failure(InstallationError::gitNotFound);
    }
    report(SetupStepType::checkGit, SetupStepStatus::completed, git.version);

    // 3. Node.js, for the tools that run on it.
    if (tool.requiresNodeJS()) {
        const int minimum = tool.minimumNodeMajorVersion();
        const NodeCheck before = co_await m_detector.checkNodeJS(minimum);
        if (before.isInstalled && before.meetsRequirement) {
            report(SetupStepType::installNode, SetupStepStatus::skipped, before.version);
        } else {
            report(SetupStepType::installNode, SetupStepStatus::inProgress, std::nullopt);
            const Result<void> node = co_await installNodeJS(log);
            if (!node)
                co_return node;
            // The Node.js that commands find now must be new enough: an older one that still
            // comes first on the search path would run the tool and fail.
            const NodeCheck after = co_await m_detector.checkNodeJS(minimum);
            if (!after.meetsRequirement) {
                const QList<NodeInstall> installs = co_await m_detector.findNodeInstalls();
                co_return ServiceError::message(nodeShadowedMessage(tool, installs));
            }
            report(SetupStepType::installNode, SetupStepStatus::completed, after.version);
            if (const QList<NodeInstall> installs = co_await m_detector.findNodeInstalls(); installs.size() > 1) {
                const NodeInstall& first = installs.first();
                const auto newest = std::max_element(installs.begin(), installs.end(),
                                                     [](const auto& a, const auto& b) {
                                                         return QVersionNumber::fromString(a.version.mid(1)) <
                                                                QVersionNumber::fromString(b.version.mid(1));
                                                     });
                if (newest->version != first.version) {
                    m_caveats << QObject::tr("An older Node.js (%1 in %2) is found before the one just installed (%3). "
                                             "%4 works with it; to use the new one, remove the older Node.js.")
                                     .arg(first.version, first.folder, newest->version, tool.displayName());
                }
            }
        }
    }

    // 4. The tool itself.
    report(SetupStepType::installTool, SetupStepStatus::inProgress, tool.displayName());
    log(QStringLiteral("\nInstalling ") + tool.displayName() + QStringLiteral("...\n"));
    QString installCommand = tool.installCommand();
    if (tool.installsThroughNpm()) {
        // Without write access to npm's global folder the install would need administrator
        // rights; the user's own ~/.local needs none. Only this one command is told so: the
        // user's npm settings stay as they are.
        const Result<QString> prefix = co_await m_shell.run(QStringLiteral("npm prefix -g"));
        if (prefix && !prefix.value().isEmpty() && !isWritableNpmPrefix(prefix.value())) {
            log(QStringLiteral("npm's global folder %1 is not writable for your user, so %2 goes into ~/.local "
                               "instead (for this installation only; your npm settings stay as they are).\n")
                    .arg(prefix.value(), tool.displayName()));
            installCommand = QStringLiteral("npm_config_prefix=") +
                             shellQuote(QDir::homePath() + QStringLiteral("/.local")) + QLatin1Char(' ') +
                             installCommand;
        }
    }
    if (tool.installsThroughNpm()) {
        const Result<QString> ignoring = co_await m_shell.run(QStringLiteral("npm config get ignore-scripts"));
        if (ignoring && ignoring.value().trimmed() == QLatin1String("true")) {
            m_caveats << QObject::tr("npm is set to skip install scripts (ignore-scripts), so parts of %1 may be "
                                     "missing. If it does not start, run \"npm config delete ignore-scripts\" in "
                                     "Terminal and install it again.")
                             .arg(tool.displayName());
        }
    }
    const Result<void> installed = co_await m_shell.runWithStreaming(
        installCommand, log, nullptr, QObject::tr("The installation of %1").arg(tool.displayName()));
    if (!installed)
        co_return installed;

    // 5. Verification.
    log(QStringLiteral("\nVerifying installation...\n"));
    const Result<QString> found = co_await m_shell.run(QStringLiteral("which ") + tool.commandName());
    if (!found) {
        report(SetupStepType::installTool, SetupStepStatus::failure(QStringLiteral("Verification failed")),
               std::nullopt);
        co_return failure(InstallationError::verificationFailed);
    }
    // What lives in ~/.local/bin must be found by the user's own terminal too.
    const QString localPrograms = QDir::homePath() + QStringLiteral("/.local/bin/");
    bool local = found.value().startsWith(localPrograms);
    if (!local && tool.requiresNodeJS()) {
        const Result<QString> node = co_await m_shell.run(QStringLiteral("command -v node"));
        local = node && node.value().startsWith(localPrograms);
    }
    if (local)
        co_await addLocalProgramsToSearchPath(tool, log);

    const std::optional<QString> version = co_await m_detector.getToolVersion(tool);
    report(SetupStepType::installTool, SetupStepStatus::completed, version);
    if (version)
        log(QStringLiteral("\n") + tool.displayName() + QLatin1Char(' ') + *version +
            QStringLiteral(" installed successfully!\n"));
    else
        log(QStringLiteral("\n") + tool.displayName() + QStringLiteral(" installed successfully!\n"));
    co_return Result<void>();
}

QCoro::Task<Result<void>> ToolInstaller::uninstall(CLITool tool, Output log)
{
    log(QStringLiteral("Uninstalling ") + tool.displayName() + QStringLiteral("...\n"));
    // The removal line walks nvm's versions with a glob. In zsh a glob that matches nothing
    // aborts the whole line, so without nvm nothing after the loop would run (for Claude Code:
    // neither removal of its folders); with NOMATCH off the loop is simply skipped, as in sh.
    const Result<QString> removal = co_await m_shell.run(QStringLiteral("setopt nonomatch; ") +
                                                         tool.uninstallCommand(m_platform.globalNpmPrograms()));
    if (removal) {
        if (!removal.value().isEmpty())
            log(removal.value() + QLatin1Char('\n'));
    } else {
        log(QStringLiteral("Note: ") + removal.error().errorDescription() + QLatin1Char('\n'));
    }

    Result<QString> stillThere = co_await m_shell.run(QStringLiteral("which ") + tool.commandName());
    if (stillThere && tool.installsThroughNpm()) {
        // A copy in a global npm folder that the user cannot write (installed with sudo, say)
        // goes with administrator rights, asked for through the system's own dialog.
        const Result<QString> npm = co_await m_shell.run(QStringLiteral("command -v npm"));
        const Result<QString> prefix = co_await m_shell.run(QStringLiteral("npm prefix -g"));
        if (npm && prefix && stillThere.value() == prefix.value() + QStringLiteral("/bin/") + tool.commandName() &&
            !isWritableNpmPrefix(prefix.value())) {
            log(QStringLiteral("\nRemoving %1 from %2 needs administrator rights.\n")
                    .arg(tool.displayName(), prefix.value()));
            // The administrator's shell searches only the system's folders (on macOS
            // /usr/bin:/bin:/usr/sbin:/sbin), and npm starts through `env node`: node's own
            // folder goes first on that search path.
            QString line = shellQuote(npm.value()) + QStringLiteral(" uninstall -g ") + tool.npmPackage();
            if (const Result<QString> node = co_await m_shell.run(QStringLiteral("command -v node")); node) {
                line = QStringLiteral("PATH=") +
                       shellQuote(QFileInfo(node.value()).absolutePath() +
                                  QStringLiteral(":/usr/bin:/bin:/usr/sbin:/sbin")) +
                       QLatin1Char(' ') + line;
            }
            const Result<void> removed = co_await m_shell.runWithStreaming(
                m_platform.administratorCommand(line), log, nullptr,
                QObject::tr("The removal of %1").arg(tool.displayName()));
            if (!removed) {
                const ShellError* error = removed.error().shellError();
                if (error && error->kind() == ShellError::commandFailed && error->exitCode() == kAdministratorDeclined)
                    co_return ServiceError::message(administratorDeclinedMessage(tool.displayName()));
                log(QStringLiteral("Note: ") + removed.error().errorDescription() + QLatin1Char('\n'));
            }
            stillThere = co_await m_shell.run(QStringLiteral("which ") + tool.commandName());
        }
    }
    if (!stillThere) {
        // Only an answer of the search counts as "gone"; a search that could not run says nothing.
        const ShellError* error = stillThere.error().shellError();
        if (error && error->kind() != ShellError::commandFailed)
            co_return stillThere.error();
        log(QStringLiteral("\n") + tool.displayName() + QStringLiteral(" has been uninstalled.\n"));
        co_return Result<void>();
    }
    log(QStringLiteral("\nNote: '") + tool.commandName() +
        QStringLiteral("' is still found in PATH. You may have multiple installations.\n"));
    log(QStringLiteral("Run 'which ") + tool.commandName() + QStringLiteral("' in Terminal to find other copies.\n"));
    co_return Result<void>();
}

QString ToolInstaller::administratorDeclinedMessage(const QString& name)
{
    return QObject::tr("The password dialog was cancelled, so %1 was not removed.").arg(name);
}

bool ToolInstaller::isWritableNpmPrefix(const QString& prefix)
{
    // A global install writes the package under lib/node_modules and its command into bin;
    // a folder that is not there yet is made in the nearest one that is.
    for (const char* part : {"/lib/node_modules", "/bin"}) {
        QString path = prefix + QLatin1String(part);
        // A link that leads nowhere is no folder to make things in: npm fails on it.
        while (!QFileInfo::exists(path) && !QFileInfo(path).isSymLink() && path.contains(QLatin1Char('/')) &&
               path != QLatin1String("/"))
            path = QFileInfo(path).absolutePath();
        const QFileInfo info(path);
        if (!info.isDir() || ::access(QFile::encodeName(path).constData(), W_OK | X_OK) != 0)
            return false;
    }
    return true;
}

QCoro::Task<bool> ToolInstaller::newTerminalSearches(const QString& folder)
{
    // The line runs as a new terminal window's shell would run it: the user's shell, reading
    // its start-up files, from the search path the application was started with.
    QString line = QStringLiteral("PATH=") + shellQuote(m_shell.inheritedSearchPath()) +
                   QStringLiteral("; export PATH; exec");
    for (const QString& word : m_platform.terminalShellInvocation(QStringLiteral("printf '%s' \"$PATH\"")))
        line += QLatin1Char(' ') + shellQuote(word);
    const Result<QString> path = co_await m_shell.run(line, 30);
    if (!path)
        co_return false;
    const QString home = QDir::homePath();
    for (QString entry : path.value().split(QLatin1Char(':'))) {
        if (entry.startsWith(QLatin1String("~/")))
            entry.replace(0, 1, home);
        while (entry.size() > 1 && entry.endsWith(QLatin1Char('/')))
            entry.chop(1);
        if (entry == folder)
            co_return true;
    }
    co_return false;
}

QCoro::Task<void> ToolInstaller::addLocalProgramsToSearchPath(CLITool tool, const Output& log)
{
    const QString folder = QDir::homePath() + QStringLiteral("/.local/bin");
    if (co_await newTerminalSearches(folder))
        co_return;
    // The start-up file of the user's own shell, in that shell's words: a fish or tcsh user
    // never reads ~/.zshrc.
    const ShellProfile profile = m_detector.shellProfile();
    const QString shown = displayedPath(profile.path);
    QFuture<Result<bool>> adding =
        QtConcurrent::run([profile] { return ProfileWriter::addSearchPathBlock(profile.path, profile.family); });
    const Result<bool> added = co_await adding;
    if (!added) {
        log(QStringLiteral("Note: ") + added.error().errorDescription() +
            QStringLiteral("\nTo start %1 from a terminal, add this line to %2:\n%3\n")
                .arg(tool.displayName(), shown, ProfileWriter::searchPathLine(profile.family)));
        m_caveats << terminalCaveat(tool, shown, ProfileWriter::searchPathLine(profile.family));
        co_return;
    }
    const bool found = co_await newTerminalSearches(folder);
    if (found && added.value())
        log(QStringLiteral("Added ~/.local/bin to the search path in %1, so new terminal windows find %2.\n")
                .arg(shown, tool.displayName()));
    if (!found) {
        log(QStringLiteral("Note: %1 puts ~/.local/bin on the search path, but a new terminal window does not read "
                           "it. To start %2 there, add ~/.local/bin to the search path in your shell's own start-up "
                           "file.\n")
                .arg(shown, tool.displayName()));
        m_caveats << terminalCaveat(tool, shown, ProfileWriter::searchPathLine(profile.family));
    }
}

QString ToolInstaller::terminalCaveat(CLITool tool, const QString& profile, const QString& line)
{
    return QObject::tr("A new terminal window will not find %1 yet: your shell does not read %2. Add this line to "
                       "your shell's start-up file, then open a new window: %3")
        .arg(tool.displayName(), profile, line);
}

QString ToolInstaller::displayedPath(const QString& path, const QString& home)
{
    if (!home.isEmpty() && home != QLatin1String("/") && path.startsWith(home + QLatin1Char('/')))
        return QLatin1Char('~') + path.sliced(home.size());
    return path;
}

QString ToolInstaller::nodeShadowedMessage(CLITool tool, const QList<NodeInstall>& installs)
{
    const int minimum = tool.minimumNodeMajorVersion();
    const auto newEnough = [minimum](const NodeInstall& install) {
        return SystemDetector::evaluateNodeVersion(install.version, minimum).meetsRequirement;
    };
    const QString need = tool.nodeRequirementNote();
    if (installs.isEmpty())
        return QObject::tr("Node.js was installed, but no Node.js is found on the search path. ") + need;
    const NodeInstall& first = installs.first();
    const auto fresh = std::find_if(installs.begin() + 1, installs.end(), newEnough);
    if (fresh == installs.end()) {
        return QObject::tr("Node.js was installed, but the Node.js found first is %1 in %2. ")
                   .arg(first.version, first.folder) +
               need;
    }
    return QObject::tr("Node.js %1 was installed in %2, but Node.js %3 in %4 comes first on the search path. %5 "
                       "Remove the older Node.js, or put %2 before %4 in your PATH.")
        .arg(fresh->version, fresh->folder, first.version, first.folder, need);
}

QCoro::Task<Result<QString>> ToolInstaller::saveAPIKey(QString key, CLITool tool)
{
    // Checked before any file or the environment is touched; the key itself is never written
    // to a log, and no command is started for the save.
    if (const std::optional<QString> reason = ProfileWriter::rejectionReason(key))
        co_return ServiceError::message(*reason);

    const QString variable = tool.apiKeyEnvVar();
    const ShellProfile profile = m_detector.shellProfile();
    const QString displayName = tool.displayName();
    const QString line = ProfileWriter::exportLine(variable, key, profile.family);
    // The files are handled on a worker thread: a slow or stuck home folder never freezes the
    // window.
    QFuture<Result<ProfileWriter::ProfileChange>> storing = QtConcurrent::run([profile, variable, displayName, line] {
        return ProfileWriter::store(profile.path, variable, displayName, line, profile.family);
    });
    const Result<ProfileWriter::ProfileChange> stored = co_await storing;
    if (!stored) {
        // Named as the screen's caption names it.
        QString reason = stored.error().errorDescription();
        co_return ServiceError::message(reason.replace(profile.path, displayedPath(profile.path)));
    }
    qputenv(variable.toUtf8().constData(), key.toUtf8());
    if (stored.value().afterComputedValue)
        co_return computedValueNotice(variable, displayedPath(profile.path));
    co_return QString();
}

QString ToolInstaller::computedValueNotice(const QString& variable, const QString& profile)
{
    return QObject::tr("Your key is saved. %1 sets %2 from a command or another variable, so that line was left as "
                       "it was; your key is on a new line after it, which is the one new terminal windows use.")
        .arg(profile, variable);
}

} // namespace qf
