#include "ToolUpdater.h"

#include "Diagnosis.h"
#include "ShellQuote.h"
#include "ToolInstaller.h"
#include "ToolVersion.h"

#include <QDir>
#include <QFileInfo>

namespace qf {

namespace {

// Whether two paths name the same folder, links resolved.
bool samePlace(const QString& a, const QString& b)
{
    if (a.isEmpty() || b.isEmpty())
        return false;
    const QString canonicalA = QFileInfo(a).canonicalFilePath();
    const QString canonicalB = QFileInfo(b).canonicalFilePath();
    return canonicalA.isEmpty() || canonicalB.isEmpty() ? QDir::cleanPath(a) == QDir::cleanPath(b)
                                                        : canonicalA == canonicalB;
}

} // namespace

ToolUpdater::ToolUpdater(ShellRunner& shell, SystemDetector& detector, const Platform& platform, UpdateChecker& checker,
                         NodeInstaller& node)
    : m_shell(shell), m_detector(detector), m_platform(platform), m_checker(checker), m_node(node)
{
}

QCoro::Task<UpdateRoute> ToolUpdater::route(CLITool tool)
{
    UpdateRoute route;
    const std::optional<QString> found = co_await m_detector.findTool(tool);
    if (!found)
        co_return route;
    route.command = found->trimmed();

    // An npm global install puts the command into <prefix>/bin, as a link to the package in
    // <prefix>/lib/node_modules. A command that links anywhere else (Claude Code's launcher to
    // its versions in ~/.local/share/claude, Homebrew's to its Cellar) is not npm's.
    const QFileInfo command(route.command);
    const QFileInfo folder(command.absolutePath());
    const Result<QString> npmPrefix = co_await m_shell.run(QStringLiteral("npm prefix -g"));
    const QString globalPrefix = npmPrefix ? npmPrefix.value().trimmed() : QString();
    if (folder.fileName() == QLatin1String("bin")) {
        const QString prefix = folder.absolutePath();
        const QString modules = prefix + QStringLiteral("/lib/node_modules/") + tool.npmPackage();
        const QString target = command.canonicalFilePath();
        const bool intoModules = target.startsWith(QFileInfo(modules).canonicalFilePath() + QLatin1Char('/')) &&
                                 QFileInfo(modules).isDir();
        const bool elsewhere = command.isSymLink() && !intoModules;
        const bool npmsOwn = samePlace(prefix, globalPrefix);
        if (!elsewhere && (intoModules || QFileInfo(modules).isDir() || npmsOwn)) {
            route.prefix = prefix;
            route.npmsOwnPrefix = npmsOwn;
            route.kind = ToolInstaller::isWritableNpmPrefix(prefix) ? UpdateRoute::npm : UpdateRoute::npmAsAdmin;
            co_return route;
        }
    }
    route.kind = tool == CLITool::claudeCode ? UpdateRoute::makersUpdater : UpdateRoute::unknownOrigin;
    co_return route;
}

QCoro::Task<QString> ToolUpdater::updateCommand(CLITool tool, UpdateRoute route, QString version)
{
    if (route.kind == UpdateRoute::makersUpdater)
        co_return shellQuote(route.command) + QStringLiteral(" update");
    const QString package = shellQuote(tool.npmPackage() + QLatin1Char('@') + version);
    // Only this command is pointed at the prefix: the user's npm settings stay as they are.
    const QString prefix = QStringLiteral("npm_config_prefix=") + shellQuote(route.prefix) + QLatin1Char(' ');
    if (route.kind == UpdateRoute::npm) {
        const QString cache = m_privateNpmCache ? ToolInstaller::privateNpmCache(m_platform) : QString();
        const QString line = cache + QStringLiteral("npm install -g ") + package;
        co_return route.npmsOwnPrefix ? line : prefix + line;
    }
    // The administrator's shell searches only the system's folders (on macOS
    // /usr/bin:/bin:/usr/sbin:/sbin), and npm starts through `env node`: node's own folder goes
    // first on that search path, and npm is called by its path.
    const Result<QString> npm = co_await m_shell.findProgram(QStringLiteral("npm"));
    QString line = prefix + (npm ? shellQuote(npm.value()) : QStringLiteral("npm")) + QStringLiteral(" install -g ") +
                   package;
    const Result<QString> node = co_await m_shell.findProgram(QStringLiteral("node"));
    if (node) {
        line = QStringLiteral("PATH=") +
               shellQuote(QFileInfo(node.value()).absolutePath() + QStringLiteral(":/usr/bin:/bin:/usr/sbin:/sbin")) +
               QLatin1Char(' ') + line;
    }
    co_return m_platform.administratorCommand(line);
}

QCoro::Task<Result<UpdateOutcome>> ToolUpdater::update(CLITool tool, Output log, Cancellation cancellation)
{
    const auto progress = std::make_shared<Progress>();
    Result<UpdateOutcome> updated = co_await bringUpToDate(tool, log, cancellation, progress);
    if (updated || !cancellation.isCancelled())
        co_return updated;
    ServiceError stopped = co_await stoppedUpdate(tool, progress);
    co_return stopped;
}

QCoro::Task<ServiceError> ToolUpdater::stoppedUpdate(CLITool tool, std::shared_ptr<Progress> progress)
{
    const QString name = tool.displayName();
    if (progress->commandStarted) {
        // The update's command was stopped on its way: the tool is asked how it is now.
        const std::optional<QString> now = co_await m_checker.installedVersion(tool);
        if (!now) {
            co_return ServiceError::stopped(
                tr("The update was stopped, and %1 no longer starts. Install it again from the dashboard.").arg(name));
        }
        if (*now != progress->before) {
            m_checker.forget(tool);
            m_shell.invalidateEnvironment();
            co_return ServiceError::stopped(
                tr("The update was stopped, but %1 %2 was already in place and starts.").arg(name, *now));
        }
    }
    if (progress->nodeInstalled)
        co_return ServiceError::stopped(tr("The update was stopped. Node.js, installed before that, stays."));
    co_return ServiceError::stopped(tr("The update was stopped. Nothing was changed."));
}

QCoro::Task<Result<UpdateOutcome>> ToolUpdater::bringUpToDate(CLITool tool, Output log, Cancellation cancellation,
                                                              std::shared_ptr<Progress> progress)
{
    const QString name = tool.displayName();
    const UpdateRoute where = co_await route(tool);
    if (where.kind == UpdateRoute::notFound)
        co_return ServiceError::message(tr("%1 is not installed, so there is nothing to update.").arg(name));
    if (where.kind == UpdateRoute::unknownOrigin) {
        co_return ServiceError::message(tr("%1 in %2 was not installed with npm, so Quillforge cannot update it. "
                                           "Update it the way it was installed.")
                                            .arg(name, where.command));
    }
    const std::optional<QString> before = co_await m_checker.installedVersion(tool);
    if (!before) {
        co_return ServiceError::message(
            tr("%1 does not start, so it cannot be updated. Install it again from the dashboard.").arg(name));
    }
    progress->before = *before;
    log(QStringLiteral("Updating %1 %2 (%3)...\n").arg(name, *before, where.command));

    // The newest version as the registry says it now: the one whose Node.js requirement counts.
    const std::optional<PublishedVersion> latest = co_await m_checker.latestVersion(tool, true);
    if (!latest) {
        co_return ServiceError::message(
            tr("The newest version of %1 could not be found out. Check that you are online, then try again.")
                .arg(name));
    }
    if (!isNewerVersion(latest->version, *before)) {
        log(QStringLiteral("%1 %2 is the newest version.\n").arg(name, *before));
        co_return UpdateOutcome{tool, *before, *before};
    }

    const bool throughNpm = where.kind == UpdateRoute::npm || where.kind == UpdateRoute::npmAsAdmin;
    const int required = latest->requiredNodeMajor;
    if (throughNpm && required > 0) {
        const NodeCheck node = co_await m_detector.checkNodeJS(required);
        if (!node.meetsRequirement) {
            const QString needed = QString::number(required);
            const QString text = node.version ? m_platform.wording().nodeTooOldForUpdate.arg(name, latest->version,
                                                                                             needed, *node.version)
                                              : tr("%1 %2 needs Node.js %3 or newer, and no Node.js was found.")
                                                    .arg(name, latest->version, needed);
            log(text + QLatin1Char('\n'));
            co_return ServiceError::needsNewerNode(text, required);
        }
    }

    if (where.kind == UpdateRoute::npmAsAdmin)
        log(QStringLiteral("Updating %1 in %2 needs administrator rights.\n").arg(name, where.prefix));
    const QString command = co_await updateCommand(tool, where, latest->version);
    const QString activity = tr("The update of %1").arg(name);
    if (cancellation.isCancelled())
        co_return ShellError::cancellation();
    progress->commandStarted = true;
    const Result<void> ran = co_await m_shell.runWithStreaming(command, log, nullptr, activity, cancellation);
    const Result<void> updated = where.kind == UpdateRoute::npmAsAdmin ? administratorUpdateResult(ran, name) : ran;
    if (cancellation.isCancelled())
        co_return ShellError::cancellation();
    if (!updated) {
        if (updated.error().isDeclined())
            co_return updated.error();
        log(QStringLiteral("Note: ") + updated.error().logDescription() + QLatin1Char('\n'));
        const ServiceError explained = afterNpmFailure(tool, where, updated.error());
        ServiceError failure = co_await failedUpdate(tool, explained, *before);
        co_return failure;
    }

    // Done only when the tool runs and says it is newer.
    log(QStringLiteral("\nVerifying the update...\n"));
    const std::optional<QString> after = co_await m_checker.installedVersion(tool);
    if (!after) {
        co_return ServiceError::message(
            tr("The update of %1 finished, but %1 does not start now. Install it again from the dashboard.").arg(name));
    }
    if (!isNewerVersion(*after, *before)) {
        co_return ServiceError::message(
            tr("The update of %1 finished, but %1 still reports version %2, which still works.").arg(name, *after));
    }
    m_checker.forget(tool);
    // What the update put in place may change what the start-up files set up.
    m_shell.invalidateEnvironment();
    log(QStringLiteral("\n%1 updated from %2 to %3.\n").arg(name, *before, *after));
    co_return UpdateOutcome{tool, *before, *after};
}

ServiceError ToolUpdater::afterNpmFailure(CLITool tool, const UpdateRoute& route, const ServiceError& error)
{
    const ShellError* shell = error.shellError();
    const std::optional<QString> refused = shell ? npmRefusedPath(shell->lastOutput()) : std::nullopt;
    if (route.kind != UpdateRoute::npm || m_privateNpmCache || !refused)
        return error;
    // A folder of the tool's own that the user may not change is not worked around: the update
    // stays where the tool is. Anything else is most often npm's cache, left to the
    // administrator by an earlier "sudo npm".
    const QString& path = *refused;
    if (!path.isEmpty() && path.startsWith(QDir::cleanPath(route.prefix) + QLatin1Char('/')))
        return error;
    m_privateNpmCache = true;
    return ServiceError::explained(*shell, npmPermissionRetrySentence(tool.displayName(), false));
}

QCoro::Task<ServiceError> ToolUpdater::failedUpdate(CLITool tool, ServiceError failure, QString previous)
{
    // npm keeps the version before when an update fails; whether it still starts is asked.
    const QString name = tool.displayName();
    const std::optional<QString> now = co_await m_checker.installedVersion(tool);
    if (now) {
        co_return ServiceError::message(
            tr("%1 was not updated. %2 %1 %3 still works.").arg(name, failure.plainDescription(), *now));
    }
    co_return ServiceError::message(tr("%1 was not updated. %2 %1 %3 no longer starts: install it again from the "
                                       "dashboard.")
                                        .arg(name, failure.plainDescription(), previous));
}

QCoro::Task<Result<UpdateOutcome>> ToolUpdater::installNodeThenUpdate(CLITool tool, Output log,
                                                                      Cancellation cancellation)
{
    const auto progress = std::make_shared<Progress>();
    const Result<void> node = co_await m_node.install(log, cancellation);
    if (!node && cancellation.isCancelled()) {
        ServiceError stopped = co_await stoppedUpdate(tool, progress);
        co_return stopped;
    }
    if (!node)
        co_return node.error();
    progress->nodeInstalled = true;
    Result<UpdateOutcome> updated = co_await bringUpToDate(tool, log, cancellation, progress);
    if (!updated && cancellation.isCancelled()) {
        ServiceError stopped = co_await stoppedUpdate(tool, progress);
        co_return stopped;
    }
    if (!updated && updated.error().requiredNodeMajor() > 0) {
        // Installed, yet an older Node.js comes first: installing again would not help.
        const QList<NodeInstall> installs = co_await m_detector.findNodeInstalls();
        if (installs.isEmpty()) {
            co_return ServiceError::message(
                tr("Node.js was installed, but no Node.js is found on the search path, so %1 was not updated.")
                    .arg(tool.displayName()));
        }
        co_return ServiceError::message(
            tr("Node.js was installed, but the Node.js found first is still %1 in %2, "
               "which is too old for the update of %3. Remove the older Node.js, then "
               "try again.")
                .arg(installs.first().version, installs.first().folder, tool.displayName()));
    }
    co_return updated;
}

} // namespace qf
