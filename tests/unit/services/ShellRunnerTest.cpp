#include "CoroTest.h"
#include "ShellRunner.h"
#include "ShellSandbox.h"
#include "TestMachine.h"
#include "TestSupport.h"

#include <QDir>
#include <QFile>
#include <QLocale>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <csignal>

#include <unistd.h>

using namespace qf;
using qf::test::await;

namespace {

struct Streamed {
    QStringList chunks;
    bool allOnGuiThread = true;
    std::optional<Result<void>> result;
    QString text() const { return chunks.join(QString()); }
};

QString message(const Result<QString>& result) { return result.ok() ? QString() : result.error().errorDescription(); }

template <typename T>
bool isCancellation(const std::optional<Result<T>>& result)
{
    return result && !result->ok() && result->error().shellError() &&
           result->error().shellError()->kind() == ShellError::cancelled;
}

class ShellRunnerTest : public ::testing::Test, protected test::TestMachine {
protected:
    Result<QString> run(const QString& command, double timeout = ShellRunner::defaultTimeoutSeconds)
    {
        return run(services.runner, command, timeout);
    }
    static Result<QString> run(ShellRunner& runner, const QString& command,
                               double timeout = ShellRunner::defaultTimeoutSeconds)
    {
        auto result = await(runner.run(command, timeout));
        if (!result)
            return ServiceError::message(QStringLiteral("did not finish"));
        return *result;
    }

    Streamed stream(const QString& command) { return stream(services.runner, command); }
    static Streamed stream(ShellRunner& runner, const QString& command)
    {
        Streamed streamed;
        auto result = await(runner.runWithStreaming(command, [&](const QString& text) {
            streamed.chunks << text;
            streamed.allOnGuiThread = streamed.allOnGuiThread && QThread::currentThread() == qApp->thread();
        }));
        streamed.result = result;
        return streamed;
    }

    // A runner like the test's own, changed as `change` says.
    template <typename Change>
    ShellRunner::Configuration configurationWith(Change change) const
    {
        ShellRunner::Configuration configuration = sandbox.shellConfiguration();
        change(configuration);
        return configuration;
    }
};

} // namespace

TEST_F(ShellRunnerTest, ChildSeesNvmVersionsFirstAndTheAppPathOnceAtTheEnd)
{
    for (const char* version : {"v18.17.0", "v9.11.2", "v20.10.0", ".hidden"})
        QDir().mkpath(sandbox.path(QStringLiteral(".nvm/versions/node/") + QLatin1String(version)));
    const QString versions = sandbox.home() + QStringLiteral("/.nvm/versions/node/");
    // Descending text order, not version order; hidden entries too.
    const QStringList own = {versions + QStringLiteral("v9.11.2/bin"),       versions + QStringLiteral("v20.10.0/bin"),
                             versions + QStringLiteral("v18.17.0/bin"),      versions + QStringLiteral(".hidden/bin"),
                             sandbox.home() + QStringLiteral("/.local/bin"), sandbox.binDirectory()};

    // Without a login environment, the folders every command searches come first.
    ShellRunner perCommand(sandbox.shellConfiguration());
    const Result<QString> path = run(perCommand, QStringLiteral("printf %s \"$PATH\""));
    ASSERT_TRUE(path.ok()) << message(path).toStdString();
    const QStringList parts = path.value().split(QLatin1Char(':'));
    ASSERT_EQ(parts.size(), own.size() + 1);
    EXPECT_EQ(parts.mid(0, own.size()), own);
    EXPECT_TRUE(parts.last().endsWith(QStringLiteral("/tools")));

    // With one, its search path comes first and the same folders follow, once each.
    const Result<QString> login = run(QStringLiteral("printf %s \"$PATH\""));
    ASSERT_TRUE(login.ok()) << message(login).toStdString();
    EXPECT_EQ(login.value().split(QLatin1Char(':')), QStringList{parts.last()} + own);

    QDir(sandbox.path(QStringLiteral(".nvm"))).removeRecursively();
    const Result<QString> plain = run(perCommand, QStringLiteral("printf %s \"$PATH\""));
    ASSERT_TRUE(plain.ok());
    EXPECT_TRUE(plain.value().startsWith(sandbox.home() + QStringLiteral("/.local/bin:")));
}

TEST_F(ShellRunnerTest, ResultTexts)
{
    EXPECT_EQ(run(QStringLiteral("echo hello")).value(), QStringLiteral("hello"));
    EXPECT_EQ(run(QStringLiteral("printf '  spaced out \\n\\n'")).value(), QStringLiteral("spaced out"));
    EXPECT_EQ(run(QStringLiteral("echo only-errors >&2")).value(), QString());

    const Result<QString> onlyErr = run(QStringLiteral("echo '  broken  ' >&2; exit 4"));
    ASSERT_FALSE(onlyErr.ok());
    ASSERT_NE(onlyErr.error().shellError(), nullptr);
    EXPECT_EQ(onlyErr.error().shellError()->exitCode(), 4);
    EXPECT_EQ(onlyErr.error().shellError()->output(), QStringLiteral("broken"));

    const Result<QString> both = run(QStringLiteral("echo out; echo err >&2; exit 1"));
    ASSERT_FALSE(both.ok());
    EXPECT_EQ(both.error().shellError()->output(), QStringLiteral("out\n\nerr"));

    const Result<QString> silent = run(QStringLiteral("exit 3"));
    ASSERT_FALSE(silent.ok());
    EXPECT_EQ(silent.error().errorDescription(), QStringLiteral("Command failed with exit code 3: "));

    // Bytes that are not UTF-8 become U+FFFD; everything else is kept.
    EXPECT_EQ(run(QStringLiteral("printf 'ab\\377cd'")).value(), QStringLiteral("ab\uFFFDcd"));
    const Result<QString> badError = run(QStringLiteral("printf 'e\\377' >&2; exit 1"));
    ASSERT_FALSE(badError.ok());
    EXPECT_EQ(badError.error().shellError()->output(), QStringLiteral("e\uFFFD"));
}

TEST(ShellError, TextsSayTheRealLengthsAndKeepTheEndOfLongOutput)
{
    // Lengths in words, grouped and never in scientific notation.
    const std::pair<double, const char*> lengths[] = {
        {0.25, "0.25 seconds"},      {45, "45 seconds"},
        {1234.5, "1,234.5 seconds"}, {1, "1 second"},
        {600, "10 minutes"},         {2e6, "2,000,000 seconds"},
        {15 * 60, "15 minutes"},     {1e12, "1,000,000,000,000 seconds"},
    };
    const QLocale saved;
    QLocale::setDefault(QLocale(QLocale::English));
    for (const auto& [seconds, text] : lengths)
        EXPECT_EQ(ShellError::durationText(seconds), QString::fromLatin1(text)) << seconds;

    // On screen numbers are written the user's way; the log keeps English, for asking for help.
    QLocale::setDefault(QLocale(QLocale::German));
    const ShellError slow = ShellError::timeout(1234.5);
    EXPECT_EQ(slow.errorDescription(),
              QStringLiteral("The command did not finish within 1.234,5 seconds and was stopped."));
    EXPECT_EQ(slow.logDescription(),
              QStringLiteral("The command did not finish within 1,234.5 seconds and was stopped."));
    EXPECT_EQ(ServiceError(ShellError::stalled(2.5)).logDescription(),
              QStringLiteral("The command showed no progress for 2.5 seconds and was stopped."));
    QLocale::setDefault(saved);
    EXPECT_EQ(ShellError::timeout(0.5).errorDescription(),
              QStringLiteral("The command did not finish within 0.5 seconds and was stopped."));
    EXPECT_EQ(ShellError::stalled(15 * 60).errorDescription(),
              QStringLiteral("The command showed no progress for 15 minutes and was stopped."));

    const QString noise = QString(5000, QLatin1Char('x')) + QStringLiteral("\nnpm ERR! the real reason");
    const QString shown = ShellError::failed(1, noise).errorDescription();
    EXPECT_TRUE(shown.endsWith(QStringLiteral("npm ERR! the real reason")));
    EXPECT_TRUE(shown.contains(QStringLiteral("earlier output cut")));
    EXPECT_LT(shown.size(), ShellError::shownOutputLength + 200);
    EXPECT_EQ(ShellError::failed(1, noise).output(), noise); // callers still get all of it
}

TEST_F(ShellRunnerTest, ALaunchFailureIsAProcessError)
{
    ShellRunner broken(configurationWith([](auto& c) { c.shell = QStringLiteral("/nonexistent/zsh"); }));
    const Result<QString> result = run(broken, QStringLiteral("true"));
    ASSERT_FALSE(result.ok());
    ASSERT_NE(result.error().shellError(), nullptr);
    EXPECT_EQ(result.error().shellError()->kind(), ShellError::processError);
    EXPECT_TRUE(result.error().errorDescription().startsWith(QStringLiteral("Process error: ")));
    EXPECT_GT(result.error().errorDescription().size(), QStringLiteral("Process error: ").size());

    bool called = false;
    auto streamed = await(broken.runWithStreaming(QStringLiteral("echo x"), [&](const QString&) { called = true; }));
    ASSERT_TRUE(streamed.has_value());
    EXPECT_FALSE(streamed->ok());
    EXPECT_FALSE(called);
}

TEST_F(ShellRunnerTest, LargeOutputOnBothPipesDoesNotStall)
{
    // 10 MB on standard error while 10 MB go to standard output.
    const Result<QString> result = run(QStringLiteral(
        "(head -c 10485760 /dev/zero | tr '\\0' e >&2) & head -c 10485760 /dev/zero | tr '\\0' o; wait"));
    ASSERT_TRUE(result.ok()) << message(result).toStdString();
    EXPECT_EQ(result.value().size(), 10485760);
    EXPECT_TRUE(result.value().startsWith(QStringLiteral("ooo")));

    const Result<QString> failing =
        run(QStringLiteral("head -c 10485760 /dev/zero | tr '\\0' e >&2; echo done; exit 9"));
    ASSERT_FALSE(failing.ok());
    // Standard output as it was ("done\n"), a line break, then standard error.
    EXPECT_EQ(failing.error().shellError()->output().size(), 10485760 + 6);
    EXPECT_TRUE(failing.error().shellError()->output().startsWith(QStringLiteral("done\n\neee")));
}

TEST_F(ShellRunnerTest, CommandsCannotWaitForAnswersAndStartWithDefaultSignals)
{
    // Standard input is the null device: a question gets no answer instead of waiting.
    EXPECT_EQ(run(QStringLiteral("cat")).value(), QString());
    EXPECT_FALSE(run(QStringLiteral("read answer")).ok());
    // No controlling terminal, also when the app itself was started from one.
    EXPECT_FALSE(run(QStringLiteral("exec 3</dev/tty")).ok());

    if (!QFile::exists(QStringLiteral("/proc/self/stat")))
        GTEST_SKIP() << "no /proc";
    // The shell leads a session and a process group of its own.
    const Result<QString> stat = run(QStringLiteral("cat /proc/$$/stat"));
    ASSERT_TRUE(stat.ok());
    const QStringList fields = stat.value().mid(stat.value().lastIndexOf(QLatin1Char(')')) + 2).split(QLatin1Char(' '));
    const QString pid = stat.value().section(QLatin1Char(' '), 0, 0);
    ASSERT_GE(fields.size(), 4);
    EXPECT_EQ(fields[2], pid); // process group
    EXPECT_EQ(fields[3], pid); // session
    EXPECT_NE(fields[3].toLongLong(), static_cast<long long>(getsid(0)));

    // No signal blocked and SIGPIPE at its default, with a login environment or without: the writer of a pipeline whose
    // reader is gone must end, not write into the void; and a command must hear TERM when it is stopped.
    ShellRunner perCommand(sandbox.shellConfiguration());
    for (ShellRunner* runner : {&services.runner, &perCommand}) {
        const Result<QString> status = run(*runner, QStringLiteral("grep -E '^Sig(Blk|Ign)' /proc/self/status"));
        ASSERT_TRUE(status.ok()) << message(status).toStdString();
        const QStringList lines = status.value().split(QLatin1Char('\n'));
        ASSERT_EQ(lines.size(), 2);
        EXPECT_EQ(lines[0].section(QLatin1Char('\t'), 1).toULongLong(nullptr, 16), 0u) << lines[0].toStdString();
        const qulonglong ignored = lines[1].section(QLatin1Char('\t'), 1).toULongLong(nullptr, 16);
        EXPECT_EQ(ignored & (1u << (SIGPIPE - 1)), 0u) << lines[1].toStdString();
    }
}

TEST_F(ShellRunnerTest, BackgroundChildrenHoldingThePipeDoNotDelayTheResult)
{
    const QString pidFile = sandbox.path(QStringLiteral("background.pid"));
    const Result<QString> result = run(QStringLiteral("echo a; sleep 20 & echo $! > '%1'; echo b").arg(pidFile));
    ASSERT_TRUE(result.ok()) << message(result).toStdString();
    EXPECT_EQ(result.value(), QStringLiteral("a\nb"));
    // The child still runs: the result did not wait for it.
    const pid_t child = sandbox.readFile(QStringLiteral("background.pid")).trimmed().toInt();
    ASSERT_GT(child, 0);
    EXPECT_EQ(::kill(child, 0), 0) << "the result waited for the background child";
    ::kill(child, SIGKILL);
}

TEST_F(ShellRunnerTest, AfterATimeOutNothingOfTheGroupSurvives)
{
    // The shell ignores TERM and its background child goes with it; or the shell goes on TERM
    // and a member of its group ignores TERM and must still go.
    ShellRunner impatient(configurationWith([](auto& c) { c.terminationGraceMs = 200; }));
    const QString pidFile = sandbox.path(QStringLiteral("child.pid"));
    for (const char* command : {"sleep 30 & echo $! > '%1'; trap '' TERM; wait; sleep 30",
                                "(trap '' TERM; exec sleep 123) & echo $! > '%1'; wait"}) {
        SCOPED_TRACE(command);
        QFile::remove(pidFile);
        const Result<QString> result = run(impatient, QString::fromLatin1(command).arg(pidFile), 0.5);
        ASSERT_FALSE(result.ok());
        ASSERT_NE(result.error().shellError(), nullptr);
        EXPECT_EQ(result.error().shellError()->kind(), ShellError::timedOut);
        EXPECT_FALSE(result.error().errorDescription().isEmpty());
        const pid_t child = sandbox.readFile(QStringLiteral("child.pid")).trimmed().toInt();
        ASSERT_GT(child, 0);
        EXPECT_TRUE(QTest::qWaitFor([child] { return test::processEnded(child); }, 3000)) << "outlived its time-out";
    }
}

TEST_F(ShellRunnerTest, CommandsStartAtHomeAndNeverSearchTheCurrentFolder)
{
    // A program planted where the application was started, and a search path whose inherited
    // part ends in ':' (an empty element means the current folder).
    QTemporaryDir planted;
    ASSERT_TRUE(planted.isValid());
    QFile program(planted.filePath(QStringLiteral("claude")));
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\necho planted\n");
    program.close();
    program.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    const QString started = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(planted.path()));
    ShellRunner runner(configurationWith([](auto& c) { c.inheritedPath = *c.inheritedPath + QStringLiteral("::"); }));
    const Result<QString> found = run(runner, QStringLiteral("pwd; claude"));
    const Result<QString> path = run(runner, QStringLiteral("printf %s \"$PATH\""));
    QDir::setCurrent(started);

    ASSERT_FALSE(found.ok()) << "the planted program ran";
    EXPECT_FALSE(found.error().shellError()->output().contains(QStringLiteral("planted")));
    EXPECT_TRUE(found.error().shellError()->output().startsWith(QDir::homePath() + QLatin1Char('\n')));
    ASSERT_TRUE(path.ok());
    EXPECT_FALSE(path.value().split(QLatin1Char(':')).contains(QString())) << path.value().toStdString();
}

TEST_F(ShellRunnerTest, OutputBeyondTheLimitStopsTheCommand)
{
    ShellRunner bounded(configurationWith([](auto& c) {
        c.outputLimitBytes = 1024 * 1024;
        c.terminationGraceMs = 200;
    }));
    for (const char* command : {"yes", "yes >&2"}) {
        const Result<QString> result = run(bounded, QString::fromLatin1(command), 30);
        ASSERT_FALSE(result.ok()) << command;
        EXPECT_EQ(result.error().shellError()->kind(), ShellError::outputTooLarge) << command;
        EXPECT_EQ(result.error().errorDescription(),
                  QStringLiteral("The command wrote more than 1 MB of output and was stopped."));
    }
    // Up to the limit, all of it arrives.
    const Result<QString> fits = run(bounded, QStringLiteral("yes | head -c 1048576"));
    ASSERT_TRUE(fits.ok()) << fits.error().errorDescription().toStdString();
    EXPECT_EQ(fits.value().size(), 1048576 - 1); // trimmed of its last line break
}

TEST_F(ShellRunnerTest, AStreamedCommandWithoutProgressIsStopped)
{
    ShellRunner watchful(configurationWith([](auto& c) {
        c.streamInactivityMs = 600;
        c.terminationGraceMs = 200;
    }));
    // Output every 0.3 s keeps it going; then it goes quiet.
    const Streamed streamed = stream(watchful,
                                     QStringLiteral("echo a; sleep 0.3; echo b; sleep 0.3; echo c; sleep 60"));
    ASSERT_TRUE(streamed.result.has_value());
    ASSERT_FALSE(streamed.result->ok());
    EXPECT_EQ(streamed.result->error().shellError()->kind(), ShellError::noProgress);
    EXPECT_EQ(streamed.result->error().errorDescription(),
              QStringLiteral("The command showed no progress for 0.6 seconds and was stopped."));
    EXPECT_EQ(streamed.text(), QStringLiteral("a\nb\nc\n"));
}

TEST_F(ShellRunnerTest, StreamedOutputArrivesWhileRunningWholeAndBeforeTheResult)
{
    const Streamed streamed = stream(QStringLiteral("echo one; sleep 0.2; echo two >&2; sleep 0.2; echo three"));
    ASSERT_TRUE(streamed.result.has_value());
    EXPECT_TRUE(streamed.result->ok());
    EXPECT_GE(streamed.chunks.size(), 3);
    EXPECT_EQ(streamed.text(), QStringLiteral("one\ntwo\nthree\n"));
    EXPECT_TRUE(streamed.allOnGuiThread);

    // A character split over two writes arrives whole; bytes that are not UTF-8 show as U+FFFD.
    const Streamed split = stream(QStringLiteral("printf 'caf\\303'; sleep 0.3; printf '\\251 \\342\\206'; sleep 0.3; "
                                                 "printf '\\222 ok\\n'; printf 'bad \\377 byte\\n'"));
    ASSERT_TRUE(split.result.has_value());
    EXPECT_EQ(split.text(), QString::fromUtf8("caf\xC3\xA9 \xE2\x86\x92 ok\nbad \xEF\xBF\xBD byte\n"));
    EXPECT_GE(split.chunks.size(), 2);

    // A failure comes after all of its output.
    const Streamed failed = stream(QStringLiteral("echo partial; exit 2"));
    ASSERT_TRUE(failed.result.has_value());
    ASSERT_FALSE(failed.result->ok());
    EXPECT_EQ(failed.result->error().errorDescription(),
              QStringLiteral("Command failed with exit code 2: Command failed"));
    EXPECT_EQ(failed.text(), QStringLiteral("partial\n"));
}

TEST_F(ShellRunnerTest, StopsDeliveringWhenItsContextIsGone)
{
    // The context goes away while the first chunk is handled; the command writes its second
    // line only after that, runs to its end, and nothing more is delivered.
    const QString go = sandbox.path(QStringLiteral("go"));
    auto* context = new QObject;
    QStringList received;
    auto result = await(services.runner.runWithStreaming(
        QStringLiteral("echo early; while [ ! -e '%1' ]; do sleep 0.02; done; echo late").arg(go),
        [&](const QString& text) {
            received << text;
            delete context;
            sandbox.writeFile(QStringLiteral("go"), "");
        },
        context));
    ASSERT_TRUE(result.has_value());
    EXPECT_TRUE(result->ok());
    EXPECT_EQ(received, QStringList{QStringLiteral("early\n")});
}

TEST_F(ShellRunnerTest, CancellingStopsTheGroupAndTheCallerResumesWithACancellation)
{
    // The child ignores TERM: the grace ends it. A later command of the same handle never starts.
    const ShellRunner::Configuration impatient = configurationWith([](auto& c) { c.terminationGraceMs = 200; });
    ShellRunner withEnvironment(impatient, &platform);
    ShellRunner perCommand(impatient);
    for (ShellRunner* runner : {&withEnvironment, &perCommand}) {
        QFile::remove(sandbox.path(QStringLiteral("child.pid")));
        const QString pidFile = sandbox.path(QStringLiteral("child.pid"));
        const Cancellation cancellation;
        QCoro::Task<Result<QString>> running = runner->run(
            QStringLiteral("(trap '' TERM; exec sleep 30) & echo $! > '%1'; wait").arg(pidFile), 0, cancellation);
        ASSERT_TRUE(QTest::qWaitFor([&] { return !sandbox.readFile(QStringLiteral("child.pid")).isEmpty(); }, 10000));
        const pid_t child = sandbox.readFile(QStringLiteral("child.pid")).trimmed().toInt();
        cancellation.cancel();
        EXPECT_TRUE(isCancellation(await(std::move(running))));
        EXPECT_TRUE(QTest::qWaitFor([child] { return test::processEnded(child); }, 3000));

        const QString later = sandbox.path(QStringLiteral("later"));
        EXPECT_TRUE(isCancellation(await(runner->run(QStringLiteral("touch '%1'").arg(later), 0, cancellation))));
        EXPECT_FALSE(QFile::exists(later));
    }
}

// A runner that goes stops its commands and waits for them, and their callers have resumed
// before it is gone: nothing runs on, and no coroutine is left waiting (LeakSanitizer).
TEST_F(ShellRunnerTest, ARunnerThatGoesTakesItsCommandsAlong)
{
    for (const bool perCommand : {false, true}) {
        SCOPED_TRACE(perCommand);
        auto runner = perCommand ? std::make_unique<ShellRunner>(sandbox.shellConfiguration())
                                 : std::make_unique<ShellRunner>(sandbox.shellConfiguration(), &platform);
        QFile::remove(sandbox.path(QStringLiteral("first.pid")));
        QFile::remove(sandbox.path(QStringLiteral("second.pid")));
        const QString command = QStringLiteral("trap '' TERM; sleep 30 & echo $! > '%1'; wait");
        std::optional<Result<QString>> ran;
        std::optional<Result<void>> streamed;
        QObject context;
        QCoro::connect(runner->run(command.arg(sandbox.path(QStringLiteral("first.pid")))), &context,
                       [&](const Result<QString>& result) { ran = result; });
        QCoro::connect(runner->runWithStreaming(command.arg(sandbox.path(QStringLiteral("second.pid"))), {}), &context,
                       [&](const Result<void>& result) { streamed = result; });
        ASSERT_TRUE(QTest::qWaitFor(
            [&] {
                return !sandbox.readFile(QStringLiteral("first.pid")).isEmpty() &&
                       !sandbox.readFile(QStringLiteral("second.pid")).isEmpty();
            },
            10000));

        runner.reset();
        EXPECT_TRUE(isCancellation(ran));
        EXPECT_TRUE(isCancellation(streamed));
        for (const char* file : {"first.pid", "second.pid"}) {
            const pid_t child = sandbox.readFile(QLatin1String(file)).trimmed().toInt();
            EXPECT_TRUE(QTest::qWaitFor([child] { return test::processEnded(child); }, 3000)) << file;
        }
    }
}

// Quitting the application stops what its commands started, also a child that ignores TERM
// and also within the grace a stopped command still had before KILL.
TEST(ShellRunnerQuit, NothingACommandStartedOutlivesTheApplication)
{
    for (const char* mode : {"running", "stopped"}) {
        SCOPED_TRACE(mode);
        QTemporaryDir folder;
        ASSERT_TRUE(folder.isValid());
        const QString pidFile = folder.filePath(QStringLiteral("child.pid"));
        QProcess helper;
        helper.start(QStringLiteral(QF_QUIT_HELPER), {QString::fromLatin1(mode), pidFile});
        ASSERT_TRUE(helper.waitForFinished(20000));
        ASSERT_EQ(helper.exitCode(), 0) << helper.readAllStandardError().constData();
        QFile file(pidFile);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const pid_t child = file.readAll().trimmed().toInt();
        ASSERT_GT(child, 0);
        const bool ended = QTest::qWaitFor([child] { return test::processEnded(child); }, 5000);
        if (!ended)
            ::kill(child, SIGKILL);
        EXPECT_TRUE(ended) << "the command's child outlived the application";
    }
}
