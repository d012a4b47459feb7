#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace qf {

// Tells Qt the application's name, organisation and version (settings, the about window and
// `--version` read them). Callable before the application object exists.
void describeApplication();

// Answers the command line before any window (or display) is needed: `--version`, `--help`,
// and an option Quillforge does not know or a stray argument, which get what is wrong and
// where to look. The exit status when it answered, nothing when the window should open (Qt's
// own options, such as "-platform offscreen", are left to it).
std::optional<int> answerCommandLine(int argc, char* argv[]);

// What is wrong with the command line of a launch that opens the window (an option Quillforge
// does not know, or a stray argument), with where to look; empty when nothing is. `arguments`
// start with the program, Qt's own options already taken out.
QString commandLineProblem(const QStringList& arguments);

// What a person asked for help reports: "Quillforge 0.1.0 (Qt 6.4.2)".
QString versionDetails();

} // namespace qf
