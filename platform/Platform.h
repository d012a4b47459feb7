#pragma once

#include <QString>
#include <QStringList>

#include <optional>

class QWidget;

namespace qf {

// Whether the operating system is new enough, and how to describe it ("macOS 14.5.0",
// "Debian GNU/Linux 12 (bookworm)").
struct OperatingSystemCheck {
    bool met = false;
    QString details;
};

// The dashboard's developer-tools item: on macOS the Xcode Command Line Tools, on Linux git
// and the build tools. Presence is the success of `presenceCommand`; the version is the
// output of `versionCommand` (or of the presence command when that is empty) with every
// occurrence of `versionPrefix` removed.
struct DeveloperToolsItem {
    QString id = QStringLiteral("xcode");
    QString name;
    QString icon;
    QString description;
    QString presenceCommand;
    QString versionCommand;
    QString versionPrefix;
    std::optional<QString> uninstallCommand;
    std::optional<QString> uninstallNote;
};

// The only place that knows which operating system Quillforge runs on. One backend is
// chosen at start; tests put in a fake.
class Platform {
public:
    virtual ~Platform() = default;

    static Platform& current();
    // Replaces the backend (tests); nullptr returns to the one for this system.
    static void setCurrent(Platform* platform);

    virtual QString name() const = 0;

    // Shapes the main window once it is on screen: on macOS a hidden title bar with the
    // content reaching the top edge and rounded content; elsewhere an ordinary window.
    virtual void configureMainWindow(QWidget* window) = 0;

    virtual OperatingSystemCheck checkOperatingSystem() const = 0;

    // Brings a terminal to the front with one new window that changes to `directory` (a
    // leading "~/" is expanded by the shell there) and runs `command`. Failures are reported
    // as one diagnostic line on standard output and nowhere else.
    virtual void openTerminal(const QString& command, const QString& directory) = 0;
    // Which terminal `openTerminal` would use, in words (for the support probe).
    virtual QString terminalDescription() const = 0;

    // Shows a folder to the user in the file manager.
    virtual void revealFolder(const QString& path) = 0;

    virtual DeveloperToolsItem developerToolsItem() const = 0;
    // Starts the system's installer for the developer tools; errors are swallowed.
    virtual void startDeveloperToolsInstaller() = 0;

    // The shell line that installs the fixed Node.js release without Homebrew.
    virtual QString officialNodeInstallCommand() const = 0;
};

// The Node.js release installed when Homebrew is not there.
inline constexpr auto kNodeReleaseVersion = "20.10.0";

} // namespace qf
