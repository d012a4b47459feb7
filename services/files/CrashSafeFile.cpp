#include "CrashSafeFile.h"

#include "FileDescriptor.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <chrono>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace qf::crashSafeFile {

namespace {

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

// The file a path names: the path itself, or where its links lead (also when the
// file there does not exist yet).
QString resolvedTarget(const QString& path)
{
    QString target = path;
    for (int depth = 0; depth < 40 && QFileInfo(target).isSymLink(); ++depth)
        target = QFileInfo(target).symLinkTarget();
    return target;
}

// Holds the lock that every change of the files in one folder takes: an advisory lock on the
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

// The file as it is now: nothing when it does not exist yet. Refused (with the reason's
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

// Writes the whole new text of a file: in one step by renaming a finished copy over it, or in
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
    // A new file may hold a secret (a profile, an API key): it is the user's alone (mkstemp
    // made it 0600).
    if (writeAllAt(copy.get(), bytes, 0) < bytes.size() || ::fsync(copy.get()) != 0 || copy.close() != 0)
        return abandon(errno);
    if (::rename(temporary.constData(), name.constData()) != 0)
        return abandon(errno);
    return 0;
}

} // namespace

int change(const QString& path, const Edit& edit)
{
    const QString target = resolvedTarget(path);
    // A file of its own folder (a profile in fish's conf.d) may be the first file there.
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

} // namespace qf::crashSafeFile
