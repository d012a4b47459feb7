#include "Platform.h"

#include "PlatformBackends.h"

namespace qf {

namespace {
Platform* g_override = nullptr;
}

Platform& Platform::current()
{
    if (g_override)
        return *g_override;
    return nativePlatform();
}

void Platform::setCurrent(Platform* platform) { g_override = platform; }

} // namespace qf
