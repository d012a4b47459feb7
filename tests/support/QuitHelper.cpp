// An application that quits while a command it started still runs, for the tests that check
// that nothing of the command outlives it. The command ignores TERM and writes the process
// number of a child that does too into <pid-file>.
//   qf_quit_helper running <pid-file>   quits while the command runs
//   qf_quit_helper stopped <pid-file>   quits after the command was stopped for running too
//                                       long, within its grace before KILL

#include "ShellRunner.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTimer>

#include <optional>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3)
        return 2;
    const bool stopped = arguments.at(1) == QLatin1String("stopped");
    const QString& pidFile = arguments.at(2);

    qf::ShellRunner::Configuration configuration;
    configuration.shell = QStringLiteral("/bin/sh");
    configuration.terminationGraceMs = 60000;
    qf::ShellRunner runner(configuration);
    const QString command = QStringLiteral("trap '' TERM; sleep 120 & echo $! > '") + pidFile +
                            QStringLiteral("'; wait");
    std::optional<QCoro::Task<qf::Result<QString>>> timed;
    std::optional<QCoro::Task<qf::Result<void>>> streamed;
    if (stopped)
        timed.emplace(runner.run(command, 0.2));
    else
        streamed.emplace(runner.runWithStreaming(command, {}));

    // Once the child is there (and, for a stopped command, its time is over), quit.
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &app, [&] {
        if (QFile(pidFile).size() > 0)
            QTimer::singleShot(stopped ? 600 : 0, &app, &QCoreApplication::quit);
    });
    poll.setSingleShot(false);
    poll.start(50);
    // A test that goes wrong must not leave this running.
    QTimer::singleShot(30000, &app, [] { QCoreApplication::exit(3); });
    const int status = app.exec();

    // The command, stopped on quit, ends; its run is handed over and goes, as in an
    // application that keeps its objects to the end.
    QElapsedTimer draining;
    draining.start();
    const auto done = [&] { return timed ? timed->isReady() : streamed->isReady(); };
    while (!done() && draining.elapsed() < 5000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return done() ? status : 4;
}
