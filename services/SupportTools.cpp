#include "SupportTools.h"

#include "CLITool.h"
#include "DeveloperFolder.h"

#include <QCoreApplication>
#include <QDir>

#include <vector>

namespace qf {

QList<SystemTool> systemToolCatalogue(const Platform& platform)
{
    const DeveloperToolsItem tools = platform.developerToolsItem();
    const QString optionalNote = SupportTools::tr("Only needed for Gemini or Codex");
    QList<SystemTool> items{
        SystemTool{
            .id = SystemToolID::developerTools,
            .key = tools.key,
            .name = tools.name,
            .icon = tools.icon,
            .description = tools.description,
            .uninstallCommand = tools.uninstallCommand,
            .uninstallNote = tools.uninstallNote,
            .uninstallShownAs = tools.uninstallShownAs,
        },
        SystemTool{
            .id = SystemToolID::developerFolder,
            .key = QStringLiteral("developer"),
            .name = SupportTools::tr("Developer Folder"),
            .icon = QStringLiteral("folder.badge.plus"),
            .description = SupportTools::tr("Where your projects live"),
            .isInstalled = developerFolderExists(),
            .uninstallNote = platform.wording().developerFolderNote,
        },
    };
    if (platform.setupIncludesHomebrew()) {
        items << SystemTool{
            .id = SystemToolID::homebrew,
            .key = QStringLiteral("homebrew"),
            .name = QStringLiteral("Homebrew"),
            .icon = QStringLiteral("mug"),
            .description = optionalNote,
            .uninstallCommand = downloadThenRunLine(QLatin1String(web::homebrewUninstallScript),
                                                    QStringLiteral("/bin/bash")),
            .isOptional = true,
        };
    }
    items << SystemTool{
        .id = SystemToolID::node,
        .key = QStringLiteral("node"),
        .name = QStringLiteral("Node.js"),
        .icon = QStringLiteral("server.rack"),
        .description = optionalNote,
        // Known once the copy that commands find has been located.
        .uninstallCommand = std::nullopt,
        .isOptional = true,
    };
    // The steps are numbered as they are listed.
    for (int i = 0; i < items.size(); ++i)
        items[i].stepNumber = i + 1;
    return items;
}

std::optional<QString> nodeRemovalCommand(NodeCopy copy)
{
    switch (copy) {
    case NodeCopy::homebrew: return QStringLiteral("brew uninstall node");
    case NodeCopy::localRelease:
        // What the release archive put into ~/.local; global packages installed there stay.
        return QStringLiteral("rm -f ~/.local/bin/node ~/.local/bin/npm ~/.local/bin/npx ~/.local/bin/corepack && "
                              "rm -rf ~/.local/lib/node_modules/npm ~/.local/lib/node_modules/corepack "
                              "~/.local/include/node ~/.local/share/doc/node ~/.local/share/man/man1/node.1 "
                              "~/.local/share/systemtap/tapset/node.stp");
    case NodeCopy::other: return std::nullopt;
    }
    Q_UNREACHABLE();
}

SupportTools::SupportTools(ShellRunner& shell, const Platform& platform) : m_shell(shell), m_platform(platform) {}

QCoro::Task<NodeCopy> SupportTools::nodeCopyAt(QString path)
{
    if (path == QDir::homePath() + QStringLiteral("/.local/bin/node"))
        co_return NodeCopy::localRelease;
    const Result<QString> brew = co_await m_shell.run(QStringLiteral("brew --prefix"));
    if (brew && !brew.value().isEmpty() && path == brew.value() + QStringLiteral("/bin/node"))
        co_return NodeCopy::homebrew;
    co_return NodeCopy::other;
}

QCoro::Task<SystemTool> SupportTools::detect(SystemTool tool)
{
    switch (tool.id) {
    case SystemToolID::developerFolder: break; // known when the catalogue was built
    case SystemToolID::developerTools: {
        const DeveloperToolsItem developerTools = m_platform.developerToolsItem();
        // The version is asked only once the tools are known to be there: on a Mac without
        // them, the version command is a stub that makes the system offer their installation.
        const Result<QString> present = co_await m_shell.run(developerTools.presenceCommand);
        if (!present)
            break;
        std::optional<Result<QString>> version;
        if (!developerTools.versionCommand.isEmpty())
            version = co_await m_shell.run(developerTools.versionCommand);
        tool.isInstalled = true;
        std::optional<QString> output;
        if (!version)
            output = present.value();
        else if (*version)
            output = version->value();
        // A version command that printed nothing (xcodebuild where only the Command Line Tools
        // are installed) leaves the version unknown, not empty.
        if (output) {
            const QString shown = QString(*output).remove(developerTools.versionPrefix);
            if (!shown.trimmed().isEmpty())
                tool.version = shown;
        }
        break;
    }
    case SystemToolID::homebrew: {
        const Result<QString> version = co_await m_shell.run(QStringLiteral("brew --version"));
        if (!version)
            break;
        tool.isInstalled = true;
        const QStringList lines = version.value().split(QLatin1Char('\n'));
        if (!lines.isEmpty())
            tool.version = QString(lines.first()).remove(QStringLiteral("Homebrew "));
        break;
    }
    case SystemToolID::node: {
        // Which copy it is (which may ask Homebrew) is found out while the version is asked.
        QCoro::Task<Result<QString>> versionRun = m_shell.run(QStringLiteral("node --version"));
        const Result<QString> where = co_await m_shell.findProgram(QStringLiteral("node"));
        NodeCopy copy = NodeCopy::other;
        if (where)
            copy = co_await nodeCopyAt(where.value());
        const Result<QString> version = co_await versionRun;
        if (!version)
            break;
        tool.isInstalled = true;
        tool.version = version.value();
        tool.uninstallCommand = nodeRemovalCommand(copy);
        if (!tool.uninstallCommand) {
            tool.uninstallNote =
                SupportTools::tr(
                    "This Node.js (%1) was installed by another program. Remove it the way it was installed.")
                    .arg(where ? where.value() : QStringLiteral("node"));
        }
        break;
    }
    }
    co_return tool;
}

QCoro::Task<QList<SystemTool>> SupportTools::detectAll()
{
    // Every check starts at once (a task runs until its first wait); the results are
    // collected in catalogue order.
    const QList<SystemTool> tools = catalogue();
    std::vector<QCoro::Task<SystemTool>> checks;
    checks.reserve(size_t(tools.size()));
    for (const SystemTool& tool : tools)
        checks.push_back(detect(tool));
    QList<SystemTool> detected;
    for (const QCoro::Task<SystemTool>& check : checks) {
        SystemTool tool = co_await check;
        detected << std::move(tool);
    }
    co_return detected;
}

QCoro::Task<Result<void>> SupportTools::remove(SystemTool tool, ShellRunner::OutputHandler onOutput)
{
    if (!tool.uninstallCommand)
        co_return ServiceError(InstallationError::manualUninstallRequired, m_platform.wording());
    const QString command = *tool.uninstallCommand;
    onOutput(QStringLiteral("Running: ") + tool.uninstallShownAs.value_or(command) + QStringLiteral("\n\n"));
    const QString activity = SupportTools::tr("The removal of %1").arg(tool.name);
    const Result<void> ran = co_await m_shell.runWithStreaming(command, onOutput, nullptr, activity);
    if (!ran)
        co_return administratorRemovalResult(ran, tool.name);
    // Homebrew's own removal script can end well and leave Homebrew in place: only a search
    // that no longer finds it makes the removal complete.
    if (tool.id == SystemToolID::homebrew) {
        const Result<QString> found = co_await m_shell.findProgram(QStringLiteral("brew"));
        if (found) {
            co_return ServiceError::message(
                SupportTools::tr("%1 is still installed at %2: its removal did not finish. The output above says why.")
                    .arg(tool.name, found.value()));
        }
    }
    // The log ends with the outcome even when nobody watches the removal any more.
    onOutput(QStringLiteral("\n") + tool.name + QStringLiteral(" has been uninstalled.\n"));
    co_return Result<void>();
}

} // namespace qf
