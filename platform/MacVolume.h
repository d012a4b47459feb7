#pragma once

#include "Platform.h"

#include <optional>

namespace qf {

// Free space on the volume that holds `path` as Finder shows it: the capacity for important
// usage, which counts space the system can purge. Nothing where it cannot be read, and on
// other systems.
std::optional<DiskSpace> importantUsageSpace(const QString& path);

} // namespace qf
