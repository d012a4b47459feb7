#pragma once

#include "FileDescriptor.h"

#include <QList>
#include <QLockFile>
#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

class QSocketNotifier;

namespace qf {

// Keeps one copy of Quillforge per user: two copies would race on the shell profile and on
// npm. The first copy holds a lock in a private folder of the user's and listens beside it; a
// later copy finds the lock held, asks the first one to come to the front and steps aside. A
// lock left by a copy that crashed belongs to no running process and is taken over.
// The socket is a plain local (Unix domain) socket: a line "activate" asks for the window and
// the answer "ok" says it was heard. Connections that say nothing cannot crowd a launch out:
// each gets a short time to speak, only a few are open at once (a new one closes the oldest),
// and with no descriptor left the copy pauses instead of trying again and again.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    enum class Role {
        first,      // this copy runs the window and answers later launches
        handedOver, // a running copy was asked to come to the front: this one exits
        unanswered, // a running copy holds the lock but did not answer
        unguarded,  // the lock could not be made at all (an unwritable folder): run anyway
    };

    // `directory` holds the lock and the socket; it is made when missing.
    explicit SingleInstance(QString directory, QObject* parent = nullptr);
    ~SingleInstance() override;

    // The user's private folder for it: the per-user runtime folder.
    static QString defaultDirectory();

    // Decides this copy's role; waits at most a few seconds, for a copy that is just starting.
    Role claim();

    QString lockPath() const;
    QString socketPath() const;

Q_SIGNALS:
    // Another launch asked for the window.
    void activationRequested();

private:
    // 0, or the system's error.
    int listen();
    void acceptConnections();
    bool askRunningCopy() const;

    QString m_directory;
    std::unique_ptr<QLockFile> m_lock;
    std::unique_ptr<FileDescriptor> m_listener;
    QSocketNotifier* m_listening = nullptr;
    // The connections open now, oldest first (those gone are null).
    QList<QPointer<QObject>> m_connections;
};

} // namespace qf
