#include "ProfileWriter.h"

#include "FileDescriptor.h"

#include "ShellQuote.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>

#include <cerrno>
#include <chrono>
#include <cstring>
#include <functional>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace qf {

namespace {

// Why a profile could not be changed: the system's error code, or one of these.
constexpr int notAnOrdinaryFile = -1;
constexpr int anotherWriterBusy = -2;

QString reasonText(int error)
{
    if (error == notAnOrdinaryFile)
        return ProfileWriter::tr("it is not an ordinary file");
    if (error == anotherWriterBusy)
        return ProfileWriter::tr("another change to it did not finish; try again");
    return QString::fromLocal8Bit(std::strerror(error));
}

// What a person can do about it. Whatever failed, the file was left as it was.
QString adviceText(int error)
{
    switch (error) {
    case notAnOrdinaryFile:
        return ProfileWriter::tr("Move it aside so an ordinary file can take its place, then try again.");
    case anotherWriterBusy: return QString();
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

// Writes all of `bytes` at `offset`; the number of bytes written before a failure, with errno set.
qsizetype writeAllAt(int fd, const QByteArray& bytes, off_t offset)
{
    qsizetype done = 0;
    while (done < bytes.size()) {
        const ssize_t written = ::pwrite(fd, bytes.constData() + done, static_cast<size_t>(bytes.size() - done),
                                         offset + done);
        if (written < 0) {
            if (errno == EINTR)
                continue;
            return done;
        }
        done += written;
    }
    return done;
}

// The file a profile path names: the path itself, or where its links lead (also when the
// file there does not exist yet).
QString resolvedTarget(const QString& path)
{
    QString target = path;
    for (int depth = 0; depth < 40 && QFileInfo(target).isSymLink(); ++depth)
        target = QFileInfo(target).symLinkTarget();
    return target;
}

// Holds the lock that every change of the profiles in one folder takes: an advisory lock on the
// folder itself, which a rename inside it never replaces. Released when it goes out of scope,
// and by the system when a process ends, so a crashed writer never blocks the next.
class FolderLock {
public:
    explicit FolderLock(const QString& file)
        : m_fd(
              ::open(QFile::encodeName(QFileInfo(file).absolutePath()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    {
        // A folder that cannot be opened for reading is written to unlocked, as before.
        if (m_fd.get() < 0)
            return;
        using namespace std::chrono_literals;
        const auto deadline = std::chrono::steady_clock::now() + 10s;
        while (::flock(m_fd.get(), LOCK_EX | LOCK_NB) != 0) {
            if ((errno != EWOULDBLOCK && errno != EINTR) || std::chrono::steady_clock::now() > deadline) {
                m_failed = errno == EWOULDBLOCK;
                return;
            }
            // Changes take milliseconds; this runs on a worker thread.
            std::this_thread::sleep_for(10ms);
        }
    }
    bool failed() const { return m_failed; }

private:
    FileDescriptor m_fd;
    bool m_failed = false;
};

// The profile as it is now: nothing when it does not exist yet. Refused (with the reason's
// code) when it is not an ordinary file; whether its owner made it read-only.
struct Current {
    int error = 0;
    std::optional<QByteArray> bytes;
    bool readOnly = false;
};

Current readCurrent(const QString& target)
{
    const QByteArray name = QFile::encodeName(target);
    struct stat status {};
    if (::stat(name.constData(), &status) != 0)
        return errno == ENOENT ? Current{} : Current{errno, std::nullopt};
    if (!S_ISREG(status.st_mode))
        return {notAnOrdinaryFile, std::nullopt};
    // Read-only for its owner means "do not change", for root as well, and whether the folder
    // would let a copy be renamed over it or not. Reading it is still fine.
    const bool readOnly = (status.st_mode & S_IWUSR) == 0 ||
                          (::geteuid() != 0 && ::access(name.constData(), W_OK) != 0);
    FileDescriptor file(::open(name.constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
    if (file.get() < 0)
        return {errno, std::nullopt};
    QByteArray bytes;
    char buffer[65536];
    for (;;) {
        const ssize_t got = ::read(file.get(), buffer, sizeof buffer);
        if (got < 0) {
            if (errno == EINTR)
                continue;
            return {errno, std::nullopt};
        }
        if (got == 0)
            break;
        bytes.append(buffer, got);
    }
    return {0, bytes, readOnly};
}

// Rewrites a file that other names share where it is. When a write fails, what was there is
// put back, so the file is as before.
int rewriteInPlace(const QByteArray& name, const QByteArray& bytes, const QByteArray& before)
{
    FileDescriptor file(::open(name.constData(), O_WRONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
    if (file.get() < 0)
        return errno;
    const qsizetype written = writeAllAt(file.get(), bytes, 0);
    if (written < bytes.size() || ::ftruncate(file.get(), static_cast<off_t>(bytes.size())) != 0 ||
        ::fsync(file.get()) != 0) {
        const int error = errno;
        (void)writeAllAt(file.get(), before.left(written), 0);
        (void)::ftruncate(file.get(), static_cast<off_t>(before.size()));
        return error;
    }
    return file.close();
}

// Writes the whole new text of a profile: in one step by renaming a finished copy over it, or in
// place for a file with several names. 0, or why it failed (the file then is as it was).
int writeWhole(const QString& target, const QByteArray& bytes, const std::optional<QByteArray>& before)
{
    const QByteArray name = QFile::encodeName(target);
    struct stat status {};
    const bool exists = ::stat(name.constData(), &status) == 0;
    if (exists && status.st_nlink > 1 && before)
        return rewriteInPlace(name, bytes, *before);

    const QFileInfo info(target);
    QByteArray temporary =
        QFile::encodeName(info.absolutePath() + QStringLiteral("/.") + info.fileName() + QStringLiteral(".XXXXXX"));
    FileDescriptor copy(::mkstemp(temporary.data()));
    if (copy.get() < 0)
        return errno;
    const auto abandon = [&temporary](int error) {
        ::unlink(temporary.constData());
        return error;
    };
    ::fcntl(copy.get(), F_SETFD, FD_CLOEXEC);
    if (exists) {
        // The same owner (when this process may say so) and the same permissions as before.
        if (::fchown(copy.get(), status.st_uid, status.st_gid) != 0 && errno != EPERM)
            return abandon(errno);
        if (::fchmod(copy.get(), status.st_mode & 07777) != 0)
            return abandon(errno);
    }
    // A new profile may hold a key: it is the user's alone (mkstemp made it 0600).
    if (writeAllAt(copy.get(), bytes, 0) < bytes.size() || ::fsync(copy.get()) != 0 || copy.close() != 0)
        return abandon(errno);
    if (::rename(temporary.constData(), name.constData()) != 0)
        return abandon(errno);
    return 0;
}

// Every change of a profile: under the folder's lock, the profile as it is now (empty when it
// does not exist yet) goes to `edit`, whose new text (nothing: leave it as it is) is written
// whole. 0, or why it could not be.
int editProfile(const QString& path, const std::function<std::optional<QByteArray>(const QByteArray&)>& edit)
{
    const QString target = resolvedTarget(path);
    // A profile of its own folder (fish's conf.d) may be the first file there.
    const QString folder = QFileInfo(target).absolutePath();
    errno = 0;
    if (!QFileInfo(folder).isDir() && !QDir().mkpath(folder))
        return errno != 0 ? errno : EACCES;
    const FolderLock lock(target);
    if (lock.failed())
        return anotherWriterBusy;
    const Current current = readCurrent(target);
    if (current.error != 0)
        return current.error;
    const std::optional<QByteArray> changed = edit(current.bytes.value_or(QByteArray()));
    if (!changed || changed == current.bytes)
        return 0;
    if (current.readOnly)
        return EACCES;
    return writeWhole(target, *changed, current.bytes);
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

QString ProfileWriter::exportLine(const QString& variable, const QString& key, ShellFamily family)
{
    QString head;
    switch (family) {
    case ShellFamily::posix: head = QStringLiteral("export ") + variable + QLatin1Char('='); break;
    case ShellFamily::fish: head = QStringLiteral("set -gx ") + variable + QLatin1Char(' '); break;
    case ShellFamily::csh: head = QStringLiteral("setenv ") + variable + QLatin1Char(' '); break;
    }
    if (isPlainKey(key))
        return head + QLatin1Char('"') + key + QLatin1Char('"');
    QString quoted = key;
    switch (family) {
    case ShellFamily::posix:
        // Inside single quotes bash and zsh expand nothing.
        return head + shellQuote(key, Quoting::always);
    case ShellFamily::fish:
        // fish's single quotes know two escapes, for the quote and the backslash.
        quoted.replace(QLatin1Char('\\'), QStringLiteral("\\\\")).replace(QLatin1Char('\''), QStringLiteral("\\'"));
        return head + QLatin1Char('\'') + quoted + QLatin1Char('\'');
    case ShellFamily::csh:
        // csh expands nothing in single quotes but history: '!' needs its backslash there.
        quoted.replace(QLatin1Char('\''), QStringLiteral("'\\''")).replace(QLatin1Char('!'), QStringLiteral("\\!"));
        return head + QLatin1Char('\'') + quoted + QLatin1Char('\'');
    }
    return head + shellQuote(key, Quoting::always);
}

namespace {

bool isBlank(char c) { return c == ' ' || c == '\t'; }

// Where an unquoted word ends: a blank, the line's end or an operator.
bool endsWord(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == ';' || c == '&' || c == '|' || c == '(' ||
           c == ')' || c == '<' || c == '>';
}

// The words at `i` of `content`, after the blanks before them.
QByteArray wordAt(const QByteArray& content, qsizetype& i)
{
    while (i < content.size() && isBlank(content.at(i)))
        ++i;
    const qsizetype start = i;
    while (i < content.size() && !endsWord(content.at(i)))
        ++i;
    return content.mid(start, i - start);
}

// Where the value of an export of `name` starts when the line (from its indentation at `i`)
// is one in `family`'s words; -1 when it is not.
qsizetype exportValueStart(const QByteArray& content, qsizetype i, const QByteArray& name, ShellFamily family)
{
    switch (family) {
    case ShellFamily::posix: {
        // `export NAME=` or `NAME=`.
        while (i < content.size() && isBlank(content.at(i)))
            ++i;
        if (content.mid(i).startsWith("export") && i + 6 < content.size() && isBlank(content.at(i + 6))) {
            i += 6;
            while (i < content.size() && isBlank(content.at(i)))
                ++i;
        }
        return content.mid(i).startsWith(QByteArray(name + '=')) ? i + name.size() + 1 : -1;
    }
    case ShellFamily::fish: {
        // `set`, its options (one of them exports), then the name.
        if (wordAt(content, i) != "set")
            return -1;
        bool exported = false;
        for (;;) {
            const QByteArray word = wordAt(content, i);
            if (word.startsWith("--")) {
                exported = exported || word == "--export";
                continue;
            }
            if (word.startsWith('-') && word.size() > 1) {
                exported = exported || word.contains('x');
                continue;
            }
            if (word != name || !exported)
                return -1;
            break;
        }
        break;
    }
    case ShellFamily::csh:
        if (wordAt(content, i) != "setenv" || wordAt(content, i) != name)
            return -1;
        break;
    }
    if (i < content.size() && !isBlank(content.at(i)))
        return -1;
    while (i < content.size() && isBlank(content.at(i)))
        ++i;
    return i;
}

// The characters that make a quoted value more than its letters in `family`.
QByteArrayView expandingInQuotes(char quote, ShellFamily family)
{
    switch (family) {
    case ShellFamily::posix: return quote == '"' ? QByteArrayView("$`\\") : QByteArrayView();
    case ShellFamily::fish: return quote == '"' ? QByteArrayView("$`\\(") : QByteArrayView("\\");
    case ShellFamily::csh: return quote == '"' ? QByteArrayView("$`\\!") : QByteArrayView("\\!");
    }
    return QByteArrayView("$`\\");
}

} // namespace

ProfileWriter::ProfileChange ProfileWriter::withExport(const QByteArray& profile, const QString& variable,
                                                       const QString& displayName, const QString& line,
                                                       ShellFamily family)
{
    const QByteArray name = variable.toUtf8();
    const QByteArray lineBytes = line.toUtf8();
    const qsizetype valueStart = exportValueStart(lineBytes, 0, name, family);
    const QByteArray value = valueStart >= 0 ? lineBytes.mid(valueStart) : lineBytes;

    ProfileChange change;
    bool found = false;
    bool lastComputed = false;
    bool continuation = false; // the line before ended in a backslash: this one is not a command
    qsizetype position = 0;
    while (position < profile.size()) {
        qsizetype end = profile.indexOf('\n', position);
        end = end < 0 ? profile.size() : end + 1;
        const QByteArray physical = profile.mid(position, end - position);
        position = end;
        QByteArray content = physical;
        while (content.endsWith('\n') || content.endsWith('\r'))
            content.chop(1);
        const bool continued = continuation;
        continuation = content.endsWith('\\');

        const qsizetype start = continued ? -1 : exportValueStart(content, 0, name, family);
        if (start < 0) {
            change.profile += physical;
            continue;
        }
        found = true;

        // The value: literal, or computed (anything a shell would expand or join).
        qsizetype stop = start;
        bool literal = true;
        const char first = start < content.size() ? content.at(start) : '\n';
        if (first == '"' || first == '\'') {
            const qsizetype close = content.indexOf(first, start + 1);
            if (close < 0) {
                literal = false;
            } else {
                const QByteArray inside = content.mid(start + 1, close - start - 1);
                for (const char c : expandingInQuotes(first, family)) {
                    if (inside.contains(c))
                        literal = false;
                }
                stop = close + 1;
                if (stop < content.size() && !endsWord(content.at(stop)))
                    literal = false; // joined to more text
            }
        } else {
            while (stop < content.size() && !endsWord(content.at(stop)))
                ++stop;
            for (const char c : content.mid(start, stop - start)) {
                if (QByteArrayView("$`\\\"'{}*?[]~!").contains(c))
                    literal = false;
            }
        }
        // A value followed by a parenthesis is an array or a command's output.
        if (stop < content.size() && (content.at(stop) == '(' || content.at(stop) == ')'))
            literal = false;
        if (family != ShellFamily::posix) {
            // In fish and csh more words would make a list or a mistake: only a comment or
            // the next command may follow.
            const QByteArray rest = content.mid(stop).trimmed();
            if (!rest.isEmpty() && !rest.startsWith('#') && !rest.startsWith(';'))
                literal = false;
        }
        if (literal) {
            change.profile += physical.left(start) + value + physical.mid(stop);
            lastComputed = false;
        } else {
            change.profile += physical;
            lastComputed = true;
        }
    }
    if (!found || lastComputed) {
        change.profile += appendedBlock(displayName, line);
        change.appended = true;
        change.afterComputedValue = found;
    }
    return change;
}

QByteArray ProfileWriter::appendedBlock(const QString& displayName, const QString& line)
{
    return (QStringLiteral("\n# ") + displayName + QStringLiteral(" API Key\n") + line + QLatin1Char('\n')).toUtf8();
}

Result<ProfileWriter::ProfileChange> ProfileWriter::store(const QString& path, const QString& variable,
                                                          const QString& displayName, const QString& line,
                                                          ShellFamily family)
{
    ProfileChange change;
    const int error = editProfile(path, [&](const QByteArray& current) -> std::optional<QByteArray> {
        change = withExport(current, variable, displayName, line, family);
        return change.profile;
    });
    if (error != 0)
        return saveFailed(path, error);
    return change;
}

QByteArray ProfileWriter::searchPathBlock(ShellFamily family)
{
    QByteArray lines;
    switch (family) {
    case ShellFamily::posix: lines = "export PATH=\"$HOME/.local/bin:$PATH\"\n"; break;
    case ShellFamily::fish:
        lines = "if not contains -- $HOME/.local/bin $PATH\n"
                "    set -gx PATH $HOME/.local/bin $PATH\n"
                "end\n";
        break;
    case ShellFamily::csh: lines = "set path = ( $HOME/.local/bin $path )\n"; break;
    }
    return QByteArray("\n") + kSearchPathMark + '\n' + lines;
}

QString ProfileWriter::searchPathLine(ShellFamily family)
{
    switch (family) {
    case ShellFamily::posix: break;
    case ShellFamily::fish: return QStringLiteral("set -gx PATH $HOME/.local/bin $PATH");
    case ShellFamily::csh: return QStringLiteral("set path = ( $HOME/.local/bin $path )");
    }
    return QStringLiteral("export PATH=\"$HOME/.local/bin:$PATH\"");
}

Result<bool> ProfileWriter::addSearchPathBlock(const QString& path, ShellFamily family)
{
    // Once is enough; a block cut off after its mark (by an older version) is not the block.
    bool added = false;
    const int error = editProfile(path, [&added, family](const QByteArray& current) -> std::optional<QByteArray> {
        const QByteArray block = searchPathBlock(family);
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
