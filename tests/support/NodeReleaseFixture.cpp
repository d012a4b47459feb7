#include "NodeReleaseFixture.h"

#include "TestSupport.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <gtest/gtest.h>

namespace qf::test {

void writeFakeNodeTree(const QString& root, const QString& version)
{
    writeFile(root + QStringLiteral("/bin/node"), "#!/bin/sh\necho " + version.toUtf8() + "\n");
    QFile::copy(QStringLiteral(QF_FIXTURES_DIR "/bin/npm"), root + QStringLiteral("/bin/npm"));
    for (const char* program : {"/bin/node", "/bin/npm"})
        QFile::setPermissions(root + QLatin1String(program), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    writeFile(root + QStringLiteral("/lib/node_modules/npm/package.json"), "{}\n");
}

QString publishNodeRelease(const QString& dist, const QString& version, const QString& platformName, const QString& tar,
                           const QByteArray& checksum, const NodeTree& tree)
{
    const QString folder = QStringLiteral("node-%1-%2").arg(version, platformName);
    const QString staging = QDir::cleanPath(dist + QStringLiteral("/../staging/") + folder);
    QDir(staging).removeRecursively();
    tree(staging, version);
    for (const char* loose : {"/CHANGELOG.md", "/LICENSE", "/README.md"})
        writeFile(staging + QLatin1String(loose), "{}\n");

    const QString archive = dist + QLatin1Char('/') + version + QLatin1Char('/') + folder + QStringLiteral(".tar.gz");
    QDir().mkpath(QFileInfo(archive).absolutePath());
    QProcess packing;
    packing.setWorkingDirectory(QFileInfo(staging).absolutePath());
    packing.start(tar, {QStringLiteral("-czf"), archive, folder});
    EXPECT_TRUE(packing.waitForFinished(10000) && packing.exitCode() == 0)
        << packing.readAllStandardError().constData();

    QFile file(archive);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray sum = checksum.isEmpty()
                               ? QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha256).toHex()
                               : checksum;
    writeFile(dist + QLatin1Char('/') + version + QStringLiteral("/SHASUMS256.txt"),
              QByteArray(64, 'a') + "  node-" + version.toUtf8() + "-aix-ppc64.tar.gz\n" + sum + "  " +
                  folder.toUtf8() + ".tar.gz\n");
    // The index names a Mac's archives as "osx-ARCH-tar".
    QString indexKey = platformName;
    if (indexKey.startsWith(QLatin1String("darwin-")))
        indexKey = QStringLiteral("osx-%1-tar").arg(indexKey.mid(7));
    writeFile(dist + QStringLiteral("/index.json"),
              R"([{"version":"v25.2.0","files":["linux-x64","osx-arm64-tar"],"lts":false},
                  {"version":")" +
                  version.toUtf8() + R"(","files":["linux-arm64",")" + indexKey.toUtf8() + R"("],"lts":"Jod"},
                  {"version":"v20.19.5","files":["linux-x64"],"lts":"Iron"}])");
    return QStringLiteral("file://") + QDir::cleanPath(dist);
}

} // namespace qf::test
