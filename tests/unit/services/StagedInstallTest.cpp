#include "CoroTest.h"
#include "NodeInstaller.h"
#include "NodeReleaseFixture.h"
#include "SmallDisk.h"
#include "StagedInstall.h"
#include "TestMachine.h"
#include "TestSupport.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <map>
#include <string>
#include <vector>

#include <sys/time.h>
#include <unistd.h>
#include <utime.h>

using namespace qf;
using qf::test::await;
using qf::test::SmallDisk;

namespace {

// A link's own target, as written; empty for anything that is no link.
std::string linkTarget(const QString& path)
{
    char buffer[4096];
    const ssize_t length = ::readlink(QFile::encodeName(path).constData(), buffer, sizeof buffer);
    return length < 0 ? std::string() : std::string(buffer, static_cast<std::size_t>(length));
}

// What a Node.js release holds below its top folder: node (a script that prints `version`,
// made `padding` bytes longer), npm and npx as links into npm's own folder, npm's files, a
// header and a manual page; with `corepack`, corepack's folder and its link too.
void writeNodeTree(const QString& root, const QString& version, qsizetype padding = 0, bool corepack = false)
{
    const QByteArray v = version.toUtf8();
    QByteArray node = "#!/bin/sh\necho " + v + "\n";
    if (padding > 0)
        node += "# " + QByteArray(padding, 'x') + "\n";
    EXPECT_TRUE(test::writeExecutable(root + QStringLiteral("/bin/node"), node));
    const QString npm = root + QStringLiteral("/lib/node_modules/npm");
    EXPECT_TRUE(test::writeExecutable(npm + QStringLiteral("/bin/npm-cli.js"), "#!/bin/sh\necho npm " + v + "\n"));
    EXPECT_TRUE(test::writeExecutable(npm + QStringLiteral("/bin/npx-cli.js"), "#!/bin/sh\necho npx " + v + "\n"));
    test::writeFile(npm + QStringLiteral("/package.json"), "{\"version\":\"" + v + "\"}\n");
    test::makeLink(QStringLiteral("../lib/node_modules/npm/bin/npm-cli.js"), root + QStringLiteral("/bin/npm"));
    test::makeLink(QStringLiteral("../lib/node_modules/npm/bin/npx-cli.js"), root + QStringLiteral("/bin/npx"));
    test::writeFile(root + QStringLiteral("/include/node/node.h"), "// Node.js " + v + "\n");
    test::writeFile(root + QStringLiteral("/share/man/man1/node.1"), ".TH NODE 1 " + v + "\n");
    if (corepack) {
        EXPECT_TRUE(test::writeExecutable(root + QStringLiteral("/lib/node_modules/corepack/dist/corepack.js"),
                                          "#!/bin/sh\necho corepack\n"));
        test::makeLink(QStringLiteral("../lib/node_modules/corepack/dist/corepack.js"),
                       root + QStringLiteral("/bin/corepack"));
    }
}

// Every entry below `root`, links not followed: folders, links with their target, files with
// their permissions, size and contents' hash.
std::map<std::string, std::string> snapshot(const QString& root)
{
    std::map<std::string, std::string> entries;
    QDirIterator it(root, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        const QFileInfo info(path);
        std::string description;
        if (info.isSymLink()) {
            description = "link to " + linkTarget(path);
        } else if (info.isDir()) {
            description = "folder";
        } else {
            QFile file(path);
            const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<unreadable>");
            description =
                QStringLiteral("file %1 %2 %3")
                    .arg(QString::number(info.permissions(), 16))
                    .arg(bytes.size())
                    .arg(QString::fromLatin1(QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex()))
                    .toStdString();
        }
        entries.emplace(QDir(root).relativeFilePath(path).toStdString(), description);
    }
    return entries;
}

std::vector<std::string> entriesOf(const QString& folder)
{
    std::vector<std::string> names;
    for (const QString& name :
         QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name))
        names.push_back(name.toStdString());
    return names;
}

// What a program prints on its standard output; "<failed>" when it does not run or fails.
std::string runProgram(const QString& program)
{
    QProcess process;
    process.start(program, {});
    if (!process.waitForFinished(10000) || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return "<failed>";
    return process.readAllStandardOutput().trimmed().toStdString();
}

// What node, npm and npx in the folder `bin` print, one to a line.
std::string nodeAndNpm(const QString& bin)
{
    std::string printed;
    for (const char* program : {"/node", "/npm", "/npx"})
        printed += runProgram(bin + QLatin1String(program)) + "\n";
    return printed;
}

// What the Node.js installer moves in last, in this order.
const QStringList kLast{QStringLiteral("bin/corepack"), QStringLiteral("bin/npx"), QStringLiteral("bin/npm"),
                        QStringLiteral("bin/node")};

// Installs release `version` into `destination` as the Node.js installer does, through a
// staging folder; the error's text when it fails, empty when it worked.
std::string installTree(const QString& destination, const QString& version, qsizetype padding = 0,
                        bool corepack = false)
{
    const Result<stagedInstall::Staging> staging = stagedInstall::begin(destination);
    if (!staging)
        return staging.error().errorDescription().toStdString();
    writeNodeTree(staging.value().folder, version, padding, corepack);
    const Result<void> completed = stagedInstall::complete(staging.value(), destination, kLast);
    return completed ? std::string() : completed.error().errorDescription().toStdString();
}

const std::vector<std::string> kInstalledFolders{"bin", "include", "lib", "share"};

class StagedInstallTest : public ::testing::Test, protected test::TestMachine {
protected:
    StagedInstallTest() { sandbox.installFake(QStringLiteral("curl")); }

    // Publishes release `version` (its node `padding` bytes longer) as nodejs.org does, in the
    // sandbox, as the newest LTS release, and points the installer at it.
    void publish(const QString& version, qsizetype padding = 0)
    {
        installer.setDistribution(test::publishNodeRelease(
            sandbox.stateDirectory() + QStringLiteral("/dist"), version, QStringLiteral("linux-x64"),
            QStringLiteral("tar"), QByteArray(),
            [padding](const QString& root, const QString& release) { writeNodeTree(root, release, padding); }));
    }

    // Installs the published release; the error's text when it fails, empty when it worked.
    std::string install()
    {
        log.clear();
        const std::optional<Result<QString>> result =
            await(installer.installRelease([this](const QString& text) { log += text; }));
        if (!result)
            return "<did not finish>";
        return result->ok() ? std::string() : result->error().errorDescription().toStdString();
    }

    QString home(const QString& relative) const { return sandbox.path(relative); }

    NodeInstaller& installer = services.nodeInstaller;
    QString log;
};

} // namespace

TEST_F(StagedInstallTest, ALinkedProgramFolderStaysALinkAndReceivesNode)
{
    // A dotfiles manager links ~/.local/bin to a folder of the user's own scripts.
    ASSERT_TRUE(test::writeExecutable(home(QStringLiteral("dotfiles/bin/hello")), "#!/bin/sh\necho hello\n"));
    test::makeLink(QStringLiteral("../dotfiles/bin"), home(QStringLiteral(".local/bin")));

    // The first release, then a newer one through the same link. npm's link reaches npm in
    // ~/.local/lib, though its folder is somewhere else.
    for (const char* version : {"v22.11.0", "v22.12.0"}) {
        SCOPED_TRACE(version);
        publish(QString::fromLatin1(version));
        ASSERT_EQ(install(), "") << log.toStdString();
        EXPECT_EQ(linkTarget(home(QStringLiteral(".local/bin"))), "../dotfiles/bin");
        EXPECT_EQ(runProgram(home(QStringLiteral(".local/bin/hello"))), "hello");
        const QString v = QString::fromLatin1(version);
        EXPECT_EQ(nodeAndNpm(home(QStringLiteral(".local/bin"))),
                  QStringLiteral("%1\nnpm %1\nnpx %1\n").arg(v).toStdString());
        EXPECT_EQ(runProgram(home(QStringLiteral("dotfiles/bin/node"))), v.toStdString());
        EXPECT_EQ(entriesOf(home(QStringLiteral(".local"))), kInstalledFolders);
        EXPECT_EQ(entriesOf(home(QStringLiteral("dotfiles/bin"))),
                  (std::vector<std::string>{"hello", "node", "npm", "npx"}));
    }
}

TEST_F(StagedInstallTest, ALinkToAFolderNotYetThereGetsThatFolder)
{
    // ~/.local itself links, absolutely, to a folder not there yet (for ~/.local/bin, see the
    // failures below).
    publish(QStringLiteral("v22.11.0"));
    test::makeLink(home(QStringLiteral("dotfiles/local")), home(QStringLiteral(".local")));
    ASSERT_EQ(install(), "") << log.toStdString();
    EXPECT_EQ(linkTarget(home(QStringLiteral(".local"))), home(QStringLiteral("dotfiles/local")).toStdString());
    EXPECT_EQ(runProgram(home(QStringLiteral("dotfiles/local/bin/node"))), "v22.11.0");
    EXPECT_EQ(entriesOf(home(QStringLiteral("dotfiles/local"))), kInstalledFolders);
}

TEST_F(StagedInstallTest, AFullDiskLeavesThePreviousNodeAsItWas)
{
    const SmallDisk disk(home(QStringLiteral(".local")), "512k");
    if (!disk.mounted())
        GTEST_SKIP() << "a small tmpfs cannot be mounted here (needs root and tmpfs): the full-disk case is not run";
    publish(QStringLiteral("v20.19.5"));
    ASSERT_EQ(install(), "") << log.toStdString();
    const std::map<std::string, std::string> before = snapshot(home(QStringLiteral(".local")));

    // The new node alone is larger than the disk.
    publish(QStringLiteral("v22.11.0"), qsizetype{1024} * 1024);
    const std::string error = install();
    EXPECT_EQ(error.rfind("Could not unpack Node.js v22.11.0: ", 0), 0u) << error;
    EXPECT_NE(error.find("No space left on device"), std::string::npos) << error;
    EXPECT_EQ(snapshot(home(QStringLiteral(".local"))), before);
    EXPECT_EQ(runProgram(home(QStringLiteral(".local/bin/node"))), "v20.19.5");
}

TEST_F(StagedInstallTest, AFailureAnywherePutsEverythingBack)
{
    // Something in the way of a file of the new release stops the install where it stands: in
    // the middle, with the header and npm's files in already, or among the last entries, with
    // corepack and npx in already. ~/.local/bin links into a dotfiles folder throughout.
    struct Case {
        const char* name;
        bool earlierRelease;
        bool binLinkDangles;
        QString blocker;
    };
    const Case cases[] = {
        {"halfway, over an earlier release", true, false, QStringLiteral("share/man/man1/node.1")},
        {"among the last entries, over an earlier release", true, false, QStringLiteral("bin/npm")},
        {"halfway, first release, ~/.local/bin links to nothing yet", false, true,
         QStringLiteral("share/man/man1/node.1")},
    };
    int number = 0;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const QString root = home(QStringLiteral("case-%1").arg(++number));
        const QString local = root + QStringLiteral("/.local");
        if (!c.binLinkDangles) {
            ASSERT_TRUE(test::writeExecutable(root + QStringLiteral("/dotfiles/bin/hello"), "#!/bin/sh\necho hello\n"));
        }
        test::makeLink(QStringLiteral("../dotfiles/bin"), local + QStringLiteral("/bin"));
        if (c.earlierRelease) {
            ASSERT_EQ(installTree(local, QStringLiteral("v20.19.5")), "");
        }
        const QString blocker = local + QLatin1Char('/') + c.blocker;
        QFile::remove(blocker);
        test::writeFile(blocker + QStringLiteral("/notes.txt"), "mine\n");
        const std::map<std::string, std::string> before = snapshot(root);

        EXPECT_EQ(installTree(local, QStringLiteral("v22.11.0"), 0, true),
                  "Could not install " + blocker.toStdString() + ": a folder is where a file belongs");
        EXPECT_EQ(snapshot(root), before);

        // Once the way is clear, the same release goes in.
        ASSERT_TRUE(QDir(blocker).removeRecursively());
        ASSERT_EQ(installTree(local, QStringLiteral("v22.11.0"), 0, true), "");
        EXPECT_EQ(linkTarget(local + QStringLiteral("/bin")), "../dotfiles/bin");
        EXPECT_EQ(nodeAndNpm(local + QStringLiteral("/bin")), "v22.11.0\nnpm v22.11.0\nnpx v22.11.0\n");
        EXPECT_EQ(runProgram(local + QStringLiteral("/bin/corepack")), "corepack");
        EXPECT_EQ(entriesOf(local), kInstalledFolders);
    }

    // A file where ~/.local belongs: refused, with nothing made.
    const QString root = home(QStringLiteral("case-file"));
    test::writeFile(root + QStringLiteral("/.local"), "not a folder\n");
    EXPECT_EQ(installTree(root + QStringLiteral("/.local"), QStringLiteral("v22.11.0")),
              "Could not make the folder " + root.toStdString() + "/.local: Not a directory");
    EXPECT_EQ(entriesOf(root), std::vector<std::string>{".local"});
}

TEST_F(StagedInstallTest, AFolderLinkedToAnotherDiskGetsCopiesAndAFullOneNothing)
{
    const SmallDisk disk(home(QStringLiteral("disk")), "256k");
    if (!disk.mounted())
        GTEST_SKIP() << "a small tmpfs cannot be mounted here (needs root and tmpfs): the other-disk case is not run";
    ASSERT_TRUE(test::writeExecutable(home(QStringLiteral("disk/bin/hello")), "#!/bin/sh\necho hello\n"));
    const QString local = home(QStringLiteral(".local"));
    test::makeLink(QStringLiteral("../disk/bin"), local + QStringLiteral("/bin"));

    // No rename reaches the other disk: node is copied there, whole and runnable.
    ASSERT_EQ(installTree(local, QStringLiteral("v20.19.5")), "");
    EXPECT_EQ(nodeAndNpm(local + QStringLiteral("/bin")), "v20.19.5\nnpm v20.19.5\nnpx v20.19.5\n");
    EXPECT_EQ(runProgram(local + QStringLiteral("/bin/hello")), "hello");
    EXPECT_EQ(entriesOf(home(QStringLiteral("disk/bin"))), (std::vector<std::string>{"hello", "node", "npm", "npx"}));
    EXPECT_EQ(entriesOf(local), kInstalledFolders);

    // A node larger than the disk: the system's reason, and everything as it was.
    const std::map<std::string, std::string> before = snapshot(home(QString()));
    EXPECT_EQ(installTree(local, QStringLiteral("v22.11.0"), qsizetype{512} * 1024),
              "Could not install " + local.toStdString() + "/bin/node: No space left on device");
    EXPECT_EQ(snapshot(home(QString())), before);
    EXPECT_EQ(runProgram(local + QStringLiteral("/bin/node")), "v20.19.5");
}

TEST(StagedInstallLeftovers, WhatAStoppedRunLeftGoesAndNothingElse)
{
    QTemporaryDir root;
    ASSERT_TRUE(root.isValid());
    const QString local = root.filePath(QStringLiteral("home/.local"));
    const QString temporary = root.filePath(QStringLiteral("tmp"));
    const qint64 now = QDateTime::currentSecsSinceEpoch();
    // Folders as a killed run leaves them: last changed an hour ago.
    const auto leftover = [now](const QString& folder) {
        ASSERT_TRUE(test::writeExecutable(folder + QStringLiteral("/bin/node"), "#!/bin/sh\n"));
        const QByteArray path = QFile::encodeName(folder);
        const struct timeval times[2] = {{static_cast<time_t>(now - 3600), 0}, {static_cast<time_t>(now - 3600), 0}};
        ASSERT_EQ(::lutimes(path.constData(), times), 0);
    };
    const QStringList gone = {
        local + QStringLiteral("/.quillforge-staging-a1b2c3"),
        local + QStringLiteral("/lib/node_modules/.quillforge-swap-d4e5f6"),
        temporary + QStringLiteral("/quillforge-node-g7h8i9"),
        temporary + QStringLiteral("/quillforge-command-j0k1l2"),
    };
    for (const QString& folder : gone)
        leftover(folder);
    // What stays: the user's own files, a folder of ours too deep to be one, one of a run under
    // way (changed just now), a link with our name, and (for root) another account's folder.
    ASSERT_TRUE(test::writeExecutable(local + QStringLiteral("/bin/node"), "#!/bin/sh\n"));
    leftover(local + QStringLiteral("/a/b/c/.quillforge-staging-deep"));
    leftover(temporary + QStringLiteral("/quillforge-environment-busy"));
    ASSERT_EQ(
        ::utime(QFile::encodeName(temporary + QStringLiteral("/quillforge-environment-busy")).constData(), nullptr), 0);
    leftover(root.filePath(QStringLiteral("elsewhere")));
    test::makeLink(root.filePath(QStringLiteral("elsewhere")), temporary + QStringLiteral("/quillforge-node-link"));
    QStringList kept = {local + QStringLiteral("/bin/node"), local + QStringLiteral("/a/b/c/.quillforge-staging-deep"),
                        temporary + QStringLiteral("/quillforge-environment-busy"),
                        root.filePath(QStringLiteral("elsewhere/bin/node"))};
    if (::geteuid() == 0) {
        const QString theirs = temporary + QStringLiteral("/quillforge-node-theirs");
        leftover(theirs);
        ASSERT_EQ(::lchown(QFile::encodeName(theirs).constData(), 65534, 65534), 0);
        kept << theirs;
    }

    QStringList removed = stagedInstall::removeLeftovers(local, temporary, now);
    removed.sort();
    QStringList expected = gone;
    expected.sort();
    EXPECT_EQ(removed, expected);
    for (const QString& path : gone)
        EXPECT_FALSE(QFileInfo::exists(path)) << path.toStdString();
    for (const QString& path : kept)
        EXPECT_TRUE(QFileInfo::exists(path)) << path.toStdString();
    EXPECT_TRUE(QFileInfo(temporary + QStringLiteral("/quillforge-node-link")).isSymLink());
}
