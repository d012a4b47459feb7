#include "PlatformBackends.h"

#include "Diagnostics.h"
#include "LoginShell.h"
#include "ShellQuote.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QSysInfo>
#include <QUrl>

#include <utility>

namespace qf {

namespace {

QMap<QString, QString> readOsRelease()
{
    for (const char* path : {"/etc/os-release", "/usr/lib/os-release"}) {
        QFile file(QString::fromLatin1(path));
        if (file.open(QIODevice::ReadOnly))
            return LinuxPlatform::parseOsRelease(QString::fromUtf8(file.readAll()));
    }
    return {};
}

// Terminal emulators here start bash as an interactive shell that is no login shell, so it
// reads ~/.bashrc; the windows Quillforge opens do the same.
bool startsAsLoginShell(const QString& shell) { return QFileInfo(shell).fileName() != QLatin1String("bash"); }

// Shells that take "-l" only as their one flag.
const QStringList& cshFamilies()
{
    static const QStringList names{QStringLiteral("csh"), QStringLiteral("tcsh")};
    return names;
}

// "~" and "~/..." become paths under `home`, for emulators that take a working directory.
QString expandHome(const QString& directory, const QString& home)
{
    if (directory == QLatin1String("~"))
        return home;
    if (directory.startsWith(QLatin1String("~/")))
        return home + directory.mid(1);
    return directory;
}

// The directory as the shell should see it: a leading "~/" stays outside the quotes so that
// the shell expands it; the rest is quoted.
QString shellDirectory(const QString& directory)
{
    if (directory == QLatin1String("~"))
        return directory;
    if (directory.startsWith(QLatin1String("~/"))) {
        const QString rest = directory.mid(2);
        return rest.isEmpty() ? directory : QStringLiteral("~/") + shellQuote(rest);
    }
    return shellQuote(directory);
}

QString packageLineFor(const QString& distribution)
{
    if (distribution == QLatin1String("debian") || distribution == QLatin1String("ubuntu"))
        return QStringLiteral("sudo apt-get install -y git build-essential");
    if (distribution == QLatin1String("fedora") || distribution == QLatin1String("rhel") ||
        distribution == QLatin1String("centos"))
        return QStringLiteral("sudo dnf install -y git gcc gcc-c++ make");
    if (distribution == QLatin1String("arch"))
        return QStringLiteral("sudo pacman -S --needed git base-devel");
    if (distribution == QLatin1String("suse") || distribution.startsWith(QLatin1String("opensuse")))
        return QStringLiteral("sudo zypper install -y git gcc gcc-c++ make");
    return {};
}

} // namespace

LinuxPlatform::LinuxPlatform(AccountShellReader accountShell)
    : m_accountShell(std::move(accountShell)), m_osRelease(readOsRelease()), m_wording(wordingFor(m_osRelease))
{
}

QString LinuxPlatform::name() const { return QStringLiteral("Linux"); }

const SystemWording& LinuxPlatform::wording() const { return m_wording; }

SystemWording LinuxPlatform::wordingFor(const QMap<QString, QString>& osRelease)
{
    return {
        .osRequirementTitle = translated("SystemRequirement", "64-bit Linux"),
        .osRequirementHelp = translated("SystemRequirement", "Your computer needs to be running a 64-bit Linux "
                                                             "system. Works on both Intel/AMD and ARM processors."),
        .osRequirementFix = translated("SystemRequirement", "Install the 64-bit edition of your Linux distribution"),
        .diskSpaceHelp = translated("SystemRequirement", "The AI assistant and its dependencies need about 1GB of "
                                                         "free space on your computer. This is a one-time "
                                                         "installation."),
        .nodeFixSuggestion = translated("SystemRequirement", "Install manually: download it from %1 (or use your "
                                                             "system's package manager)")
                                 .arg(QLatin1String(kNodeDomain)),
        .toolInstallStep = translated("CLITool", "We'll install the CLI tool on your computer."),
        .gitMissingLog = QStringLiteral("Git not found. Please install Git and the build tools.\n"),
        .gitMissingError = translated("InstallationError", "Git is required but not found. Please install it by "
                                                           "running: %1")
                               .arg(packageInstallLine(osRelease)),
        .developerFolderNote = translated("SystemTool", "Open your file manager to manage this folder"),
        .toolLaunchedTitle = translated("TerminalLaunchedView", "%1 launched in a new terminal window"),
        .switchToTerminal = translated("TerminalLaunchedView", "Switch to the terminal window to start using %1"),
        .nodeTooOldForUpdate = translated("ToolUpdater", "%1 %2 needs Node.js %3 or newer; this computer has %4."),
    };
}

ApplicationLook LinuxPlatform::applicationLook() const
{
    // Inter reads much like the macOS system font; without it the desktop's font is used.
    return {.nativeStyle = false,
            .prefersDark = appearanceFrom(qgetenv("QUILLFORGE_APPEARANCE"), qgetenv("GTK_THEME")),
            .fontFamilies = {QStringLiteral("Inter")}};
}

std::optional<bool> LinuxPlatform::appearanceFrom(const QByteArray& requested, const QByteArray& gtkTheme)
{
    const QByteArray choice = requested.toLower();
    if (choice == "dark")
        return true;
    if (choice == "light")
        return false;
    if (gtkTheme.toLower().contains("dark"))
        return true;
    return std::nullopt;
}

QStringList LinuxPlatform::programDirectories() const
{
    // Homebrew on Linux lives in its own prefix.
    return {QStringLiteral("/usr/local/bin"), QStringLiteral("/home/linuxbrew/.linuxbrew/bin"),
            QStringLiteral("/usr/bin"), QStringLiteral("/bin")};
}

QStringList LinuxPlatform::globalNpmPrograms() const
{
    // Homebrew's npm, a Node.js under /usr/local, and the release Quillforge unpacks into ~/.local.
    return {QStringLiteral("/home/linuxbrew/.linuxbrew/bin/npm"), QStringLiteral("/usr/local/bin/npm"),
            QStringLiteral("~/.local/bin/npm")};
}

WindowFrame LinuxPlatform::mainWindowFrame(const WindowFacts& window) const
{
    return windowFrame(window.reported, window.titleBarHeight);
}

WindowFrame LinuxPlatform::windowFrame(const QMargins& reported, int titleBarHeight)
{
    if (!reported.isNull())
        return {reported, true};
    return {QMargins(0, titleBarHeight, 0, 0), false};
}

OperatingSystemCheck LinuxPlatform::checkOperatingSystem() const
{
    return operatingSystemCheck(m_osRelease, QSysInfo::WordSize == 64);
}

OperatingSystemCheck LinuxPlatform::operatingSystemCheck(const QMap<QString, QString>& osRelease, bool is64Bit)
{
    QString details = osRelease.value(QStringLiteral("PRETTY_NAME"));
    if (details.isEmpty()) {
        details = osRelease.value(QStringLiteral("NAME"));
        const QString version = osRelease.value(QStringLiteral("VERSION_ID"));
        if (!details.isEmpty() && !version.isEmpty())
            details += QLatin1Char(' ') + version;
    }
    if (details.isEmpty())
        details = QStringLiteral("Linux");
    return {is64Bit, details};
}

QMap<QString, QString> LinuxPlatform::parseOsRelease(const QString& text)
{
    QMap<QString, QString> values;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString& rawLine : lines) {
        const QString line = rawLine.trimmed();
        if (line.isEmpty() || line.startsWith(QLatin1Char('#')))
            continue;
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        if (equals <= 0)
            continue;
        const QString key = line.left(equals).trimmed();
        if (key.isEmpty() || key.contains(QLatin1Char(' ')) || key.contains(QLatin1Char('\t')))
            continue;

        // The value follows shell quoting: '...' is literal, "..." resolves backslash escapes,
        // and outside quotes a backslash takes the next character as it is.
        QString value;
        enum class Quote { None, Single, Double } quote = Quote::None;
        const QString raw = line.mid(equals + 1);
        qsizetype trailingBlanks = 0; // unquoted blanks at the end are not part of the value
        for (qsizetype i = 0; i < raw.size(); ++i) {
            const QChar c = raw.at(i);
            switch (quote) {
            case Quote::Single:
                if (c == QLatin1Char('\''))
                    quote = Quote::None;
                else
                    value += c;
                break;
            case Quote::Double:
                if (c == QLatin1Char('"'))
                    quote = Quote::None;
                else if (c == QLatin1Char('\\') && i + 1 < raw.size())
                    value += raw.at(++i);
                else
                    value += c;
                break;
            case Quote::None:
                if (c == QLatin1Char('\'')) {
                    quote = Quote::Single;
                } else if (c == QLatin1Char('"')) {
                    quote = Quote::Double;
                } else if (c == QLatin1Char('\\') && i + 1 < raw.size()) {
                    value += raw.at(++i);
                } else {
                    value += c;
                    trailingBlanks = c.isSpace() ? trailingBlanks + 1 : 0;
                    continue;
                }
                break;
            }
            trailingBlanks = 0;
        }
        value.chop(trailingBlanks);
        values.insert(key, value);
    }
    return values;
}

QString LinuxPlatform::packageInstallLine(const QMap<QString, QString>& osRelease)
{
    QStringList distributions{osRelease.value(QStringLiteral("ID")).toLower()};
    distributions += osRelease.value(QStringLiteral("ID_LIKE")).toLower().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& distribution : distributions) {
        QString line = packageLineFor(distribution);
        if (!line.isEmpty())
            return line;
    }
    return packageLineFor(QStringLiteral("debian"));
}

const QStringList& LinuxPlatform::terminalEmulators()
{
    static const QStringList emulators{
        QStringLiteral("xdg-terminal-exec"), QStringLiteral("x-terminal-emulator"), QStringLiteral("gnome-terminal"),
        QStringLiteral("konsole"),           QStringLiteral("xfce4-terminal"),      QStringLiteral("xterm"),
    };
    return emulators;
}

std::optional<QString> LinuxPlatform::findTerminalEmulator(const QString& searchPath)
{
    const QStringList directories = searchPath.split(QLatin1Char(':'), Qt::SkipEmptyParts);
    // findExecutable searches the process's PATH when given no directories.
    if (directories.isEmpty())
        return std::nullopt;
    for (const QString& emulator : terminalEmulators()) {
        QString path = QStandardPaths::findExecutable(emulator, directories);
        if (!path.isEmpty())
            return path;
    }
    return std::nullopt;
}

QString LinuxPlatform::terminalShellLine(const QString& command, const QString& directory, const QString& shell)
{
    return QStringLiteral("cd ") + shellDirectory(directory) + QStringLiteral(" && ") + command +
           QStringLiteral("; exec ") + shellQuote(shell) +
           (startsAsLoginShell(shell) ? QStringLiteral(" -l") : QString());
}

QStringList LinuxPlatform::shellInvocation(const QString& shell, const QString& line)
{
    // csh and tcsh refuse "-l" beside other flags; without it they still read ~/.cshrc.
    if (cshFamilies().contains(QFileInfo(shell).fileName()))
        return {shell, QStringLiteral("-c"), line};
    if (!startsAsLoginShell(shell))
        return {shell, QStringLiteral("-i"), QStringLiteral("-c"), line};
    return {shell, QStringLiteral("-l"), QStringLiteral("-i"), QStringLiteral("-c"), line};
}

QStringList LinuxPlatform::terminalCommandLine(const QString& emulator, const QString& command,
                                               const QString& directory, const QString& home, const QString& shell)
{
    const QStringList inner = shellInvocation(shell, terminalShellLine(command, directory, shell));
    const QString workingDirectory = expandHome(directory, home);
    const QString kind = QFileInfo(emulator).fileName();

    if (kind == QLatin1String("gnome-terminal"))
        return QStringList{emulator, QStringLiteral("--working-directory=") + workingDirectory, QStringLiteral("--")} +
               inner;
    if (kind == QLatin1String("konsole"))
        return QStringList{emulator, QStringLiteral("--workdir"), workingDirectory, QStringLiteral("-e")} + inner;
    if (kind == QLatin1String("xfce4-terminal"))
        return QStringList{emulator, QStringLiteral("--working-directory=") + workingDirectory, QStringLiteral("-x")} +
               inner;
    if (kind == QLatin1String("xterm"))
        return QStringList{emulator, QStringLiteral("-hold"), QStringLiteral("-e")} + inner;
    if (kind == QLatin1String("xdg-terminal-exec"))
        return QStringList{emulator} + inner;
    // x-terminal-emulator and anything else: the Debian convention of "-e program args...".
    return QStringList{emulator, QStringLiteral("-e")} + inner;
}

void LinuxPlatform::openTerminal(const QString& command, const QString& directory, TerminalOutcome outcome)
{
    const auto report = [&outcome](bool opened) {
        if (outcome)
            outcome(opened ? TerminalAnswer::opened : TerminalAnswer::failed);
    };
    const std::optional<QString> emulator = findTerminalEmulator(qEnvironmentVariable("PATH"));
    if (!emulator) {
        printDiagnostic(QStringLiteral("Terminal error: no terminal emulator found (looked for ") +
                        terminalEmulators().join(QStringLiteral(", ")) + QLatin1Char(')'));
        report(false);
        return;
    }
    const QString home = QDir::homePath();
    const QStringList commandLine = terminalCommandLine(*emulator, command, directory, home, loginShell());

    QProcess process;
    process.setProgram(commandLine.first());
    process.setArguments(commandLine.mid(1));
    process.setWorkingDirectory(home);
    process.setStandardInputFile(QProcess::nullDevice());
    if (!process.startDetached()) {
        QString reason = process.errorString();
        if (reason.isEmpty() || process.error() == QProcess::UnknownError)
            reason = QStringLiteral("could not start ") + *emulator;
        printDiagnostic(QStringLiteral("Terminal error: ") + reason);
        report(false);
        return;
    }
    report(true);
}

QString LinuxPlatform::terminalDescription() const
{
    const std::optional<QString> emulator = findTerminalEmulator(qEnvironmentVariable("PATH"));
    if (!emulator)
        return QStringLiteral("no terminal emulator found");
    return QFileInfo(*emulator).fileName() + QStringLiteral(" (") + *emulator + QLatin1Char(')');
}

DeveloperToolsItem LinuxPlatform::developerToolsItem() const
{
    DeveloperToolsItem item = gitToolsItem();
    item.installLine = packageInstallLine(m_osRelease);
    return item;
}

DeveloperToolsItem LinuxPlatform::gitToolsItem()
{
    return {
        .key = QStringLiteral("git"),
        .name = translated("SystemTool", "Git & Build Tools"),
        .icon = QStringLiteral("hammer"),
        .description = translated("SystemTool", "Provides Git and build tools"),
        .presenceCommand = QStringLiteral("git --version"),
        .versionCommand = QString(), // the presence command's output carries the version
        .versionPrefix = QStringLiteral("git version "),
        .uninstallCommand = std::nullopt,
        .uninstallNote = translated("SystemTool", "Use your system's package manager to remove Git"),
    };
}

QString LinuxPlatform::administratorLine(const QString& command)
{
    // pkexec ends with 126 itself when its dialog is dismissed.
    return QStringLiteral("if command -v pkexec >/dev/null 2>&1; then pkexec /bin/sh -c ") + shellQuote(command) +
           QStringLiteral("; else echo 'This needs administrator rights, and no password dialog (pkexec) was found.' "
                          ">&2; exit 1; fi");
}

void LinuxPlatform::startDeveloperToolsInstaller(TerminalOutcome outcome)
{
    openTerminal(packageInstallLine(m_osRelease), QStringLiteral("~"), std::move(outcome));
}

QStringList LinuxPlatform::terminalShellInvocation(const QString& line) const
{
    return shellInvocation(loginShell(), line);
}

QString LinuxPlatform::loginShell() const { return accountLoginShell(m_accountShell, QStringLiteral("/bin/bash")); }

bool LinuxPlatform::terminalStartsLoginShell() const { return startsAsLoginShell(loginShell()); }

std::optional<NodeReleaseTarget> LinuxPlatform::nodeReleaseTarget() const
{
    return nodeReleaseTargetFor(QSysInfo::currentCpuArchitecture());
}

std::optional<NodeReleaseTarget> LinuxPlatform::nodeReleaseTargetFor(const QString& cpuArchitecture)
{
    if (cpuArchitecture == QLatin1String("x86_64"))
        return NodeReleaseTarget{QStringLiteral("linux-x64"), QStringLiteral("linux-x64")};
    if (cpuArchitecture == QLatin1String("arm64") || cpuArchitecture == QLatin1String("aarch64"))
        return NodeReleaseTarget{QStringLiteral("linux-arm64"), QStringLiteral("linux-arm64")};
    return std::nullopt;
}

QString LinuxPlatform::logFolder() const
{
    return logFolderIn(qEnvironmentVariable("XDG_STATE_HOME"), QDir::homePath());
}

QString LinuxPlatform::logFolderIn(const QString& stateHome, const QString& home)
{
    const QString base = QDir::isAbsolutePath(stateHome) ? stateHome : home + QStringLiteral("/.local/state");
    return QDir::cleanPath(base + QStringLiteral("/quillforge/logs"));
}

QString LinuxPlatform::cacheFolder() const
{
    return cacheFolderIn(qEnvironmentVariable("XDG_CACHE_HOME"), QDir::homePath());
}

QString LinuxPlatform::cacheFolderIn(const QString& cacheHome, const QString& home)
{
    const QString base = QDir::isAbsolutePath(cacheHome) ? cacheHome : home + QStringLiteral("/.cache");
    return QDir::cleanPath(base + QStringLiteral("/quillforge"));
}

QStringList LinuxPlatform::showItemsCommandLine(const QString& path)
{
    // dbus-send splits an array at its commas, so a comma in the path goes in escaped.
    QString uri = QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded);
    uri.replace(QLatin1Char(','), QStringLiteral("%2C"));
    return {QStringLiteral("dbus-send"),
            QStringLiteral("--session"),
            QStringLiteral("--print-reply"),
            QStringLiteral("--dest=org.freedesktop.FileManager1"),
            QStringLiteral("--type=method_call"),
            QStringLiteral("/org/freedesktop/FileManager1"),
            QStringLiteral("org.freedesktop.FileManager1.ShowItems"),
            QStringLiteral("array:string:") + uri,
            QStringLiteral("string:")};
}

void LinuxPlatform::revealFile(const QString& path, const RevealAnswer& answer)
{
    // Without a file manager that answers on the session bus, the folder opens instead. The
    // process owns itself and goes once it has ended or failed to start.
    const QStringList commandLine = showItemsCommandLine(path);
    // Owned by the application too, so one still running when it ends goes with it.
    auto* process = new QProcess(QCoreApplication::instance());
    process->setProgram(commandLine.first());
    process->setArguments(commandLine.mid(1));
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    const QUrl folder = QUrl::fromLocalFile(QFileInfo(path).absolutePath());
    // Said once: the folder was opened instead, or nothing answered at all.
    const auto answered = [folder, answer](bool fileManagerShowedIt) {
        const bool shown = fileManagerShowedIt || QDesktopServices::openUrl(folder);
        if (answer)
            answer(shown);
    };
    QObject::connect(process, &QProcess::errorOccurred, process, [process, answered](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return;
        answered(false);
        process->deleteLater();
    });
    QObject::connect(process, &QProcess::finished, process,
                     [process, answered](int exitCode, QProcess::ExitStatus exitStatus) {
                         answered(exitStatus == QProcess::NormalExit && exitCode == 0);
                         process->deleteLater();
                     });
    process->start();
}

} // namespace qf
