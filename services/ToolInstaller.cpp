#include "ToolInstaller.h"

#include "Diagnosis.h"
#include "GitPresence.h"
#include "ShellQuote.h"

#include <QDir>
#include <QFileInfo>
#include <QVersionNumber>

#include <algorithm>

#include <unistd.h>

namespace qf {

namespace {

// The user's own prefix, where a tool goes when npm's global folder is not theirs to write.
QString localFolder() { return QDir::homePath() + QStringLiteral("/.local"); }

// Quillforge's own npm cache, for npm whose cache was left to the administrator.
QString privateNpmCacheFolder(const Platform& platform) { return platform.cacheFolder() + QStringLiteral("/npm"); }

} // namespace

ToolInstaller::ToolInstaller(ShellRunner& shell, SystemDetector& detector, const Platform& platform,
                             NodeInstaller& node, SearchPathFix& searchPath)
    : m_shell(shell), m_detector(detector), m_platform(platform), m_node(node), m_searchPath(searchPath)
{
}

QCoro::Task<QList<SetupStep>> ToolInstaller::setupSteps(CLITool tool)
{
    QList<SetupStep> steps;
    steps << SetupStep{SetupStepType::createDeveloperFolder, SetupStepStatus::pending, std::nullopt};
    steps << SetupStep{SetupStepType::checkGit, SetupStepStatus::pending, std::nullopt};
    if (tool.requiresNodeJS()) {
        const int minimum = co_await m_detector.requiredNodeMajor(tool);
        const NodeCheck node = co_await m_detector.checkNodeJS(minimum);
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
    const GitPresence git = co_await findGit(m_shell, m_platform);
    const Result<QString>& result = git.version;
    if (!result) {
        onOutput(m_platform.wording().gitMissingLog);
        co_return GitCheck{false, std::nullopt};
    }
    const QString version = result.value().trimmed();
    onOutput(QStringLiteral("Found ") + version + QLatin1Char('\n'));
    co_return GitCheck{true, version};
}

QCoro::Task<Result<void>> ToolInstaller::runSetup(CLITool tool, StepUpdate report, Output log,
                                                  Cancellation cancellation)
{
    m_caveats.clear();
    m_madeDeveloperFolder = false;
    m_installedNode = false;
    m_installedTool = false;
    const Result<void> result = co_await runSteps(tool, report, log, cancellation);
    // A run that ended anyway (the last step was done) stands; a stopped one says what stays.
    if (result || !cancellation.isCancelled())
        co_return result;
    if (m_madeDeveloperFolder) {
        // Made by this run moments ago; only an empty folder is taken back.
        QDir().rmdir(developerFolderPath());
    }
    co_return ServiceError::stopped(stoppedMessage(tool));
}

QString ToolInstaller::stoppedMessage(CLITool tool) const
{
    if (m_installedTool && m_installedNode) {
        return tr("The installation was stopped. Node.js and %1, installed before that, stay.").arg(tool.displayName());
    }
    if (m_installedTool)
        return tr("The installation was stopped. %1, installed before that, stays.").arg(tool.displayName());
    if (m_installedNode)
        return tr("The installation was stopped. Node.js, installed before that, stays.");
    return tr("The installation was stopped. Nothing was changed.");
}

QCoro::Task<Result<void>> ToolInstaller::runSteps(CLITool tool, StepUpdate report, Output log,
                                                  Cancellation cancellation)
{
    // 1. The projects folder. A folder that cannot be created is reported and setup goes on.
    report(SetupStepType::createDeveloperFolder, SetupStepStatus::inProgress, std::nullopt);
    switch (prepareDeveloperFolder(log)) {
    case FolderCreation::created:
        m_madeDeveloperFolder = true;
        report(SetupStepType::createDeveloperFolder, SetupStepStatus::completed, tr("Created"));
        break;
    case FolderCreation::alreadyThere:
        report(SetupStepType::createDeveloperFolder, SetupStepStatus::skipped, tr("Already exists"));
        break;
    case FolderCreation::failed:
        report(SetupStepType::createDeveloperFolder, SetupStepStatus::failure(tr("Could not create")), std::nullopt);
        break;
    }

    // 2. git.
    report(SetupStepType::checkGit, SetupStepStatus::inProgress, std::nullopt);
    const GitCheck git = co_await checkGit(log);
    if (cancellation.isCancelled())
        co_return ShellError::cancellation();
    if (!git.found) {
        report(SetupStepType::checkGit, SetupStepStatus::failure(tr("Not found")), std::nullopt);
        co_return failure(InstallationError::gitNotFound);
    }
    report(SetupStepType::checkGit, SetupStepStatus::completed, git.version);

    // 3. Node.js, for the tools that run on it.
    if (tool.requiresNodeJS()) {
        const int minimum = co_await m_detector.requiredNodeMajor(tool);
        const NodeCheck before = co_await m_detector.checkNodeJS(minimum);
        if (cancellation.isCancelled())
            co_return ShellError::cancellation();
        if (before.isInstalled && before.meetsRequirement) {
            report(SetupStepType::installNode, SetupStepStatus::skipped, before.version);
        } else {
            report(SetupStepType::installNode, SetupStepStatus::inProgress, std::nullopt);
            const Result<void> node = co_await m_node.install(log, cancellation);
            if (!node)
                co_return node;
            m_installedNode = true;
            if (cancellation.isCancelled())
                co_return ShellError::cancellation();
            // The Node.js that commands find now must be new enough: an older one that still
            // comes first on the search path would run the tool and fail.
            const NodeCheck after = co_await m_detector.checkNodeJS(minimum);
            if (!after.meetsRequirement) {
                const QList<NodeInstall> found = co_await m_detector.findNodeInstalls();
                co_return ServiceError::message(NodeInstaller::shadowedMessage(tool, minimum, found));
            }
            report(SetupStepType::installNode, SetupStepStatus::completed, after.version);
            const QList<NodeInstall> installs = co_await m_detector.findNodeInstalls();
            if (installs.size() > 1) {
                const NodeInstall& first = installs.first();
                const auto newest = std::max_element(installs.begin(), installs.end(),
                                                     [](const auto& a, const auto& b) {
                                                         return QVersionNumber::fromString(a.version.mid(1)) <
                                                                QVersionNumber::fromString(b.version.mid(1));
                                                     });
                if (newest->version != first.version) {
                    m_caveats << tr("An older Node.js (%1 in %2) is found before the one just installed (%3). "
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
    // Where npm puts the tool.
    QString npmPrefix;
    if (tool.installsThroughNpm()) {
        // Without write access to npm's global folder the install would need administrator
        // rights; the user's own ~/.local needs none. Only this one command is told so: the
        // user's npm settings stay as they are.
        const Result<QString> prefix = co_await m_shell.run(QStringLiteral("npm prefix -g"),
                                                            ShellRunner::defaultTimeoutSeconds, cancellation);
        const QString ownFolder = localFolder();
        npmPrefix = prefix ? prefix.value() : QString();
        if (!npmPrefix.isEmpty() && !isWritableNpmPrefix(npmPrefix)) {
            log(QStringLiteral("npm's global folder %1 is not writable for your user, so %2 goes into ~/.local "
                               "instead (for this installation only; your npm settings stay as they are).\n")
                    .arg(npmPrefix, tool.displayName()));
            npmPrefix = ownFolder;
        } else if (m_toOwnFolder.contains(tool)) {
            log(QStringLiteral("npm could not write to its global folder %1 before, so %2 goes into ~/.local "
                               "instead (your npm settings stay as they are).\n")
                    .arg(npmPrefix, tool.displayName()));
            npmPrefix = ownFolder;
        }
        if (npmPrefix == ownFolder)
            installCommand = QStringLiteral("npm_config_prefix=") + shellQuote(ownFolder) + QLatin1Char(' ') +
                             installCommand;
        if (m_privateNpmCache) {
            log(QStringLiteral("npm could not write to its folders before, so it uses a cache of Quillforge's own in "
                               "%1 (your npm settings stay as they are).\n")
                    .arg(privateNpmCacheFolder(m_platform)));
            installCommand = privateNpmCache(m_platform) + installCommand;
        }
    }
    if (tool.installsThroughNpm()) {
        // The tools run without their install scripts (ignore-scripts is harmless), and npm's own
        // lines about scripts it was not told to allow stay in the log. Only npm set to refuse
        // such scripts can break an installation.
        const Result<QString> strict = co_await m_shell.run(QStringLiteral("npm config get strict-allow-scripts"),
                                                            ShellRunner::defaultTimeoutSeconds, cancellation);
        if (strict && strict.value().trimmed() == QLatin1String("true")) {
            m_caveats << tr("npm is set to refuse install scripts it was not told to allow (strict-allow-scripts), "
                            "so parts of %1 may be missing. If it does not start, run \"npm config delete "
                            "strict-allow-scripts\" in a terminal window and install it again.")
                             .arg(tool.displayName());
        }
    }
    const QString activity = tr("The installation of %1").arg(tool.displayName());
    const Result<void> installed = co_await m_shell.runWithStreaming(installCommand, log, nullptr, activity,
                                                                     cancellation);
    if (!installed)
        co_return tool.installsThroughNpm() ? afterNpmFailure(tool, installed.error(), npmPrefix) : installed.error();
    m_installedTool = true;
    if (cancellation.isCancelled())
        co_return ShellError::cancellation();

    // 5. Verification.
    log(QStringLiteral("\nVerifying installation...\n"));
    const std::optional<QString> found = co_await m_detector.findTool(tool);
    if (cancellation.isCancelled())
        co_return ShellError::cancellation();
    if (!found) {
        report(SetupStepType::installTool, SetupStepStatus::failure(tr("Verification failed")), std::nullopt);
        co_return failure(InstallationError::verificationFailed);
    }
    // What lives in ~/.local/bin must be found by the user's own terminal too.
    const QString localPrograms = QDir::homePath() + QStringLiteral("/.local/bin/");
    bool local = found.value().startsWith(localPrograms);
    if (!local && tool.requiresNodeJS()) {
        const Result<QString> node = co_await m_shell.findProgram(QStringLiteral("node"));
        local = node && node.value().startsWith(localPrograms);
    }
    if (local) {
        const std::optional<QString> caveat = co_await m_searchPath.addLocalPrograms(tool, log, cancellation);
        if (cancellation.isCancelled())
            co_return ShellError::cancellation();
        if (caveat)
            m_caveats << *caveat;
    }

    const std::optional<QString> version = co_await m_detector.getToolVersion(tool);
    report(SetupStepType::installTool, SetupStepStatus::completed, version);
    if (version)
        log(QStringLiteral("\n") + tool.displayName() + QLatin1Char(' ') + *version +
            QStringLiteral(" installed successfully!\n"));
    else
        log(QStringLiteral("\n") + tool.displayName() + QStringLiteral(" installed successfully!\n"));
    co_return Result<void>();
}

ServiceError ToolInstaller::afterNpmFailure(CLITool tool, const ServiceError& error, const QString& prefix)
{
    const ShellError* shell = error.shellError();
    const std::optional<QString> refused = shell ? npmRefusedPath(shell->lastOutput()) : std::nullopt;
    if (!refused)
        return error;
    // Most often an earlier "sudo npm" left npm's cache or its global folder to the
    // administrator. What npm names decides: a path among the global folder's packages,
    // commands or manual pages sends the tool to ~/.local; anything else (its cache, or nothing
    // named) is worked around with a cache of Quillforge's own.
    const QString& path = *refused;
    const QString ownFolder = localFolder();
    const auto inside = [&path](const QString& folder) {
        if (folder.isEmpty())
            return false;
        for (const char* part : {"/lib", "/bin", "/share"}) {
            const QString written = QDir::cleanPath(folder + QLatin1String(part));
            if (path == written || path.startsWith(written + QLatin1Char('/')))
                return true;
        }
        return false;
    };
    const bool inPrefix = !path.isEmpty() && (inside(prefix) || inside(QFileInfo(prefix).canonicalFilePath()));
    bool retry = false;
    if (inPrefix && prefix != ownFolder && !m_toOwnFolder.contains(tool)) {
        m_toOwnFolder << tool;
        retry = true;
    }
    if (!inPrefix && !m_privateNpmCache)
        retry = true;
    if (!retry)
        return error;
    m_privateNpmCache = true;
    return ServiceError::explained(*shell,
                                   npmPermissionRetrySentence(tool.displayName(), m_toOwnFolder.contains(tool)));
}

QString ToolInstaller::privateNpmCache(const Platform& platform)
{
    return QStringLiteral("npm_config_cache=") + shellQuote(privateNpmCacheFolder(platform)) + QLatin1Char(' ');
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

} // namespace qf
