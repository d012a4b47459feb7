#include "UpdateChecker.h"

#include "SharedResult.h"

#include "Diagnosis.h"
#include "Diagnostics.h"
#include "Preferences.h"
#include "ShellQuote.h"
#include "ToolVersion.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include <coroutine>
#include <vector>

namespace qf {

namespace {

// What a failed command said, on one line: the last line that says something.
QString failureReason(const ServiceError& error)
{
    const ShellError* shell = error.shellError();
    const QString said = shell && shell->kind() == ShellError::commandFailed ? lastMeaningfulLine(shell->output())
                                                                             : error.errorDescription();
    return said.isEmpty() ? error.errorDescription().simplified() : said.simplified();
}

void reportFailure(CLITool tool, const QString& reason)
{
    printDiagnostic(QStringLiteral("Update check for %1 failed: %2").arg(tool.displayName(), reason));
}

// A check stopped because the application goes says nothing about the registry.
void reportFailure(CLITool tool, const ServiceError& error)
{
    const ShellError* shell = error.shellError();
    if (!shell || shell->kind() != ShellError::cancelled)
        reportFailure(tool, failureReason(error));
}

} // namespace

// One check of the registry for one tool, with the callers waiting for its answer.
class UpdateChecker::Lookup : public SharedResult<std::optional<PublishedVersion>> {};

UpdateChecker::UpdateChecker(ShellRunner& shell, SystemDetector& detector)
    : m_shell(shell), m_detector(detector), m_clock([] { return QDateTime::currentDateTimeUtc(); })
{
}

UpdateChecker::~UpdateChecker() = default;

QCoro::Task<QList<ToolUpdateInfo>> UpdateChecker::check(QList<CLITool> installedTools, bool force)
{
    // Every tool's check starts before the first one is awaited.
    std::vector<QCoro::Task<ToolUpdateInfo>> checks;
    checks.reserve(static_cast<size_t>(installedTools.size()));
    for (CLITool tool : std::as_const(installedTools))
        checks.push_back(checkOne(tool, force));
    QList<ToolUpdateInfo> infos;
    for (QCoro::Task<ToolUpdateInfo>& one : checks) {
        ToolUpdateInfo info = co_await one;
        infos << info;
    }
    co_return infos;
}

QCoro::Task<ToolUpdateInfo> UpdateChecker::checkOne(CLITool tool, bool force)
{
    QCoro::Task<std::optional<QString>> installing = installedVersion(tool);
    QCoro::Task<std::optional<PublishedVersion>> publishing = latestVersion(tool, force);
    const std::optional<QString> installed = co_await installing;
    const std::optional<PublishedVersion> published = co_await publishing;
    ToolUpdateInfo info{tool, installed, std::nullopt, 0};
    if (published) {
        info.latestVersion = published->version;
        info.requiredNodeMajor = published->requiredNodeMajor;
    }
    co_return info;
}

QCoro::Task<std::optional<QString>> UpdateChecker::installedVersion(CLITool tool)
{
    const std::optional<QString> printed = co_await m_detector.getToolVersion(tool);
    if (!printed)
        co_return std::nullopt;
    const std::optional<ToolVersion> version = readToolVersion(*printed);
    if (!version)
        co_return std::nullopt;
    co_return version->text();
}

QCoro::Task<int> UpdateChecker::publishedNodeMajor(CLITool tool)
{
    const std::optional<PublishedVersion> latest = co_await latestVersion(tool);
    co_return latest ? latest->requiredNodeMajor : 0;
}

QCoro::Task<std::optional<PublishedVersion>> UpdateChecker::latestVersion(CLITool tool, bool force)
{
    const auto index = static_cast<size_t>(tool.index());
    if (!force) {
        const QDateTime now = m_clock();
        // A clock set back makes a remembered check stale rather than good for ever.
        const auto within = [&now](const QDateTime& then, qint64 seconds) {
            const qint64 age = then.secsTo(now);
            return then.isValid() && age >= 0 && age < seconds;
        };
        if (const std::optional<RememberedUpdateCheck> remembered = Preferences::updateCheck(tool);
            remembered && within(remembered->checkedAt, checkIntervalSeconds)) {
            co_return PublishedVersion{remembered->latestVersion, remembered->requiredNodeMajor, remembered->checkedAt};
        }
        if (within(m_failedAt[index], retryAfterFailureSeconds))
            co_return std::nullopt;
    }
    // A check in flight serves every caller, forced or not: its answer is as new as any.
    if (m_inFlight[index]) {
        const std::shared_ptr<Lookup> running = m_inFlight[index];
        std::optional<PublishedVersion> shared = co_await Lookup::result(running);
        co_return shared;
    }

    const auto lookup = std::make_shared<Lookup>();
    m_inFlight[index] = lookup;
    std::optional<PublishedVersion> found = co_await askRegistry(tool);
    if (m_inFlight[index] == lookup)
        m_inFlight[index].reset();
    if (found) {
        Preferences::setUpdateCheck(tool, {found->checkedAt, found->version, found->requiredNodeMajor});
        m_failedAt[index] = QDateTime();
    } else {
        m_failedAt[index] = m_clock();
    }
    lookup->finish(found);
    co_return found;
}

void UpdateChecker::forget(CLITool tool)
{
    Preferences::forgetUpdateCheck(tool);
    m_failedAt[static_cast<size_t>(tool.index())] = QDateTime();
}

QCoro::Task<std::optional<PublishedVersion>> UpdateChecker::askRegistry(CLITool tool)
{
    const Result<QString> npm = co_await m_shell.findProgram(QStringLiteral("npm"));
    if (npm) {
        std::optional<PublishedVersion> found = co_await askNpm(tool);
        co_return found;
    }
    std::optional<PublishedVersion> found = co_await askRegistryOverHttps(tool);
    co_return found;
}

QCoro::Task<std::optional<PublishedVersion>> UpdateChecker::askNpm(CLITool tool)
{
    const QString package = tool.npmPackage();
    const Result<QString> answer = co_await m_shell.run(QStringLiteral("npm view %1 version").arg(package),
                                                        registryTimeoutSeconds);
    if (!answer) {
        reportFailure(tool, answer.error());
        co_return std::nullopt;
    }
    const std::optional<ToolVersion> latest = readToolVersion(answer.value());
    if (!latest) {
        reportFailure(tool, QStringLiteral("npm named no version: ") + answer.value().simplified());
        co_return std::nullopt;
    }
    // What that very version needs, not what the package needed once.
    const QString version = latest->text();
    const Result<QString> engines = co_await m_shell.run(
        QStringLiteral("npm view %1 engines.node").arg(shellQuote(package + QLatin1Char('@') + version)),
        registryTimeoutSeconds);
    if (!engines) {
        reportFailure(tool, engines.error());
        co_return std::nullopt;
    }
    co_return PublishedVersion{version, minimumNodeMajor(engines.value()), m_clock()};
}

QCoro::Task<std::optional<PublishedVersion>> UpdateChecker::askRegistryOverHttps(CLITool tool)
{
    const QString address = QStringLiteral("https://registry.npmjs.org/%1/latest").arg(tool.npmPackage());
    // curl gives up after 20 seconds; the runner stops it should it hang anyway.
    const Result<QString> answer = co_await m_shell.run(
        QStringLiteral("curl -fsSL --max-time 20 ") + shellQuote(address), 30);
    if (!answer) {
        reportFailure(tool, answer.error());
        co_return std::nullopt;
    }
    QJsonParseError parsing{};
    const QJsonDocument document = QJsonDocument::fromJson(answer.value().toUtf8(), &parsing);
    const QJsonObject package = document.object();
    const std::optional<ToolVersion> latest = readToolVersion(package.value(QStringLiteral("version")).toString());
    if (parsing.error != QJsonParseError::NoError || !latest) {
        reportFailure(tool, QStringLiteral("the registry named no version at %1").arg(address));
        co_return std::nullopt;
    }
    const QString engines =
        package.value(QStringLiteral("engines")).toObject().value(QStringLiteral("node")).toString();
    co_return PublishedVersion{latest->text(), minimumNodeMajor(engines), m_clock()};
}

} // namespace qf
