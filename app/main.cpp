#include "InstallationState.h"
#include "MainWindow.h"
#include "Services.h"
#include "StartupProbe.h"
#include "Theme.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Quillforge"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("quillforge.app"));
    QCoreApplication::setApplicationName(QStringLiteral("Quillforge"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Quillforge"));
    QGuiApplication::setDesktopFileName(QStringLiteral("app.quillforge.Quillforge"));

    // The one set of services of this run: every screen and controller gets it from here.
    const std::unique_ptr<qf::Platform> platform = qf::createNativePlatform();
    qf::Services services(*platform);
    qf::ui::Theme::applyApplicationLook(app, platform->applicationLook());

    qf::InstallationState state;
    qf::MainWindow window(state, services);
    qf::reportFirstFrameIfRequested(&window);
    window.show();
    return app.exec();
}
