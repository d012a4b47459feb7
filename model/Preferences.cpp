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

} // namespace

bool Preferences::hasCompletedOnboarding() { return openSettings()->value(hasCompletedOnboardingKey, false).toBool(); }

void Preferences::setHasCompletedOnboarding(bool value)
{
    auto settings = openSettings();
    settings->setValue(hasCompletedOnboardingKey, value);
    settings->sync();
}

void Preferences::useFile(const QString& iniPath) { overridePath() = iniPath; }

} // namespace qf
