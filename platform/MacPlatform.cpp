#include "PlatformBackends.h"

#include "MacWindowStyle.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QOperatingSystemVersion>
#include <QProcess>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <cstdio>

namespace qf {

namespace {

const QString kOsascript = QStringLiteral("/usr/bin/osascript");
const QString kXcodeSelect = QStringLiteral("/usr/bin/xcode-select");

// The installer dialog needs a moment to appear before System Events can bring it forward.
constexpr int kInstallerFrontDelayMs = 500;

void printAppleScriptError(const QString& text)
{
    const QByteArray line = (QStringLiteral("AppleScript error: ") + text + QLatin1Char('\n')).toUtf8();
    std::fwrite(line.constData(), 1, static_cast<size_t>(line.size()), stdout);
    std::fflush(stdout);
}

// Runs `script` through osascript without waiting for it. The process owns itself: it is
// deleted once it has finished or failed to start, never while it runs. With `reportErrors`
// a failure becomes one "AppleScript error: " line on standard output.
void runAppleScript(const QString& script, bool reportErrors)
{
    auto* process = new QProcess;
    process->setProgram(kOsascript);
    process->setArguments(MacPlatform::osascriptArguments(script));
    process->setStandardInputFile(QProcess::nullDevice());
    // `do script` answers with the new tab's name; nobody reads it.
    process->setStandardOutputFile(QProcess::nullDevice());

    QObject::connect(process, &QProcess::errorOccurred, process, [process, reportErrors](QProcess::ProcessError error) {
        // Every other error is followed by finished(), which reports it.
        if (error != QProcess::FailedToStart)
            return;
        if (reportErrors)
            printAppleScriptError(process->errorString());
        process->deleteLater();
    });
    QObject::connect(process, &QProcess::finished, process,
                     [process, reportErrors](int exitCode, QProcess::ExitStatus exitStatus) {
                         if (reportErrors && (exitStatus != QProcess::NormalExit || exitCode != 0)) {
                             QString message = QString::fromUtf8(process->readAllStandardError()).trimmed();
                             if (message.isEmpty())
                                 message = exitStatus == QProcess::NormalExit
                                               ? QStringLiteral("osascript exited with status %1").arg(exitCode)
                                               : process->errorString();
                             printAppleScriptError(message);
                         }
                         process->deleteLater();
                     });
    process->start();
}

} // namespace

QString MacPlatform::name() const { return QStringLiteral("macOS"); }

void MacPlatform::configureMainWindow(QWidget* window) { applyMacWindowStyle(window); }

OperatingSystemCheck MacPlatform::checkOperatingSystem() const
{
    const QOperatingSystemVersion version = QOperatingSystemVersion::current();
    // Qt answers -1 for a part it does not know.
    return operatingSystemCheck(std::max(0, version.majorVersion()), std::max(0, version.minorVersion()),
                                std::max(0, version.microVersion()));
}

OperatingSystemCheck MacPlatform::operatingSystemCheck(int major, int minor, int patch)
{
    return {major > 13, QStringLiteral("macOS %1.%2.%3").arg(major).arg(minor).arg(patch)};
}

QString MacPlatform::terminalScript(const QString& command, const QString& directory)
{
    // The directory and the command go in as they are: the shell in Terminal expands "~/".
    return QStringLiteral("tell application \"Terminal\"\n    activate\n") +
           QStringLiteral("    do script \"cd ") + directory + QStringLiteral(" && ") + command +
           QStringLiteral("\"\n") + QStringLiteral("end tell");
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

void MacPlatform::openTerminal(const QString& command, const QString& directory)
{
    runAppleScript(terminalScript(command, directory), true);
}

QString MacPlatform::terminalDescription() const { return QStringLiteral("Terminal.app (through AppleScript)"); }

void MacPlatform::revealFolder(const QString& path) { QDesktopServices::openUrl(QUrl::fromLocalFile(path)); }

DeveloperToolsItem MacPlatform::developerToolsItem() const { return commandLineToolsItem(); }

DeveloperToolsItem MacPlatform::commandLineToolsItem()
{
    DeveloperToolsItem item;
    item.id = QStringLiteral("xcode");
    item.name = QStringLiteral("Xcode CLI Tools");
    item.icon = QStringLiteral("hammer");
    item.description = QStringLiteral("Provides Git and build tools");
    item.presenceCommand = QStringLiteral("xcode-select -p");
    item.versionCommand = QStringLiteral("xcodebuild -version 2>/dev/null | head -1");
    item.versionPrefix = QStringLiteral("Xcode ");
    item.uninstallCommand = QStringLiteral("sudo rm -rf /Library/Developer/CommandLineTools");
    item.uninstallNote = std::nullopt;
    return item;
}

void MacPlatform::startDeveloperToolsInstaller()
{
    // The system shows its own installer dialog; a launch failure is not reported.
    QProcess::startDetached(kXcodeSelect, {QStringLiteral("--install")});
    QTimer::singleShot(kInstallerFrontDelayMs, QCoreApplication::instance(),
                       [] { runAppleScript(systemEventsScript(), false); });
}

QString MacPlatform::officialNodeInstallCommand() const { return nodePackageCommand(); }

QString MacPlatform::nodePackageCommand()
{
    const QString version = QLatin1String(kNodeReleaseVersion);
    return QStringLiteral("curl -fsSL https://nodejs.org/dist/v") + version + QStringLiteral("/node-v") + version +
           QStringLiteral(".pkg -o /tmp/node-installer.pkg && sudo installer -pkg /tmp/node-installer.pkg -target / "
                          "&& rm /tmp/node-installer.pkg");
}

} // namespace qf
