#include "MacVolume.h"

namespace qf {

// Only macOS knows the capacity for important usage.
std::optional<DiskSpace> importantUsageSpace(const QString&) { return std::nullopt; }

} // namespace qf
