#pragma once

#include "PlatformBackends.h"
#include "ShellQuote.h"

#include <QDir>
#include <QFileInfo>
#include <QList>
#include <QPair>

#include <optional>
#include <utility>

namespace qf::test {

// A platform that records what the app asked of it and changes nothing on the machine. It
// speaks and looks like a Mac unless a test says otherwise.
class FakePlatform : public Platform {
public:
    QString name() const override { return QStringLiteral("Fake"); }
    const SystemWording& wording() const override { return words; }
    ApplicationLook applicationLook() const override { return look; }
    WindowStyle mainWindowStyle() const override
    {
        ++windowsShaped;
        return WindowStyle::decorated;
    }
    WindowFrame mainWindowFrame(const WindowFacts& window) const override
    {
        return windowFrame.value_or(WindowFrame{window.reported, true});
    }
    OperatingSystemCheck checkOperatingSystem() const override { return osCheck; }
    DiskSpace availableDiskSpace(const QString& path) const override
    {
        return diskSpace ? *diskSpace : Platform::availableDiskSpace(path);
    }
    QStringList programDirectories() const override { return directories; }
    QStringList globalNpmPrograms() const override { return npmPrograms; }
    void openTerminal(const QString& command, const QString& directory, TerminalOutcome outcome) override
    {
        terminals.append({command, directory});
        if (!outcome)
            return;
        if (holdTerminalOutcomes)
            heldOutcomes.append({std::move(outcome), terminalAnswer()});
        else
            outcome(terminalAnswer());
    }
    // Answers the held launches, oldest first, as a Mac does once osascript has ended.
    void releaseTerminalOutcomes()
    {
        const auto held = std::exchange(heldOutcomes, {});
        for (const auto& [outcome, answer] : held)
            outcome(answer);
    }
    QString terminalDescription() const override { return QStringLiteral("fake terminal"); }
    bool hasApplicationMenu() const override { return applicationMenu; }
    bool hasSheets() const override { return sheets; }
    bool revealFolder(const QString& path) override
    {
        revealed.append(path);
        return fileManagerAnswers;
    }
    void revealFile(const QString& path, const RevealAnswer& answer) override
    {
        revealedFiles.append(path);
        if (answer)
            answer(fileManagerAnswers);
    }
    QString logFolder() const override { return logs; }
    QString cacheFolder() const override { return cache; }
    void openURL(const QUrl& url) override { openedURLs.append(url); }
    DeveloperToolsItem developerToolsItem() const override { return developerTools; }
    void startDeveloperToolsInstaller(TerminalOutcome outcome) override
    {
        ++installersStarted;
        if (outcome)
            outcome(terminalAnswer());
    }
    bool setupIncludesHomebrew() const override { return homebrew; }
    QStringList terminalShellInvocation(const QString& line) const override
    {
        // As the real systems start them: csh and tcsh take "-l" only alone.
        if (terminalShell.endsWith(QLatin1String("csh")))
            return {terminalShell, QStringLiteral("-c"), line};
        if (!loginTerminals)
            return {terminalShell, QStringLiteral("-i"), QStringLiteral("-c"), line};
        return {terminalShell, QStringLiteral("-l"), QStringLiteral("-i"), QStringLiteral("-c"), line};
    }
    QString loginShell() const override { return terminalShell; }
    // As the real systems start it, except that only the start-up files of the test's home are
    // read, never the machine's own (/etc/zprofile, /etc/profile), which would put this
    // machine's programs on the search path: zsh without its global files, and sh and bash
    // reading the first file a login shell of theirs reads, as a login shell would.
    QStringList loginShellInvocation(const QString& line) const override
    {
        // A shell whose start-up files end it before it gets to the line.
        if (loginShellEndsEarly)
            return {terminalShell, QStringLiteral("-c"), QStringLiteral("exit 3")};
        return startedLoginShell(line, true);
    }
    QStringList plainLoginShellInvocation(const QString& line) const override { return startedLoginShell(line, false); }
    bool terminalStartsLoginShell() const override { return loginTerminals; }
    std::optional<NodeReleaseTarget> nodeReleaseTarget() const override { return releaseTarget; }
    // Through the fake `sudo`, which runs the command unless told to refuse.
    QString administratorCommand(const QString& command) const override
    {
        return QStringLiteral("sudo /bin/sh -c ") + shellQuote(command);
    }

    SystemWording words = MacPlatform::standardWording();
    ApplicationLook look;
    OperatingSystemCheck osCheck{true, QStringLiteral("macOS 14.5.0")};
    // Plenty, whatever this machine has left; nothing: the real free space.
    std::optional<DiskSpace> diskSpace = DiskSpace{qint64(50) << 30, QString()};
    QStringList directories;
    QStringList npmPrograms;
    DeveloperToolsItem developerTools = MacPlatform::commandLineToolsItem();
    bool homebrew = true;
    // The frame around the main window; nothing: the one the window system reports.
    std::optional<WindowFrame> windowFrame;
    std::optional<NodeReleaseTarget> releaseTarget = NodeReleaseTarget{QStringLiteral("linux-x64"),
                                                                       QStringLiteral("linux-x64")};
    // The login shell read for the environment ends before it gives one.
    bool loginShellEndsEarly = false;
    // The shell a new terminal window would start.
    QString terminalShell = QStringLiteral("/bin/zsh");
    bool loginTerminals = true;
    // Whether a terminal window opens; whether the answer waits for `releaseTerminalOutcomes`.
    bool terminalOpens = true;
    TerminalAnswer terminalAnswer() const { return terminalOpens ? TerminalAnswer::opened : TerminalAnswer::failed; }
    bool holdTerminalOutcomes = false;
    // Whether "About Quillforge" lives in a menu of the system's, as on macOS.
    bool applicationMenu = false;
    // Whether the system attaches sheets to their window itself, as macOS does.
    bool sheets = false;
    // Where logs are kept: a Mac's folder in the home of the moment, which is a test's own.
    QString logs = MacPlatform::logFolderIn(QDir::homePath());
    // Quillforge's cache, likewise.
    QString cache = MacPlatform::cacheFolderIn(QDir::homePath());

    // How often the app shaped a main window (asked how to shape it).
    mutable int windowsShaped = 0;
    int installersStarted = 0;
    // Whether a file manager shows a folder when asked.
    bool fileManagerAnswers = true;
    QList<QPair<QString, QString>> terminals;
    QList<QPair<TerminalOutcome, TerminalAnswer>> heldOutcomes;
    QStringList revealed;
    QStringList revealedFiles;
    QList<QUrl> openedURLs;

private:
    QStringList startedLoginShell(const QString& line, bool interactive) const
    {
        const QString name = QFileInfo(terminalShell).fileName();
        if (name == QLatin1String("zsh")) {
            QStringList invocation{terminalShell, QStringLiteral("-d"), QStringLiteral("-l")};
            if (interactive)
                invocation << QStringLiteral("-i");
            return invocation << QStringLiteral("-c") << line;
        }
        if (name == QLatin1String("bash") || name == QLatin1String("dash") || name == QLatin1String("sh")) {
            const QString files = name == QLatin1String("bash")
                                      ? QStringLiteral("~/.bash_profile ~/.bash_login ~/.profile")
                                      : QStringLiteral("~/.profile");
            const QString sourced =
                QStringLiteral("for f in %1; do if [ -r \"$f\" ]; then . \"$f\"; break; fi; done; ").arg(files) + line;
            // bash reads no ~/.bashrc of its own here: a login shell leaves that to its profile.
            if (interactive && name == QLatin1String("bash"))
                return {terminalShell, QStringLiteral("--norc"), QStringLiteral("-i"), QStringLiteral("-c"), sourced};
            return {terminalShell, QStringLiteral("-c"), sourced};
        }
        // fish and tcsh read the machine's own files (/etc/fish, /etc/csh.login) with no switch
        // to leave out only those, and they put the machine's folders (where a real npm may
        // live) first: they read the account's files the way the shell would, and no others.
        if (name == QLatin1String("fish")) {
            const QString files = QStringLiteral(
                "for f in ~/.config/fish/conf.d/*.fish ~/.config/fish/config.fish; test -r $f; and source $f; end; ");
            QStringList invocation{terminalShell, QStringLiteral("--no-config")};
            if (interactive)
                invocation << QStringLiteral("-i");
            return invocation << QStringLiteral("-c") << files + line;
        }
        if (name.endsWith(QLatin1String("csh"))) {
            const QString files = QStringLiteral("if ( -r ~/.tcshrc ) source ~/.tcshrc; "
                                                 "if ( ! -r ~/.tcshrc && -r ~/.cshrc ) source ~/.cshrc; ");
            return {terminalShell, QStringLiteral("-f"), QStringLiteral("-c"), files + line};
        }
        return interactive ? Platform::loginShellInvocation(line) : Platform::plainLoginShellInvocation(line);
    }
};

} // namespace qf::test
