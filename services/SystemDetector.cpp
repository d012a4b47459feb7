#include "SystemDetector.h"

#include "Diagnostics.h"
#include "GitPresence.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QVersionNumber>

#include <algorithm>
#include <map>
#include <vector>

namespace qf {

SystemDetector::SystemDetector(ShellRunner& shell, const Platform& platform) : m_shell(shell), m_platform(platform) {}

NodeCheck SystemDetector::evaluateNodeVersion(const std::optional<QString>& version, int minimumMajorVersion)
{
    if (!version)
        return {false, std::nullopt, false};
    QString text = *version;
    if (text.startsWith(QLatin1Char('v')))
        text.remove(0, 1);
    const QStringList pieces = text.split(QLatin1Char('.'), Qt::SkipEmptyParts);
    bool parsed = false;
    const int major = pieces.isEmpty() ? 0 : pieces.first().toInt(&parsed, 10);
    return {true, version, parsed && major >= minimumMajorVersion};
}

std::optional<QDate> SystemDetector::nodeEndOfLife(int major)
{
    // Even lines get three years of fixes, odd ones about eight months (nodejs.org's schedule).
    static const std::map<int, QDate> known = {
        {17, QDate(2022, 6, 1)}, {18, QDate(2025, 4, 30)}, {19, QDate(2023, 6, 1)}, {20, QDate(2026, 4, 30)},
        {21, QDate(2024, 6, 1)}, {22, QDate(2027, 4, 30)}, {23, QDate(2025, 6, 1)}, {24, QDate(2028, 4, 30)},
        {25, QDate(2026, 6, 1)}, {26, QDate(2029, 4, 30)},
    };
    if (major <= 16)
        return QDate(2023, 9, 11); // Node.js 16, the last of the older lines to end
    const auto found = known.find(major);
    if (found == known.end())
        return std::nullopt;
    return found->second;
}

RequirementStatus SystemDetector::nodeStatus(const NodeCheck& node, int minimumMajor, const QDate& today)
{
    QString details = node.version.value_or(QCoreApplication::translate("SystemDetector", "Not installed"));
    if (node.isInstalled && !node.meetsRequirement) {
        details =
            QCoreApplication::translate("SystemDetector", "%1 (needs %2 or newer)").arg(details).arg(minimumMajor);
    } else if (node.isInstalled && node.version) {
        const QVersionNumber version =
            QVersionNumber::fromString(node.version->mid(node.version->startsWith(QLatin1Char('v')) ? 1 : 0));
        const std::optional<QDate> end = version.isNull() ? std::nullopt : nodeEndOfLife(version.majorVersion());
        if (end && *end < today)
            details = QCoreApplication::translate("SystemDetector", "%1 \u2013 no longer receives security fixes")
                          .arg(details);
    }
    return {SystemRequirement::nodeJS, node.isInstalled && node.meetsRequirement, details, minimumMajor};
}

QCoro::Task<int> SystemDetector::requiredNodeMajor(CLITool tool)
{
    int required = tool.minimumNodeMajorVersion();
    if (m_published) {
        const int published = co_await m_published(tool);
        required = std::max(required, published);
    }
    co_return required;
}

RequirementStatus SystemDetector::diskSpaceStatus(std::optional<qint64> megabytes)
{
    const qint64 mb = megabytes.value_or(0);
    const bool enough = mb >= minimumDiskSpaceMB;
    // Short of space, the details say by how much.
    return {SystemRequirement::diskSpace, enough,
            enough ? QCoreApplication::translate("SystemDetector", "%1 MB available").arg(mb)
                   : QCoreApplication::translate("SystemDetector", "%1 MB free, %2 MB needed")
                         .arg(mb)
                         .arg(minimumDiskSpaceMB)};
}

QCoro::Task<std::optional<QString>> SystemDetector::getNodeVersion()
{
    const Result<QString> result = co_await m_shell.run(QStringLiteral("node --version"));
    if (!result)
        co_return std::nullopt;
    co_return result.value().trimmed();
}

QCoro::Task<NodeCheck> SystemDetector::checkNodeJS(int minimumMajorVersion)
{
    const std::optional<QString> version = co_await getNodeVersion();
    co_return evaluateNodeVersion(version, minimumMajorVersion);
}

QCoro::Task<QList<NodeInstall>> SystemDetector::findNodeInstalls()
{
    // One line per folder of the search path that holds a node: the folder, a tab, the version.
    const Result<QString> result = co_await m_shell.run(QStringLiteral(
        "printf '%s\\n' \"$PATH\" | tr ':' '\\n' | while IFS= read -r d; do "
        "[ -n \"$d\" ] && [ -x \"$d/node\" ] && printf '%s\\t%s\\n' \"$d\" \"$(\"$d/node\" --version 2>/dev/null)\"; "
        "done; true"));
    QList<NodeInstall> installs;
    if (!result)
        co_return installs;
    const QStringList lines = result.value().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const qsizetype tab = line.indexOf(QLatin1Char('\t'));
        if (tab <= 0)
            continue;
        const NodeInstall install{line.first(tab), line.sliced(tab + 1).trimmed()};
        if (!installs.contains(install))
            installs << install;
    }
    co_return installs;
}

QCoro::Task<std::optional<QString>> SystemDetector::getToolVersion(CLITool tool)
{
    const Result<QString> result = co_await m_shell.run(tool.commandName() + QStringLiteral(" --version"),
                                                        m_versionTimeoutSeconds);
    if (!result)
        co_return std::nullopt;
    co_return result.value().trimmed();
}

QCoro::Task<std::optional<QString>> SystemDetector::findTool(CLITool tool)
{
    const Result<QString> found = co_await m_shell.findProgram(tool.commandName());
    if (!found)
        co_return std::nullopt;
    co_return found.value();
}

QCoro::Task<QList<CLITool>> SystemDetector::findInstalledTools()
{
    // Every search starts before the first one is awaited.
    std::vector<QCoro::Task<std::optional<QString>>> searches;
    for (CLITool tool : CLITool::allCases())
        searches.push_back(findTool(tool));
    QList<CLITool> installed;
    for (size_t i = 0; i < searches.size(); ++i) {
        const std::optional<QString> found = co_await searches[i];
        if (found)
            installed << CLITool::allCases()[i];
    }
    co_return installed;
}

QCoro::Task<ToolCheck> SystemDetector::checkForTool(CLITool tool)
{
    ToolCheck check;
    const std::optional<QString> found = co_await findTool(tool);
    if (found) {
        check.isInstalled = true;
        const std::optional<QString> version = co_await getToolVersion(tool);
        check.version = version;
    } else {
        const QList<RequirementStatus> requirements = co_await checkAllRequirements(tool);
        check.requirements = requirements;
    }
    co_return check;
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

ShellProfile SystemDetector::shellProfile() const
{
    const QString home = QDir::homePath();
    const auto firstFile = [&home](std::initializer_list<const char*> names) -> std::optional<QString> {
        for (const char* name : names) {
            QString candidate = home + QLatin1Char('/') + QLatin1String(name);
            if (QFileInfo(candidate).isFile())
                return candidate;
        }
        return std::nullopt;
    };
    const QString shell = QFileInfo(m_platform.loginShell()).fileName();
    if (shell == QLatin1String("zsh"))
        return {home + QStringLiteral("/.zshrc"), ShellFamily::posix};
    if (shell == QLatin1String("bash")) {
        if (!m_platform.terminalStartsLoginShell())
            return {home + QStringLiteral("/.bashrc"), ShellFamily::posix};
        // A login bash reads only the first of these; a new ~/.bash_profile would hide ~/.profile.
        return {
            firstFile({".bash_profile", ".bash_login", ".profile"}).value_or(home + QStringLiteral("/.bash_profile")),
            ShellFamily::posix};
    }
    if (shell == QLatin1String("fish")) {
        QString config = qEnvironmentVariable("XDG_CONFIG_HOME");
        if (!QDir::isAbsolutePath(config))
            config = home + QStringLiteral("/.config");
        return {config + QStringLiteral("/fish/conf.d/quillforge.fish"), ShellFamily::fish};
    }
    if (shell == QLatin1String("tcsh"))
        return {firstFile({".tcshrc", ".cshrc"}).value_or(home + QStringLiteral("/.tcshrc")), ShellFamily::csh};
    if (shell == QLatin1String("csh"))
        return {home + QStringLiteral("/.cshrc"), ShellFamily::csh};
    return {firstFile({".zshrc", ".bash_profile", ".bashrc"}).value_or(home + QStringLiteral("/.zshrc")),
            ShellFamily::posix};
}

QCoro::Task<QList<RequirementStatus>> SystemDetector::checkAllRequirements(CLITool tool)
{
    QList<RequirementStatus> requirements;
    requirements << checkOperatingSystem();
    requirements << diskSpaceStatus(availableDiskSpaceMB());
    // Every setup needs git; without it the installation would stop at its second step.
    const GitPresence git = co_await findGit(m_shell, m_platform);
    QString gitDetails = QStringLiteral("Not installed");
    if (git.version)
        gitDetails = git.version.value().trimmed();
    else if (git.developerToolsMissing)
        gitDetails =
            QCoreApplication::translate("SystemDetector", "%1 not installed").arg(m_platform.developerToolsItem().name);
    requirements << RequirementStatus{SystemRequirement::git, git.version.ok(), gitDetails};
    if (tool.requiresNodeJS()) {
        const int minimum = co_await requiredNodeMajor(tool);
        const NodeCheck node = co_await checkNodeJS(minimum);
        requirements << nodeStatus(node, minimum);
    }
    co_return requirements;
}

} // namespace qf
