#include "SystemTool.h"

#include "CLITool.h"
#include "DeveloperFolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <vector>

namespace qf {

namespace {

QString trText(const char* source) { return QCoreApplication::translate("SystemTool", source); }

} // namespace

QList<SystemTool> systemToolCatalogue(const Platform& platform)
{
    const DeveloperToolsItem tools = platform.developerToolsItem();
    const QString optionalNote = trText("Only needed for Gemini or Codex");
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
            .name = trText("Developer Folder"),
            .icon = QStringLiteral("folder.badge.plus"),
            .description = trText("Where your projects live"),
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

QCoro::Task<NodeCopy> nodeCopyAt(const QString& path, ShellRunner& shell)
{
    if (path == QDir::homePath() + QStringLiteral("/.local/bin/node"))
        co_return NodeCopy::localRelease;
    const Result<QString> brew = co_await shell.run(QStringLiteral("brew --prefix"));
    if (brew && !brew.value().isEmpty() && path == brew.value() + QStringLiteral("/bin/node"))
        co_return NodeCopy::homebrew;
    co_return NodeCopy::other;
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

QCoro::Task<SystemTool> detectSystemTool(SystemTool tool, ShellRunner& shell, DeveloperToolsItem developerTools)
{
    switch (tool.id) {
    case SystemToolID::developerFolder: break; // known when the catalogue was built
    case SystemToolID::developerTools: {
        const Result<QString> present = co_await shell.run(developerTools.presenceCommand);
        if (!present)
            break;
        tool.isInstalled = true;
        std::optional<QString> output;
        if (developerTools.versionCommand.isEmpty()) {
            output = present.value();
        } else {
            const Result<QString> version = co_await shell.run(developerTools.versionCommand);
            if (version)
                output = version.value();
        }
        if (output)
            tool.version = QString(*output).remove(developerTools.versionPrefix);
        break;
    }
    case SystemToolID::homebrew: {
        const Result<QString> version = co_await shell.run(QStringLiteral("brew --version"));
        if (!version)
            break;
        tool.isInstalled = true;
        const QStringList lines = version.value().split(QLatin1Char('\n'));
        if (!lines.isEmpty())
            tool.version = QString(lines.first()).remove(QStringLiteral("Homebrew "));
        break;
    }
    case SystemToolID::node: {
        const Result<QString> version = co_await shell.run(QStringLiteral("node --version"));
        if (!version)
            break;
        tool.isInstalled = true;
        tool.version = version.value();
        const Result<QString> where = co_await shell.run(QStringLiteral("command -v node"));
        const NodeCopy copy = where ? co_await nodeCopyAt(where.value(), shell) : NodeCopy::other;
        tool.uninstallCommand = nodeRemovalCommand(copy);
        if (!tool.uninstallCommand) {
            tool.uninstallNote =
                trText("This Node.js (%1) was installed by another program. Remove it the way it was installed.")
                    .arg(where ? where.value() : QStringLiteral("node"));
        }
        break;
    }
    }
    co_return tool;
}

QCoro::Task<QList<SystemTool>> detectSystemTools(QList<SystemTool> tools, ShellRunner& shell,
                                                 DeveloperToolsItem developerTools)
{
    // Every check starts at once (a task runs until its first wait); the results are
    // collected in catalogue order.
    std::vector<QCoro::Task<SystemTool>> checks;
    checks.reserve(size_t(tools.size()));
    for (const SystemTool& tool : std::as_const(tools))
        checks.push_back(detectSystemTool(tool, shell, developerTools));
    QList<SystemTool> detected;
    for (const QCoro::Task<SystemTool>& check : checks) {
        SystemTool tool = co_await check;
        detected << std::move(tool);
    }
    co_return detected;
}

void handleSystemToolAction(const SystemTool& tool, Platform& platform, const std::function<void()>& reload,
                            const std::function<void(const ActionFallback&)>& fallback)
{
    const auto showFolder = [&platform, &fallback] {
        const QString path = developerFolderPath();
        // Something that is not a folder (a plain file named Developer) is selected in the file
        // manager rather than opened with whatever application handles it.
        const QFileInfo entry(path);
        if (entry.exists() && !entry.isDir()) {
            platform.revealFile(path);
            return;
        }
        if (!platform.revealFolder(path) && fallback) {
            fallback({trText("The folder could not be shown"),
                      trText("No file manager answered. Your projects folder is here:"), path});
        }
    };
    switch (tool.id) {
    case SystemToolID::developerFolder:
        if (tool.isInstalled) {
            showFolder();
            return;
        }
        // A folder that cannot be created simply stays missing; the reload shows that.
        static_cast<void>(makeDeveloperFolder());
        showFolder();
        if (reload)
            reload();
        return;
    case SystemToolID::developerTools:
        if (!tool.isInstalled) {
            const DeveloperToolsItem item = platform.developerToolsItem();
            platform.startDeveloperToolsInstaller([fallback, item](bool started) {
                if (!started && fallback && !item.installLine.isEmpty()) {
                    fallback({trText("The installer could not be started"),
                              trText("Open a terminal yourself and type this line:"), item.installLine});
                }
            });
        }
        return;
    case SystemToolID::homebrew:
    case SystemToolID::node: return; // they come with the setup, not from here
    }
}

} // namespace qf
