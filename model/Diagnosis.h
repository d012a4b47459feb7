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

// The last line of `output` that says something: not blank, not a bare marker such as
// "npm ERR!", not a line of a stack trace. Trimmed; empty when there is none.
QString lastMeaningfulLine(const QString& output);

// The sentence a person reads for a command that failed with `output`: the recognised cause,
// or a general sentence with the last meaningful line.
QString plainFailure(const QString& output);

} // namespace qf
