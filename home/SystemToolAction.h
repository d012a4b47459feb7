#pragma once

#include "Platform.h"
#include "SystemTool.h"

#include <QString>

#include <functional>

namespace qf {

// What the window shows when an item's action could not run: what happened, what to do, and
// the text to copy for it (the line to type, the folder's path).
struct ActionFallback {
    QString title;
    QString hint;
    QString copyText;
};

// The action of an item's button: the projects folder is created when missing and shown;
// missing developer tools get their installer; everything else does nothing. `reload` runs
// after the folder was created, so the dashboard can show it. When the folder cannot be shown
// or the installer cannot be started, `fallback` (when given) gets what to offer instead.
void handleSystemToolAction(const SystemTool& tool, Platform& platform, const std::function<void()>& reload,
                            const std::function<void(const ActionFallback&)>& fallback = {});

} // namespace qf
