#pragma once

#include "PlatformBackends.h"

#include <QList>
#include <QPair>

#include <optional>

namespace qf::test {

// A platform that records what the app asked of it and changes nothing on the machine. It
// speaks and looks like a Mac unless a test says otherwise.
class FakePlatform : public Platform {
public:
    QString name() const override { return QStringLiteral("Fake"); }
    const SystemWording& wording() const override { return words; }
    ApplicationLook applicationLook() const override { return look; }
    void configureMainWindow(QWidget*) override { ++windowsConfigured; }
    OperatingSystemCheck checkOperatingSystem() const override { return osCheck; }
    DiskSpace availableDiskSpace(const QString& path) const override
    {
        return diskSpace ? *diskSpace : Platform::availableDiskSpace(path);
    }
    QStringList programDirectories() const override { return directories; }
    QStringList globalNpmPrograms() const override { return npmPrograms; }
    void openTerminal(const QString& command, const QString& directory) override
    {
        terminals.append({command, directory});
    }
    QString terminalDescription() const override { return QStringLiteral("fake terminal"); }
    void revealFolder(const QString& path) override { revealed.append(path); }
    void openURL(const QUrl& url) override { openedURLs.append(url); }
    DeveloperToolsItem developerToolsItem() const override { return developerTools; }
    void startDeveloperToolsInstaller() override { ++installersStarted; }
    QString officialNodeInstallCommand() const override { return nodeInstallCommand; }

    SystemWording words = MacPlatform::standardWording();
    ApplicationLook look;
    OperatingSystemCheck osCheck{true, QStringLiteral("macOS 14.5.0")};
    std::optional<DiskSpace> diskSpace; // nothing: the real free space
    QStringList directories;
    QStringList npmPrograms;
    DeveloperToolsItem developerTools = MacPlatform::commandLineToolsItem();
    QString nodeInstallCommand = QStringLiteral("fake-node-installer");

    int windowsConfigured = 0;
    int installersStarted = 0;
    QList<QPair<QString, QString>> terminals;
    QStringList revealed;
    QList<QUrl> openedURLs;
};

} // namespace qf::test
