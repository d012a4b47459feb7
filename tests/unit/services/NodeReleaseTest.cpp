#include "NodeRelease.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace qf;

namespace {

const NodeReleaseTarget kLinux{QStringLiteral("linux-x64"), QStringLiteral("linux-x64")};
const NodeReleaseTarget kMac{QStringLiteral("darwin-arm64"), QStringLiteral("osx-arm64-tar")};

} // namespace

TEST(NodeReleaseIndex, TheNewestLTSReleaseWithAnArchiveForThisComputer)
{
    // Out of order on purpose, with a newer current release, an LTS release without a Mac
    // archive and a version that is no plain number.
    const QByteArray index = R"([
        {"version":"v20.19.5","files":["linux-x64","osx-arm64-tar"],"lts":"Iron"},
        {"version":"v25.2.0","files":["linux-x64","osx-arm64-tar"],"lts":false},
        {"version":"v22.9.0","files":["linux-x64","osx-arm64-tar"],"lts":"Jod"},
        {"version":"v22.11.0","files":["linux-x64"],"lts":"Jod"},
        {"version":"v22.12.0; rm -rf ~","files":["linux-x64","osx-arm64-tar"],"lts":"Jod"},
        {"version":"v24.1.0","files":["linux-x64","osx-arm64-tar"]}
    ])";
    EXPECT_EQ(nodeRelease::newestLTS(index, kLinux),
              (NodeRelease{QStringLiteral("v22.11.0"), QStringLiteral("Jod"), QStringLiteral("node-v22.11.0-linux-x64"),
                           QStringLiteral("node-v22.11.0-linux-x64.tar.gz")}));
    EXPECT_EQ(nodeRelease::newestLTS(index, kMac)->archiveName, QStringLiteral("node-v22.9.0-darwin-arm64.tar.gz"));
    // Version order, not text order: v9 is older than v10.
    EXPECT_EQ(nodeRelease::newestLTS(R"([{"version":"v9.11.2","files":["linux-x64"],"lts":"Carbon"},
                                         {"version":"v10.24.1","files":["linux-x64"],"lts":"Dubnium"}])",
                                     kLinux)
                  ->version,
              QStringLiteral("v10.24.1"));
    EXPECT_EQ(nodeRelease::newestLTS("not json", kLinux), std::nullopt);
    EXPECT_EQ(nodeRelease::newestLTS(R"({"version":"v22.11.0"})", kLinux), std::nullopt);
    EXPECT_EQ(nodeRelease::newestLTS(R"([{"version":"v25.2.0","files":["linux-x64"],"lts":false}])", kLinux),
              std::nullopt);
}

TEST(NodeReleaseChecksums, TheLineOfExactlyThatFile)
{
    const QByteArray a(64, 'a');
    const QByteArray b(64, 'B');
    const QByteArray list = a + "  node-v22.11.0-linux-x64.tar.gz.sig\n" + b + " *node-v22.11.0-linux-x64.tar.gz\r\n" +
                            "1234  short.tar.gz\n" + QByteArray(64, 'z') + "  bad.tar.gz\n";
    EXPECT_EQ(nodeRelease::publishedChecksum(list, QStringLiteral("node-v22.11.0-linux-x64.tar.gz")),
              QByteArray(64, 'b'));
    EXPECT_EQ(nodeRelease::publishedChecksum(list, QStringLiteral("node-v22.11.0-linux-x64.tar")), std::nullopt);
    EXPECT_EQ(nodeRelease::publishedChecksum(list, QStringLiteral("short.tar.gz")), std::nullopt);
    EXPECT_EQ(nodeRelease::publishedChecksum(list, QStringLiteral("bad.tar.gz")), std::nullopt);

    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    QFile file(folder.filePath(QStringLiteral("abc")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("abc");
    file.close();
    EXPECT_EQ(nodeRelease::sha256OfFile(file.fileName()),
              QByteArray("ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"));
    EXPECT_EQ(nodeRelease::sha256OfFile(folder.filePath(QStringLiteral("missing"))), std::nullopt);
}
