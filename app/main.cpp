#include "CommandLine.h"
#include "Diagnostics.h"
#include "InstallationState.h"
#include "Language.h"
#include "MainWindow.h"
#include "Services.h"
#include "SingleInstance.h"
#include "StagedInstall.h"
#include "StartupProbe.h"
#include "Theme.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QIcon>
#include <QThreadPool>

#include <cstdio>

int main(int argc, char* argv[])
{
    // `--version` and `--help` are answered without a window, and without a display.
    if (const std::optional<int> status = qf::answerCommandLine(argc, argv))
        return *status;

    qf::describeApplication();
    QApplication app(argc, argv);
    if (const QString problem = qf::commandLineProblem(QCoreApplication::arguments()); !problem.isEmpty()) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(problem));
        return 1;
    }
    // In the user's language where Quillforge has it; what the command line answers stays English.
    qf::language::install(app);

    // One window per user: a second launch brings the first one to the front instead.
    qf::SingleInstance instance(qf::SingleInstance::defaultDirectory());
    switch (instance.claim()) {
    case qf::SingleInstance::Role::handedOver: return 0;
    case qf::SingleInstance::Role::unanswered:
        std::fprintf(stderr, "Quillforge is already running but does not answer. Quit it and open Quillforge again.\n");
        return 1;
    case qf::SingleInstance::Role::first: {
        // The only copy: what an earlier one stopped half-way left behind goes, off the window's thread.
        const qint64 started = QDateTime::currentSecsSinceEpoch();
        QThreadPool::globalInstance()->start([started] {
            const QStringList removed = qf::stagedInstall::removeLeftovers(QDir::homePath() + QStringLiteral("/.local"),
                                                                           QDir::tempPath(), started);
            for (const QString& path : removed)
                qf::printDiagnostic(QStringLiteral("Removed what an earlier run left: ") + path);
        });
        break;
    }
    case qf::SingleInstance::Role::unguarded: break;
    }

    // The one set of services of this run: every screen and controller gets it from here.
    const std::unique_ptr<qf::Platform> platform = qf::createNativePlatform();
    qf::Services services(*platform);
    qf::ui::Theme::applyApplicationLook(app, platform->applicationLook());

    qf::InstallationState state;
    // The window appears first; its screen is built right after, in time for its entrance.
    qf::MainWindow window(state, services, {}, nullptr, qf::ContentView::FirstScreen::afterFirstFrame);
    QObject::connect(&instance, &qf::SingleInstance::activationRequested, &window,
                     [&window] { window.bringToFront(); });
    // The icon is drawn from the logo, with the SVG icon engine: nothing the first frame shows.
    qf::afterFirstFrame(&window,
                        [] { QApplication::setWindowIcon(QIcon(QStringLiteral(":/images/QuillforgeLogo.svg"))); });
    qf::reportFirstFrameIfRequested(&window, [&window] { return window.contentView()->currentScreen(); });
    window.show();
    return app.exec();
}
