#include "Errors.h"

namespace qf {

ShellError ShellError::failed(int exitCode, const QString& output)
{
    ShellError error;
    error.m_kind = commandFailed;
    error.m_exitCode = exitCode;
    error.m_text = output;
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

QString ShellError::errorDescription() const
{
    switch (m_kind) {
    case commandFailed:
        return QStringLiteral("Command failed with exit code ") + QString::number(m_exitCode) + QStringLiteral(": ") +
               m_text;
    case processError: return QStringLiteral("Process error: ") + m_text;
    case timedOut:
        return tr("The command did not finish within %n second(s) and was stopped.", nullptr, int(m_seconds));
    }
    return {};
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

ServiceError::ServiceError(InstallationError error, const SystemWording& wording)
    : m_cause(error), m_description(qf::errorDescription(error, wording))
{
}

ServiceError ServiceError::message(const QString& text)
{
    ServiceError error;
    error.m_description = text;
    return error;
}

} // namespace qf
