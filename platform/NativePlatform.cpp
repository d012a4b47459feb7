#include "PlatformBackends.h"

#include <QtGlobal>

namespace qf {

Platform& nativePlatform()
{
#if defined(Q_OS_MACOS)
    static MacPlatform platform;
#else
    static LinuxPlatform platform;
#endif
    return platform;
}

} // namespace qf
