#include "PlatformBackends.h"

#include <QtGlobal>

namespace qf {

std::unique_ptr<Platform> createNativePlatform()
{
#if defined(Q_OS_MACOS)
    return std::make_unique<MacPlatform>();
#else
    return std::make_unique<LinuxPlatform>();
#endif
}

} // namespace qf
