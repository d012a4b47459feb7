#include "SystemDetector.h"

#include "Platform.h"
#include "ShellRunner.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>

#include <cstdio>

namespace qf {

SystemDetector& SystemDetector::shared()
{
    static SystemDetector detector;
    return detector;
}

NodeCheck SystemDetector::evaluateNodeVersion(const std::optional<QString>& version)
{
    if (!version)
        return {false, std::nullopt, false};
    QString text = *version;
    if (text.startsWith(QLatin1Char('v')))
        text.remove(0, 1);
    const QStringList pieces = text.split(QLatin1Char('.'), Qt::SkipEmptyParts);
    bool parsed = false;
    const int major = pieces.isEmpty() ? 0 : pieces.first().toInt(&parsed, 10);
    return {true, version, parsed && major >= minimumNodeMajorVersion};
}

RequirementStatus SystemDetector::diskSpaceStatus(std::optional<qint64> megabytes)
{
    const qint64 mb = megabytes.value_or(0);
    return {SystemRequirement::diskSpace, mb >= minimumDiskSpaceMB, QString::number(mb) + QStringLiteral(" MB available")};
}

QCoro::Task<std::optional<QString>> SystemDetector::getNodeVersion()
{
    const Result<QString> result = co_await ShellRunner::shared().run(QStringLiteral("node --version"));
    if (!result)
        co_return std::nullopt;
    co_return result.value().trimmed();
}

QCoro::Task<NodeCheck> SystemDetector::checkNodeJS()
{
    const std::optional<QString> version = co_await getNodeVersion();
    co_return evaluateNodeVersion(version);
}

QCoro::Task<std::optional<QString>> SystemDetector::getToolVersion(CLITool tool)
{
    const Result<QString> result =
        co_await ShellRunner::shared().run(tool.commandName() + QStringLiteral(" --version"));
    if (!result)
        co_return std::nullopt;
    co_return result.value().trimmed();
}

RequirementStatus SystemDetector::checkOperatingSystem() const
{
    const OperatingSystemCheck check = Platform::current().checkOperatingSystem();
    return {SystemRequirement::macOSVersion, check.met, check.details};
}

std::optional<qint64> SystemDetector::availableDiskSpaceMB() const
{
    std::optional<qint64> bytes;
    if (m_availableBytes) {
        bytes = m_availableBytes();
    } else {
        const QStorageInfo volume(QDir::homePath());
        if (!volume.isValid() || volume.bytesAvailable() < 0) {
            std::printf("Error getting disk space: no volume information for %s\n", qPrintable(QDir::homePath()));
            std::fflush(stdout);
            return std::nullopt;
        }
        bytes = volume.bytesAvailable();
    }
    if (!bytes)
        return std::nullopt;
    return bytesToMegabytes(*bytes);
}

QString SystemDetector::shellProfilePath() const
{
    const QString home = QDir::homePath();
    for (const char* name : {"/.zshrc", "/.bash_profile", "/.bashrc"}) {
        const QString candidate = home + QLatin1String(name);
        if (QFileInfo(candidate).isFile())
            return candidate;
    }
    return home + QStringLiteral("/.zshrc");
}

QCoro::Task<QList<RequirementStatus>> SystemDetector::checkAllRequirements(CLITool tool)
{
    QList<RequirementStatus> requirements;
    requirements << checkOperatingSystem();
    requirements << diskSpaceStatus(availableDiskSpaceMB());
    if (tool.requiresNodeJS()) {
        const NodeCheck node = co_await checkNodeJS();
        requirements << RequirementStatus{SystemRequirement::nodeJS, node.isInstalled && node.meetsRequirement,
                                          node.version.value_or(QStringLiteral("Not installed"))};
    }
    co_return requirements;
}

} // namespace qf
