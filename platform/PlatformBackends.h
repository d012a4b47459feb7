#pragma once

#include "Platform.h"

#include <QCoreApplication>
#include <QMap>
#include <QObject>

namespace qf {

// A backend's wording in the user's language.
inline QString translated(const char* context, const char* text) { return QCoreApplication::translate(context, text); }

// macOS: Terminal and System Events through AppleScript (run by /usr/bin/osascript), the
// Command Line Tools installer, the official Node.js package. The script texts and command
// lines are pure functions so that they are tested on every system.
class MacPlatform : public Platform {
public:
    // The account's shell as `accountShell` reads it; empty: from the user database.
    explicit MacPlatform(AccountShellReader accountShell = {});
    ~MacPlatform() override;
    MacPlatform(const MacPlatform&) = delete;
    MacPlatform& operator=(const MacPlatform&) = delete;

    QString name() const override;
    const SystemWording& wording() const override;
    ApplicationLook applicationLook() const override;
    WindowStyle mainWindowStyle() const override { return WindowStyle::fullSizeContent; }
    // As AppKit frames it: known as soon as the window exists.
    WindowFrame mainWindowFrame(const WindowFacts& window) const override;
    bool hasSheets() const override { return true; }
    bool hasApplicationMenu() const override { return true; }
    OperatingSystemCheck checkOperatingSystem() const override;
    // As Finder shows it, purgeable space included.
    DiskSpace availableDiskSpace(const QString& path) const override;
    QStringList programDirectories() const override;
    QStringList globalNpmPrograms() const override;
    void openTerminal(const QString& command, const QString& directory, TerminalOutcome outcome) override;
    QString terminalDescription() const override;
    DeveloperToolsItem developerToolsItem() const override;
    void startDeveloperToolsInstaller(TerminalOutcome outcome) override;
    bool setupIncludesHomebrew() const override { return true; }
    QStringList terminalShellInvocation(const QString& line) const override;
    // The account's shell, then $SHELL, then zsh (chooseLoginShell): the shell Terminal starts.
    QString loginShell() const override;
    bool terminalStartsLoginShell() const override;
    QString administratorCommand(const QString& command) const override { return administratorLine(command); }
    std::optional<NodeReleaseTarget> nodeReleaseTarget() const override;
    // Finder, with the file selected (`open -R`).
    void revealFile(const QString& path, const RevealAnswer& answer) override;
    // A Finder window on the folder (`open`).
    bool revealFolder(const QString& path) override;
    // The default browser (`open`).
    void openURL(const QUrl& url) override;
    QString logFolder() const override;
    QString cacheFolder() const override;

    // The texts of a Mac: the ones the whole application was designed with.
    static const SystemWording& standardWording();
    // "macOS 14.5.0"-style check for a version triple: met from major version 14 on.
    static OperatingSystemCheck operatingSystemCheck(int major, int minor, int patch);
    // The AppleScript that opens a Terminal window running "cd DIR && COMMAND".
    static QString terminalScript(const QString& command, const QString& directory);
    // The AppleScript that brings the Command Line Tools installer to the front.
    static QString systemEventsScript();
    // osascript's arguments for a script: one -e per line.
    static QStringList osascriptArguments(const QString& script);
    static DeveloperToolsItem commandLineToolsItem();
    // `command` through AppleScript's "with administrator privileges": the system's password
    // dialog; its "Cancel" (error -128) becomes kAdministratorDeclined.
    static QString administratorLine(const QString& command);
    // The archive for a Mac with this processor (as Qt names it: arm64, x86_64).
    static std::optional<NodeReleaseTarget> nodeReleaseTargetFor(const QString& cpuArchitecture);
    // The log folder of the user whose home is `home`: ~/Library/Logs/Quillforge.
    static QString logFolderIn(const QString& home);
    // The cache folder of the user whose home is `home`: ~/Library/Caches/Quillforge.
    static QString cacheFolderIn(const QString& home);
    // The program and arguments that show `path` selected in Finder.
    static QStringList revealCommandLine(const QString& path);

private:
    AccountShellReader m_accountShell;
    // The AppleScripts on their way, which end before the platform does.
    QObject m_scripts;
};

// Linux: the first terminal emulator found on PATH, os-release for the system's name, git and
// the build tools as the developer-tools item, the Node.js release archive.
class LinuxPlatform : public Platform {
public:
    // The account's shell as `accountShell` reads it; empty: from the user database.
    explicit LinuxPlatform(AccountShellReader accountShell = {});

    QString name() const override;
    const SystemWording& wording() const override;
    ApplicationLook applicationLook() const override;
    // An ordinary decorated window: the window manager draws the title bar and corners.
    // The frame: as the window manager reports it once it has framed the window; before that
    // a title bar as tall as the style's.
    WindowFrame mainWindowFrame(const WindowFacts& window) const override;
    OperatingSystemCheck checkOperatingSystem() const override;
    QStringList programDirectories() const override;
    QStringList globalNpmPrograms() const override;
    void openTerminal(const QString& command, const QString& directory, TerminalOutcome outcome) override;
    QString terminalDescription() const override;
    DeveloperToolsItem developerToolsItem() const override;
    void startDeveloperToolsInstaller(TerminalOutcome outcome) override;
    // Homebrew is no part of the setup here: Node.js comes from its release archive (unless a
    // Homebrew the user installed is already there).
    bool setupIncludesHomebrew() const override { return false; }
    QStringList terminalShellInvocation(const QString& line) const override;
    // The account's shell, then $SHELL, then bash (chooseLoginShell): the shell a VTE terminal
    // starts.
    QString loginShell() const override;
    bool terminalStartsLoginShell() const override;
    QString administratorCommand(const QString& command) const override { return administratorLine(command); }
    std::optional<NodeReleaseTarget> nodeReleaseTarget() const override;
    // The file manager's ShowItems over D-Bus (through dbus-send); its folder when that fails.
    void revealFile(const QString& path, const RevealAnswer& answer) override;
    QString logFolder() const override;
    QString cacheFolder() const override;

    // The texts of a Linux system whose os-release says `osRelease`.
    static SystemWording wordingFor(const QMap<QString, QString>& osRelease);
    // The frame the window manager `reported` (none until it has framed the window), or else
    // a title bar `titleBarHeight` tall and nothing on the other sides.
    static WindowFrame windowFrame(const QMargins& reported, int titleBarHeight);
    // Light or dark as asked for by QUILLFORGE_APPEARANCE ("light", "dark") or by a GTK theme
    // whose name says dark; nothing when neither says.
    static std::optional<bool> appearanceFrom(const QByteArray& requested, const QByteArray& gtkTheme);

    // Terminal emulators in the order they are preferred.
    static const QStringList& terminalEmulators();
    // The first emulator (its absolute path) found in the ':'-separated `searchPath`.
    static std::optional<QString> findTerminalEmulator(const QString& searchPath);
    // The argument vector (program first) that opens `emulator` (a name or path) with a
    // login shell that changes to `directory`, runs `command` and then stays open as an
    // interactive shell. `home` expands a leading "~/" where the emulator wants a real path.
    static QStringList terminalCommandLine(const QString& emulator, const QString& command, const QString& directory,
                                           const QString& home, const QString& shell);
    // The shell line run inside the terminal: cd to the directory (quoted, "~/" kept for the
    // shell to expand), run the command, then replace itself by an interactive login shell.
    static QString terminalShellLine(const QString& command, const QString& directory, const QString& shell);
    // The program and arguments that run `line` in the user's login shell `shell`: as an
    // interactive login shell ("-l -i -c", reading what a terminal window's shell reads),
    // except csh and tcsh, which take "-l" only on its own and run it with "-c" (reading
    // ~/.cshrc).
    static QStringList shellInvocation(const QString& shell, const QString& line);

    // KEY=value lines of /etc/os-release, unquoted.
    static QMap<QString, QString> parseOsRelease(const QString& text);
    static OperatingSystemCheck operatingSystemCheck(const QMap<QString, QString>& osRelease, bool is64Bit);
    // The package manager line that installs git and the build tools, by distribution.
    static QString packageInstallLine(const QMap<QString, QString>& osRelease);
    static DeveloperToolsItem gitToolsItem();
    // `command` through pkexec (the desktop's password dialog) when it is there; otherwise a
    // failure that says administrator rights are needed.
    static QString administratorLine(const QString& command);
    // The archive for a Linux system with this processor (as Qt names it: x86_64, arm64, ...).
    static std::optional<NodeReleaseTarget> nodeReleaseTargetFor(const QString& cpuArchitecture);
    // The log folder: "quillforge/logs" in the state folder `stateHome` (XDG_STATE_HOME), or in
    // ~/.local/state when that is unset or not an absolute path.
    static QString logFolderIn(const QString& stateHome, const QString& home);
    // The cache folder: "quillforge" in `cacheHome` (XDG_CACHE_HOME), or in ~/.cache when that
    // is unset or not an absolute path.
    static QString cacheFolderIn(const QString& cacheHome, const QString& home);
    // The dbus-send command line that asks the file manager to show `path` selected.
    static QStringList showItemsCommandLine(const QString& path);

private:
    AccountShellReader m_accountShell;
    QMap<QString, QString> m_osRelease;
    SystemWording m_wording;
};

} // namespace qf
