#include "DashboardLoad.h"

#include "SupportTools.h"
#include "SystemDetector.h"

namespace qf {

QCoro::Task<DashboardSnapshot> loadDashboard(SystemDetector& detector, SupportTools& supportTools)
{
    // Both start before the first one is awaited.
    QCoro::Task<QList<CLITool>> tools = detector.findInstalledTools();
    QCoro::Task<QList<SystemTool>> items = supportTools.detectAll();

    DashboardSnapshot snapshot;
    snapshot.installedTools = co_await tools;
    snapshot.systemTools = co_await items;
    co_return snapshot;
}

} // namespace qf
