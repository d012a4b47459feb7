#include "APIKeyStore.h"

#include "ProfileWriter.h"
#include "ShellExport.h"

#include <QCoro/QCoroFuture>
#include <QtConcurrent/QtConcurrentRun>

namespace qf {

APIKeyStore::APIKeyStore(ShellRunner& shell, SystemDetector& detector) : m_shell(shell), m_detector(detector) {}

QCoro::Task<Result<QString>> APIKeyStore::save(QString key, CLITool tool)
{
    key = cleanedKey(key);
    // Checked before any file or the environment is touched; the key itself is never written
    // to a log, and no command is started for the save.
    if (const std::optional<QString> reason = ProfileWriter::rejectionReason(key))
        co_return ServiceError::message(*reason);

    const QString variable = tool.apiKeyEnvVar();
    const ShellProfile profile = m_detector.shellProfile();
    const QString displayName = tool.displayName();
    const QString line = shellExport::exportLine(variable, key, profile.family);
    // The files are handled on a worker thread: a slow or stuck home folder never freezes the
    // window.
    QFuture<Result<ProfileChange>> storing = QtConcurrent::run([profile, variable, displayName, line] {
        return ProfileWriter::store(profile.path, variable, displayName, line, profile.family);
    });
    const Result<ProfileChange> stored = co_await storing;
    if (!stored) {
        // Named as the screen's caption names it.
        QString reason = stored.error().errorDescription();
        co_return ServiceError::message(reason.replace(profile.path, displayedPath(profile.path)));
    }
    qputenv(variable.toUtf8().constData(), key.toUtf8());
    // Commands read the start-up files again, and with them the new line.
    m_shell.invalidateEnvironment();
    if (stored.value().afterComputedValue)
        co_return computedValueNotice(variable, displayedPath(profile.path));
    co_return QString();
}

QString APIKeyStore::cleanedKey(const QString& pasted) { return pasted.trimmed(); }

QString APIKeyStore::computedValueNotice(const QString& variable, const QString& profile)
{
    return tr("Your key is saved. %1 sets %2 from a command or another variable, so that line was left as it was; "
              "your key is on a new line after it, which is the one new terminal windows use.")
        .arg(profile, variable);
}

QString APIKeyStore::displayedPath(const QString& path, const QString& home)
{
    if (!home.isEmpty() && home != QLatin1String("/") && path.startsWith(home + QLatin1Char('/')))
        return QLatin1Char('~') + path.sliced(home.size());
    return path;
}

} // namespace qf
