#include "SingleInstance.h"

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>
#include <vector>

using namespace qf;

namespace {

// One launch of the app's start-up claim, in a process of its own.
class Launch {
public:
    // `openFiles`: how many descriptors it may have open (0: as many as the system allows).
    explicit Launch(const QString& folder, int openFiles = 0)
    {
        if (openFiles > 0) {
            m_process.setProgram(QStringLiteral("/bin/sh"));
            m_process.setArguments({QStringLiteral("-c"),
                                    QStringLiteral("ulimit -n %1 && exec \"$0\" \"$1\"").arg(openFiles),
                                    QStringLiteral(QF_SINGLE_INSTANCE_HELPER), folder});
        } else {
            m_process.setProgram(QStringLiteral(QF_SINGLE_INSTANCE_HELPER));
            m_process.setArguments({folder});
        }
        m_process.start();
    }
    ~Launch()
    {
        if (m_process.state() != QProcess::NotRunning) {
            m_process.kill();
            m_process.waitForFinished(5000);
        }
    }

    // The role it printed first.
    QString role()
    {
        while (!m_process.canReadLine() && m_process.waitForReadyRead(10000)) {
        }
        return QString::fromUtf8(m_process.readLine()).trimmed();
    }
    // Everything it prints until it has exited, and its exit code.
    QString rest()
    {
        m_process.waitForFinished(10000);
        return QString::fromUtf8(m_process.readAll()).trimmed();
    }
    int exitCode() const { return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1; }
    void crash()
    {
        m_process.kill();
        m_process.waitForFinished(5000);
    }

private:
    QProcess m_process;
};

} // namespace

TEST(SingleInstance, ASecondLaunchBringsTheFirstToTheFrontAndExits)
{
    QTemporaryDir folder;
    Launch first(folder.path());
    ASSERT_EQ(first.role(), QStringLiteral("first"));

    Launch second(folder.path());
    EXPECT_EQ(second.role(), QStringLiteral("handed-over"));
    EXPECT_EQ(second.rest(), QString());
    EXPECT_EQ(second.exitCode(), 0);

    // The first copy heard the request and went on (here: it ends, as told).
    EXPECT_EQ(first.rest(), QStringLiteral("activated"));
    EXPECT_EQ(first.exitCode(), 0);

    // Once it has quit, the next launch is the first again.
    Launch next(folder.path());
    EXPECT_EQ(next.role(), QStringLiteral("first"));
}

TEST(SingleInstance, ALockLeftByACrashedCopyNeverBlocksALaunch)
{
    QTemporaryDir folder;
    SingleInstance paths(folder.path());
    {
        Launch crashed(folder.path());
        ASSERT_EQ(crashed.role(), QStringLiteral("first"));
        crashed.crash();
    }
    // Its lock and its socket are still there, belonging to no process.
    ASSERT_TRUE(QFile::exists(paths.lockPath()));
    ASSERT_TRUE(QFile::exists(paths.socketPath()));

    Launch successor(folder.path());
    EXPECT_EQ(successor.role(), QStringLiteral("first"));
    // It took the socket over too: a later launch reaches it.
    Launch later(folder.path());
    EXPECT_EQ(later.role(), QStringLiteral("handed-over"));
    EXPECT_EQ(successor.rest(), QStringLiteral("activated"));
}

TEST(SingleInstance, AFolderThatCannotBeMadeStillLetsTheAppOpen)
{
    QTemporaryDir folder;
    QFile blocker(folder.filePath(QStringLiteral("not-a-folder")));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();

    SingleInstance instance(blocker.fileName() + QStringLiteral("/runtime"));
    EXPECT_EQ(instance.claim(), SingleInstance::Role::unguarded);
    EXPECT_EQ(SingleInstance(QString()).claim(), SingleInstance::Role::unguarded);
}

TEST(SingleInstance, IdleConnectionsCannotCrowdOutALaunch)
{
    // A first copy that may open 64 files, and 120 connections of the same user that never say
    // anything, more than it could hold open.
    QTemporaryDir folder;
    Launch first(folder.path(), 64);
    ASSERT_EQ(first.role(), QStringLiteral("first"));
    const SingleInstance paths(folder.path());
    std::vector<std::unique_ptr<QLocalSocket>> idle;
    const QDeadlineTimer flooding(5000);
    while (idle.size() < 120 && !flooding.hasExpired()) {
        auto socket = std::make_unique<QLocalSocket>();
        socket->connectToServer(paths.socketPath());
        // While the queue is full the connection waits for room.
        if (socket->waitForConnected(int(flooding.remainingTime())))
            idle.push_back(std::move(socket));
    }
    // The copy kept taking them (and closing the oldest): the queue never stayed full.
    EXPECT_EQ(idle.size(), 120u);

    // With all of them still open on this side, a real launch gets through.
    Launch second(folder.path());
    EXPECT_EQ(second.role(), QStringLiteral("handed-over"));
    EXPECT_EQ(first.rest(), QStringLiteral("activated"));
}
