#pragma once

#include "CLITool.h"
#include "ToolUpdateInfo.h"

#include <QCoro/QCoroTask>
#include <QList>
#include <QObject>

#include <functional>
#include <optional>

namespace qf {

// When the dashboard asks whether the installed AI tools have newer versions, and what the
// newest answer was. A quiet check (after each load) shows only what it found; a forced one
// ("Check for Updates") asks the registry even when it was asked today, and says so when
// nothing newer is found. One check runs at a time: asked for while one runs, a forced check
// runs once that one has ended, and a quiet one is not needed.
class UpdateCheckScheduler : public QObject {
    Q_OBJECT

public:
    // What a check of the installed versions and the newest published ones does
    // (UpdateChecker::check): `force` asks the registry even when it was asked today.
    using Check = std::function<QCoro::Task<QList<ToolUpdateInfo>>(QList<CLITool> tools, bool force)>;
    // The installed AI tools; nothing while they are being looked for, when no check starts.
    using InstalledTools = std::function<std::optional<QList<CLITool>>()>;
    // What the newest forced check has to say when it shows no update.
    enum class Status { none, checking, upToDate, couldNotCheck };

    UpdateCheckScheduler(Check check, InstalledTools installedTools, QObject* parent = nullptr);

    // Asks whether the installed AI tools have newer versions (see the class).
    void check(bool force);
    bool isChecking() const { return m_checking; }
    // What the newest check found, for the tools installed when it began.
    const QList<ToolUpdateInfo>& updates() const { return m_updates; }
    Status status() const { return m_status; }

Q_SIGNALS:
    // Whether a check runs, what it found or its status changed.
    void changed();
    // The newest check's answer is in, and no forced check waits for its turn.
    void checked();

private:
    Check m_check;
    InstalledTools m_installedTools;
    QList<ToolUpdateInfo> m_updates;
    Status m_status = Status::none;
    bool m_checking = false;
    // A forced check was asked for while a check ran.
    bool m_forcedCheckWaiting = false;
};

} // namespace qf
