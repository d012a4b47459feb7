#pragma once

#include "Platform.h"
#include "ShellRunner.h"

#include <QCoro/QCoroTask>
#include <QList>
#include <QString>

#include <functional>
#include <optional>

namespace qf {

// Which supporting item a record describes.
enum class SystemToolID { developerTools, developerFolder, homebrew, node };

// One supporting item of the dashboard: the developer tools, the projects folder, Homebrew
// or Node.js.
struct SystemTool {
    SystemToolID id = SystemToolID::developerTools;
    // The item's stable text key ("xcode", "developer", "homebrew", "node" on macOS), by which
    // the dashboard tells its cards apart.
    QString key;
    QString name;
    QString icon;
    QString description;
    bool isInstalled = false;
    std::optional<QString> version;
    std::optional<QString> uninstallCommand;
    std::optional<QString> uninstallNote;
    // How the removal's log names the command, when not as it is.
    std::optional<QString> uninstallShownAs;
    std::optional<int> stepNumber;
    bool isOptional = false;

    friend bool operator==(const SystemTool&, const SystemTool&) = default;
};

// Where the Node.js that commands find came from.
enum class NodeCopy {
    homebrew,     // Homebrew's
    localRelease, // the release archive unpacked into ~/.local
    other,        // anything else (a system package, nvm, an installer): not Quillforge's to remove
};

// Which copy the node at `path` is (Homebrew's when it is in Homebrew's own bin folder).
QCoro::Task<NodeCopy> nodeCopyAt(const QString& path, ShellRunner& shell);
// The line that removes that copy; nothing for a copy Quillforge did not install.
std::optional<QString> nodeRemovalCommand(NodeCopy copy);

// The items in dashboard order, numbered from 1, with the projects folder's presence already
// known: the developer tools, the projects folder, Homebrew (where it belongs to the setup)
// and Node.js.
QList<SystemTool> systemToolCatalogue(const Platform& platform);

// Fills in presence and version of one item, or of every item (all checked at the same time,
// results in catalogue order). A check that fails leaves its item missing; nothing is
// reported. `developerTools` says how the developer-tools item is detected on this system.
QCoro::Task<SystemTool> detectSystemTool(SystemTool tool, ShellRunner& shell, DeveloperToolsItem developerTools);
QCoro::Task<QList<SystemTool>> detectSystemTools(QList<SystemTool> tools, ShellRunner& shell,
                                                 DeveloperToolsItem developerTools);

// What the window shows when an item's action could not run: what happened, what to do, and
// the text to copy for it (the line to type, the folder's path).
struct ActionFallback {
    QString title;
    QString hint;
    QString copyText;
};

// The action of an item's button: the projects folder is created when missing and shown;
// missing developer tools get their installer; everything else does nothing. `reload` runs
// after the folder was created, so the dashboard can show it. When the folder cannot be shown
// or the installer cannot be started, `fallback` (when given) gets what to offer instead.
void handleSystemToolAction(const SystemTool& tool, Platform& platform, const std::function<void()>& reload,
                            const std::function<void(const ActionFallback&)>& fallback = {});

} // namespace qf
