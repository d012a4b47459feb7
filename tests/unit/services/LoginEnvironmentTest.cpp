// The environment of commands comes from the user's login shell, read once: how often the
// start-up files are read, that what they print never reaches an answer, that a shell that
// cannot be read falls back to a login shell per command, and that values arrive byte for byte.
#include "CoroTest.h"
#include "DashboardLoad.h"
#include "LoginEnvironment.h"
#include "StdoutCapture.h"
#include "TestMachine.h"
#include "TestSupport.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <algorithm>
#include <memory>

using namespace qf;
using qf::test::await;
using Source = ShellRunner::EnvironmentState::Source;

namespace {

// A start-up file that counts how often it is read.
constexpr auto kCountingProfile = "echo read >> \"$HOME/startup-reads\"\n";

// What a chatty start-up file prints: a greeting, an agent's pid, a complaint on standard error.
constexpr auto kChattyProfile = "echo 'Welcome back'\n"
                                "echo 'Agent pid 1234'\n"
                                "echo 'could not reach the license server' >&2\n";

class LoginEnvironmentTest : public ::testing::Test, protected test::TestMachine {
protected:
    void SetUp() override
    {
        sandbox.installFakes({"claude", "node", "npm", "brew", "xcode-select", "xcodebuild"});
        sandbox.setEnv("FAKE_NPM_PREFIX", sandbox.path(QStringLiteral("npm-global")).toUtf8());
    }

    int startupReads() const { return sandbox.readFile(QStringLiteral("startup-reads")).count("read\n"); }

    static DashboardSnapshot load(Services& set)
    {
        std::optional<DashboardSnapshot> snapshot = await(loadDashboard(set.detector, set.supportTools));
        return snapshot.value_or(DashboardSnapshot{});
    }

    static Result<QString> run(ShellRunner& runner, const QString& command)
    {
        std::optional<Result<QString>> result = await(runner.run(command));
        return result.value_or(ServiceError::message(QStringLiteral("did not finish")));
    }

    static QString streamed(ShellRunner& runner, const QString& command)
    {
        QString text;
        const auto result = await(runner.runWithStreaming(command, [&text](const QString& chunk) { text += chunk; }));
        EXPECT_TRUE(result && result->ok());
        return text;
    }

    // What the dashboard should show for the fakes: Claude Code, and Node.js with its version.
    static void expectFakesFound(const DashboardSnapshot& snapshot)
    {
        EXPECT_EQ(snapshot.installedTools, QList<CLITool>{CLITool::claudeCode});
        const auto node = std::ranges::find(snapshot.systemTools, SystemToolID::node, &SystemTool::id);
        ASSERT_NE(node, snapshot.systemTools.end());
        EXPECT_EQ(std::pair(node->isInstalled, node->version),
                  std::pair(true, std::optional(QStringLiteral("v20.10.0"))));
    }

    // Where `runner` finds `name` without a shell; "<not found>" when nowhere.
    static QString found(ShellRunner& runner, const QString& name)
    {
        const std::optional<Result<QString>> where = await(runner.findProgram(name));
        return where && where->ok() ? where->value() : QStringLiteral("<not found>");
    }

    // Every kind of answer is exactly the command's own output.
    void expectExactAnswers(ShellRunner& runner, SystemDetector& detector)
    {
        EXPECT_EQ(run(runner, QStringLiteral("node --version")).value(), QStringLiteral("v20.10.0"));
        EXPECT_EQ(await(detector.getNodeVersion()), std::optional(std::optional(QStringLiteral("v20.10.0"))));
        EXPECT_EQ(run(runner, QStringLiteral("which node")).value(), sandbox.binDirectory() + QStringLiteral("/node"));
        EXPECT_EQ(run(runner, QStringLiteral("npm prefix -g")).value(), sandbox.path(QStringLiteral("npm-global")));
        const Result<QString> failed = run(runner, QStringLiteral("echo out; echo err >&2; exit 1"));
        ASSERT_FALSE(failed.ok());
        EXPECT_EQ(failed.error().shellError()->output(), QStringLiteral("out\n\nerr"));
        EXPECT_EQ(streamed(runner, QStringLiteral("echo one; echo two >&2; echo three")),
                  QStringLiteral("one\ntwo\nthree\n"));
    }
};

} // namespace

TEST(LoginEnvironmentParsing, TheEnvironmentFollowsTheMarkerAndItsChangesApplyToTheApplications)
{
    const QByteArray token = "0123abcd";
    const QByteArray begin = "quillforge-environment-" + token + "-begin";
    const auto block = [](std::initializer_list<const char*> entries) {
        QByteArray bytes;
        for (const char* entry : entries)
            bytes.append(entry).append('\0');
        return bytes;
    };
    // Noise before and after (from something a start-up file left running); values with line
    // breaks, '=' and bytes that are not UTF-8; the closing variable anywhere in the list.
    const QByteArray output =
        "Welcome back\nquillforge-environment-" + token + "-bogus\n" + begin +
        block({"PATH=/usr/bin:/bin", "quillforge_environment_0123abcd_end=1", "ODD=a\nb=c\xff", "EMPTY="}) +
        "\nAgent pid 1234\n";
    const std::optional<EnvironmentVariables> parsed = loginEnvironment::parse(output, token);
    ASSERT_TRUE(parsed.has_value());
    EXPECT_EQ(*parsed, (EnvironmentVariables{{"PATH", "/usr/bin:/bin"}, {"ODD", "a\nb=c\xff"}, {"EMPTY", ""}}));

    // Without the marker or the closing variable, cut short or malformed: nothing usable.
    const QByteArray end = "quillforge_environment_0123abcd_end=1";
    EXPECT_FALSE(loginEnvironment::parse(begin + block({"PATH=/bin"}), token));
    EXPECT_FALSE(loginEnvironment::parse(block({"PATH=/bin", end.constData()}), token));
    EXPECT_EQ(loginEnvironment::parse(begin + block({end.constData()}) + "PATH=/bin", token), EnvironmentVariables());
    EXPECT_FALSE(loginEnvironment::parse(begin + block({"no equals sign", end.constData()}), token));
    EXPECT_FALSE(loginEnvironment::parse(output, "another"));

    // The script prints what the parser looks for.
    EXPECT_TRUE(loginEnvironment::script(token).contains(QString::fromLatin1(begin)));
    EXPECT_TRUE(loginEnvironment::script(token).contains(QString::fromLatin1(end)));

    // Commands get the start-up files' changes on top of the application's environment.
    const EnvironmentVariables started{{"HOME", "/h"}, {"KEEP", "1"}, {"GONE", "x"}, {"PATH", "/bin"}, {"PWD", "/"}};
    const EnvironmentVariables printed{{"HOME", "/h"}, {"KEEP", "2"},  {"NEW", "y"},         {"PATH", "/opt:/bin"},
                                       {"PWD", "/h"},  {"SHLVL", "1"}, {"_", "/usr/bin/env"}};
    const LoginEnvironment login = loginEnvironment::difference(started, printed);
    EXPECT_EQ(login.path, QByteArray("/opt:/bin"));
    // The shell's own bookkeeping is no change of the start-up files.
    EXPECT_EQ(login.changed, (EnvironmentVariables{{"KEEP", "2"}, {"NEW", "y"}}));
    EXPECT_EQ(login.removed, QList<QByteArray>{"GONE"});

    // A variable the application set after the reading still arrives; a changed one is the
    // start-up files' version.
    const EnvironmentVariables now{{"HOME", "/h"}, {"KEEP", "1"}, {"GONE", "x"}, {"LATER", "k"}};
    EXPECT_EQ(login.appliedTo(now),
              (EnvironmentVariables{{"HOME", "/h"}, {"KEEP", "2"}, {"NEW", "y"}, {"LATER", "k"}}));

    EXPECT_EQ(loginEnvironment::joinSearchPath(QStringLiteral("/a:/b"), "::/c::/d:"), QByteArray("/a:/b:/c:/d"));
}

TEST_F(LoginEnvironmentTest, StartupFilesAreReadOnceForADashboardLoadAndAgainAfterAProfileWrite)
{
    sandbox.writeFile(QStringLiteral(".zprofile"), kCountingProfile);
    EXPECT_EQ(services.runner.environmentState().source, Source::notReadYet);

    expectFakesFound(load(services));
    EXPECT_EQ(startupReads(), 1);
    EXPECT_EQ(services.runner.environmentState().source, Source::loginShellOnce);
    expectFakesFound(load(services));
    EXPECT_EQ(startupReads(), 1);

    // Saving a key writes the profile: the next load reads the start-up files once more.
    const std::optional<Result<QString>> saved = await(services.keys.save(QStringLiteral("sk-test"), CLITool::codex));
    ASSERT_TRUE(saved && saved->ok());
    EXPECT_EQ(startupReads(), 1); // nothing is read for the save itself
    expectFakesFound(load(services));
    EXPECT_EQ(startupReads(), 2);
    EXPECT_EQ(run(services.runner, QStringLiteral("printf %s \"$OPENAI_API_KEY\"")).value(), QStringLiteral("sk-test"));
    qunsetenv("OPENAI_API_KEY");

    // So does an installed Node.js.
    sandbox.setEnv("FAKE_BREW_NODE_VERSION", "v20.10.0");
    const std::optional<Result<void>> installed = await(services.nodeInstaller.install([](const QString&) {}));
    ASSERT_TRUE(installed && installed->ok());
    const int afterInstall = startupReads();
    EXPECT_EQ(afterInstall, 3); // its check after the installation read them again
    expectFakesFound(load(services));
    EXPECT_EQ(startupReads(), afterInstall);
}

TEST_F(LoginEnvironmentTest, TwoLoadsAtOnceShareOneReading)
{
    // Slow enough that the second load surely asks while the first reading runs.
    sandbox.writeFile(QStringLiteral(".zprofile"), QByteArray(kCountingProfile) + "sleep 0.3\n");
    QCoro::Task<DashboardSnapshot> first = loadDashboard(services.detector, services.supportTools);
    QCoro::Task<DashboardSnapshot> second = loadDashboard(services.detector, services.supportTools);
    const std::optional<DashboardSnapshot> one = await(std::move(first));
    const std::optional<DashboardSnapshot> two = await(std::move(second));
    ASSERT_TRUE(one && two);
    expectFakesFound(*one);
    expectFakesFound(*two);
    EXPECT_EQ(startupReads(), 1);

    // A load that starts after an invalidation does not take the reading in flight.
    services.runner.invalidateEnvironment();
    QCoro::Task<DashboardSnapshot> before = loadDashboard(services.detector, services.supportTools);
    services.runner.invalidateEnvironment();
    QCoro::Task<DashboardSnapshot> after = loadDashboard(services.detector, services.supportTools);
    ASSERT_TRUE(await(std::move(before)).has_value());
    ASSERT_TRUE(await(std::move(after)).has_value());
    EXPECT_EQ(startupReads(), 3);
}

TEST_F(LoginEnvironmentTest, StartupFilesThatHoldTheShellUpOrReplaceItFallBackWithCorrectAnswers)
{
    struct Case {
        const char* what;
        QByteArray profile;
        int boundMs;
        bool fallsBack;
    };
    const Case cases[] = {
        // Standard input is the null device: a question gets no answer and the shell goes on.
        {"reads standard input", "read answer; cat\n", 10000, false},
        {"sleeps past the bound", "sleep 0.7\n", 300, true},
        {"replaces the shell", "exec /bin/sh -c 'echo hijacked'\n", 10000, true},
    };
    for (const Case& broken : cases) {
        SCOPED_TRACE(broken.what);
        sandbox.writeFile(QStringLiteral(".zprofile"), broken.profile);
        ShellRunner::Configuration configuration = sandbox.shellConfiguration();
        configuration.loginEnvironmentTimeoutMs = broken.boundMs;
        Services impatient(platform, configuration);

        test::StdoutCapture diagnostics;
        expectFakesFound(load(impatient));
        expectExactAnswers(impatient.runner, impatient.detector);
        impatient.runner.invalidateEnvironment(); // tried again, and said once
        EXPECT_EQ(run(impatient.runner, QStringLiteral("echo again")).value(), QStringLiteral("again"));
        const QString said = diagnostics.text();
        diagnostics.restore();

        const ShellRunner::EnvironmentState state = impatient.runner.environmentState();
        EXPECT_EQ(state.source, broken.fallsBack ? Source::loginShellPerCommand : Source::loginShellOnce);
        EXPECT_EQ(said.count(QStringLiteral("Login environment:")), broken.fallsBack ? 1 : 0) << said.toStdString();
        if (broken.fallsBack) {
            EXPECT_TRUE(said.contains(state.reason)) << said.toStdString();
            EXPECT_LT(state.readingMs, 5000); // stopped, not waited for
        }
    }
}

TEST_F(LoginEnvironmentTest, AVersionManagersNodeInZshrcWinsOverTheSystemsOne)
{
    // Volta, asdf, mise and fnm put their folder first in ~/.zshrc; the machine has another
    // Node.js in a folder every command searches.
    sandbox.writeFile(QStringLiteral(".zshrc"), "export PATH=\"$HOME/.volta/bin:$PATH\"\n");
    const QString volta = sandbox.path(QStringLiteral(".volta/bin/node"));
    ASSERT_TRUE(test::writeExecutable(volta, "#!/bin/sh\necho v22.11.0\n"));

    EXPECT_EQ(run(services.runner, QStringLiteral("node --version")).value(), QStringLiteral("v22.11.0"));
    EXPECT_EQ(found(services.runner, QStringLiteral("node")), volta);
    EXPECT_EQ(await(services.detector.getNodeVersion()), std::optional(std::optional(QStringLiteral("v22.11.0"))));
    // The folders the profile lacks still come, once and after it.
    const QStringList path = services.runner.commandEnvironment().value(QStringLiteral("PATH")).split(QLatin1Char(':'));
    ASSERT_FALSE(path.isEmpty());
    EXPECT_EQ(path.first(), sandbox.path(QStringLiteral(".volta/bin")));
    EXPECT_EQ(path.count(sandbox.path(QStringLiteral(".local/bin"))), 1);
    EXPECT_EQ(path.count(sandbox.binDirectory()), 1);
}

TEST_F(LoginEnvironmentTest, StartupFilesThatRedirectTheShellsOutputNeverRunACommandTwice)
{
    // Session logging in ~/.zprofile sends the shell's output to a file; a key lives in the
    // environment. The command counts its runs.
    sandbox.setEnv("ANTHROPIC_API_KEY", "sk-ant-never-in-the-log");
    const QString counting = QStringLiteral("echo ran >> ~/runs; echo own output; echo complaint >&2");
    const auto runs = [this] { return sandbox.readFile(QStringLiteral("runs")).count("ran\n"); };
    const struct {
        const char* what;
        QByteArray redirect;
        bool echoed; // the start-up files' output also reaches the shell's own, at any moment
    } cases[] = {
        {"appends to a log", "exec >>\"$HOME/.zsh-session.log\" 2>&1\n", false},
        {"tees to a log", "exec > >(tee -a \"$HOME/.zsh-session.log\") 2>&1\n", true},
    };
    for (const auto& logging : cases) {
        SCOPED_TRACE(logging.what);
        sandbox.writeFile(QStringLiteral(".zprofile"), logging.redirect + "echo 'session started'\n");
        // An interactive shell (the reading) that ends before it gives anything: every command
        // is a login shell of its own.
        sandbox.writeFile(QStringLiteral(".zshrc"), "[ -e ~/rc-ends-the-shell ] && exit 3\n");
        QFile::remove(sandbox.path(QStringLiteral("runs")));
        QFile::remove(sandbox.path(QStringLiteral("rc-ends-the-shell")));

        // Read once; a login shell per command for lack of a platform; and for a reading that failed.
        services.runner.invalidateEnvironment();
        ShellRunner perCommand(sandbox.shellConfiguration());
        ShellRunner failedReading(sandbox.shellConfiguration(), &platform);
        for (ShellRunner* runner : {&services.runner, &perCommand, &failedReading}) {
            if (runner == &failedReading)
                sandbox.writeFile(QStringLiteral("rc-ends-the-shell"), "");
            // Where a background tee echoes the greeting, it may come anywhere in the output.
            const auto own = [&logging](const QString& text) {
                if (!logging.echoed)
                    return text;
                QStringList lines = text.split(QLatin1Char('\n'));
                lines.removeAll(QStringLiteral("session started"));
                return lines.join(QLatin1Char('\n'));
            };
            const Result<QString> answer = run(*runner, counting);
            ASSERT_TRUE(answer.ok()) << answer.error().plainDescription().toStdString();
            EXPECT_EQ(own(answer.value()), QStringLiteral("own output"));
            EXPECT_EQ(own(streamed(*runner, counting)), QStringLiteral("own output\ncomplaint\n"));
        }
        EXPECT_EQ(services.runner.environmentState().source, Source::loginShellOnce);
        EXPECT_EQ(failedReading.environmentState().source, Source::loginShellPerCommand);
        EXPECT_EQ(runs(), 6);

        // The start-up files' own output went to their log, and nothing of the reading did.
        QTRY_VERIFY(sandbox.readFile(QStringLiteral(".zsh-session.log")).contains("session started"));
        const QByteArray log = sandbox.readFile(QStringLiteral(".zsh-session.log"));
        EXPECT_FALSE(log.contains("sk-ant-never-in-the-log"));
        EXPECT_FALSE(log.contains("quillforge"));
        EXPECT_FALSE(log.contains("own output"));
    }
}

TEST_F(LoginEnvironmentTest, AReadingThatFailedIsTriedAgainAtTheNextInvalidation)
{
    // One slow start of ~/.zshrc (only the reading's interactive shell reads it).
    sandbox.writeFile(QStringLiteral(".zshrc"), QByteArray(kCountingProfile) + "[ -e ~/settled ] || sleep 3\n");
    ShellRunner::Configuration configuration = sandbox.shellConfiguration();
    configuration.loginEnvironmentTimeoutMs = 300;
    configuration.terminationGraceMs = 100;
    ShellRunner runner(configuration, &platform);

    test::StdoutCapture diagnostics;
    EXPECT_EQ(run(runner, QStringLiteral("echo one")).value(), QStringLiteral("one"));
    EXPECT_EQ(run(runner, QStringLiteral("echo two")).value(), QStringLiteral("two"));
    EXPECT_EQ(runner.environmentState().source, Source::loginShellPerCommand);
    EXPECT_EQ(startupReads(), 1); // not again for every command

    sandbox.writeFile(QStringLiteral("settled"), "");
    runner.invalidateEnvironment();
    EXPECT_EQ(run(runner, QStringLiteral("echo three")).value(), QStringLiteral("three"));
    EXPECT_EQ(runner.environmentState().source, Source::loginShellOnce);
    EXPECT_TRUE(runner.environmentState().reason.isEmpty());
    EXPECT_EQ(startupReads(), 2);
    EXPECT_EQ(diagnostics.text().count(QStringLiteral("Login environment:")), 1);
}

TEST_F(LoginEnvironmentTest, WithoutAReadingCommandsStartInTheAccountsOwnShellNotInteractive)
{
    // A bash account: ~/.bash_profile sets the search path, and ~/.bashrc, which it reads,
    // starts tmux in an interactive shell, so the reading gives nothing. A zsh login shell
    // would not even get to the command.
    platform.terminalShell = QStringLiteral("/bin/bash");
    sandbox.writeFile(QStringLiteral(".bash_profile"), "PATH=\"$HOME/own/bin:$PATH\"; export PATH; . ~/.bashrc\n");
    sandbox.writeFile(QStringLiteral(".bashrc"), "case $- in *i*) exec /bin/sh -c 'echo tmux' ;; esac\n");
    sandbox.writeFile(QStringLiteral(".zprofile"), "exit 3\n");
    ASSERT_TRUE(test::writeExecutable(sandbox.path(QStringLiteral("own/bin/mytool")), "#!/bin/sh\necho mine\n"));

    EXPECT_EQ(run(services.runner, QStringLiteral("mytool")).value(), QStringLiteral("mine"));
    EXPECT_EQ(streamed(services.runner, QStringLiteral("mytool")), QStringLiteral("mine\n"));
    EXPECT_EQ(services.runner.environmentState().source, Source::loginShellPerCommand);
    EXPECT_TRUE(services.runner.environmentState().reason.contains(QStringLiteral("bash")));
}

TEST_F(LoginEnvironmentTest, ProgramsAreFoundWithoutAShellExactlyWhereWhichFindsThem)
{
    // The profile's search path: a folder holding a plain file, a folder and an executable
    // named like programs found later, a relative folder, and a folder at the very end.
    sandbox.writeFile(QStringLiteral(".zprofile"), "PATH=\"$HOME/first:rel:$PATH:$HOME/last\"\n");
    const auto program = [this](const QString& relative, bool executable) {
        sandbox.writeFile(relative, "#!/bin/sh\n");
        QFile::setPermissions(sandbox.path(relative),
                              executable ? QFileDevice::ReadOwner | QFileDevice::ExeOwner : QFileDevice::ReadOwner);
    };
    program(QStringLiteral("first/node"), false);
    QDir(sandbox.path(QString())).mkpath(QStringLiteral("first/npm"));
    program(QStringLiteral("first/mytool"), true);
    program(QStringLiteral("rel/relative"), true);
    program(QStringLiteral("last/onlyhere"), true);

    for (const char* name : {"node", "npm", "mytool", "relative", "onlyhere", "nothere"}) {
        const QString command = QString::fromLatin1(name);
        const Result<QString> byShell = run(services.runner, QStringLiteral("cd / && which ") + command);
        EXPECT_EQ(found(services.runner, command), byShell.ok() ? byShell.value() : QStringLiteral("<not found>"));
    }
    EXPECT_EQ(found(services.runner, QStringLiteral("mytool")), sandbox.path(QStringLiteral("first/mytool")));
    EXPECT_EQ(found(services.runner, QStringLiteral("onlyhere")), sandbox.path(QStringLiteral("last/onlyhere")));
    EXPECT_EQ(found(services.runner, QStringLiteral("node")), sandbox.binDirectory() + QStringLiteral("/node"));
    EXPECT_EQ(found(services.runner, QStringLiteral("first/mytool")), QStringLiteral("<not found>"));
}

TEST_F(LoginEnvironmentTest, OddValuesArriveByteForByte)
{
    // Line breaks, '=' and bytes that are not UTF-8: set by a start-up file, and by the
    // application itself (also after the reading).
    sandbox.writeFile(QStringLiteral(".zprofile"), "export FROM_PROFILE=$'one\\ntwo=2\\xff\\xfe end'\n"
                                                   "unset DROPPED_BY_PROFILE\n");
    const QByteArray odd("first\nsecond=third \xc3\x28 \xff");
    sandbox.setEnv("FROM_APP", odd);
    sandbox.setEnv("DROPPED_BY_PROFILE", "x");
    const auto bytesOf = [this](const char* variable) {
        const Result<QString> written = run(
            services.runner, QStringLiteral("printf %s \"$%1\" > ~/value.out").arg(QLatin1String(variable)));
        EXPECT_TRUE(written.ok());
        return sandbox.readFile(QStringLiteral("value.out"));
    };
    EXPECT_EQ(bytesOf("FROM_PROFILE"), QByteArray("one\ntwo=2\xff\xfe end"));
    EXPECT_EQ(bytesOf("FROM_APP"), odd);
    EXPECT_EQ(bytesOf("DROPPED_BY_PROFILE"), QByteArray());
    ASSERT_EQ(services.runner.environmentState().source, Source::loginShellOnce);

    sandbox.setEnv("SET_LATER", odd);
    EXPECT_EQ(bytesOf("SET_LATER"), odd);

    // A login shell per command passes them as they are too.
    ShellRunner perCommand(sandbox.shellConfiguration());
    const Result<QString> written = run(perCommand, QStringLiteral("printf %s \"$FROM_APP\" > ~/value.out"));
    ASSERT_TRUE(written.ok());
    EXPECT_EQ(sandbox.readFile(QStringLiteral("value.out")), odd);
}

TEST_F(LoginEnvironmentTest, AnInstallationWhosePrerequisitesAreMetReadsTheStartupFilesAtMostTwice)
{
    // Node.js and git are there, and new terminal windows already search ~/.local/bin: once
    // for the environment, once to ask what a new terminal window searches.
    sandbox.installFakes({"git"});
    sandbox.writeFile(QStringLiteral(".zprofile"),
                      QByteArray(kCountingProfile) + "export PATH=\"$HOME/.local/bin:$PATH\"\n");
    sandbox.setEnv("FAKE_NPM_PREFIX", sandbox.path(QStringLiteral(".local")).toUtf8());
    QString log;
    const auto finished = await(services.installer.runSetup(
        CLITool::codex, [](SetupStepType, const SetupStepStatus&, const std::optional<QString>&) {},
        [&log](const QString& text) { log += text; }, Cancellation()));
    ASSERT_TRUE(finished && finished->ok()) << log.toStdString();
    EXPECT_LE(startupReads(), 2) << log.toStdString();
    EXPECT_GE(startupReads(), 1);
}

// An account's shell and the start-up file of its own that a new terminal window reads.
struct AccountShell {
    const char* shell;
    const char* startupFile;
    // Puts $HOME/own/bin first on the search path (and exports GREETING), in the shell's words.
    const char* ownPath;
    // Whether the environment is read from it once; the others start a login shell per command.
    bool readOnce;
};

class EveryShell : public LoginEnvironmentTest, public ::testing::WithParamInterface<AccountShell> {};

TEST_P(EveryShell, TheAccountsStartupFilesSetTheSearchPathAndNeverReachAnAnswer)
{
    const AccountShell account = GetParam();
    if (!QFileInfo::exists(QString::fromLatin1(account.shell)))
        GTEST_SKIP() << account.shell << " is not installed";
    platform.terminalShell = QString::fromLatin1(account.shell);
    // Chatty start-up files everywhere; the account's own one also counts its readings.
    for (const char* file : {".zshenv", ".zprofile", ".zlogin", ".profile"})
        sandbox.writeFile(QString::fromLatin1(file), kChattyProfile);
    sandbox.writeFile(QString::fromLatin1(account.startupFile),
                      QByteArray(kChattyProfile) + account.ownPath + "\n" + kCountingProfile);
    ASSERT_TRUE(test::writeExecutable(sandbox.path(QStringLiteral("own/bin/mytool")), "#!/bin/sh\necho mine\n"));

    // A login shell per command, whichever shell it is: the account's shell reads the hand-over
    // line, and quotes, dollars, braces and a line break in the command reach zsh untouched.
    platform.loginShellEndsEarly = true;
    {
        ShellRunner perCommand(sandbox.shellConfiguration(), &platform);
        SystemDetector detector(perCommand, platform);
        const QString command =
            QStringLiteral("x='it'\"'\"'s'; printf '%s|%s\\n' \"$x\" '${HOME} {a,b} !1'\necho \"two\"");
        EXPECT_EQ(run(perCommand, command).value(), QStringLiteral("it's|${HOME} {a,b} !1\ntwo"));
        EXPECT_EQ(perCommand.environmentState().source, Source::loginShellPerCommand);
        expectExactAnswers(perCommand, detector);
    }
    if (!account.readOnce)
        return;

    platform.loginShellEndsEarly = false;
    const int readsBefore = startupReads();
    ShellRunner runner(sandbox.shellConfiguration(), &platform);
    SystemDetector detector(runner, platform);
    expectExactAnswers(runner, detector);
    EXPECT_EQ(runner.environmentState().source, Source::loginShellOnce);
    // Read once, the user's own programs are found, by name and run, as in the user's terminal.
    EXPECT_EQ(startupReads(), readsBefore + 1);
    EXPECT_EQ(found(runner, QStringLiteral("mytool")), sandbox.path(QStringLiteral("own/bin/mytool")));
    EXPECT_EQ(run(runner, QStringLiteral("mytool; printf %s \"$GREETING\"")).value(), QStringLiteral("mine\nhello"));
    // The profile's order first; the folders every command searches follow where it lacks them.
    const QStringList path = run(runner, QStringLiteral("printf %s \"$PATH\"")).value().split(QLatin1Char(':'));
    ASSERT_GE(path.size(), 3);
    EXPECT_EQ(path.at(0), sandbox.path(QStringLiteral("own/bin")));
    EXPECT_EQ(path.count(sandbox.binDirectory()), 1);
    EXPECT_EQ(path.last(), sandbox.binDirectory());
    EXPECT_EQ(path.at(path.size() - 2), sandbox.path(QStringLiteral(".local/bin")));
    expectFakesFound(load(services));
}

INSTANTIATE_TEST_SUITE_P(
    LoginEnvironment, EveryShell,
    ::testing::Values(
        // A zsh account's ~/.zshrc counts, though only an interactive zsh reads it; a Linux bash
        // user's search path is in ~/.profile, which a zsh login shell would never read.
        AccountShell{"/bin/zsh", ".zshrc", "export PATH=\"$HOME/own/bin:$PATH\" GREETING=hello", true},
        AccountShell{"/bin/bash", ".profile", "export PATH=\"$HOME/own/bin:$PATH\" GREETING=hello", true},
        AccountShell{"/bin/dash", ".profile", "export PATH=\"$HOME/own/bin:$PATH\"", false},
        AccountShell{"/usr/bin/fish", ".config/fish/config.fish", "set -gx PATH $HOME/own/bin $PATH", false},
        AccountShell{"/usr/bin/tcsh", ".tcshrc", "setenv PATH \"$HOME/own/bin:$PATH\"", false}),
    [](const ::testing::TestParamInfo<AccountShell>& info) {
        return QFileInfo(QString::fromLatin1(info.param.shell)).fileName().toStdString();
    });
