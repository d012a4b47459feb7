// The baseline of the start-up benchmark: an empty Qt window built and shown the way
// Quillforge builds and shows its own, reporting its first painted frame the same way. With
// --text it shows one line in the design's font: a window with any text pays for the font
// database's first use (on Linux, fontconfig reading its configuration and every font), which
// an empty window never does.
#include "Platform.h"
#include "StartupProbe.h"
#include "Theme.h"

#include <QApplication>
#include <QGuiApplication>
#include <QLabel>
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
    if (argc > 1 && QLatin1String(argv[1]) == QLatin1String("--text")) {
        auto* line = new QLabel(QStringLiteral("Welcome to Quillforge"), &window);
        line->setFont(qf::ui::Theme::font(28, QFont::Bold));
        line->move(40, 40);
    }
    qf::reportFirstFrameIfRequested(&window);
    window.show();
    return app.exec();
}
