#include "BoundedLog.h"
#include "CoroTest.h"
#include "LogFile.h"
#include "TestSupport.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#include <unistd.h>

using namespace qf;

namespace {

const QString kNoticeLine = BoundedLog::cutNotice() + QLatin1Char('\n');

// `count` numbered lines of 49 characters, the first numbered `first`.
QString lines(int first, int count)
{
    QString text;
    for (int i = first; i < first + count; ++i)
        text += QStringLiteral("line %1 ").arg(i, 7, 10, QLatin1Char('0')) + QString(35, QLatin1Char('.')) +
                QLatin1Char('\n');
    return text;
}

// What a log keeps must be the newest output, whole lines of it, after the notice.
void expectNewestLines(const BoundedLog& log, const QString& everything)
{
    ASSERT_TRUE(log.wasCut());
    ASSERT_TRUE(log.text().startsWith(kNoticeLine));
    EXPECT_EQ(log.noticeLength(), kNoticeLine.size());
    const QString kept = log.text().sliced(kNoticeLine.size());
    EXPECT_LE(log.text().size(), log.limit());
    EXPECT_TRUE(everything.endsWith(kept));
    EXPECT_EQ(everything.at(everything.size() - kept.size() - 1), QLatin1Char('\n')) << "a line was split";
    EXPECT_EQ(log.cutLength() + kept.size(), everything.size());
    EXPECT_EQ(log.totalLength(), everything.size());
}

QString readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QStringLiteral("<unreadable>");
}

} // namespace

// MARK: The log kept in memory

TEST(BoundedLog, KeepsEverythingUpToFourMegabytesThenTheNewestLines)
{
    BoundedLog log;
    ASSERT_EQ(log.limit(), 4 * 1024 * 1024);
    // Exactly the limit is still whole.
    const QString block = lines(0, 1024);
    QString everything;
    while (everything.size() + block.size() <= log.limit()) {
        log.append(block);
        everything += block;
    }
    const QString tail = QString(log.limit() - everything.size(), QLatin1Char('x'));
    log.append(tail);
    everything += tail;
    EXPECT_FALSE(log.wasCut());
    EXPECT_EQ(log.text(), everything);

    // One line more, and the oldest lines go.
    const QString more = QStringLiteral("\n") + lines(5000, 1);
    log.append(more);
    everything += more;
    expectNewestLines(log, everything);
    EXPECT_TRUE(log.text().endsWith(lines(5000, 1)));
}

TEST(BoundedLog, ManySmallChunksAreCutSeldomAndAtLineStarts)
{
    const qsizetype limit = 64 * 1024;
    BoundedLog log(limit);
    const QString stream = lines(0, 20000); // about 15 times the limit
    int cuts = 0;
    qint64 cutBefore = 0;
    // Chunks of 100 characters: lines arrive split across them.
    for (qsizetype at = 0; at < stream.size(); at += 100) {
        log.append(QStringView(stream).sliced(at, std::min<qsizetype>(100, stream.size() - at)));
        EXPECT_LE(log.text().size(), limit);
        if (log.cutLength() != cutBefore) {
            ++cuts;
            cutBefore = log.cutLength();
            // Each cut makes room for an eighth of the limit, or close to it.
            EXPECT_LE(log.text().size(), limit - limit / 8 + 64);
        }
    }
    expectNewestLines(log, stream);
    // No copying of the whole text on every append: a cut per eighth of the limit at most.
    EXPECT_LE(cuts, stream.size() / (limit / 8 - 64) + 1);
    EXPECT_GE(cuts, 10);
}

TEST(BoundedLog, ALineLongerThanTheRoomIsSplitButNoCharacterIs)
{
    const qsizetype limit = 16 * 1024;
    BoundedLog log(limit);
    QString faces;
    for (int i = 0; i < limit; ++i)
        faces += QStringLiteral("\U0001F600"); // two UTF-16 units each
    log.append(QStringLiteral("first line\n"));
    log.append(faces);
    ASSERT_TRUE(log.wasCut());
    EXPECT_LE(log.text().size(), limit);
    const QString kept = log.text().sliced(log.noticeLength());
    EXPECT_FALSE(kept.front().isLowSurrogate());
    EXPECT_TRUE(faces.endsWith(kept));
    EXPECT_GT(kept.size(), limit / 2);

    // Clearing starts a new log that a viewer can tell from the old one.
    const int generation = log.generation();
    log.clear();
    EXPECT_TRUE(log.text().isEmpty());
    EXPECT_FALSE(log.wasCut());
    EXPECT_EQ(log.totalLength(), 0);
    EXPECT_NE(log.generation(), generation);
}

// MARK: The whole log on disk

TEST(LogFile, NamesSayWhenAndWhatWithoutTroublingAFileSystem)
{
    const QDateTime when(QDate(2026, 11, 25), QTime(15, 20, 3));
    EXPECT_EQ(LogBook::fileName(QStringLiteral("Install Gemini CLI"), when),
              QStringLiteral("2026-11-25 15-20-03 Install Gemini CLI.log"));
    EXPECT_EQ(LogBook::fileName(QStringLiteral("Uninstall Node.js"), when, 2),
              QStringLiteral("2026-11-25 15-20-03-02 Uninstall Node.js.log"));
    const QString odd = LogBook::fileName(QStringLiteral("Uninstall Git & Build\tTools: a/b\\c?*\"<>|\n"), when);
    EXPECT_EQ(odd, QStringLiteral("2026-11-25 15-20-03 Uninstall Git - Build Tools- a-b-c------.log"));
}

TEST(LogFile, HoldsEverythingFromTheStartPrivately)
{
    QTemporaryDir root;
    ASSERT_TRUE(root.isValid());
    // The folder and the missing one above it are made, for their owner only.
    const QString folder = root.filePath(QStringLiteral("state/logs"));
    const LogBook book(folder);
    const std::shared_ptr<LogFile> log = book.start(QStringLiteral("Install Codex"));
    ASSERT_FALSE(log->path().isEmpty());
    EXPECT_TRUE(log->isWhole());
    EXPECT_EQ(QFileInfo(log->path()).absolutePath(), QFileInfo(folder).absoluteFilePath());
    EXPECT_TRUE(log->path().endsWith(QStringLiteral(" Install Codex.log")));
    // It is there before any output arrives.
    EXPECT_TRUE(QFile::exists(log->path()));
    const auto ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
    const auto others = QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ExeGroup |
                        QFileDevice::ReadOther | QFileDevice::WriteOther | QFileDevice::ExeOther;
    EXPECT_EQ(int(QFile::permissions(log->path()) & (ownerOnly | others)), int(ownerOnly));
    for (const QString& made : {folder, root.filePath(QStringLiteral("state"))})
        EXPECT_EQ(int(QFile::permissions(made) & others), 0) << made.toStdString();

    QString everything;
    for (int i = 0; i < 3000; ++i) {
        const QString chunk = QStringLiteral("chunk %1 Größe \u20AC").arg(i) +
                              (i % 7 ? QString() : QStringLiteral("\n"));
        log->append(chunk);
        everything += chunk;
    }
    const std::optional<std::optional<QString>> whole = test::await(log->readWhole());
    ASSERT_TRUE(whole.has_value());
    EXPECT_EQ(*whole, std::optional<QString>(everything));
    // Written as it arrives, not only at the end: the file already holds it all.
    EXPECT_EQ(readAll(log->path()), everything);

    // After the log is gone, what was handed over still reaches the file.
    const QString path = log->path();
    std::shared_ptr<LogFile> last = book.start(QStringLiteral("Install Codex"));
    ASSERT_NE(last->path(), path); // a second log in the same second gets a name of its own
    last->append(QStringLiteral("the end\n"));
    const QString lastPath = last->path();
    last.reset();
    ASSERT_TRUE(QTest::qWaitFor([&] { return readAll(lastPath) == QStringLiteral("the end\n"); }, 20000));
}

TEST(LogFile, OnlyTheNewestTwentyStay)
{
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    QStringList older;
    for (int i = 1; i <= 25; ++i) {
        const QString name = LogBook::fileName(QStringLiteral("Install Claude Code"),
                                               QDateTime(QDate(2024, 1, i), QTime(9, 0, 0)));
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        older << name;
    }
    // Files of other origins are none of the book's business.
    for (const char* foreign : {"notes.log", "readme.txt"}) {
        QFile file(folder.filePath(QLatin1String(foreign)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    const LogBook book(folder.path());
    const std::shared_ptr<LogFile> newest = book.start(QStringLiteral("Uninstall Homebrew"),
                                                       QDateTime(QDate(2025, 6, 1), QTime(8, 0, 0)));
    ASSERT_FALSE(newest->path().isEmpty());

    const QStringList kept = LogBook::logFiles(folder.path());
    EXPECT_EQ(kept, older.mid(6) + QStringList{QFileInfo(newest->path()).fileName()});
    EXPECT_TRUE(QFile::exists(folder.filePath(QStringLiteral("notes.log"))));
    EXPECT_TRUE(QFile::exists(folder.filePath(QStringLiteral("readme.txt"))));
}

TEST(LogFile, ALogThatCannotBeWrittenKeepsNothingAndHarmsNothing)
{
    QTemporaryDir root;
    ASSERT_TRUE(root.isValid());
    // A file stands where the folder should be made.
    QFile blocker(root.filePath(QStringLiteral("state")));
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly));
    blocker.close();

    for (const QString& folder : {root.filePath(QStringLiteral("state/logs")), QString()}) {
        const std::shared_ptr<LogFile> log = LogBook(folder).start(QStringLiteral("Install Codex"));
        EXPECT_TRUE(log->path().isEmpty());
        EXPECT_FALSE(log->isWhole());
        log->append(QStringLiteral("output\n"));
        const std::optional<std::optional<QString>> whole = test::await(log->readWhole());
        ASSERT_TRUE(whole.has_value());
        EXPECT_FALSE(whole->has_value());
    }
    EXPECT_FALSE(QFileInfo(root.filePath(QStringLiteral("state"))).isDir());
}

TEST(LogFile, AFolderThatIsALinkOrSomeoneElsesIsLeftAlone)
{
    // Another account's folder full of old logs, readable by all, reached through a link where
    // the log folder should be; and (for root, who could change anyone's) the folder itself.
    QTemporaryDir root;
    ASSERT_TRUE(root.isValid());
    const QString theirs = root.filePath(QStringLiteral("theirs"));
    ASSERT_TRUE(QDir().mkdir(theirs));
    for (int i = 1; i <= LogBook::kKeptFiles + 5; ++i) {
        test::writeFile(QDir(theirs).filePath(LogBook::fileName(QStringLiteral("Install Codex"),
                                                                QDateTime(QDate(2024, 1, i), QTime(9, 0, 0)))),
                        "their log\n");
    }
    const QFileDevice::Permissions open = QFile::permissions(theirs);
    const QString linked = root.filePath(QStringLiteral("logs"));
    ASSERT_TRUE(QFile::link(theirs, linked));

    QStringList folders{linked};
    if (::geteuid() == 0) {
        ASSERT_EQ(::chown(QFile::encodeName(theirs).constData(), 65534, 65534), 0);
        folders << theirs;
    }
    for (const QString& folder : folders) {
        SCOPED_TRACE(folder.toStdString());
        const std::shared_ptr<LogFile> log = LogBook(folder).start(QStringLiteral("Install Claude Code"));
        EXPECT_TRUE(log->path().isEmpty());
        EXPECT_FALSE(log->isWhole());
        EXPECT_EQ(QFile::permissions(theirs), open);
        EXPECT_EQ(LogBook::logFiles(theirs).size(), LogBook::kKeptFiles + 5);
    }
}
