#pragma once

#include "Platform.h"

#include <QList>
#include <QPair>

namespace qf::test {

// A platform that records what the app asked of it and changes nothing on the machine.
class FakePlatform : public Platform {
public:
    FakePlatform() { Platform::setCurrent(this); }
    ~FakePlatform() override { Platform::setCurrent(nullptr); }

    QString name() const override { return QStringLiteral("Fake"); }
    void configureMainWindow(QWidget*) override { ++windowsConfigured; }
    OperatingSystemCheck checkOperatingSystem() const override { return osCheck; }
    void openTerminal(const QString& command, const QString& directory) override
    {
        terminals.append({command, directory});
    }
    QString terminalDescription() const override { return QStringLiteral("fake terminal"); }
    void revealFolder(const QString& path) override { revealed.append(path); }
    DeveloperToolsItem developerToolsItem() const override { return developerTools; }
    void startDeveloperToolsInstaller() override { ++installersStarted; }
    QString officialNodeInstallCommand() const override { return nodeInstallCommand; }

    OperatingSystemCheck osCheck{true, QStringLiteral("macOS 14.5.0")};
    DeveloperToolsItem developerTools{QStringLiteral("xcode"),
                                      QStringLiteral("Xcode CLI Tools"),
                                      QStringLiteral("hammer"),
                                      QStringLiteral("Provides Git and build tools"),
                                      QStringLiteral("xcode-select -p"),
                                      QStringLiteral("xcodebuild -version 2>/dev/null | head -1"),
                                      QStringLiteral("Xcode "),
                                      QStringLiteral("sudo rm -rf /Library/Developer/CommandLineTools"),
                                      std::nullopt};
    QString nodeInstallCommand = QStringLiteral("fake-node-installer");

    int windowsConfigured = 0;
    int installersStarted = 0;
    QList<QPair<QString, QString>> terminals;
    QStringList revealed;
};

} // namespace qf::test
