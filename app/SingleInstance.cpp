#include "SingleInstance.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>

#include <cstdio>

namespace qf {

namespace {

const QByteArray activateRequest = QByteArrayLiteral("activate\n");
const QByteArray activateAnswer = QByteArrayLiteral("ok\n");

// How long a later launch keeps trying to reach the first copy, which may be starting up.
constexpr int handOverMs = 3000;
constexpr int attemptMs = 500;

} // namespace

SingleInstance::SingleInstance(QString directory, QObject* parent) : QObject(parent), m_directory(std::move(directory))
{
}

SingleInstance::~SingleInstance()
{
    if (m_server)
        m_server->close();
}

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
        if (!listen())
            std::fprintf(stderr, "Quillforge: later launches cannot reach this window (%s)\n",
                         qUtf8Printable(m_server->errorString()));
        return Role::first;
    }
    if (m_lock->error() != QLockFile::LockFailedError)
        return Role::unguarded;
    return askRunningCopy() ? Role::handedOver : Role::unanswered;
}

bool SingleInstance::listen()
{
    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    // A socket left by a crashed copy is in the way; the lock says it is no one's now.
    QLocalServer::removeServer(socketPath());
    connect(m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* connection = m_server->nextPendingConnection()) {
            connect(connection, &QLocalSocket::disconnected, connection, &QObject::deleteLater);
            connect(connection, &QLocalSocket::readyRead, this, [this, connection] {
                if (!connection->canReadLine())
                    return;
                const QByteArray request = connection->readLine();
                if (request == activateRequest) {
                    connection->write(activateAnswer);
                    connection->flush();
                    Q_EMIT activationRequested();
                }
                connection->disconnectFromServer();
            });
        }
    });
    return m_server->listen(socketPath());
}

bool SingleInstance::askRunningCopy() const
{
    const QDeadlineTimer deadline(handOverMs);
    while (!deadline.hasExpired()) {
        QLocalSocket socket;
        socket.connectToServer(socketPath());
        if (socket.waitForConnected(attemptMs)) {
            socket.write(activateRequest);
            if (socket.waitForBytesWritten(attemptMs)) {
                while (!socket.canReadLine() && socket.waitForReadyRead(attemptMs)) {
                }
                if (socket.readLine() == activateAnswer)
                    return true;
            }
        }
        QThread::msleep(100);
    }
    return false;
}

} // namespace qf
