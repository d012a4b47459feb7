#include "Motion.h"
#include "Preferences.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QStandardPaths>
#include <QTemporaryDir>

// Every test program runs against a home of its own: nothing a test does can reach the real
// home, the real preferences or a real display.
int main(int argc, char** argv)
{
    QTemporaryDir sandbox(QDir::tempPath() + QStringLiteral("/quillforge-test-XXXXXX"));
    if (!sandbox.isValid())
        return 2;
    const QString home = sandbox.filePath(QStringLiteral("home"));
    QDir().mkpath(home);
    for (const char* sub : {".config", ".local/share", ".local/state", ".cache", "runtime"})
        QDir().mkpath(home + QLatin1Char('/') + QLatin1String(sub));
    QFile::setPermissions(home + QStringLiteral("/runtime"),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    qputenv("HOME", home.toUtf8());
    qputenv("XDG_CONFIG_HOME", (home + QStringLiteral("/.config")).toUtf8());
    qputenv("XDG_DATA_HOME", (home + QStringLiteral("/.local/share")).toUtf8());
    qputenv("XDG_CACHE_HOME", (home + QStringLiteral("/.cache")).toUtf8());
    qputenv("XDG_STATE_HOME", (home + QStringLiteral("/.local/state")).toUtf8());
    qputenv("XDG_RUNTIME_DIR", (home + QStringLiteral("/runtime")).toUtf8());
    qputenv("QT_QPA_PLATFORM", "offscreen");

    QApplication app(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("QuillforgeTests"));
    QCoreApplication::setApplicationName(QStringLiteral("QuillforgeTests"));
    qf::Preferences::useFile(sandbox.filePath(QStringLiteral("preferences.ini")));
    qf::ui::motion::setEnabled(false);

    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
