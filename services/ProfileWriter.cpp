#include "ProfileWriter.h"

#include "CrashSafeFile.h"

#include <QLocale>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace qf {

namespace {

// Why a profile could not be changed: the system's error code, or one of CrashSafeFile's.
QString reasonText(int error)
{
    if (error == crashSafeFile::notAnOrdinaryFile)
        return ProfileWriter::tr("it is not an ordinary file");
    if (error == crashSafeFile::anotherWriterBusy)
        return ProfileWriter::tr("another change to it did not finish; try again");
    return QString::fromLocal8Bit(std::strerror(error));
}

// What a person can do about it. Whatever failed, the file was left as it was.
QString adviceText(int error)
{
    switch (error) {
    case crashSafeFile::notAnOrdinaryFile:
        return ProfileWriter::tr("Move it aside so an ordinary file can take its place, then try again.");
    case crashSafeFile::anotherWriterBusy: return QString();
    case EACCES:
    case EPERM: return ProfileWriter::tr("Make sure the file belongs to you and may be changed, then try again.");
    case ENOSPC:
    case EDQUOT: return ProfileWriter::tr("Your disk is full: free up some space, then try again.");
    case EROFS: return ProfileWriter::tr("The disk it is on cannot be changed right now.");
    default: return ProfileWriter::tr("The file was left as it was; try again.");
    }
}

// "<what failed>: <why>. <what to do>"
QString failureText(const QString& what, int error)
{
    const QString advice = adviceText(error);
    return advice.isEmpty() ? QStringLiteral("%1: %2.").arg(what, reasonText(error))
                            : QStringLiteral("%1: %2. %3").arg(what, reasonText(error), advice);
}

ServiceError saveFailed(const QString& path, int error)
{
    return ServiceError::message(failureText(ProfileWriter::tr("Could not save the API key to %1").arg(path), error));
}

} // namespace

std::optional<QString> ProfileWriter::rejectionReason(const QString& key)
{
    if (key.size() > maximumKeyLength) {
        return tr("The API key is longer than %1 characters, much longer than any real key. Copy only the key and "
                  "paste it again.")
            .arg(QLocale(QLocale::English).toString(maximumKeyLength));
    }
    if (key.contains(QLatin1Char('\n')) || key.contains(QLatin1Char('\r')))
        return tr("The API key contains a line break. Copy the key again and paste it as one line.");
    if (key.contains(QChar(u'\0')))
        return tr("The API key contains an invisible control character. Copy the key again and paste it.");
    // No provider's key has blanks inside; one there is a paste that took more than the key.
    if (std::ranges::any_of(key, [](QChar ch) { return ch.isSpace(); }))
        return tr("The API key contains a space. Copy only the key and paste it again.");
    return std::nullopt;
}

Result<ProfileChange> ProfileWriter::store(const QString& path, const QString& variable, const QString& displayName,
                                           const QString& line, ShellFamily family)
{
    ProfileChange change;
    const int error = crashSafeFile::change(path, [&](const QByteArray& current) -> std::optional<QByteArray> {
        change = shellExport::withExport(current, variable, displayName, line, family);
        return change.profile;
    });
    if (error != 0)
        return saveFailed(path, error);
    return change;
}

Result<bool> ProfileWriter::addSearchPathBlock(const QString& path, ShellFamily family)
{
    // Once is enough; a block cut off after its mark (by an older version) is not the block.
    bool added = false;
    const int error = crashSafeFile::change(path,
                                            [&added, family](const QByteArray& current) -> std::optional<QByteArray> {
                                                const QByteArray block = shellExport::searchPathBlock(family);
                                                if (current.contains(block.mid(1, block.size() - 2)))
                                                    return std::nullopt;
                                                added = true;
                                                return current + block;
                                            });
    if (error != 0)
        return ServiceError::message(
            failureText(tr("Could not add ~/.local/bin to the search path in %1").arg(path), error));
    return added;
}

} // namespace qf
