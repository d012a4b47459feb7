#include "SingleInstance.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>

using namespace qf;

namespace {

// One launch of the app's start-up claim, in a process of its own.
class Launch {
public:
    explicit Launch(const QString& folder)
    {
        m_process.setProgram(QStringLiteral(QF_SINGLE_INSTANCE_HELPER));
        m_process.setArguments({folder});
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
