#include "SystemTool.h"

#include "CLITool.h"
#include "Platform.h"
#include "ShellRunner.h"

#include <QDir>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

namespace qf {

QString developerFolderPath() { return QDir::homePath() + QStringLiteral("/Developer"); }

QList<SystemTool> systemToolCatalogue()
{
    const DeveloperToolsItem tools = Platform::current().developerToolsItem();
    const QString optionalNote = QCoreApplication::translate("SystemTool", "Only needed for Gemini or Codex");
    const QFileInfo folder(developerFolderPath());
    return {
        SystemTool{tools.id, tools.name, tools.icon, tools.description, false, std::nullopt, tools.uninstallCommand,
                   tools.uninstallNote, 1, false},
        SystemTool{QStringLiteral("developer"), QCoreApplication::translate("SystemTool", "Developer Folder"),
                   QStringLiteral("folder.badge.plus"),
                   QCoreApplication::translate("SystemTool", "Where your projects live"),
                   folder.exists() || folder.isSymLink(), std::nullopt, std::nullopt,
                   QCoreApplication::translate("SystemTool", "Open Finder to manage this folder"), 2, false},
        SystemTool{QStringLiteral("homebrew"), QStringLiteral("Homebrew"), QStringLiteral("mug"), optionalNote, false,
                   std::nullopt,
                   QStringLiteral("/bin/bash -c \"$(curl -fsSL ") + QLatin1String(web::homebrewUninstallScript) +
                       QStringLiteral(")\""),
                   std::nullopt, 3, true},
        SystemTool{QStringLiteral("node"), QStringLiteral("Node.js"), QStringLiteral("server.rack"), optionalNote,
                   false, std::nullopt, QStringLiteral("brew uninstall node"), std::nullopt, 4, true},
    };
}

QCoro::Task<QList<SystemTool>> detectSystemTools(QList<SystemTool> tools)
{
    ShellRunner& shell = ShellRunner::shared();
    const DeveloperToolsItem developerTools = Platform::current().developerToolsItem();
    for (SystemTool& tool : tools) {
        if (tool.id == QLatin1String("developer"))
            continue;  // known when the catalogue was built
        if (tool.id == developerTools.id) {
            const Result<QString> present = co_await shell.run(developerTools.presenceCommand);
            if (!present)
                continue;
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
        } else if (tool.id == QLatin1String("homebrew")) {
            const Result<QString> version = co_await shell.run(QStringLiteral("brew --version"));
            if (!version)
                continue;
            tool.isInstalled = true;
            const QStringList lines = version.value().split(QLatin1Char('\n'));
            if (!lines.isEmpty())
                tool.version = QString(lines.first()).remove(QStringLiteral("Homebrew "));
        } else if (tool.id == QLatin1String("node")) {
            const Result<QString> version = co_await shell.run(QStringLiteral("node --version"));
            if (!version)
                continue;
            tool.isInstalled = true;
            tool.version = version.value();
        }
    }
    co_return tools;
}

void handleSystemToolAction(const SystemTool& tool, const std::function<void()>& reload)
{
    Platform& platform = Platform::current();
    if (tool.id == QLatin1String("developer")) {
        const QString folder = developerFolderPath();
        if (tool.isInstalled) {
            platform.revealFolder(folder);
            return;
        }
        std::error_code ignored;  // a folder that cannot be created simply stays missing
        std::filesystem::create_directories(std::filesystem::path(folder.toStdString()), ignored);
        platform.revealFolder(folder);
        if (reload)
            reload();
        return;
    }
    if (tool.isInstalled)
        return;
    if (tool.id == platform.developerToolsItem().id)
        platform.startDeveloperToolsInstaller();
}

} // namespace qf
