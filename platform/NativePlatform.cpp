#include "PlatformBackends.h"

#include <QtGlobal>

#include <utility>

namespace qf {

std::unique_ptr<Platform> createNativePlatform(AccountShellReader accountShell)
{
#if defined(QUILLFORGE_SIMULATED_MAC)
    // Debug and test builds run the Mac's backend on Linux, inside scripts/simulated-mac.
    if (qEnvironmentVariable("QUILLFORGE_PLATFORM") == QLatin1String("macos"))
        return std::make_unique<MacPlatform>(std::move(accountShell));
#endif
#if defined(Q_OS_MACOS)
    return std::make_unique<MacPlatform>(std::move(accountShell));
#else
    return std::make_unique<LinuxPlatform>(std::move(accountShell));
#endif
}

} // namespace qf
