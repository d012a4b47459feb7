#include "ProfileWriter.h"
#include "SmallDisk.h"
#include "TestSupport.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

using namespace qf;
using qf::test::SmallDisk;

namespace {

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
}

using qf::test::writeFile;

struct HelperRun {
    int exitCode = -1;
    QString output;
};

// Saves `key-0` .. `key-<iterations - 1>` and the search-path block from another process.
QProcess* startHelper(const QString& profile, const QString& variable, int iterations, qint64 sizeLimit = -1)
{
    auto* process = new QProcess;
    QStringList arguments{profile, variable, QStringLiteral("Codex"), QString::number(iterations)};
    if (sizeLimit >= 0)
        arguments << QString::number(sizeLimit);
    process->start(QStringLiteral(QF_PROFILE_WRITER_HELPER), arguments);
    return process;
}

HelperRun finish(QProcess* process)
{
    EXPECT_TRUE(process->waitForFinished(30000));
    HelperRun run{process->exitStatus() == QProcess::NormalExit ? process->exitCode() : -1,
                  QString::fromUtf8(process->readAllStandardOutput()).trimmed()};
    delete process;
    return run;
}

HelperRun runHelper(const QString& profile, const QString& variable, int iterations, qint64 sizeLimit = -1)
{
    return finish(startHelper(profile, variable, iterations, sizeLimit));
}

QStringList entries(const QString& folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

// Saves `key` for `variable` as the API key screen does.
Result<ProfileChange> saveKey(const QString& profile, const QString& key,
                              const QString& variable = QStringLiteral("OPENAI_API_KEY"),
                              const QString& toolName = QStringLiteral("Codex"))
{
    return ProfileWriter::store(profile, variable, toolName, shellExport::exportLine(variable, key));
}

// The error's text; a placeholder that matches nothing when it worked.
template <typename T>
QString failure(const Result<T>& result)
{
    return result.ok() ? QStringLiteral("<no error>") : result.error().errorDescription();
}

const QByteArray pathBlockExport = "export PATH=\"$HOME/.local/bin:$PATH\"";

} // namespace

TEST(ProfileWriterFiles, TwoWritersAtOnceLoseNothing)
{
    // Two copies (or a copy and a save still running) each save their key and the search-path
    // block over and over, at the same time.
    QTemporaryDir home;
    const QString profile = home.filePath(QStringLiteral(".zshrc"));
    writeFile(profile, "alias ll='ls -l'\n");
    constexpr int rounds = 300;
    QProcess* first = startHelper(profile, QStringLiteral("OPENAI_API_KEY"), rounds);
    QProcess* second = startHelper(profile, QStringLiteral("GEMINI_API_KEY"), rounds);
    const HelperRun one = finish(first);
    const HelperRun two = finish(second);
    ASSERT_EQ(one.exitCode, 0) << one.output.toStdString();
    ASSERT_EQ(two.exitCode, 0) << two.output.toStdString();

    const QByteArray result = contents(profile);
    EXPECT_TRUE(result.startsWith("alias ll='ls -l'\n"));
    EXPECT_EQ(result.count("export OPENAI_API_KEY="), 1) << result.toStdString();
    EXPECT_EQ(result.count("export GEMINI_API_KEY="), 1) << result.toStdString();
    EXPECT_TRUE(result.contains("export OPENAI_API_KEY=\"key-299\"\n")) << result.toStdString();
    EXPECT_TRUE(result.contains("export GEMINI_API_KEY=\"key-299\"\n")) << result.toStdString();
    EXPECT_EQ(result.count(kSearchPathMark), 1) << result.toStdString();
    EXPECT_EQ(entries(home.path()), QStringList{QStringLiteral(".zshrc")});
}

TEST(ProfileWriterFiles, AFailureAtAnyByteLeavesTheProfileAsBeforeOrAsIntended)
{
    // Every write past a limit fails, as on a disk that is full at that byte. Whatever the
    // limit, each file is as it was or as intended: never a partial line. That holds for a key
    // appended, a key rewritten, and a file that other names share (rewritten in place).
    struct Case {
        const char* name;
        QByteArray before;
        bool hardLinked;
    };
    const Case cases[] = {{"append", "x=1\n", false},
                          {"rewrite", "export OPENAI_API_KEY=\"old\"\n", false},
                          {"shared file", "export OPENAI_API_KEY=\"old-and-longer\"\n", true}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        QTemporaryDir home;
        const QString profile = home.filePath(QStringLiteral(".zshrc"));
        const QString other = home.filePath(QStringLiteral("dotfiles-zshrc"));
        const auto reset = [&] {
            QFile::remove(profile);
            QFile::remove(other);
            writeFile(profile, c.before);
            if (c.hardLinked) {
                ASSERT_EQ(::link(QFile::encodeName(profile).constData(), QFile::encodeName(other).constData()), 0);
            }
        };

        // What one save and then the block make of it, with room enough.
        reset();
        ASSERT_EQ(runHelper(profile, QStringLiteral("OPENAI_API_KEY"), 1).exitCode, 0);
        const QByteArray saved = shellExport::withExport(
                                     c.before, QStringLiteral("OPENAI_API_KEY"), QStringLiteral("Codex"),
                                     shellExport::exportLine(QStringLiteral("OPENAI_API_KEY"), QStringLiteral("key-0")))
                                     .profile;
        const QByteArray intended = contents(profile);
        // Rewritten in place, a shorter key leaves nothing of the longer one.
        EXPECT_EQ(intended, saved + shellExport::searchPathBlock());
        const QList<QByteArray> allowed{c.before, saved, intended};

        for (qint64 limit = 0; limit <= intended.size() + 1; ++limit) {
            reset();
            const HelperRun run = runHelper(profile, QStringLiteral("OPENAI_API_KEY"), 1, limit);
            const QByteArray now = contents(profile);
            EXPECT_TRUE(allowed.contains(now)) << "limit " << limit << ":\n" << now.toStdString();
            if (run.exitCode != 0) {
                EXPECT_TRUE(run.output.contains(QStringLiteral("File too large"))) << run.output.toStdString();
            }
            if (c.hardLinked) {
                EXPECT_EQ(contents(other), now); // still one file
            }
            EXPECT_EQ(entries(home.path()).size(), c.hardLinked ? 2 : 1) << "limit " << limit; // nothing left behind
        }
    }
}

TEST(ProfileWriterFiles, AFullDiskIsNamedAndBreaksNothing)
{
    QTemporaryDir root;
    const SmallDisk disk(root.filePath(QStringLiteral("disk")), "64k");
    if (!disk.mounted())
        GTEST_SKIP() << "a small tmpfs cannot be mounted here (needs root and tmpfs): the full-disk case is not run";
    const QString profile = root.filePath(QStringLiteral("disk/.zshrc"));
    const QByteArray before = "alias ll='ls -l'\nexport ANTHROPIC_API_KEY=\"old\"\n";
    writeFile(profile, before);
    disk.fill();

    EXPECT_TRUE(failure(saveKey(profile, QStringLiteral("sk-proj-1")))
                    .contains(profile + QStringLiteral(": No space left on device.")));
    EXPECT_FALSE(saveKey(profile, QStringLiteral("sk-ant-a-much-longer-key"), QStringLiteral("ANTHROPIC_API_KEY"),
                         QStringLiteral("Claude Code"))
                     .ok());
    EXPECT_TRUE(failure(ProfileWriter::addSearchPathBlock(profile))
                    .contains(QStringLiteral("No space left on device. Your disk is full")));
    EXPECT_EQ(contents(profile), before);

    // Once there is room again, the next save and the block go in whole.
    disk.free();
    ASSERT_TRUE(saveKey(profile, QStringLiteral("sk-proj-1")).ok());
    EXPECT_TRUE(ProfileWriter::addSearchPathBlock(profile).value());
    EXPECT_EQ(contents(profile),
              before + "\n# Codex API Key\nexport OPENAI_API_KEY=\"sk-proj-1\"\n" + shellExport::searchPathBlock());
    EXPECT_EQ(entries(root.filePath(QStringLiteral("disk"))), QStringList{QStringLiteral(".zshrc")});
}

TEST(ProfileWriterFiles, AReadOnlyProfileIsRefusedWhateverTheChange)
{
    // The owner made it read-only: neither a rewrite nor an append changes it, even where the
    // folder would allow replacing it (and for root, whom permissions do not stop).
    QTemporaryDir home;
    const QString profile = home.filePath(QStringLiteral(".zshrc"));
    const QByteArray before = "export OPENAI_API_KEY=\"old\"\n";
    writeFile(profile, before);
    ASSERT_EQ(::chmod(QFile::encodeName(profile).constData(), 0444), 0);

    const QString denied = profile + QStringLiteral(": Permission denied. Make");
    EXPECT_TRUE(failure(saveKey(profile, QStringLiteral("new"))).contains(denied));
    EXPECT_TRUE(
        failure(saveKey(profile, QStringLiteral("new"), QStringLiteral("GEMINI_API_KEY"), QStringLiteral("Gemini CLI")))
            .contains(denied));
    EXPECT_TRUE(failure(ProfileWriter::addSearchPathBlock(profile)).contains(denied));
    EXPECT_EQ(contents(profile), before);
    EXPECT_EQ(QFileInfo(profile).permissions() & QFile::WriteOwner, 0);

    // Where nothing needs to change, a read-only profile is no error: the key is there already.
    EXPECT_TRUE(saveKey(profile, QStringLiteral("old")).ok());
}

TEST(ProfileWriterFiles, OnlyOrdinaryFilesAreWrittenLinksAreFollowedAndACutBlockIsCompleted)
{
    QTemporaryDir home;
    const QString profile = home.filePath(QStringLiteral(".zshrc"));
    const QString target = home.filePath(QStringLiteral("dotfiles/zshrc"));

    // A link to a file that does not exist yet: the file is made where the link points. Later
    // saves rewrite it there, and a shorter key leaves nothing of a longer one.
    ASSERT_TRUE(QFile::link(target, profile));
    QDir().mkpath(home.filePath(QStringLiteral("dotfiles")));
    ASSERT_TRUE(saveKey(profile, QStringLiteral("k")).ok());
    EXPECT_EQ(contents(target), "\n# Codex API Key\nexport OPENAI_API_KEY=\"k\"\n");
    ASSERT_TRUE(saveKey(profile, QStringLiteral("sk-proj-linked-and-longer")).ok());
    ASSERT_TRUE(saveKey(profile, QStringLiteral("short")).ok());
    EXPECT_TRUE(QFileInfo(profile).isSymLink());
    EXPECT_EQ(contents(target), "\n# Codex API Key\nexport OPENAI_API_KEY=\"short\"\n");
    EXPECT_EQ(entries(home.filePath(QStringLiteral("dotfiles"))), QStringList{QStringLiteral("zshrc")});

    // A block cut off after its first line (by an older version on a full disk) would have
    // kept every later install saying "already added": it is completed, once.
    const QString bashrc = home.filePath(QStringLiteral(".bashrc"));
    const QByteArray cut = QByteArray("alias ll='ls -l'\n\n") + kSearchPathMark + "\n";
    writeFile(bashrc, cut);
    EXPECT_TRUE(ProfileWriter::addSearchPathBlock(bashrc).value());
    EXPECT_EQ(contents(bashrc), cut + shellExport::searchPathBlock());
    EXPECT_FALSE(ProfileWriter::addSearchPathBlock(bashrc).value());
    EXPECT_EQ(contents(bashrc).count(pathBlockExport), 1);

    // A device in its place is no profile: refused, and nothing is made beside the device.
    if (QFileInfo::exists(QStringLiteral("/dev/null"))) {
        const QString device = home.filePath(QStringLiteral(".profile"));
        ASSERT_TRUE(QFile::link(QStringLiteral("/dev/null"), device));
        const QStringList devBefore = entries(QStringLiteral("/dev"));
        EXPECT_TRUE(
            failure(saveKey(device, QStringLiteral("k"))).contains(device + QStringLiteral(": it is not an ordinary")));
        EXPECT_EQ(entries(QStringLiteral("/dev")), devBefore);
    }
}
