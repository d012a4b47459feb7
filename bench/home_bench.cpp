// Dashboard benchmark: how long the Home dashboard takes to find out what is installed, how
// often that reads the user's start-up files, and how much memory the app holds with the
// dashboard on screen.
//
//   qf_home_bench [runs]     (default: 20)
//
// 1. Load: from `loadData()` to the lists shown (the dashboard's own signal), with the real
//    login shell (zsh, as on a Mac) and fake tools (the test fixtures) in a temporary HOME,
//    the start-up files read afresh for every load (as after "Get Started" or a return to the
//    window). Next to it: the same seven commands run as raw `zsh -l -c` processes one after
//    another, each waited for, and one `zsh -l -c true` of that home. Interleaved, the order
//    rotating; medians. Twice: with an empty ~/.zprofile (aim: at most 0.8x the raw sequential
//    time) and with one that burns 150 ms of CPU, as version managers and conda do (aim: at
//    most 1.3x one login shell). The start-up reads of each load are counted.
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

// This system's platform for an account whose shell is zsh, as on a Mac, with the Mac's
// developer tools to detect.
class BenchPlatform : public LinuxPlatform {
public:
    BenchPlatform() : LinuxPlatform([] { return QStringLiteral("/bin/zsh"); }) {}
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

// How many times the start-up file was read so far.
int startupReads(const QString& home)
{
    QFile file(home + QStringLiteral("/startup-reads"));
    return file.open(QIODevice::ReadOnly) ? static_cast<int>(file.readAll().count('\n')) : 0;
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
    const double elapsed = timer.nsecsElapsed() / 1.0e6;
    // The quiet check for updates that follows every load is not part of it, and must not run
    // into the next one.
    if (view.isCheckingForUpdates()) {
        QEventLoop checked;
        QObject::connect(&view, &HomeView::updatesChecked, &checked, &QEventLoop::quit);
        checked.exec();
    }
    return elapsed;
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

struct Scenario {
    const char* name;
    QByteArray zprofile;
    // The aim: at most this times the raw sequential spawns, or else one login shell.
    double aim;
    bool againstOneLoginShell;
};

// One scenario: cold loads of the dashboard next to the raw spawns, interleaved.
void measure(const Scenario& scenario, HomeView& view, Services& services, const QString& home,
             const QStringList& commands, const QProcessEnvironment& environment, int runs)
{
    QFile profile(home + QStringLiteral("/.zprofile"));
    if (!profile.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return;
    profile.write("echo read >> \"$HOME/startup-reads\"\n" + scenario.zprofile);
    profile.close();
    const QString shell = services.runner.configuration().shell;
    const QStringList alone{QStringLiteral("true")};

    // Warm-up of every side.
    services.runner.invalidateEnvironment();
    loadOnce(view);
    runSequentially(shell, commands, environment);
    runSequentially(shell, alone, environment);

    std::vector<double> cold, warm, sequential, single;
    int reads = 0;
    for (int i = 0; i < runs; ++i) {
        for (int turn = 0; turn < 4; ++turn) {
            switch ((turn + i) % 4) {
            case 0: {
                // As after "Get Started" or a return to the window: the start-up files afresh.
                services.runner.invalidateEnvironment();
                const int before = startupReads(home);
                cold.push_back(loadOnce(view));
                reads += startupReads(home) - before;
                break;
            }
            case 1: warm.push_back(loadOnce(view)); break;
            case 2: sequential.push_back(runSequentially(shell, commands, environment)); break;
            case 3: single.push_back(runSequentially(shell, alone, environment)); break;
            default: break;
            }
        }
    }
    const double base = scenario.againstOneLoginShell ? median(single) : median(sequential);
    const double ratio = base > 0 ? median(cold) / base : 0;
    const ShellRunner::EnvironmentState state = services.runner.environmentState();
    std::printf("\n%s\n", scenario.name);
    std::printf("  dashboard load, start-up files read afresh  median %7.1f ms  min %7.1f ms\n", median(cold),
                minimum(cold));
    std::printf("  dashboard load, environment already read    median %7.1f ms  min %7.1f ms\n", median(warm),
                minimum(warm));
    std::printf("  one zsh -l -c true                          median %7.1f ms  min %7.1f ms\n", median(single),
                minimum(single));
    std::printf("  %lld raw sequential zsh -l -c spawns          median %7.1f ms  min %7.1f ms\n",
                static_cast<long long>(commands.size()), median(sequential), minimum(sequential));
    std::printf("  start-up reads per load: %.2f (%s; last reading %.1f ms)\n", runs > 0 ? double(reads) / runs : 0.0,
                state.source == ShellRunner::EnvironmentState::Source::loginShellOnce ? "read once"
                                                                                      : "a login shell per command",
                state.readingMs);
    std::printf("  load / %s: %.2fx   aim: at most %.2fx   %s\n",
                scenario.againstOneLoginShell ? "one login shell" : "raw sequential spawns", ratio, scenario.aim,
                ratio <= scenario.aim ? "MET" : "NOT MET");
}

} // namespace

int main(int argc, char* argv[])
{
    // A home of its own, with the fake tools where the runner looks (~/.local/bin), for an
    // account whose shell is zsh, as on a Mac.
    QTemporaryDir home;
    if (!home.isValid() || !installFixtures(home.filePath(QStringLiteral(".local/bin")))) {
        std::printf("cannot prepare a temporary home\n");
        return 1;
    }
    QDir().mkpath(home.filePath(QStringLiteral("state")));
    qputenv("HOME", home.path().toUtf8());
    qputenv("FAKE_STATE", home.filePath(QStringLiteral("state")).toUtf8());
    qputenv("SHELL", "/bin/zsh");

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
    loadOnce(view); // the first load, on appearing

    // The raw spawns get what every command got before the login shell was read once.
    const QStringList commands = loadCommands(platform);
    const QProcessEnvironment environment = ShellRunner(services.runner.configuration()).commandEnvironment();
    std::printf("platform: %s, %d runs each, %lld commands per load (%s)\n",
                qPrintable(QGuiApplication::platformName()), runs, static_cast<long long>(commands.size()),
                qPrintable(commands.join(QStringLiteral("; "))));

    // The busy loop stands for version managers and the like: 150 ms of work on every read.
    const Scenario scenarios[] = {
        {"Empty ~/.zprofile", QByteArray(), 0.8, false},
        {"~/.zprofile burning 150 ms of CPU",
         "zmodload zsh/datetime\ntypeset -F quillforge_end=$(( EPOCHREALTIME + 0.15 ))\n"
         "while (( EPOCHREALTIME < quillforge_end )); do :; done\nunset quillforge_end\n",
         1.3, true},
    };
    for (const Scenario& scenario : scenarios)
        measure(scenario, view, services, home.path(), commands, environment, runs);
    std::printf("\nfound: %lld AI tools, %lld supporting items shown\n",
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
