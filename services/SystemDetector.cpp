#include "SystemDetector.h"

#include "Diagnostics.h"

#include <QDir>
#include <QFileInfo>

namespace qf {

SystemDetector::SystemDetector(ShellRunner& shell, const Platform& platform) : m_shell(shell), m_platform(platform) {}

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
    return {SystemRequirement::diskSpace, mb >= minimumDiskSpaceMB,
            QString::number(mb) + QStringLiteral(" MB available")};
}

QCoro::Task<std::optional<QString>> SystemDetector::getNodeVersion()
{
    const Result<QString> result = co_await m_shell.run(QStringLiteral("node --version"));
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
    const Result<QString> result = co_await m_shell.run(tool.commandName() + QStringLiteral(" --version"));
    if (!result)
        co_return std::nullopt;
    co_return result.value().trimmed();
}

RequirementStatus SystemDetector::checkOperatingSystem() const
{
    const OperatingSystemCheck check = m_platform.checkOperatingSystem();
    return {SystemRequirement::macOSVersion, check.met, check.details};
}

std::optional<qint64> SystemDetector::availableDiskSpaceMB() const
{
    const DiskSpace space = m_platform.availableDiskSpace(QDir::homePath());
    if (!space.error.isEmpty()) {
        printDiagnostic(QStringLiteral("Error getting disk space: ") + space.error);
        return std::nullopt;
    }
    if (!space.bytes)
        return std::nullopt;
    return bytesToMegabytes(*space.bytes);
}

QString SystemDetector::shellProfilePath() const
{
    const QString home = QDir::homePath();
    for (const char* name : {"/.zshrc", "/.bash_profile", "/.bashrc"}) {
        QString candidate = home + QLatin1String(name);
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
