#pragma once

#include "CLITool.h"
#include "Errors.h"
#include "Platform.h"
#include "ShellRunner.h"

#include <QCoreApplication>
#include <QCoro/QCoroTask>

#include <functional>

namespace qf {

// Removes an AI tool from every place npm or its maker's installer may have put it. A copy in
// a global npm folder that the user cannot change goes with administrator rights, asked for
// through the system's own password dialog.
class ToolRemover {
    Q_DECLARE_TR_FUNCTIONS(ToolRemover)

public:
    using Output = std::function<void(const QString&)>;

    ToolRemover(ShellRunner& shell, const Platform& platform);
    ToolRemover(const ToolRemover&) = delete;
    ToolRemover& operator=(const ToolRemover&) = delete;

    // What the removal did is told in the log, leftovers included. It fails only when the user
    // cancelled the password dialog, or when the search for the tool afterwards could not run,
    // so that nobody is told a tool is gone without looking. Once `cancellation` is cancelled,
    // the command running stops and nothing more starts: the removal fails with a ServiceError
    // that isCancelled() and says whether the tool is still found.
    QCoro::Task<Result<void>> uninstall(CLITool tool, Output onOutput, Cancellation cancellation = Cancellation());

private:
    QCoro::Task<Result<void>> remove(CLITool tool, Output log, Cancellation cancellation);

    ShellRunner& m_shell;
    const Platform& m_platform;
};

} // namespace qf
