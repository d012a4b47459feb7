#pragma once

#include "CLITool.h"
#include "SystemTool.h"

#include <QCoro/QCoroTask>
#include <QList>

namespace qf {

class SupportTools;
class SystemDetector;

// What the dashboard shows after a load: the AI tools found on the search path, in catalogue
// order, and the supporting items with their presence and versions.
struct DashboardSnapshot {
    QList<CLITool> installedTools;
    QList<SystemTool> systemTools;
};

// Looks for every AI tool and every supporting item. All checks run at the same time; the
// results are exactly those of checking one after another.
QCoro::Task<DashboardSnapshot> loadDashboard(SystemDetector& detector, SupportTools& supportTools);

} // namespace qf
