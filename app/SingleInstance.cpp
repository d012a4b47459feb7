#include "SingleInstance.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QSocketNotifier>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <functional>
#include <optional>

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace qf {

namespace {

const QByteArray activateRequest = QByteArrayLiteral("activate\n");
const QByteArray activateAnswer = QByteArrayLiteral("ok\n");

// How long a later launch keeps trying to reach the first copy, which may be starting up.
constexpr int handOverMs = 3000;
constexpr int attemptMs = 500;
// The longest request line read from a connection; anything longer is no request of ours.
constexpr qsizetype maximumLine = 64;
// A connection that has not said what it wants by then is closed: a launch says it at once.
constexpr int requestDeadlineMs = 2000;
// At most this many connections are open at a time; a new one closes the oldest, which had
// the longest to speak. Well below any limit of open files.
constexpr qsizetype maximumConnections = 16;
// Out of descriptors, the copy stops taking connections for this long instead of trying again
// at once, over and over.
constexpr int acceptPauseMs = 200;

// The socket's address, when its path fits one.
std::optional<sockaddr_un> addressOf(const QString& path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const QByteArray encoded = QFile::encodeName(path);
    if (encoded.isEmpty() || size_t(encoded.size()) >= sizeof address.sun_path)
        return std::nullopt;
    std::memcpy(address.sun_path, encoded.constData(), size_t(encoded.size()));
    return address;
}

// Readies a socket: no started program inherits it, it never blocks, and a write to a peer
// that has gone fails instead of raising SIGPIPE, which would end the process.
bool prepare(int fd)
{
#ifdef SO_NOSIGPIPE
    const int on = 1;
    if (::setsockopt(fd, SOL_SOCKET, SO_NOSIGPIPE, &on, sizeof on) != 0)
        return false;
#endif
    return ::fcntl(fd, F_SETFD, FD_CLOEXEC) == 0 && ::fcntl(fd, F_SETFL, ::fcntl(fd, F_GETFL) | O_NONBLOCK) == 0;
}

// A stream socket, prepared; -1 when none could be made.
int openSocket()
{
    const int fd = ::socket(AF_UNIX, SOCK_STREAM, 0);
    if (fd >= 0 && !prepare(fd)) {
        ::close(fd);
        return -1;
    }
    return fd;
}

// Waits until `fd` is ready for `events`, at most `ms`.
bool waitFor(int fd, short events, int ms)
{
    pollfd entry{fd, events, 0};
    int ready;
    do {
        ready = ::poll(&entry, 1, ms);
    } while (ready < 0 && errno == EINTR);
    return ready > 0 && (entry.revents & events);
}

#ifdef MSG_NOSIGNAL
constexpr int sendFlags = MSG_NOSIGNAL;
#else
constexpr int sendFlags = 0; // the socket was told so when it was prepared
#endif

// Writes all of `data`, waiting at most `ms` whenever the socket is full.
bool sendAll(int fd, const QByteArray& data, int ms)
{
    qsizetype sent = 0;
    while (sent < data.size()) {
        const ssize_t n = ::send(fd, data.constData() + sent, size_t(data.size() - sent), sendFlags);
        if (n > 0) {
            sent += n;
            continue;
        }
        // Interrupted, or full for now and writable again in time: try again.
        const bool again = n < 0 &&
                           (errno == EINTR || ((errno == EAGAIN || errno == EWOULDBLOCK) && waitFor(fd, POLLOUT, ms)));
        if (!again)
            return false;
    }
    return true;
}

// One later launch talking to the first copy: reads its request line and answers it.
class Connection : public QObject {
public:
    Connection(int fd, QObject* parent, std::function<void()> onActivate)
        : QObject(parent), m_socket(fd), m_notifier(fd, QSocketNotifier::Read), m_onActivate(std::move(onActivate))
    {
        connect(&m_notifier, &QSocketNotifier::activated, this, [this] { readRequest(); });
        QTimer::singleShot(requestDeadlineMs, this, [this] { deleteLater(); });
    }

private:
    void readRequest()
    {
        char buffer[64];
        while (true) {
            const ssize_t n = ::read(m_socket.get(), buffer, sizeof buffer);
            if (n > 0) {
                m_line.append(buffer, n);
                if (m_line.contains('\n') || m_line.size() > maximumLine)
                    break;
                continue;
            }
            if (n < 0 && errno == EINTR)
                continue;
            if (n < 0 && (errno == EAGAIN || errno == EWOULDBLOCK))
                return; // the rest of the line comes later
            break;      // the other side is gone
        }
        m_notifier.setEnabled(false);
        if (m_line == activateRequest) {
            sendAll(m_socket.get(), activateAnswer, attemptMs);
            m_onActivate();
        }
        deleteLater();
    }

    FileDescriptor m_socket;
    QSocketNotifier m_notifier;
    std::function<void()> m_onActivate;
    QByteArray m_line;
};

} // namespace

SingleInstance::SingleInstance(QString directory, QObject* parent) : QObject(parent), m_directory(std::move(directory))
{
}

SingleInstance::~SingleInstance() = default;

QString SingleInstance::defaultDirectory() { return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation); }

QString SingleInstance::lockPath() const { return m_directory + QStringLiteral("/app.quillforge.Quillforge.lock"); }

QString SingleInstance::socketPath() const { return m_directory + QStringLiteral("/app.quillforge.Quillforge.socket"); }

SingleInstance::Role SingleInstance::claim()
{
    if (m_directory.isEmpty() || !QDir().mkpath(m_directory))
        return Role::unguarded;

    m_lock = std::make_unique<QLockFile>(lockPath());
    // Only a lock whose process is gone is stale, however old it is: a copy may run for days.
    m_lock->setStaleLockTime(0);
    if (m_lock->tryLock(0)) {
        if (const int error = listen())
            std::fprintf(stderr, "Quillforge: later launches cannot reach this window (%s)\n", std::strerror(error));
        return Role::first;
    }
    if (m_lock->error() != QLockFile::LockFailedError)
        return Role::unguarded;
    return askRunningCopy() ? Role::handedOver : Role::unanswered;
}

int SingleInstance::listen()
{
    const std::optional<sockaddr_un> address = addressOf(socketPath());
    if (!address)
        return ENAMETOOLONG;
    const int fd = openSocket();
    if (fd < 0)
        return errno;
    auto listener = std::make_unique<FileDescriptor>(fd);
    // A socket left by a crashed copy is in the way; the lock says it is no one's now.
    ::unlink(address->sun_path);
    if (::bind(fd, reinterpret_cast<const sockaddr*>(&*address), sizeof *address) != 0)
        return errno;
    // Only this user may ask for the window.
    if (::chmod(address->sun_path, S_IRUSR | S_IWUSR) != 0 || ::listen(fd, 8) != 0)
        return errno;
    m_listener = std::move(listener);
    m_listening = new QSocketNotifier(fd, QSocketNotifier::Read, this);
    connect(m_listening, &QSocketNotifier::activated, this, &SingleInstance::acceptConnections);
    return 0;
}

void SingleInstance::acceptConnections()
{
    // A turn of the event loop after at most a full set, so that the ones taken get read.
    for (qsizetype taken = 0; taken < maximumConnections;) {
        const int fd = ::accept(m_listener->get(), nullptr, nullptr);
        if (fd < 0) {
            if (errno == EINTR)
                continue;
            if (errno == EMFILE || errno == ENFILE || errno == ENOBUFS || errno == ENOMEM) {
                // The connection waits in the queue until a descriptor is free again.
                m_connections.removeAll(nullptr);
                if (!m_connections.isEmpty())
                    delete m_connections.takeFirst().data();
                m_listening->setEnabled(false);
                QTimer::singleShot(acceptPauseMs, m_listening,
                                   [listening = m_listening] { listening->setEnabled(true); });
            }
            return; // none waiting any more, or the connection went away before it was taken
        }
        if (!prepare(fd)) {
            ::close(fd);
            continue;
        }
        ++taken;
        m_connections.removeAll(nullptr);
        while (m_connections.size() >= maximumConnections)
            delete m_connections.takeFirst().data();
        m_connections << new Connection(fd, this, [this] { Q_EMIT activationRequested(); });
    }
}

bool SingleInstance::askRunningCopy() const
{
    const std::optional<sockaddr_un> address = addressOf(socketPath());
    if (!address)
        return false;
    const QDeadlineTimer deadline(handOverMs);
    while (!deadline.hasExpired()) {
        const FileDescriptor socket(openSocket());
        if (socket.get() >= 0) {
            const int connected = ::connect(socket.get(), reinterpret_cast<const sockaddr*>(&*address),
                                            sizeof *address);
            const bool reached = connected == 0 || ((errno == EINPROGRESS || errno == EAGAIN) &&
                                                    waitFor(socket.get(), POLLOUT, attemptMs));
            if (reached && sendAll(socket.get(), activateRequest, attemptMs)) {
                QByteArray answer;
                char buffer[16];
                while (!answer.contains('\n') && answer.size() <= maximumLine &&
                       waitFor(socket.get(), POLLIN, attemptMs)) {
                    const ssize_t n = ::read(socket.get(), buffer, sizeof buffer);
                    if (n <= 0 && !(n < 0 && errno == EINTR))
                        break;
                    if (n > 0)
                        answer.append(buffer, n);
                }
                if (answer == activateAnswer)
                    return true;
            }
        }
        QThread::msleep(100);
    }
    return false;
}

} // namespace qf
