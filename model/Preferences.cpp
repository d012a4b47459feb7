#include "Preferences.h"

#include <QSettings>

#include <memory>

namespace qf {

namespace {

QString& overridePath()
{
    static QString path;
    return path;
}

std::unique_ptr<QSettings> openSettings()
{
    if (!overridePath().isEmpty())
        return std::make_unique<QSettings>(overridePath(), QSettings::IniFormat);
    return std::make_unique<QSettings>();
}

// Each tool's check lives in a group of its own: "updateCheck/geminiCLI/...".
QString updateGroup(CLITool tool) { return QStringLiteral("updateCheck/") + tool.rawValue(); }

} // namespace

bool Preferences::hasCompletedOnboarding() { return openSettings()->value(hasCompletedOnboardingKey, false).toBool(); }

void Preferences::setHasCompletedOnboarding(bool value)
{
    auto settings = openSettings();
    settings->setValue(hasCompletedOnboardingKey, value);
    settings->sync();
}

std::optional<RememberedUpdateCheck> Preferences::updateCheck(CLITool tool)
{
    auto settings = openSettings();
    settings->beginGroup(updateGroup(tool));
    // Stored as text, so that the file says the same on every system.
    const QDateTime checkedAt = QDateTime::fromString(settings->value(QStringLiteral("checkedAt")).toString(),
                                                      Qt::ISODateWithMs);
    const QString latest = settings->value(QStringLiteral("latestVersion")).toString();
    bool numeric = false;
    const int node = settings->value(QStringLiteral("requiredNodeMajor"), 0).toInt(&numeric);
    if (!checkedAt.isValid() || latest.isEmpty() || !numeric)
        return std::nullopt;
    return RememberedUpdateCheck{checkedAt.toUTC(), latest, node};
}

void Preferences::setUpdateCheck(CLITool tool, const RememberedUpdateCheck& check)
{
    auto settings = openSettings();
    settings->beginGroup(updateGroup(tool));
    settings->setValue(QStringLiteral("checkedAt"), check.checkedAt.toUTC().toString(Qt::ISODateWithMs));
    settings->setValue(QStringLiteral("latestVersion"), check.latestVersion);
    settings->setValue(QStringLiteral("requiredNodeMajor"), check.requiredNodeMajor);
    settings->endGroup();
    settings->sync();
}

void Preferences::forgetUpdateCheck(CLITool tool)
{
    auto settings = openSettings();
    settings->remove(updateGroup(tool));
    settings->sync();
}

void Preferences::useFile(const QString& iniPath) { overridePath() = iniPath; }

} // namespace qf
