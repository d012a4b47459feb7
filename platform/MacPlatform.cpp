#include "PlatformBackends.h"

#include "Diagnostics.h"
#include "LoginShell.h"
#include "MacVolume.h"
#include "ShellQuote.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QOperatingSystemVersion>
#include <QProcess>
#include <QSysInfo>
#include <QTimer>
#include <QUrl>
#include <QVersionNumber>

#include <algorithm>
#include <utility>

namespace qf {

namespace {

const QString kOsascript = QStringLiteral("/usr/bin/osascript");
const QString kXcodeSelect = QStringLiteral("/usr/bin/xcode-select");
const QString kOpen = QStringLiteral("/usr/bin/open");

// The installer dialog needs a moment to appear before System Events can bring it forward.
constexpr int kInstallerFrontDelayMs = 500;

void printAppleScriptError(const QString& text) { printDiagnostic(QStringLiteral("AppleScript error: ") + text); }

// Runs `script` through osascript without waiting for it. The process belongs to `owner` and
// is deleted once it has finished or failed to start. With `reportErrors`
// a failure becomes one "AppleScript error: " line on standard output. `outcome`, when given,
// learns whether the script ran to its end.
#if !defined(Q_OS_MACOS)
// What a program prints, trimmed; empty when it fails.
QString programOutput(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments);
    if (!process.waitForFinished(5000) || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return {};
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}
#endif

// AppleScript's error -1743: the user answered "Don't Allow" when asked whether Quillforge may
// control the other app (or has turned it off since, in System Settings).
bool isAutomationRefusal(const QString& osascriptError) { return osascriptError.contains(QLatin1String("(-1743)")); }

void runAppleScript(QObject* owner, const QString& script, bool reportErrors, const TerminalOutcome& outcome = {})
{
    auto* process = new QProcess(owner);
    process->setProgram(kOsascript);
    process->setArguments(MacPlatform::osascriptArguments(script));
    process->setStandardInputFile(QProcess::nullDevice());
    // `do script` answers with the new tab's name; nobody reads it.
    process->setStandardOutputFile(QProcess::nullDevice());

    QObject::connect(process, &QProcess::errorOccurred, process,
                     [process, reportErrors, outcome](QProcess::ProcessError error) {
                         // Every other error is followed by finished(), which reports it.
                         if (error != QProcess::FailedToStart)
                             return;
                         if (reportErrors)
                             printAppleScriptError(process->errorString());
                         if (outcome)
                             outcome(TerminalAnswer::failed);
                         process->deleteLater();
                     });
    QObject::connect(process, &QProcess::finished, process,
                     [process, reportErrors, outcome](int exitCode, QProcess::ExitStatus exitStatus) {
                         const bool succeeded = exitStatus == QProcess::NormalExit && exitCode == 0;
                         const QString message = QString::fromUtf8(process->readAllStandardError()).trimmed();
                         if (reportErrors && !succeeded) {
                             printAppleScriptError(!message.isEmpty() ? message
                                                   : exitStatus == QProcess::NormalExit
                                                       ? QStringLiteral("osascript exited with status %1").arg(exitCode)
                                                       : process->errorString());
                         }
                         if (outcome)
                             outcome(succeeded                      ? TerminalAnswer::opened
                                     : isAutomationRefusal(message) ? TerminalAnswer::notAllowed
                                                                    : TerminalAnswer::failed);
                         process->deleteLater();
                     });
    process->start();
}

} // namespace

MacPlatform::MacPlatform(AccountShellReader accountShell) : m_accountShell(std::move(accountShell)) {}

MacPlatform::~MacPlatform()
{
    // A script on its way (Terminal opening a window) finishes before the app is gone; each
    // ends within moments, and none is waited for long.
    for (QProcess* script : m_scripts.findChildren<QProcess*>(Qt::FindDirectChildrenOnly))
        script->waitForFinished(2000);
}

QString MacPlatform::name() const { return QStringLiteral("macOS"); }

const SystemWording& MacPlatform::wording() const { return standardWording(); }

const SystemWording& MacPlatform::standardWording()
{
    static const SystemWording wording{
        .osRequirementTitle = translated("SystemRequirement", "macOS 14 or later"),
        .osRequirementHelp = translated("SystemRequirement", "Your Mac needs to be running macOS 14 (Sonoma) or "
                                                             "later. Works on both Intel and Apple Silicon."),
        .osRequirementFix = translated("SystemRequirement", "Update your Mac: Apple Menu \u2192 System Settings "
                                                            "\u2192 General \u2192 Software Update"),
        .diskSpaceHelp = translated("SystemRequirement", "The AI assistant and its dependencies need about 1GB of "
                                                         "free space on your Mac. This is a one-time installation."),
        .nodeFixSuggestion = translated("SystemRequirement",
                                        "Install manually: brew install node (or download from %1)")
                                 .arg(QLatin1String(kNodeDomain)),
        .toolInstallStep = translated("CLITool", "We'll install the CLI tool on your Mac."),
        .gitMissingLog = QStringLiteral("Git not found. Please install Xcode Command Line Tools.\n"),
        .gitMissingError = translated("InstallationError", "Git is required but not found. Please install Xcode "
                                                           "Command Line Tools by running: xcode-select --install"),
        .developerFolderNote = translated("SystemTool", "Open Finder to manage this folder"),
        .toolLaunchedTitle = translated("TerminalLaunchedView", "%1 launched in Terminal"),
        .switchToTerminal = translated("TerminalLaunchedView", "Switch to Terminal.app to start using %1"),
        .nodeTooOldForUpdate = translated("ToolUpdater", "%1 %2 needs Node.js %3 or newer; this Mac has %4."),
        .terminalNotAllowedTitle = translated("TerminalLauncher", "Quillforge is not allowed to control Terminal"),
        .terminalNotAllowedHint = translated("TerminalLauncher",
                                             "To let it open Terminal for you, turn on Terminal under Quillforge in "
                                             "System Settings > Privacy & Security > Automation. Or open Terminal "
                                             "yourself and type this line:"),
    };
    return wording;
}

ApplicationLook MacPlatform::applicationLook() const
{
#if defined(Q_OS_MACOS)
    return {.nativeStyle = true, .prefersDark = {}, .fontFamilies = {}};
#else
    // A simulated Mac has no system look to draw with: the app's own, in the font that reads
    // most like the Mac's, light or dark as its appearance setting (QUILLFORGE_APPEARANCE) says.
    return {.nativeStyle = false,
            .prefersDark = LinuxPlatform::appearanceFrom(qgetenv("QUILLFORGE_APPEARANCE"), QByteArray()),
            .fontFamilies = {QStringLiteral("Inter")}};
#endif
}

WindowFrame MacPlatform::mainWindowFrame(const WindowFacts& window) const
{
    if (window.created)
        return {window.reported, true};
    // Not made yet: a standard title bar, 28 points tall.
    return {QMargins(0, 28, 0, 0), false};
}

OperatingSystemCheck MacPlatform::checkOperatingSystem() const
{
#if defined(Q_OS_MACOS)
    const QOperatingSystemVersion version = QOperatingSystemVersion::current();
    // Qt answers -1 for a part it does not know.
    return operatingSystemCheck(std::max(0, version.majorVersion()), std::max(0, version.minorVersion()),
                                std::max(0, version.microVersion()));
#else
    // A simulated Mac tells its version as a Mac's sw_vers does.
    const QVersionNumber version = QVersionNumber::fromString(
        programOutput(QStringLiteral("/usr/bin/sw_vers"), {QStringLiteral("-productVersion")}));
    return operatingSystemCheck(version.majorVersion(), version.minorVersion(), version.microVersion());
#endif
}

OperatingSystemCheck MacPlatform::operatingSystemCheck(int major, int minor, int patch)
{
    return {major > 13, QStringLiteral("macOS %1.%2.%3").arg(major).arg(minor).arg(patch)};
}

QString MacPlatform::terminalScript(const QString& command, const QString& directory)
{
    // The directory and the command go in as they are: the shell in Terminal expands "~/".
    return QStringLiteral("tell application \"Terminal\"\n    activate\n") + QStringLiteral("    do script \"cd ") +
           directory + QStringLiteral(" && ") + command + QStringLiteral("\"\n") + QStringLiteral("end tell");
}

QString MacPlatform::systemEventsScript()
{
    return QStringLiteral("tell application \"System Events\"\n"
                          "    set frontmost of process \"Install Command Line Developer Tools\" to true\n"
                          "end tell");
}

QStringList MacPlatform::osascriptArguments(const QString& script)
{
    QStringList arguments;
    const QStringList lines = script.split(QLatin1Char('\n'));
    for (const QString& line : lines)
        arguments << QStringLiteral("-e") << line;
    return arguments;
}

void MacPlatform::openTerminal(const QString& command, const QString& directory, TerminalOutcome outcome)
{
    runAppleScript(&m_scripts, terminalScript(command, directory), true, outcome);
}

QString MacPlatform::terminalDescription() const { return QStringLiteral("Terminal.app (through AppleScript)"); }

// Terminal opens every window with a login shell.
bool MacPlatform::terminalStartsLoginShell() const { return true; }

DiskSpace MacPlatform::availableDiskSpace(const QString& path) const
{
    if (const std::optional<DiskSpace> space = importantUsageSpace(path))
        return *space;
    return Platform::availableDiskSpace(path);
}

QStringList MacPlatform::programDirectories() const
{
    // Homebrew's two homes (Intel, Apple Silicon), then the system's own folders.
    return {QStringLiteral("/usr/local/bin"), QStringLiteral("/opt/homebrew/bin"), QStringLiteral("/usr/bin"),
            QStringLiteral("/bin")};
}

QStringList MacPlatform::globalNpmPrograms() const
{
    return {QStringLiteral("/opt/homebrew/bin/npm"), QStringLiteral("/usr/local/bin/npm")};
}

DeveloperToolsItem MacPlatform::developerToolsItem() const { return commandLineToolsItem(); }

DeveloperToolsItem MacPlatform::commandLineToolsItem()
{
    return {
        .key = QStringLiteral("xcode"),
        .name = translated("SystemTool", "Xcode CLI Tools"),
        .icon = QStringLiteral("hammer"),
        .description = translated("SystemTool", "Provides Git and build tools"),
        .presenceCommand = QStringLiteral("xcode-select -p"),
        .versionCommand = QStringLiteral("xcodebuild -version 2>/dev/null | head -1"),
        .versionPrefix = QStringLiteral("Xcode "),
        .uninstallCommand = administratorLine(QStringLiteral("rm -rf /Library/Developer/CommandLineTools")),
        .uninstallNote = std::nullopt,
        .uninstallShownAs = QStringLiteral("rm -rf /Library/Developer/CommandLineTools (as administrator)"),
        .installLine = QStringLiteral("xcode-select --install"),
    };
}

QString MacPlatform::administratorLine(const QString& command)
{
    QString script = command;
    script.replace(QLatin1Char('\\'), QStringLiteral("\\\\")).replace(QLatin1Char('"'), QStringLiteral("\\\""));
    const QString osascript =
        QStringLiteral("osascript -e ") +
        shellQuote(QStringLiteral("do shell script \"") + script + QStringLiteral("\" with administrator privileges"));
    // The dialog's "Cancel" is AppleScript's error -128: no message of osascript's, only the
    // exit code that says so.
    return QStringLiteral("out=$(") + osascript +
           QStringLiteral(" 2>&1); code=$?; case \"$out\" in *\"(-128)\"*) exit %1 ;; esac; "
                          "[ -n \"$out\" ] && printf '%s\\n' \"$out\"; exit $code")
               .arg(kAdministratorDeclined);
}

void MacPlatform::startDeveloperToolsInstaller(TerminalOutcome outcome)
{
    // The system shows its own installer dialog.
    const bool started = QProcess::startDetached(kXcodeSelect, {QStringLiteral("--install")});
    if (outcome)
        outcome(started ? TerminalAnswer::opened : TerminalAnswer::failed);
    QTimer::singleShot(kInstallerFrontDelayMs, &m_scripts,
                       [this] { runAppleScript(&m_scripts, systemEventsScript(), false); });
}

QString MacPlatform::loginShell() const { return accountLoginShell(m_accountShell, QStringLiteral("/bin/zsh")); }

QStringList MacPlatform::terminalShellInvocation(const QString& line) const
{
    // A Terminal window starts the user's shell as an interactive login shell.
    const QString shell = loginShell();
    if (QFileInfo(shell).fileName().endsWith(QLatin1String("csh")))
        return {shell, QStringLiteral("-c"), line};
    return {shell, QStringLiteral("-l"), QStringLiteral("-i"), QStringLiteral("-c"), line};
}

std::optional<NodeReleaseTarget> MacPlatform::nodeReleaseTarget() const
{
#if defined(Q_OS_MACOS)
    return nodeReleaseTargetFor(QSysInfo::currentCpuArchitecture());
#else
    // A simulated Mac tells its processor as a Mac's uname does.
    return nodeReleaseTargetFor(programOutput(QStringLiteral("/usr/bin/uname"), {QStringLiteral("-m")}));
#endif
}

std::optional<NodeReleaseTarget> MacPlatform::nodeReleaseTargetFor(const QString& cpuArchitecture)
{
    if (cpuArchitecture == QLatin1String("arm64"))
        return NodeReleaseTarget{QStringLiteral("darwin-arm64"), QStringLiteral("osx-arm64-tar")};
    if (cpuArchitecture == QLatin1String("x86_64"))
        return NodeReleaseTarget{QStringLiteral("darwin-x64"), QStringLiteral("osx-x64-tar")};
    return std::nullopt;
}

QString MacPlatform::logFolder() const { return logFolderIn(QDir::homePath()); }

QString MacPlatform::logFolderIn(const QString& home) { return home + QStringLiteral("/Library/Logs/Quillforge"); }

QString MacPlatform::cacheFolder() const { return cacheFolderIn(QDir::homePath()); }

QString MacPlatform::cacheFolderIn(const QString& home) { return home + QStringLiteral("/Library/Caches/Quillforge"); }

QStringList MacPlatform::revealCommandLine(const QString& path) { return {kOpen, QStringLiteral("-R"), path}; }

bool MacPlatform::revealFolder(const QString& path)
{
    // Finder opens a window on the folder.
    return QProcess::startDetached(kOpen, {path});
}

void MacPlatform::openURL(const QUrl& url)
{
    if (!QProcess::startDetached(kOpen, {url.toString()}))
        Platform::openURL(url);
}

void MacPlatform::revealFile(const QString& path, const RevealAnswer& answer)
{
    const QStringList commandLine = revealCommandLine(path);
    if (!QProcess::startDetached(commandLine.first(), commandLine.mid(1))) {
        Platform::revealFile(path, answer);
        return;
    }
    if (answer)
        answer(true);
}

} // namespace qf
