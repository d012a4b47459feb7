#include "InstallationState.h"
#include "MainWindow.h"
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
    qf::ui::Theme::applyApplicationLook(app);

    qf::InstallationState state;
    qf::MainWindow window(state);
    qf::reportFirstFrameIfRequested(&window);
    window.show();
    return app.exec();
}
