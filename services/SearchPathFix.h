#pragma once

#include "CLITool.h"
#include "Platform.h"
#include "ShellRunner.h"
#include "SystemDetector.h"

#include <QCoreApplication>
#include <QCoro/QCoroTask>

#include <functional>
#include <optional>

namespace qf {

// Makes sure a new terminal window finds the programs installed for the user in ~/.local/bin:
// asks the user's own shell what it searches and, where ~/.local/bin is missing, adds the
// block that puts it there to the start-up file that shell reads (through ProfileWriter).
class SearchPathFix {
    Q_DECLARE_TR_FUNCTIONS(SearchPathFix)

public:
    using Output = std::function<void(const QString&)>;

    SearchPathFix(ShellRunner& shell, SystemDetector& detector, const Platform& platform);
    SearchPathFix(const SearchPathFix&) = delete;
    SearchPathFix& operator=(const SearchPathFix&) = delete;

    // Whether the shell of a new terminal window has `folder` on its search path.
    QCoro::Task<bool> newTerminalSearches(QString folder, Cancellation cancellation = Cancellation());

    // Adds the block that puts ~/.local/bin on the search path to the shell profile when a new
    // terminal window would not find `tool` there, and says what it did in the log. When a new
    // window still will not find it, the caveat that says what to do comes back. Once
    // `cancellation` is cancelled nothing more is asked or written.
    QCoro::Task<std::optional<QString>> addLocalPrograms(CLITool tool, Output log,
                                                         Cancellation cancellation = Cancellation());

    // The caveat for a tool that a new terminal window will not find.
    static QString terminalCaveat(CLITool tool, const QString& profile, const QString& line);

private:
    ShellRunner& m_shell;
    SystemDetector& m_detector;
    const Platform& m_platform;
};

} // namespace qf
