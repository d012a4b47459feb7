#pragma once

#include "CLITool.h"
#include "ToolVersion.h"

#include <QString>

#include <optional>

namespace qf {

// What the dashboard shows for one installed AI tool: its version and the newest published
// one, when known.
struct ToolUpdateInfo {
    CLITool tool;
    // The version the tool reports, as read ("2.1.330"); nothing when it does not start or
    // prints no version.
    std::optional<QString> installedVersion;
    // The newest version published as "latest" on the npm registry; nothing when it is not
    // known (offline, the registry failed, no check yet).
    std::optional<QString> latestVersion;
    // The oldest major version of Node.js the latest version runs on, as its npm package
    // declares it; 0 when unknown or none. It matters only where the tool is updated through
    // npm: Claude Code from its maker's installer brings its own runtime. ToolUpdater refuses
    // an update that needs more than the Node.js found (ServiceError::requiredNodeMajor).
    int requiredNodeMajor = 0;

    // The latest version is known and newer than the installed one (a pre-release comes
    // before its release: see ToolVersion).
    bool updateAvailable() const
    {
        return installedVersion && latestVersion && isNewerVersion(*latestVersion, *installedVersion);
    }
};

} // namespace qf
