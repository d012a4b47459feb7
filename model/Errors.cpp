#include "Errors.h"

#include "Diagnosis.h"

#include <QLocale>

#include <cmath>

namespace qf {

ShellError ShellError::failed(int exitCode, const QString& output, const QString& recentOutput)
{
    ShellError error;
    error.m_kind = commandFailed;
    error.m_exitCode = exitCode;
    error.m_text = output;
    error.m_recent = recentOutput;
    return error;
}

ShellError ShellError::launchFailed(const QString& description)
{
    ShellError error;
    error.m_kind = processError;
    error.m_text = description;
    return error;
}

ShellError ShellError::timeout(double seconds)
{
    ShellError error;
    error.m_kind = timedOut;
    error.m_seconds = seconds;
    return error;
}

ShellError ShellError::outputLimit(qint64 bytes)
{
    ShellError error;
    error.m_kind = outputTooLarge;
    error.m_bytes = bytes;
    return error;
}

ShellError ShellError::stalled(double seconds, const QString& activity)
{
    ShellError error;
    error.m_kind = noProgress;
    error.m_seconds = seconds;
    error.m_activity = activity;
    return error;
}

ShellError ShellError::cancellation()
{
    ShellError error;
    error.m_kind = cancelled;
    return error;
}

QString ShellError::say(const char* text, bool english) { return english ? QString::fromUtf8(text) : tr(text); }

QString ShellError::durationText(double seconds) { return duration(seconds, false); }

QString ShellError::duration(double seconds, bool english)
{
    // The user's own way of writing numbers on screen; the log's is English.
    const QLocale locale = english ? QLocale(QLocale::English) : QLocale();
    // Whole minutes from a minute on, otherwise seconds with at most three significant digits.
    if (seconds >= 60 && std::fmod(seconds, 60.0) == 0.0) {
        const double minutes = seconds / 60;
        return minutes == 1 ? say(QT_TR_NOOP("1 minute"), english)
                            : say(QT_TR_NOOP("%1 minutes"), english).arg(locale.toString(minutes, 'f', 0));
    }
    if (seconds == 1)
        return say(QT_TR_NOOP("1 second"), english);
    // Never in scientific notation: "0.25", "9.5", "1,234.5".
    QString number = seconds < 10 ? locale.toString(seconds, 'g', 3) : locale.toString(seconds, 'f', 1);
    const QString zero = QString(locale.decimalPoint()) + locale.zeroDigit();
    if (number.endsWith(zero))
        number.chop(zero.size());
    return say(QT_TR_NOOP("%1 seconds"), english).arg(number);
}

QString ShellError::describe(bool english) const
{
    switch (m_kind) {
    case commandFailed: {
        QString shown = m_text;
        // The end says what went wrong; a person cannot read a hundred megabytes anyway.
        if (shown.size() > shownOutputLength) {
            shown = say(QT_TR_NOOP("[earlier output cut: the last %1 characters follow]"), english)
                        .arg((english ? QLocale(QLocale::English) : QLocale()).toString(shownOutputLength)) +
                    QLatin1Char('\n') + shown.last(shownOutputLength);
        }
        return say(QT_TR_NOOP("Command failed with exit code %1: %2"), english).arg(QString::number(m_exitCode), shown);
    }
    case processError: return say(QT_TR_NOOP("Process error: %1"), english).arg(m_text);
    case timedOut:
        return say(QT_TR_NOOP("The command did not finish within %1 and was stopped."), english)
            .arg(duration(m_seconds, english));
    case outputTooLarge:
        return say(QT_TR_NOOP("The command wrote more than %1 MB of output and was stopped."), english)
            .arg(m_bytes / (1024 * 1024));
    case noProgress:
        if (!m_activity.isEmpty()) {
            return say(QT_TR_NOOP("%1 made no progress for %2 and was stopped."), english)
                .arg(m_activity, duration(m_seconds, english));
        }
        return say(QT_TR_NOOP("The command showed no progress for %1 and was stopped."), english)
            .arg(duration(m_seconds, english));
    case cancelled: return say(QT_TR_NOOP("The command was cancelled."), english);
    }
    return {};
}

QString ShellError::plainDescription() const
{
    if (m_kind != commandFailed)
        return errorDescription();
    return plainFailure(m_recent.isEmpty() ? m_text : m_recent);
}

QString errorDescription(InstallationError error, const SystemWording& wording)
{
    switch (error) {
    case InstallationError::verificationFailed:
        return QCoreApplication::translate(
            "InstallationError", "Installation completed but the tool could not be verified. Please try again.");
    case InstallationError::nodeInstallFailed:
        return QCoreApplication::translate("InstallationError",
                                           "Failed to install Node.js. Please install it manually from %1")
            .arg(QLatin1String(kNodeDomain));
    case InstallationError::gitNotFound: return wording.gitMissingError;
    case InstallationError::uninstallFailed:
        return QCoreApplication::translate(
            "InstallationError", "Uninstall completed but the tool is still detected. Manual removal may be required.");
    case InstallationError::manualUninstallRequired:
        return QCoreApplication::translate(
            "InstallationError", "Automatic uninstall is not available. Please follow the manual instructions above.");
    case InstallationError::folderNotEmpty:
        return QCoreApplication::translate("InstallationError",
                                           "The ~/Developer folder contains files. Please remove your projects first "
                                           "if you want to delete it.");
    }
    return {};
}

ServiceError::ServiceError(ShellError error) : m_cause(error), m_description(error.errorDescription()) {}

QString ServiceError::logDescription() const
{
    if (const ShellError* shell = shellError(); shell && !m_plain)
        return shell->logDescription();
    return m_description;
}

ServiceError::ServiceError(InstallationError error, const SystemWording& wording)
    : m_cause(error), m_description(qf::errorDescription(error, wording))
{
}

QString ServiceError::plainDescription() const
{
    if (!m_sentence.isEmpty())
        return m_sentence;
    if (const ShellError* shell = shellError(); shell && !m_plain)
        return shell->plainDescription();
    return m_description;
}

ServiceError ServiceError::message(const QString& text)
{
    ServiceError error;
    error.m_description = text;
    return error;
}

ServiceError ServiceError::removalDeclined(const QString& name)
{
    ServiceError error;
    error.m_description = QCoreApplication::translate("ServiceError",
                                                      "The password dialog was cancelled, so %1 was not removed.")
                              .arg(name);
    error.m_declined = true;
    return error;
}

ServiceError ServiceError::updateDeclined(const QString& name)
{
    ServiceError error;
    error.m_description = QCoreApplication::translate("ServiceError",
                                                      "The password dialog was cancelled, so %1 was not updated.")
                              .arg(name);
    error.m_declined = true;
    return error;
}

ServiceError ServiceError::needsNewerNode(const QString& text, int requiredMajor)
{
    ServiceError error;
    error.m_description = text;
    error.m_requiredNodeMajor = requiredMajor;
    return error;
}

ServiceError ServiceError::stopped(const QString& text)
{
    ServiceError error;
    error.m_cause = ShellError::cancellation();
    error.m_description = text;
    error.m_plain = true;
    return error;
}

ServiceError ServiceError::explained(ShellError error, const QString& sentence)
{
    ServiceError explained(std::move(error));
    explained.m_sentence = sentence;
    return explained;
}

Result<void> administratorRemovalResult(Result<void> result, const QString& name)
{
    if (result)
        return result;
    const ShellError* error = result.error().shellError();
    if (error && error->isAdministratorDeclined())
        return ServiceError::removalDeclined(name);
    return result;
}

Result<void> administratorUpdateResult(Result<void> result, const QString& name)
{
    if (result)
        return result;
    const ShellError* error = result.error().shellError();
    if (error && error->isAdministratorDeclined())
        return ServiceError::updateDeclined(name);
    return result;
}

} // namespace qf
