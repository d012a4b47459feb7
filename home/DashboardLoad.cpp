#include "DashboardLoad.h"

#include "SystemDetector.h"

namespace qf {

QCoro::Task<DashboardSnapshot> loadDashboard(SystemDetector& detector, ShellRunner& shell, const Platform& platform)
{
    // Every check starts before the first one is awaited.
    QCoro::Task<QList<CLITool>> tools = detector.findInstalledTools();
    QCoro::Task<QList<SystemTool>> items = detectSystemTools(systemToolCatalogue(platform), shell,
                                                             platform.developerToolsItem());

    DashboardSnapshot snapshot;
    snapshot.installedTools = co_await tools;
    snapshot.systemTools = co_await items;
    co_return snapshot;
}

} // namespace qf
