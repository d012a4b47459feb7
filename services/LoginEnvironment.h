#pragma once

#include <QByteArray>
#include <QCoro/QCoroTask>
#include <QList>
#include <QMap>
#include <QString>

#include <memory>
#include <optional>

namespace qf {

class Platform;
class ProcessRuns;

// Environment variables byte for byte, by name: values may hold line breaks, '=' and bytes
// that are not UTF-8.
using EnvironmentVariables = QMap<QByteArray, QByteArray>;

// What the start-up files of the user's login shell make of the application's environment:
// the variables they set or changed and the ones they removed, and the search path they built.
// Commands get the application's environment of the moment with these changes on top, so a
// variable the application sets later (an API key just saved) still reaches them.
struct LoginEnvironment {
    EnvironmentVariables changed;
    QList<QByteArray> removed;
    QByteArray path;

    // `variables` with the changes made: set, changed and removed (PATH is left as it is).
    EnvironmentVariables appliedTo(EnvironmentVariables variables) const;
};

// How one reading of the login shell's environment went.
struct LoginReading {
    std::shared_ptr<const LoginEnvironment> environment; // nothing when it gave none
    QString failure;                                     // and why
    // Its owner stopped it (or it never started): it says nothing about the login shell.
    bool cancelled = false;
    // The login shell read, as a command line: "/bin/zsh -l".
    QString loginShell;
    double milliseconds = 0;
};

namespace loginEnvironment {

// What a reading of the login shell starts from and may take.
struct ReadingOptions {
    // The search path the shell starts with, as a terminal's shell does: the application's.
    QString path;
    QString workingDirectory;
    int timeoutMs = 0;
    int terminationGraceMs = 0;
    qsizetype outputLimitBytes = 0;
};

// Starts the user's login shell (Platform::loginShellInvocation) as a run of `runs`, from the
// application's environment, and reads the environment its start-up files leave.
QCoro::Task<LoginReading> read(ProcessRuns& runs, const Platform& platform, ReadingOptions options);

// Letters no start-up file prints by chance: the markers of a reading and of a command's start.
QByteArray randomToken();

// The application's own environment as it is now.
EnvironmentVariables applicationEnvironment();

// "NAME=value" entries, as a process is given them.
QList<QByteArray> entries(const EnvironmentVariables& variables);

// The variable that names the file the login shell writes its environment into. The file lies
// in a folder only the user can enter, and start-up files that send the shell's own output
// elsewhere (to a session log) cannot send it along.
inline constexpr char kEnvironmentFileVariable[] = "QUILLFORGE_ENVIRONMENT_FILE";

// The line the login shell runs once its start-up files are done: its whole environment,
// NUL-separated, after a marker and ending in a variable of its own, both made from `token`,
// into the file named by kEnvironmentFileVariable. Every shell understands it: sh, bash, zsh,
// fish and csh alike.
QString script(const QByteArray& token);

// The variables the shell wrote after the marker in `output`; nothing when the marker or the
// closing variable is missing or what lies between is not an environment.
std::optional<EnvironmentVariables> parse(const QByteArray& output, const QByteArray& token);

// What the start-up files changed, from the environment the shell was `started` with to the
// one it `printed`. What the shell keeps for itself (its level, the last command, the current
// folder) is left out.
LoginEnvironment difference(const EnvironmentVariables& started, const EnvironmentVariables& printed);

// `front` (the folders a command always searches first) followed by the non-empty elements of
// `tail`, byte for byte: an empty element would mean the current folder.
QByteArray joinSearchPath(const QString& front, const QByteArray& tail);

// The login shell's search path `own` in its own order, as the user's terminal searches it,
// followed by the folders of `fallback` it lacks: a Node.js the user's start-up files put
// first is the one commands find. Empty elements are left out.
QByteArray completeSearchPath(const QByteArray& own, const QString& fallback);

} // namespace loginEnvironment

} // namespace qf
