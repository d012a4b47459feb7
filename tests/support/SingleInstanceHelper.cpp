// One launch for the one-window tests: claims the lock in the folder it is given, as the app
// does at start, and prints its role. The first copy then waits to be asked to the front,
// prints "activated" and exits.
//   qf_single_instance_helper <folder>

#include "SingleInstance.h"

#include <QCoreApplication>
#include <QTimer>

#include <cstdio>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    qf::SingleInstance instance(QCoreApplication::arguments().value(1));
    const char* names[] = {"first", "handed-over", "unanswered", "unguarded"};
    const auto role = instance.claim();
    std::printf("%s\n", names[static_cast<int>(role)]);
    std::fflush(stdout);
    if (role != qf::SingleInstance::Role::first)
        return 0;
    QObject::connect(&instance, &qf::SingleInstance::activationRequested, &app, [] {
        std::printf("activated\n");
        std::fflush(stdout);
        QCoreApplication::exit(0);
    });
    // A test that goes wrong must not leave this running.
    QTimer::singleShot(30000, &app, [] { QCoreApplication::exit(3); });
    return app.exec();
}
