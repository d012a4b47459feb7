#pragma once

#include "Errors.h"
#include "ProcessRun.h"

#include <QCoro/QCoroTask>
#include <QObject>
#include <QProcessEnvironment>
#include <QStringList>

#include <functional>
#include <optional>

namespace qf {

// Runs one shell command line at a time as a child process: `/bin/zsh -l -c LINE`, in the
// user's home folder, with the application's environment and a search path that also covers
// Node.js versions installed through nvm, ~/.local/bin and both usual Homebrew locations.
//
// Commands never read from a terminal: standard input is the null device and the child runs
// in a session of its own, so a command that would ask a question fails at once instead of
// waiting for an answer nobody sees. Everything runs on the GUI thread without blocking it.
class ShellRunner {
public:
    using OutputHandler = std::function<void(const QString&)>;

    // A command that has not ended after this many seconds is stopped.
    static constexpr double defaultTimeoutSeconds = 600;

    struct Configuration {
        QString shell = QStringLiteral("/bin/zsh");
        // The search path's fixed folders, after ~/.local/bin.
        QStringList fixedDirectories;
        // Replaces the application's PATH as the last element (nothing: the real one).
        std::optional<QString> inheritedPath;
        // How long a stopped command gets between TERM and KILL.
        int terminationGraceMs = 3000;
        // `run()` keeps at most this much of each output channel; a command that writes more
        // is stopped.
        qsizetype outputLimitBytes = 16 * 1024 * 1024;
        // A streamed command without output for this long is stopped.
        int streamInactivityMs = 15 * 60 * 1000;
    };

    // The shell and the search path of this system.
    static Configuration standardConfiguration(const Platform& platform);

    explicit ShellRunner(Configuration configuration);
    ShellRunner(const ShellRunner&) = delete;
    ShellRunner& operator=(const ShellRunner&) = delete;

    const Configuration& configuration() const { return m_configuration; }

    // Runs `command` and returns its standard output, trimmed. A non-zero exit gives
    // `commandFailed` with standard output and standard error combined; a command still
    // running after `timeoutSeconds` (0: no limit), or writing more than the output limit, is
    // stopped, with its whole process group. Bytes that are not UTF-8 become U+FFFD.
    QCoro::Task<Result<QString>> run(QString command, double timeoutSeconds = defaultTimeoutSeconds);

    // Runs `command` with standard output and error merged, handing the text to `onOutput`
    // as it arrives (on the GUI thread), and returns 0.1 s after the command has ended. When
    // `context` is given, output stops being delivered once it is destroyed. No time limit,
    // but a command that for the inactivity bound neither prints anything nor reads or writes
    // anything (a download that arrives quietly is progress) is stopped, with a message that
    // names `activity` ("The download of node.tar.gz") when given. A failure keeps the end of
    // the output, so that a download's failure can say what happened.
    QCoro::Task<Result<void>> runWithStreaming(QString command, OutputHandler onOutput, QObject* context = nullptr,
                                               QString activity = QString());

    // The search path the application itself was started with, which a new terminal window
    // starts from too.
    QString inheritedSearchPath() const;

    // The environment a command gets: the application's own, with PATH extended.
    QProcessEnvironment commandEnvironment() const;

    // PATH for a command: nvm's Node.js versions (names in descending text order), then
    // ~/.local/bin, the fixed directories, and last the application's own PATH (if any).
    // Empty elements, which would mean the current folder, are left out.
    static QString searchPath(const QString& home, QStringList nvmVersionNames, const QStringList& fixedDirectories,
                              const std::optional<QString>& inheritedPath);

private:
    ProcessRun::Options processOptions(const QString& command) const;

    Configuration m_configuration;
};

} // namespace qf
