// Downloads through the real curl from a server on 127.0.0.1 that is slow, stalls or hangs up:
// a download that progresses quietly is never stopped, a stalled one is, and each failure
// says what happened in words.
#include "CoroTest.h"
#include "Diagnosis.h"
#include "ShellRunner.h"
#include "TestMachine.h"

#include <QFileInfo>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

using namespace qf;
using qf::test::await;

namespace {

// Serves one file of `chunks` × `chunkSize` bytes to every request, a chunk every
// `intervalMs`; how the answer ends is `ending`.
class LocalDownloadServer : public QObject {
public:
    enum class Ending { complete, cutOff, stalls };

    LocalDownloadServer(int chunks, int chunkSize, int intervalMs, Ending ending)
        : m_chunks(chunks), m_chunkSize(chunkSize), m_intervalMs(intervalMs), m_ending(ending)
    {
        connect(&m_server, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket* socket = m_server.nextPendingConnection())
                serve(socket);
        });
        m_listening = m_server.listen(QHostAddress::LocalHost);
    }

    bool listening() const { return m_listening; }
    QString url() const { return QStringLiteral("http://127.0.0.1:%1/node.tar.gz").arg(m_server.serverPort()); }
    qint64 size() const { return qint64(m_chunks) * m_chunkSize; }

private:
    void serve(QTcpSocket* socket)
    {
        socket->setParent(this);
        // The request is read and not looked at: there is one file.
        connect(socket, &QTcpSocket::readyRead, socket, [socket] { socket->readAll(); });
        socket->write("HTTP/1.1 200 OK\r\nContent-Type: application/octet-stream\r\nContent-Length: " +
                      QByteArray::number(size()) + "\r\nConnection: close\r\n\r\n");
        auto* timer = new QTimer(socket);
        auto sent = std::make_shared<int>(0);
        const int last = m_ending == Ending::complete ? m_chunks : m_chunks / 2;
        connect(timer, &QTimer::timeout, socket, [this, socket, timer, sent, last] {
            if (*sent == last) {
                timer->stop();
                // A stalled server keeps the connection open and silent.
                if (m_ending != Ending::stalls)
                    socket->disconnectFromHost();
                return;
            }
            socket->write(QByteArray(m_chunkSize, 'n'));
            ++*sent;
        });
        timer->start(m_intervalMs);
    }

    QTcpServer m_server;
    int m_chunks;
    int m_chunkSize;
    int m_intervalMs;
    Ending m_ending;
    bool m_listening = false;
};

class DownloadTest : public ::testing::Test, protected test::TestMachine {
protected:
    void SetUp() override
    {
        if (!QFileInfo(QStringLiteral("/usr/bin/curl")).isExecutable())
            GTEST_SKIP() << "curl is not installed here (scripts/setup installs it)";
    }

    // A runner that stops a command quiet for 0.4 s.
    ShellRunner impatient()
    {
        ShellRunner::Configuration configuration = sandbox.shellConfiguration();
        configuration.streamInactivityMs = 400;
        configuration.terminationGraceMs = 200;
        return ShellRunner(configuration);
    }

    // curl as the installer uses it: no progress meter, errors shown.
    QString download(const LocalDownloadServer& server) const
    {
        return QStringLiteral("/usr/bin/curl -fsSL -o ") + target() + QLatin1Char(' ') + server.url();
    }
    QString target() const { return sandbox.stateDirectory() + QStringLiteral("/node.tar.gz"); }
};

} // namespace

TEST_F(DownloadTest, AQuietDownloadRunsWhileItProgressesAndIsStoppedWhenItStalls)
{
    // 1.5 s of bytes arriving with nothing printed: far longer than the 0.4 s quiet time.
    LocalDownloadServer steady(15, 4096, 100, LocalDownloadServer::Ending::complete);
    LocalDownloadServer stalling(8, 4096, 50, LocalDownloadServer::Ending::stalls);
    ASSERT_TRUE(steady.listening() && stalling.listening());
    ShellRunner runner = impatient();
    const auto completed =
        await(runner.runWithStreaming(download(steady), {}, nullptr, QStringLiteral("The download")));
    ASSERT_TRUE(completed.has_value());
    ASSERT_TRUE(completed->ok()) << completed->error().errorDescription().toStdString();
    EXPECT_EQ(QFileInfo(target()).size(), steady.size());

    const auto stalled =
        await(runner.runWithStreaming(download(stalling), {}, nullptr, QStringLiteral("The download of node.tar.gz")));
    ASSERT_TRUE(stalled.has_value());
    ASSERT_FALSE(stalled->ok());
    EXPECT_EQ(stalled->error().errorDescription(),
              QStringLiteral("The download of node.tar.gz made no progress for 0.4 seconds and was stopped."));
}

TEST_F(DownloadTest, ADownloadCutOffSaysSo)
{
    LocalDownloadServer server(8, 4096, 20, LocalDownloadServer::Ending::cutOff);
    ASSERT_TRUE(server.listening());
    const QString cut = failureSentence(FailureCause::cutOff);

    // Streamed (as the archive is fetched) and captured (as the release list is).
    const auto streamed = await(services.runner.runWithStreaming(download(server), {}));
    ASSERT_TRUE(streamed.has_value());
    ASSERT_FALSE(streamed->ok());
    EXPECT_EQ(streamed->error().plainDescription(), cut);
    EXPECT_EQ(streamed->error().shellError()->exitCode(), 18);

    const auto captured = await(services.runner.run(QStringLiteral("/usr/bin/curl -fsSL ") + server.url()));
    ASSERT_TRUE(captured.has_value());
    ASSERT_FALSE(captured->ok());
    EXPECT_EQ(captured->error().plainDescription(), cut);
}
