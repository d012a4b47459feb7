#include "PlatformBackends.h"

#include <QtGlobal>

namespace qf {

std::unique_ptr<Platform> createNativePlatform()
{
#if defined(QUILLFORGE_SIMULATED_MAC)
    // Debug and test builds run the Mac's backend on Linux, inside scripts/simulated-mac.
    if (qEnvironmentVariable("QUILLFORGE_PLATFORM") == QLatin1String("macos"))
        return std::make_unique<MacPlatform>();
#endif
#if defined(Q_OS_MACOS)
    return std::make_unique<MacPlatform>();
#else
    return std::make_unique<LinuxPlatform>();
#endif
}

} // namespace qf
