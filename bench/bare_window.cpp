// The baseline of the start-up benchmark: an empty Qt window built and shown the way
// Quillforge builds and shows its own, reporting its first painted frame the same way.
#include "Platform.h"
#include "StartupProbe.h"
#include "Theme.h"

#include <QApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Quillforge"));
    QCoreApplication::setApplicationName(QStringLiteral("QuillforgeBareWindow"));
    qf::ui::Theme::applyApplicationLook(app, qf::createNativePlatform()->applicationLook());

    QWidget window;
    window.setMinimumSize(550, 450);
    window.setAutoFillBackground(true);
    window.setBackgroundRole(QPalette::Window);
    if (QScreen* screen = QGuiApplication::primaryScreen())
        window.setGeometry(screen->availableGeometry());
    qf::reportFirstFrameIfRequested(&window);
    window.show();
    return app.exec();
}
