#pragma once

#include <QMargins>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

namespace qf {

// Whether the operating system is new enough, and how to describe it ("macOS 14.5.0",
// "Debian GNU/Linux 12 (bookworm)").
struct OperatingSystemCheck {
    bool met = false;
    QString details;
};

// The texts that name the system, its tools or its file manager. Everything else the app says
// is the same on every system; these are what a user of this system reads instead.
struct SystemWording {
    // The system check's operating-system requirement: its title, its help and how to fix it.
    QString osRequirementTitle;
    QString osRequirementHelp;
    QString osRequirementFix;
    // Help of the disk-space requirement.
    QString diskSpaceHelp;
    // How to fix a missing Node.js by hand.
    QString nodeFixSuggestion;
    // The account step that says where the tool will be installed.
    QString toolInstallStep;
    // git is missing: the installer's log line (with its line break) and the error shown.
    QString gitMissingLog;
    QString gitMissingError;
    // Why the projects folder is not removed from the dashboard.
    QString developerFolderNote;
    // The terminal screen: its title and the line under it, "%1" standing for the tool's name.
    QString toolLaunchedTitle;
    QString switchToTerminal;
    // An update needs a newer Node.js than the one found: "%1 %2 needs Node.js %3 or newer;
    // this Mac has %4." (the tool, its new version, the major version needed, the one found).
    QString nodeTooOldForUpdate;
    // The system refused to let Quillforge open a terminal window: what happened, and where the
    // user allows it (empty where the system never refuses).
    QString terminalNotAllowedTitle;
    QString terminalNotAllowedHint;
};

// The dashboard's developer-tools item: on macOS the Xcode Command Line Tools, on Linux git
// and the build tools. Presence is the success of `presenceCommand`; the version is the
// output of `versionCommand` (or of the presence command when that is empty) with every
// occurrence of `versionPrefix` removed.
struct DeveloperToolsItem {
    QString key; // the item's stable text key ("xcode" on macOS)
    QString name;
    QString icon;
    QString description;
    QString presenceCommand;
    QString versionCommand;
    QString versionPrefix;
    std::optional<QString> uninstallCommand;
    std::optional<QString> uninstallNote;
    // How the removal's log names the command, when the line itself would only confuse.
    std::optional<QString> uninstallShownAs;
    // The line a user can type to install them, when the installer cannot be started.
    QString installLine;
};

// How the application looks on this system.
struct ApplicationLook {
    // The system draws controls, colours and fonts itself; otherwise the app brings its own.
    bool nativeStyle = true;
    // Light or dark when the user or the desktop says so; nothing: decide from the palette.
    std::optional<bool> prefersDark;
    // Families tried first for ordinary text, before the desktop's own font.
    QStringList fontFamilies;
};

// The frame the window system draws around a window: its title bar and borders.
struct WindowFrame {
    QMargins margins;
    // Whether the window system has said so; otherwise it is the frame this system's windows
    // usually get, until the window has been framed.
    bool reported = false;

    friend bool operator==(const WindowFrame&, const WindowFrame&) = default;
};

// What the window system says of the main window at a moment, as the widgets read it
// (`ui::windowFacts`).
struct WindowFacts {
    // Whether the window exists in the window system yet.
    bool created = false;
    // The frame it reports: none until the window is on screen and framed (none at all for a
    // window without a frame).
    QMargins reported;
    // How tall the widget style draws a title bar.
    int titleBarHeight = 0;
};

// How the main window is shaped; the widgets apply it (`ui::shapeMainWindow`).
enum class WindowStyle {
    // An ordinary window: the window manager draws the title bar and the corners.
    decorated,
    // A hidden title bar with the content reaching the top edge, and rounded content (macOS).
    fullSizeContent,
};

// Free space on a volume, or why it could not be read.
struct DiskSpace {
    std::optional<qint64> bytes;
    QString error;
};

// Which official Node.js release archive fits this computer.
struct NodeReleaseTarget {
    QString platform; // in the archive's name: "darwin-arm64", "linux-x64"
    QString indexKey; // in the release index's list of files: "osx-arm64-tar", "linux-x64"

    friend bool operator==(const NodeReleaseTarget&, const NodeReleaseTarget&) = default;
};

// What became of a terminal launch.
enum class TerminalAnswer {
    opened,
    // No window could be opened; the reason went to standard output.
    failed,
    // The user told the system that Quillforge may not control the terminal (macOS asks once,
    // for Terminal and for System Events); no window opens until they allow it in the
    // system's settings.
    notAllowed,
};

// Told once what became of a terminal launch.
using TerminalOutcome = std::function<void(TerminalAnswer)>;
// Whether a file manager showed what it was asked to (false: nothing did, so the path should
// be shown some other way).
using RevealAnswer = std::function<void(bool shown)>;

// The only place that knows which operating system Quillforge runs on: the application makes
// one at start (`createNativePlatform()`) and hands it on; tests use a fake.
class Platform {
public:
    virtual ~Platform() = default;

    virtual QString name() const = 0;
    virtual const SystemWording& wording() const = 0;
    virtual ApplicationLook applicationLook() const = 0;

    // How the main window is shaped once it is on screen: on macOS a hidden title bar with the
    // content reaching the top edge and rounded content; elsewhere an ordinary window.
    virtual WindowStyle mainWindowStyle() const { return WindowStyle::decorated; }
    // The frame around the main window, given what the window system says of it now, which
    // its first size leaves room for so that the whole window fits the usable area of the
    // screen.
    virtual WindowFrame mainWindowFrame(const WindowFacts& window) const = 0;
    // Whether the system has sheets of its own: a window-modal dialog that the system attaches
    // to its window and moves with it, as macOS does. Elsewhere the widgets keep a window-modal
    // dialog centred over the main window themselves (`ui::attachSheet`).
    virtual bool hasSheets() const { return false; }
    // Whether the system shows the application's own menu (with "About Quillforge") outside the
    // window, as macOS does; elsewhere the window offers the about information itself.
    virtual bool hasApplicationMenu() const { return false; }

    virtual OperatingSystemCheck checkOperatingSystem() const = 0;
    // Free space on the volume that holds `path`.
    virtual DiskSpace availableDiskSpace(const QString& path) const;

    // The fixed folders of a command's search path, after ~/.local/bin: where this system's
    // package managers put programs, then the system's own folders.
    virtual QStringList programDirectories() const = 0;
    // Every npm whose global packages the removal of an AI tool tries, in order.
    virtual QStringList globalNpmPrograms() const = 0;

    // Brings a terminal to the front with one new window that changes to `directory` (a
    // leading "~/" is expanded by the shell there) and runs `command`. A failure is one
    // diagnostic line on standard output; `outcome` (when given) learns whether a window
    // opened, right away or once the system has answered.
    virtual void openTerminal(const QString& command, const QString& directory, TerminalOutcome outcome) = 0;
    // Which terminal `openTerminal` would use, in words (for the support probe).
    virtual QString terminalDescription() const = 0;
    // The program and arguments with which the shell of a new terminal window would run
    // `line`: the user's shell, started as the terminal starts it, so that it reads the same
    // start-up files.
    virtual QStringList terminalShellInvocation(const QString& line) const = 0;
    // The user's shell: the one a new terminal window starts, which is the account's shell in
    // the user database rather than $SHELL (see chooseLoginShell).
    virtual QString loginShell() const = 0;
    // The program and arguments that run `line` in the user's shell started as a login shell,
    // without a terminal, so that it reads the start-up files that give a terminal its
    // environment: "-l -i -c" for zsh, bash and fish (interactive, as a terminal's shell is),
    // "-l -c" for other shells, except csh and tcsh, which take "-l" only alone and run it
    // with "-c" (reading ~/.cshrc or ~/.tcshrc).
    virtual QStringList loginShellInvocation(const QString& line) const;
    // The program and arguments that run `line` in the user's shell started as a login shell
    // that is not interactive: "-l -c", and "-c" for csh and tcsh. What an interactive shell
    // reads besides (a ~/.bashrc that starts tmux, a prompt theme) stays out.
    virtual QStringList plainLoginShellInvocation(const QString& line) const;
    // Whether a new terminal window starts it as a login shell (bash then reads
    // ~/.bash_profile instead of ~/.bashrc).
    virtual bool terminalStartsLoginShell() const = 0;

    // Shows a folder to the user in the file manager; false when none could be asked to.
    virtual bool revealFolder(const QString& path);
    // Shows a file to the user in the file manager, selected where the file manager can do
    // that; otherwise its folder. `answer` (when given) learns whether anything showed it,
    // possibly later, on the GUI thread.
    virtual void revealFile(const QString& path, const RevealAnswer& answer);
    // Where the whole logs of installations and removals are kept (the folder may not exist
    // yet): on macOS ~/Library/Logs/Quillforge, elsewhere under the user's state folder.
    virtual QString logFolder() const = 0;
    // Quillforge's own cache folder, for what may be thrown away at any time (the folder may not
    // exist yet): on macOS ~/Library/Caches/Quillforge, elsewhere under the user's cache folder.
    virtual QString cacheFolder() const = 0;
    // Opens a web page in the user's browser.
    virtual void openURL(const QUrl& url);

    virtual DeveloperToolsItem developerToolsItem() const = 0;
    // Whether Homebrew belongs to this system's setup (it brings Node.js on macOS); where it
    // does not, the dashboard does not list it.
    virtual bool setupIncludesHomebrew() const = 0;
    // Starts the system's installer for the developer tools; errors are swallowed.
    // `outcome` (when given) learns whether the installer could be started.
    virtual void startDeveloperToolsInstaller(TerminalOutcome outcome = {}) = 0;

    // A shell line that runs `command` with administrator rights, asking for them through the
    // system's own password dialog. When the user cancels the dialog the line ends with
    // `kAdministratorDeclined`; where no such dialog exists it fails with a message.
    virtual QString administratorCommand(const QString& command) const = 0;

    // The official Node.js archive for this computer's system and processor; nothing when
    // nodejs.org publishes none for it.
    virtual std::optional<NodeReleaseTarget> nodeReleaseTarget() const = 0;
};

// Where a backend learns the shell that the user database records for the account: empty
// for the user database itself; a test may answer instead.
using AccountShellReader = std::function<QString()>;

// The backend for the system this binary was built for.
std::unique_ptr<Platform> createNativePlatform(AccountShellReader accountShell = {});

// The exit code of an administrator command whose password dialog was cancelled.
inline constexpr int kAdministratorDeclined = 126;

// Where Node.js releases come from when Homebrew is not there: the release index, each
// release's folder with its archives and checksum list.
inline constexpr auto kNodeDistribution = "https://nodejs.org/dist";
inline constexpr auto kNodeDomain = "nodejs.org";

} // namespace qf
