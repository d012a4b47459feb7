#include "PlatformBackends.h"

#include "MacWindowStyle.h"

namespace qf {

QString MacPlatform::name() const { return QStringLiteral("macOS"); }

void MacPlatform::configureMainWindow(QWidget* window) { applyMacWindowStyle(window); }

} // namespace qf
