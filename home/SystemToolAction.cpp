#include "SystemToolAction.h"

#include "DeveloperFolder.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace qf {

namespace {

struct ActionText {
    Q_DECLARE_TR_FUNCTIONS(SystemToolAction)
};

} // namespace

void handleSystemToolAction(const SystemTool& tool, Platform& platform, const std::function<void()>& reload,
                            const std::function<void(const ActionFallback&)>& fallback)
{
    const auto showFolder = [&platform, &fallback] {
        const QString path = developerFolderPath();
        // Something that is not a folder (a plain file named Developer) is selected in the file
        // manager rather than opened with whatever application handles it.
        const QFileInfo entry(path);
        if (entry.exists() && !entry.isDir()) {
            platform.revealFile(path, {});
            return;
        }
        if (!platform.revealFolder(path) && fallback) {
            fallback({ActionText::tr("The folder could not be shown"),
                      ActionText::tr("No file manager answered. Your projects folder is here:"), path});
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
            platform.startDeveloperToolsInstaller([fallback, item](TerminalAnswer answer) {
                if (answer != TerminalAnswer::opened && fallback && !item.installLine.isEmpty()) {
                    fallback({ActionText::tr("The installer could not be started"),
                              ActionText::tr("Open a terminal yourself and type this line:"), item.installLine});
                }
            });
        }
        return;
    case SystemToolID::homebrew:
    case SystemToolID::node: return; // they come with the setup, not from here
    }
}

} // namespace qf
