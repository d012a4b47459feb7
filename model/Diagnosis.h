#pragma once

#include <QCoreApplication>
#include <QString>

#include <optional>

namespace qf {

// Why a command failed, as far as its output tells: the causes a person can do something
// about.
enum class FailureCause {
    offline,          // the server's address could not be looked up
    unreachable,      // no connection to the server
    timedOut,         // the connection timed out
    secureConnection, // certificate or proxy trouble
    permissionDenied, // a file or folder may not be changed
    diskFull,
    notFound,   // the package or file is not on the server
    nodeTooOld, // the package needs a newer Node.js
    cutOff,     // the download ended before it was complete
};

// Reads what failed from a command's output: npm's error code first, then the words of curl,
// npm, tar and the system. Nothing when no known cause is named.
std::optional<FailureCause> recogniseFailure(const QString& output);

// One plain sentence: what happened and what to do.
QString failureSentence(FailureCause cause);

// The package that npm's registry said it does not have ("@google/gemini-cli"); empty when
// the output names none.
QString missingNpmPackage(const QString& output);
// The file or folder that npm's error names ("npm ERR! path /usr/local/lib/node_modules"), the
// last one; empty when there is none.
QString npmErrorPath(const QString& output);
// When `output` reads as npm being refused a write (permission denied): the file or folder it
// names, cleaned (empty when it names none); nothing otherwise.
std::optional<QString> npmRefusedPath(const QString& output);

// What a person reads when npm could not write to its own folders, saying what "Try Again"
// will do: use a private npm cache and, when `ownFolder`, install `tool` into ~/.local.
QString npmPermissionRetrySentence(const QString& tool, bool ownFolder);

// The last line of `output` that says something: not blank, not a bare marker such as
// "npm ERR!", not a line of a stack trace. Trimmed; empty when there is none.
QString lastMeaningfulLine(const QString& output);

// The sentence a person reads for a command that failed with `output`: the recognised cause
// (a package the registry does not have by its name), or a general sentence with the last
// meaningful line.
QString plainFailure(const QString& output);

} // namespace qf
