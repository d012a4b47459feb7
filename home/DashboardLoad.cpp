#include "DashboardLoad.h"

#include <vector>

namespace qf {

QCoro::Task<DashboardSnapshot> loadDashboard(ShellRunner& shell, const Platform& platform)
{
    // Every check starts before the first one is awaited.
    std::vector<QCoro::Task<Result<QString>>> lookups;
    for (CLITool tool : CLITool::allCases())
        lookups.push_back(shell.run(QStringLiteral("which ") + tool.commandName()));
    QCoro::Task<QList<SystemTool>> items = detectSystemTools(systemToolCatalogue(platform), shell,
                                                             platform.developerToolsItem());

    DashboardSnapshot snapshot;
    for (size_t i = 0; i < lookups.size(); ++i) {
        const Result<QString> found = co_await lookups[i];
        if (found)
            snapshot.installedTools << CLITool::allCases()[i];
    }
    snapshot.systemTools = co_await items;
    co_return snapshot;
}

} // namespace qf
