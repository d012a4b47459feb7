#pragma once

#include "Cancellation.h"
#include "Errors.h"
#include "LoginEnvironment.h"
#include "ProcessRun.h"

#include <QCoro/QCoroTask>
#include <QObject>
#include <QPointer>
#include <QProcessEnvironment>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace qf {

class Platform;

// Runs one shell command line at a time as a child process, in the user's home folder, with
// the environment of the user's terminal and a search path that also covers Node.js versions
// installed through nvm, ~/.local/bin and both usual Homebrew locations.
//
// The environment comes from the user's login shell, started once (and again after
// `invalidateEnvironment()`): its start-up files are read once, not for every command, and
// whatever they print never reaches an answer. Each command then runs as `zsh -f -c LINE`,
// reading no start-up file, and searches the login shell's search path first, in its order.
// Where that login shell cannot be read (it fails, takes too long or gives no environment),
// every command until the next invalidation is a login shell of its own: the user's shell,
// not interactive, which hands over to `zsh -f -c LINE`, and only what the command itself
// prints is kept. Without a platform to say which shell that is, it is always so, with the
// commands' own shell. A command runs once: a second time only when it provably never
// started, because a start-up file ended or replaced the shell.
//
// Commands never read from a terminal: standard input is the null device and the child runs
// in a session of its own, so a command that would ask a question fails at once instead of
// waiting for an answer nobody sees. Everything runs on the GUI thread without blocking it.
//
// The runner owns every process it starts: when it shuts down (at the latest when it goes),
// every command still running is stopped with its whole process group and its caller resumes
// with ShellError::cancelled, so no process and no waiting coroutine outlives it.
class ShellRunner {
public:
    using OutputHandler = std::function<void(const QString&)>;

    // A command that has not ended after this many seconds is stopped.
    static constexpr double defaultTimeoutSeconds = 600;

    struct Configuration {
        // The shell of every command: zsh, or a shell that takes zsh's "-f" and "-l".
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
        // How long the login shell may take to give its environment before it is stopped and
        // every command becomes a login shell of its own.
        int loginEnvironmentTimeoutMs = 10 * 1000;
    };

    // Where the environment of commands comes from.
    struct EnvironmentState {
        enum class Source {
            notReadYet,           // no command has run yet
            loginShellOnce,       // read once from the login shell
            loginShellPerCommand, // every command is a login shell of its own (until an invalidation)
        };
        Source source = Source::notReadYet;
        // The login shell read (or tried), as a command line: "/bin/zsh -l".
        QString loginShell;
        // The search path it gave, which commands search after their own folders.
        QString path;
        // How long the last reading took.
        double readingMs = 0;
        // Why every command is a login shell of its own.
        QString reason;
    };

    // The shell and the search path of this system.
    static Configuration standardConfiguration(const Platform& platform);

    // With `platform`, commands get the environment of its login shell (loginShellInvocation),
    // read once; without, every command is a login shell of its own.
    explicit ShellRunner(Configuration configuration, const Platform* platform = nullptr);
    ShellRunner(const ShellRunner&) = delete;
    ShellRunner& operator=(const ShellRunner&) = delete;
    ~ShellRunner();

    const Configuration& configuration() const { return m_configuration; }

    // Runs `command` and returns its standard output, trimmed. A non-zero exit gives
    // `commandFailed` with standard output and standard error combined; a command still
    // running after `timeoutSeconds` (0: no limit), or writing more than the output limit, is
    // stopped, with its whole process group. Bytes that are not UTF-8 become U+FFFD.
    QCoro::Task<Result<QString>> run(QString command, double timeoutSeconds = defaultTimeoutSeconds,
                                     Cancellation cancellation = Cancellation());

    // Runs `command` with standard output and error merged, handing the text to `onOutput`
    // as it arrives (on the GUI thread), and returns 0.1 s after the command has ended. When
    // `context` is given, output stops being delivered once it is destroyed. No time limit,
    // but a command that for the inactivity bound neither prints anything nor reads or writes
    // anything (a download that arrives quietly is progress) is stopped, with a message that
    // names `activity` ("The download of node.tar.gz") when given. A failure keeps the end of
    // the output, so that a download's failure can say what happened.
    QCoro::Task<Result<void>> runWithStreaming(QString command, OutputHandler onOutput, QObject* context = nullptr,
                                               QString activity = QString(),
                                               Cancellation cancellation = Cancellation());

    // Where `program` is found on the commands' search path: the path `which <program>` in a
    // command prints (the first executable file of that name in a folder of PATH). Looked up
    // without starting a shell where the commands' environment is known; a name with a slash
    // or none at all is never found.
    QCoro::Task<Result<QString>> findProgram(QString program);

    // The start-up files may have changed (a profile was written, Node.js or Homebrew were
    // installed, the user was away): the next command reads the login shell's environment
    // again. Commands already waiting for a reading keep theirs.
    void invalidateEnvironment();

    // Where the environment of commands comes from, as far as known now.
    const EnvironmentState& environmentState() const { return m_state; }
    // The same, once the environment has been read (reading it now unless it is known).
    QCoro::Task<EnvironmentState> readEnvironment();

    // Stops every command now, each with its whole process group, and waits for them; their
    // callers resume with ShellError::cancelled at once, and every later command is cancelled
    // before it starts. The set of services does this first, while the services that wait
    // for commands are still there.
    void shutDown();

    // The search path the application itself was started with, which a new terminal window
    // starts from too.
    QString inheritedSearchPath() const;

    // The environment the next command gets, as far as known now: the login shell's or, before
    // it was read, the application's own, with PATH extended. As text, for showing it.
    QProcessEnvironment commandEnvironment() const;

    // PATH for a command: nvm's Node.js versions (names in descending text order), then
    // ~/.local/bin, the fixed directories, and last the inherited PATH (the login shell's, or
    // the application's own; if any). Empty elements, which would mean the current folder,
    // are left out.
    static QString searchPath(const QString& home, QStringList nvmVersionNames, const QStringList& fixedDirectories,
                              const std::optional<QString>& inheritedPath);

private:
    class Reading;
    // How a command's shell is started.
    enum class Start {
        withoutStartupFiles, // `-f -c`, with the login shell's environment
        asLoginShell,        // the user's shell as a login shell, handing over to `-f -c`
        bare,                // `-f -c`, with the application's environment
    };

    // The login shell's environment; nothing when every command is a login shell of its own.
    QCoro::Task<std::shared_ptr<const LoginEnvironment>> environment();
    // The variables a command gets.
    EnvironmentVariables commandVariables(const LoginEnvironment* login) const;
    // `settings` (channels, limits, output) with what starts `command`. `startMark`: the file
    // a command run as a login shell of its own creates once its own shell has started.
    ProcessRun::Options processOptions(const QString& command, const LoginEnvironment* login, Start start,
                                       ProcessRun::Options settings, const QString& startMark = QString()) const;
    // Runs `command` as `settings` say: with the login shell's environment when it is known;
    // otherwise as a login shell of its own, and a second time without start-up files only
    // when it provably never started. Only the command's own output is kept or handed on.
    QCoro::Task<ProcessOutcome> execute(QString command, ProcessRun::Options settings, Cancellation cancellation);
    // One process, unless the runner shut down or the command was cancelled.
    QCoro::Task<ProcessOutcome> runProcess(ProcessRun::Options options, Cancellation cancellation);

    Configuration m_configuration;
    const Platform* m_platform;
    // Marks where a login shell's start-up files end and the command's own output begins.
    QByteArray m_marker;
    // The newest environment read, and the generation it belongs to.
    std::shared_ptr<const LoginEnvironment> m_environment;
    quint64 m_environmentGeneration = 0;
    // The generation whose reading failed: commands run as login shells of their own until an
    // invalidation.
    quint64 m_failedGeneration = 0;
    // The reading in flight, if any; its generation says whether it is still current.
    std::shared_ptr<Reading> m_reading;
    // Grows with every invalidation.
    quint64 m_generation = 1;
    EnvironmentState m_state;
    // Every process started, and the waits after streamed commands.
    ProcessRuns m_runs;
};

} // namespace qf
