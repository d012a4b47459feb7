#include "ProfileWriter.h"

#include "ShellQuote.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace qf {

namespace {

QString systemError(int error) { return QString::fromLocal8Bit(std::strerror(error)); }

ServiceError saveFailed(const QString& path, int error)
{
    return ServiceError::message(
        ProfileWriter::tr("Could not save the API key to %1: %2").arg(path, systemError(error)));
}

// Writes all of `bytes` to `fd` at its current offset; false with errno set when it could not.
bool writeAll(int fd, const QByteArray& bytes)
{
    const char* data = bytes.constData();
    qsizetype left = bytes.size();
    while (left > 0) {
        const ssize_t written = ::write(fd, data, static_cast<size_t>(left));
        if (written < 0) {
            if (errno == EINTR)
                continue;
            return false;
        }
        data += written;
        left -= written;
    }
    return true;
}

// A file descriptor closed when it goes out of scope.
class Descriptor {
public:
    explicit Descriptor(int fd) : m_fd(fd) {}
    ~Descriptor()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int get() const { return m_fd; }
    // Closes now, reporting a failure (some file systems only report a failed write here).
    bool close()
    {
        const int fd = std::exchange(m_fd, -1);
        return ::close(fd) == 0;
    }

private:
    int m_fd;
};

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

std::optional<QByteArray> ProfileWriter::rewrite(const QByteArray& profile, const QString& variable,
                                                 const QString& line)
{
    // Byte for character (Latin-1), so that every byte of a profile in any encoding comes back
    // as it was. The name, "export" and the quoting are ASCII; a value may hold any byte, so
    // the blanks that end an unquoted word are spelled out (\s would also take 0x85 and 0xA0,
    // which occur inside UTF-8 characters).
    const QString text = QString::fromLatin1(profile);
    static const QString value =
        QStringLiteral(R"((?:"(?:[^"\\]|\\[\s\S])*"|'[^']*'|\\[^\n]|[^ \t\n\r\f\v;&|()<>"'\\`])*)");
    const QRegularExpression pattern(QStringLiteral("(?<![A-Za-z0-9_])export[ \\t]+") +
                                     QRegularExpression::escape(variable) + QLatin1Char('=') + value);
    if (!pattern.isValid())
        return std::nullopt;
    const QString replacement = QString::fromLatin1(line.toUtf8());
    QString result;
    qsizetype copied = 0;
    bool found = false;
    for (auto it = pattern.globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        found = true;
        result += QStringView(text).sliced(copied, match.capturedStart() - copied);
        result += replacement; // as it is: no "$1" or backslash is interpreted
        copied = match.capturedEnd();
    }
    if (!found)
        return std::nullopt;
    result += QStringView(text).sliced(copied);
    return result.toLatin1();
}

QByteArray ProfileWriter::appendedBlock(const QString& displayName, const QString& line)
{
    return (QStringLiteral("\n# ") + displayName + QStringLiteral(" API Key\n") + line + QLatin1Char('\n')).toUtf8();
}

Result<void> ProfileWriter::store(const QString& path, const QString& variable, const QString& displayName,
                                  const QString& line)
{
    // Only an ordinary file is read: a folder, a pipe or a device in its place is not a profile.
    if (QFileInfo(path).isFile()) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly)) {
            const QByteArray profile = file.readAll();
            file.close();
            if (const std::optional<QByteArray> rewritten = rewrite(profile, variable, line)) {
                if (*rewritten == profile)
                    return {};
                return replaceFileContents(path, *rewritten);
            }
        }
    }
    return appendToFile(path, appendedBlock(displayName, line));
}

Result<void> ProfileWriter::appendToFile(const QString& path, const QByteArray& bytes)
{
    const int error = append(path, bytes);
    return error == 0 ? Result<void>() : Result<void>(saveFailed(path, error));
}

int ProfileWriter::append(const QString& path, const QByteArray& bytes)
{
    // Never waits: a pipe with nobody reading it is an error rather than a hang.
    Descriptor file(::open(QFile::encodeName(path).constData(),
                           O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NOCTTY | O_NONBLOCK, 0644));
    if (file.get() < 0)
        return errno;
    if (!writeAll(file.get(), bytes) || !file.close())
        return errno;
    return 0;
}

QByteArray ProfileWriter::searchPathBlock()
{
    return QByteArray("\n") + kSearchPathMark + "\nexport PATH=\"$HOME/.local/bin:$PATH\"\n";
}

Result<bool> ProfileWriter::addSearchPathBlock(const QString& path)
{
    // Once is enough: a profile that has the block (or is not an ordinary file we can read)
    // is not appended to again.
    if (QFileInfo(path).isFile()) {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly) && file.readAll().contains(kSearchPathMark))
            return false;
    }
    if (const int error = append(path, searchPathBlock()); error != 0) {
        return ServiceError::message(
            tr("Could not add ~/.local/bin to the search path in %1: %2").arg(path, systemError(error)));
    }
    return true;
}

Result<void> ProfileWriter::replaceFileContents(const QString& path, const QByteArray& bytes)
{
    // A profile that is a link stays a link: the file it points to is the one rewritten.
    const QFileInfo info(path);
    const QString target = info.isSymLink() ? info.canonicalFilePath() : path;
    const QByteArray targetName = QFile::encodeName(target);
    struct stat status {};
    if (::stat(targetName.constData(), &status) != 0)
        return saveFailed(path, errno);

    if (status.st_nlink > 1) {
        // Other names share this file: it is rewritten where it is, so that they all see the
        // new key. The room is claimed first, so a full disk fails before anything changes.
        Descriptor file(::open(targetName.constData(), O_WRONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
        if (file.get() < 0)
            return saveFailed(path, errno);
        if (bytes.size() > status.st_size) {
            const int reserved = ::posix_fallocate(file.get(), 0, static_cast<off_t>(bytes.size()));
            if (reserved != 0 && reserved != EOPNOTSUPP && reserved != EINVAL)
                return saveFailed(path, reserved);
        }
        if (!writeAll(file.get(), bytes) || ::ftruncate(file.get(), static_cast<off_t>(bytes.size())) != 0 ||
            ::fsync(file.get()) != 0 || !file.close())
            return saveFailed(path, errno);
        return {};
    }

    // A finished copy next to it, renamed over it in one step.
    const QFileInfo targetInfo(target);
    QByteArray temporary = QFile::encodeName(targetInfo.absolutePath() + QStringLiteral("/.") + targetInfo.fileName() +
                                             QStringLiteral(".XXXXXX"));
    Descriptor copy(::mkstemp(temporary.data()));
    if (copy.get() < 0)
        return saveFailed(path, errno);
    const auto abandon = [&](int error) {
        ::unlink(temporary.constData());
        return saveFailed(path, error);
    };
    ::fcntl(copy.get(), F_SETFD, FD_CLOEXEC);
    // The same owner (when this process may say so) and the same permissions as before.
    if (::fchown(copy.get(), status.st_uid, status.st_gid) != 0 && errno != EPERM)
        return abandon(errno);
    if (::fchmod(copy.get(), status.st_mode & 07777) != 0)
        return abandon(errno);
    if (!writeAll(copy.get(), bytes) || ::fsync(copy.get()) != 0 || !copy.close())
        return abandon(errno);
    if (::rename(temporary.constData(), targetName.constData()) != 0)
        return abandon(errno);
    return {};
}

} // namespace qf
