#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace qf {

// Tells Qt the application's name, organisation and version (settings, the about window and
// `--version` read them). Callable before the application object exists.
void describeApplication();

// Answers `--version` and `--help` at once, without a window (and without a display): the exit
// status when the command line asked for one of them, nothing when the window should open.
std::optional<int> answerCommandLine(int argc, char* argv[]);

// What is wrong with the command line of a launch that opens the window (an option Quillforge
// does not know, or a stray argument), with where to look; empty when nothing is. `arguments`
// start with the program, Qt's own options already taken out.
QString commandLineProblem(const QStringList& arguments);

// What a person asked for help reports: "Quillforge 0.1.0 (Qt 6.4.2)".
QString versionDetails();

} // namespace qf
