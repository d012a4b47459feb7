#include "PlatformBackends.h"

namespace qf {

QString LinuxPlatform::name() const { return QStringLiteral("Linux"); }

void LinuxPlatform::configureMainWindow(QWidget*)
{
    // An ordinary decorated window: the window manager draws the title bar and corners.
}

} // namespace qf
