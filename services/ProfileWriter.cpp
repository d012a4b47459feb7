#include "ProfileWriter.h"

#include "ShellQuote.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>

namespace qf {

std::optional<QString> ProfileWriter::rejectionReason(const QString& key)
{
    if (key.contains(QLatin1Char('\n')) || key.contains(QLatin1Char('\r')))
        return tr("The API key contains a line break. Copy the key again and paste it as one line.");
    if (key.contains(QChar(u'\0')))
        return tr("The API key contains an invisible control character. Copy the key again and paste it.");
    return std::nullopt;
}

bool ProfileWriter::isPlainKey(const QString& key)
{
    if (key.isEmpty())
        return false;
    for (QChar c : key) {
        const char16_t u = c.unicode();
        const bool plain = (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') || (u >= '0' && u <= '9') || u == '-' ||
                           u == '_' || u == '.';
        if (!plain)
            return false;
    }
    return true;
}

QString ProfileWriter::exportLine(const QString& variable, const QString& key)
{
    if (isPlainKey(key))
        return QStringLiteral("export ") + variable + QStringLiteral("=\"") + key + QLatin1Char('"');
    // Inside single quotes bash and zsh expand nothing.
    return QStringLiteral("export ") + variable + QLatin1Char('=') + shellQuote(key, Quoting::always);
}

QString ProfileWriter::rewrite(const QString& text, const QString& variable, const QString& line)
{
    const QRegularExpression pattern(QStringLiteral("export ") + QRegularExpression::escape(variable) +
                                     QStringLiteral("=[^\\r\\n]*"));
    if (!pattern.isValid())
        return text;
    QString result;
    result.reserve(text.size() + line.size());
    qsizetype copied = 0;
    for (auto it = pattern.globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        result += QStringView(text).sliced(copied, match.capturedStart() - copied);
        result += line; // as it is: no "$1" or backslash is interpreted
        copied = match.capturedEnd();
    }
    result += QStringView(text).sliced(copied);
    return result;
}

QString ProfileWriter::appendCommand(const QString& displayName, const QString& line, const QString& profilePath)
{
    const QString comment = QStringLiteral("# ") + displayName + QStringLiteral(" API Key");
    const bool plainLine = !line.contains(QLatin1Char('\'')) && !line.contains(QLatin1Char('\\'));
    if (plainLine && shellQuote(profilePath) == profilePath) {
        return QStringLiteral("echo '\n") + comment + QLatin1Char('\n') + line + QStringLiteral("' >> ") + profilePath;
    }
    // printf prints its arguments as they are; zsh's echo would interpret backslashes.
    return QStringLiteral("printf '%s\\n' '' ") + shellQuote(comment) + QLatin1Char(' ') + shellQuote(line) +
           QStringLiteral(" >> ") + shellQuote(profilePath);
}

Result<void> ProfileWriter::replaceFileContents(const QString& path, const QString& text)
{
    // A profile that is a link stays a link: the file it points to is the one rewritten.
    const QFileInfo info(path);
    const QString target = info.isSymLink() ? info.canonicalFilePath() : path;
    const QFileDevice::Permissions permissions = QFileInfo(target).permissions();

    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly)) {
        return ServiceError::message(tr("Could not save the API key to %1: %2").arg(path, file.errorString()));
    }
    file.setPermissions(permissions);
    const QByteArray bytes = text.toUtf8();
    if (file.write(bytes) != bytes.size() || !file.commit()) {
        const QString reason = file.errorString();
        file.cancelWriting();
        return ServiceError::message(tr("Could not save the API key to %1: %2").arg(path, reason));
    }
    return {};
}

} // namespace qf
