#pragma once

#include <QString>

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

} // namespace qf
