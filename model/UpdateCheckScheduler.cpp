#include "UpdateCheckScheduler.h"

#include <algorithm>
#include <utility>

namespace qf {

UpdateCheckScheduler::UpdateCheckScheduler(Check check, InstalledTools installedTools, QObject* parent)
    : QObject(parent), m_check(std::move(check)), m_installedTools(std::move(installedTools))
{
}

void UpdateCheckScheduler::check(bool force)
{
    if (m_checking) {
        // Asked for while a check runs: asked again, with its answer, once it ends.
        m_forcedCheckWaiting = m_forcedCheckWaiting || force;
        if (force)
            m_status = Status::checking;
        Q_EMIT changed();
        return;
    }
    const std::optional<QList<CLITool>> tools = m_installedTools();
    if (!tools)
        return;
    // The versions belong to the tools found now: a tool no longer there loses its badge.
    m_updates.erase(std::remove_if(m_updates.begin(), m_updates.end(),
                                   [&tools](const ToolUpdateInfo& info) { return !tools->contains(info.tool); }),
                    m_updates.end());
    if (tools->isEmpty()) {
        m_status = Status::none;
        Q_EMIT changed();
        return;
    }
    m_status = force ? Status::checking : Status::none;
    m_checking = true;
    Q_EMIT changed();
    QCoro::connect(m_check(*tools, force), this, [this, force](QList<ToolUpdateInfo> infos) {
        m_checking = false;
        const bool anyUpdate = std::any_of(infos.cbegin(), infos.cend(),
                                           [](const ToolUpdateInfo& info) { return info.updateAvailable(); });
        const bool allKnown = std::all_of(infos.cbegin(), infos.cend(),
                                          [](const ToolUpdateInfo& info) { return info.latestVersion.has_value(); });
        // Only a check someone asked for says that nothing came of it.
        if (!force || anyUpdate)
            m_status = Status::none;
        else if (allKnown)
            m_status = Status::upToDate;
        else
            m_status = Status::couldNotCheck;
        m_updates = std::move(infos);
        Q_EMIT changed();
        if (std::exchange(m_forcedCheckWaiting, false)) {
            check(true);
            return;
        }
        Q_EMIT checked();
    });
}

} // namespace qf
