// Dashboard benchmark: how long the Home dashboard takes to find out what is installed, and
// how much memory the app holds with the dashboard on screen.
//
//   qf_home_bench [runs]     (default: 20)
//
// 1. Load: from `loadData()` to the lists shown (the dashboard's own signal), with the real
//    login shell and fake tools (the test fixtures) in a temporary HOME, next to the same
//    commands run as raw `zsh -l -c` processes one after another, each waited for. Interleaved,
//    the order alternating; medians. Aim: at most 0.6x the raw sequential time.
// 2. Memory: resident memory of this process with the loaded dashboard shown in a window of
//    the size of the screen. Aim: under 60 MB.
//
// The developer-tools item is the macOS one (a presence and a version command), so the load
// runs seven commands as on a Mac: three "which", the Command Line Tools pair, Homebrew, Node.js.
#include "BenchStats.h"
#include "HomeView.h"
#include "InstallationState.h"
#include "PlatformBackends.h"
#include "ProcessMemory.h"
#include "Services.h"
#include "Theme.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

using qf::bench::median;
using qf::bench::minimum;

using namespace qf;

// This system's platform, with the Mac's developer tools to detect.
class BenchPlatform : public LinuxPlatform {
public:
    DeveloperToolsItem developerToolsItem() const override { return MacPlatform::commandLineToolsItem(); }
};

// The load's commands, as the dashboard composes them.
QStringList loadCommands(const Platform& platform)
{
    QStringList commands;
    for (CLITool tool : CLITool::allCases())
        commands << QStringLiteral("which ") + tool.commandName();
    const DeveloperToolsItem tools = platform.developerToolsItem();
    commands << tools.presenceCommand << tools.versionCommand << QStringLiteral("brew --version")
             << QStringLiteral("node --version");
    return commands;
}

// The commands one after another, each a `zsh -l -c` started and waited for here.
double runSequentially(const QString& shell, const QStringList& commands, const QProcessEnvironment& environment)
{
    QElapsedTimer timer;
    timer.start();
    for (const QString& command : commands) {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setStandardInputFile(QProcess::nullDevice());
        process.start(shell, {QStringLiteral("-l"), QStringLiteral("-c"), command});
        process.waitForFinished(-1);
    }
    return timer.nsecsElapsed() / 1.0e6;
}

// One load of the dashboard, from `loadData()` to its results on screen.
double loadOnce(HomeView& view)
{
    QEventLoop loop;
    const auto connection = QObject::connect(&view, &HomeView::loadFinished, &loop, &QEventLoop::quit);
    QElapsedTimer timer;
    timer.start();
    view.loadData();
    if (view.isLoading())
        loop.exec();
    QObject::disconnect(connection);
    return timer.nsecsElapsed() / 1.0e6;
}

bool installFixtures(const QString& bin)
{
    QDir().mkpath(bin);
    for (const char* name : {"claude", "gemini", "codex", "xcode-select", "xcodebuild", "brew", "node"}) {
        const QString target = bin + QLatin1Char('/') + QLatin1String(name);
        if (!QFile::copy(QStringLiteral(QUILLFORGE_FIXTURES_DIR "/") + QLatin1String(name), target))
            return false;
        QFile::setPermissions(target, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    }
    return true;
}

} // namespace

int main(int argc, char* argv[])
{
    // A home of its own, with the fake tools where the runner looks (~/.local/bin).
    QTemporaryDir home;
    if (!home.isValid() || !installFixtures(home.filePath(QStringLiteral(".local/bin")))) {
        std::printf("cannot prepare a temporary home\n");
        return 1;
    }
    QDir().mkpath(home.filePath(QStringLiteral("state")));
    qputenv("HOME", home.path().toUtf8());
    qputenv("FAKE_STATE", home.filePath(QStringLiteral("state")).toUtf8());

    QApplication app(argc, argv);
    const int runs = argc > 1 ? std::max(1, QString::fromLocal8Bit(argv[1]).toInt()) : 20;
    BenchPlatform platform;
    ui::Theme::applyApplicationLook(app, platform.applicationLook());
    Services services(platform);
    InstallationState state;

    HomeView view(state, services);
    if (QScreen* screen = QGuiApplication::primaryScreen())
        view.resize(screen->availableGeometry().size());
    view.show();
    loadOnce(view);             // the first load, on appearing
    for (int i = 0; i < 2; ++i) // warm-up of both sides
        loadOnce(view);

    const QStringList commands = loadCommands(platform);
    const QProcessEnvironment environment = services.runner.commandEnvironment();
    runSequentially(services.runner.configuration().shell, commands, environment);

    std::vector<double> dashboard, sequential;
    for (int i = 0; i < runs; ++i) {
        const bool dashboardFirst = i % 2 == 0;
        if (dashboardFirst)
            dashboard.push_back(loadOnce(view));
        sequential.push_back(runSequentially(services.runner.configuration().shell, commands, environment));
        if (!dashboardFirst)
            dashboard.push_back(loadOnce(view));
    }
    const double ratio = median(sequential) > 0 ? median(dashboard) / median(sequential) : 0;
    std::printf("platform: %s, %d runs each, %lld commands per load (%s)\n",
                qPrintable(QGuiApplication::platformName()), runs, static_cast<long long>(commands.size()),
                qPrintable(commands.join(QStringLiteral("; "))));
    std::printf("dashboard load (loadData -> lists shown)  median %7.1f ms  min %7.1f ms\n", median(dashboard),
                *std::min_element(dashboard.begin(), dashboard.end()));
    std::printf("raw sequential zsh -l -c spawns           median %7.1f ms  min %7.1f ms\n", median(sequential),
                *std::min_element(sequential.begin(), sequential.end()));
    std::printf("ratio %.2fx   aim: at most 0.60x   %s\n", ratio, ratio <= 0.60 ? "MET" : "NOT MET");
    std::printf("found: %lld AI tools, %lld supporting items shown\n",
                static_cast<long long>(view.installedTools().size()),
                static_cast<long long>(view.systemTools().size()));

    // Memory with the loaded dashboard on screen, after it has painted.
    QTimer::singleShot(200, &app, &QCoreApplication::quit);
    app.exec();
    const double rssMB = residentMemoryKB() / 1024.0;
    std::printf("resident memory with the dashboard shown: %.1f MB   aim: under 60 MB   %s\n", rssMB,
                rssMB < 60 ? "MET" : "NOT MET");
    return 0;
}
