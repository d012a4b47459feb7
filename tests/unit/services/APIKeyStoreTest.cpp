#include "APIKeyStore.h"
#include "CoroTest.h"
#include "ProfileWriter.h"
#include "TestMachine.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>

#include <sys/stat.h>

using namespace qf;
using qf::test::await;

namespace {

class APIKeyStoreTest : public ::testing::Test, protected test::TestMachine {
protected:
    // A save also sets the key in this process's environment.
    void TearDown() override
    {
        for (const char* variable : {"ANTHROPIC_API_KEY", "OPENAI_API_KEY", "GEMINI_API_KEY"})
            qunsetenv(variable);
    }
    Result<QString> save(const QString& key, CLITool tool)
    {
        auto result = await(services.keys.save(key, tool));
        if (!result)
            return ServiceError::message(QStringLiteral("did not finish"));
        return *result;
    }
    QByteArray profile(const QString& name = QStringLiteral(".zshrc")) const { return sandbox.readFile(name); }

    // What `shell`, started with `arguments` in the sandbox's home without `variable`, prints
    // on its standard output, and that it complains of nothing.
    QByteArray printed(const QString& shell, const QStringList& arguments, const QString& variable) const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HOME"), sandbox.home());
        environment.remove(QStringLiteral("XDG_CONFIG_HOME"));
        environment.remove(variable);
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(sandbox.home());
        process.setStandardInputFile(QProcess::nullDevice());
        process.start(shell, arguments);
        EXPECT_TRUE(process.waitForFinished(10000));
        EXPECT_EQ(process.readAllStandardError(), QByteArray()) << shell.toStdString();
        return process.readAllStandardOutput();
    }

    // That zsh and bash, sourcing ~/.zshrc, both set `variable` to `value`.
    void expectSourced(const QString& variable, const QByteArray& value) const
    {
        for (const char* shell : {"/bin/zsh", "/bin/bash"}) {
            const QString script = QStringLiteral(". \"$HOME/.zshrc\"; printf %s \"$%1\"").arg(variable);
            EXPECT_EQ(printed(QString::fromLatin1(shell), {QStringLiteral("-c"), script}, variable), value) << shell;
        }
    }

    // What a new terminal window's `shell` (fish or tcsh, started as the terminal starts it)
    // has in the variable.
    QByteArray terminalValue(const QString& shell, const QString& variable) const
    {
        const QString print = QStringLiteral("printenv ") + variable;
        QByteArray value = printed(shell,
                                   shell.endsWith(QLatin1String("csh"))
                                       ? QStringList{QStringLiteral("-c"), print}
                                       : QStringList{QStringLiteral("-l"), QStringLiteral("-c"), print},
                                   variable);
        if (value.endsWith('\n'))
            value.chop(1);
        return value;
    }
};

} // namespace

TEST(ProfileWriter, ExportLines)
{
    // Plain keys in double quotes; others in each family's own quoting, so nothing in them expands.
    using enum ShellFamily;
    const struct {
        ShellFamily family;
        const char* key;
        const char* line;
    } cases[] = {
        {posix, "sk-ant-api03_AB.c9", "export K=\"sk-ant-api03_AB.c9\""},
        {posix, "it's $(x)", "export K='it'\\''s $(x)'"},
        {fish, "sk-1", "set -gx K \"sk-1\""},
        {fish, "it's \\$(x)", "set -gx K 'it\\'s \\\\$(x)'"},
        {csh, "sk-1", "setenv K \"sk-1\""},
        {csh, "it's!", "setenv K 'it'\\''s\\!'"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(shellExport::exportLine(QStringLiteral("K"), QString::fromUtf8(c.key), c.family),
                  QString::fromUtf8(c.line));
    EXPECT_TRUE(shellExport::isPlainKey(QStringLiteral("AIzaSy-abc_DEF.123")));
    for (const char* key : {"", "a b", "a$b", "a\"b", "ключ", "a`b`"})
        EXPECT_FALSE(shellExport::isPlainKey(QString::fromUtf8(key))) << key;

    for (const QString& broken :
         QStringList{QStringLiteral("one\ntwo"), QStringLiteral("one\rtwo"), QStringLiteral("one two"),
                     QStringLiteral("one\ttwo"), QStringLiteral("one") + QChar(u'\0') + QStringLiteral("two")})
        EXPECT_TRUE(ProfileWriter::rejectionReason(broken).has_value());
    EXPECT_FALSE(ProfileWriter::rejectionReason(QStringLiteral("sk-one_two.3")).has_value());
}

TEST(ProfileWriter, OnlyAPlainLiteralValueIsEditedAndOnlyThatValue)
{
    const QString line = QStringLiteral("export OPENAI_API_KEY=\"new\"");
    const auto edited = [&line](const QByteArray& profile) {
        const auto change = shellExport::withExport(profile, QStringLiteral("OPENAI_API_KEY"), QStringLiteral("Codex"),
                                                    line);
        EXPECT_FALSE(change.appended) << profile.toStdString();
        return change.profile;
    };
    // A literal value in any quoting, indented or not, exported or a plain assignment: the value
    // changes and the rest of its line (and every other line, byte for byte) stays.
    EXPECT_EQ(edited("# my settings\r\nexport OPENAI_API_KEY=\"old\"\r\nexport OPENAI_API_KEY_2=keep\n"
                     "export AZURE_OPENAI_API_KEY=keep\nalias x=y"),
              QByteArray("# my settings\r\nexport OPENAI_API_KEY=\"new\"\r\nexport OPENAI_API_KEY_2=keep\n"
                         "export AZURE_OPENAI_API_KEY=keep\nalias x=y"));
    EXPECT_EQ(edited("export OPENAI_API_KEY='o;d' && echo hi\n"),
              QByteArray("export OPENAI_API_KEY=\"new\" && echo hi\n"));
    EXPECT_EQ(edited("  OPENAI_API_KEY=old # mine\n"), QByteArray("  OPENAI_API_KEY=\"new\" # mine\n"));
    EXPECT_EQ(edited("\texport  OPENAI_API_KEY=\n"), QByteArray("\texport  OPENAI_API_KEY=\"new\"\n"));
    EXPECT_EQ(edited("# caf\xE9 \xFF\nexport OPENAI_API_KEY=\"\xE9\"\nexport X=\xC3\xA0\n"),
              QByteArray("# caf\xE9 \xFF\nexport OPENAI_API_KEY=\"new\"\nexport X=\xC3\xA0\n"));
    // A computed value before a literal one: the later literal is edited and counts.
    EXPECT_EQ(edited("export OPENAI_API_KEY=$(cat ~/k)\nexport OPENAI_API_KEY=old\n"),
              QByteArray("export OPENAI_API_KEY=$(cat ~/k)\nexport OPENAI_API_KEY=\"new\"\n"));
    // The key goes in literally: no group references, no escapes.
    EXPECT_EQ(shellExport::withExport("export K=1", QStringLiteral("K"), QStringLiteral("T"),
                                      QStringLiteral("export K='$1\\0&'"))
                  .profile,
              QByteArray("export K='$1\\0&'"));
}

TEST(ProfileWriter, FishAndCshExportsAreTheirOwnLines)
{
    using enum ShellFamily;
    const auto withKey = [](const QByteArray& profile, ShellFamily family) {
        return shellExport::withExport(profile, QStringLiteral("K"), QStringLiteral("Codex"),
                                       shellExport::exportLine(QStringLiteral("K"), QStringLiteral("new"), family),
                                       family);
    };
    // A literal value is edited where it is, whatever the options' order.
    EXPECT_EQ(withKey("set -x -g K old # mine\nset -gx KEEP 1\n", fish).profile,
              QByteArray("set -x -g K \"new\" # mine\nset -gx KEEP 1\n"));
    EXPECT_EQ(withKey("  set --global --export K 'old'\n", fish).profile,
              QByteArray("  set --global --export K \"new\"\n"));
    EXPECT_EQ(withKey("setenv K \"old\"\nsetenv KK x\n", csh).profile, QByteArray("setenv K \"new\"\nsetenv KK x\n"));
    // Not exports: a variable that is not exported, a comment, another shell's words.
    for (const QByteArray& other : {QByteArray("set -g K old\n"), QByteArray("# set -gx K old\n"),
                                    QByteArray("export K=old\n"), QByteArray("set -e K\n")}) {
        const auto change = withKey(other, fish);
        EXPECT_TRUE(change.appended && !change.afterComputedValue) << other.toStdString();
        EXPECT_EQ(change.profile, other + "\n# Codex API Key\nset -gx K \"new\"\n");
    }
    EXPECT_FALSE(withKey("set K = old\n", csh).afterComputedValue);
    // Computed values stay as they are, with the new line after them.
    for (const QByteArray& computed :
         {QByteArray("set -gx K (cat ~/k)\n"), QByteArray("set -gx K $OTHER\n"), QByteArray("set -gx K 'a\\'b'\n"),
          QByteArray("set -gx K one two\n"), QByteArray("set -gx K \"$(cat k)\"\n")}) {
        const auto change = withKey(computed, fish);
        EXPECT_TRUE(change.afterComputedValue) << computed.toStdString();
        EXPECT_TRUE(change.profile.startsWith(computed)) << computed.toStdString();
    }
    for (const QByteArray& computed : {QByteArray("setenv K `cat ~/k`\n"), QByteArray("setenv K \"$OTHER\"\n"),
                                       QByteArray("setenv K 'a\\!b'\n"), QByteArray("setenv K ~/k\n")}) {
        const auto change = withKey(computed, csh);
        EXPECT_TRUE(change.afterComputedValue) << computed.toStdString();
        EXPECT_TRUE(change.profile.startsWith(computed)) << computed.toStdString();
    }
}

TEST_F(APIKeyStoreTest, FishAndTcshUsersGetTheKeyInTheStartUpFileTheirShellReads)
{
    struct Case {
        const char* shell;
        const char* file;
    };
    int tried = 0;
    for (const Case& user :
         {Case{"/usr/bin/fish", ".config/fish/conf.d/quillforge.fish"}, Case{"/usr/bin/tcsh", ".tcshrc"}}) {
        const QString shell = QString::fromLatin1(user.shell);
        if (!QFileInfo(shell).isExecutable())
            continue;
        ++tried;
        SCOPED_TRACE(user.shell);
        platform.terminalShell = shell;
        sandbox.setEnv("XDG_CONFIG_HOME", "");
        // A key of every character a shell might act on comes back exactly.
        for (const QString& key : {QStringLiteral("sk-proj-AB_c.9"), QStringLiteral("it's$HOME`id`!1\\\"q\"*(x)~")}) {
            const Result<QString> saved = save(key, CLITool::codex);
            ASSERT_TRUE(saved.ok()) << saved.error().errorDescription().toStdString();
            EXPECT_EQ(saved.value(), QString());
            EXPECT_EQ(terminalValue(shell, QStringLiteral("OPENAI_API_KEY")), key.toUtf8());
        }
        // The second key replaced the first: one line with the variable.
        EXPECT_EQ(profile(QString::fromLatin1(user.file)).count("OPENAI_API_KEY"), 1);

        // A key the user's own line computes is left, and the new line after it counts.
        sandbox.writeFile(QStringLiteral("k"), "from-file");
        sandbox.writeFile(QString::fromLatin1(user.file), shell.endsWith(QLatin1String("fish"))
                                                              ? "set -gx OPENAI_API_KEY (cat ~/k)\n"
                                                              : "setenv OPENAI_API_KEY `cat ~/k`\n");
        const Result<QString> saved = save(QStringLiteral("sk-after"), CLITool::codex);
        ASSERT_TRUE(saved.ok());
        EXPECT_EQ(saved.value(), APIKeyStore::computedValueNotice(QStringLiteral("OPENAI_API_KEY"),
                                                                  QStringLiteral("~/") + QLatin1String(user.file)));
        EXPECT_EQ(terminalValue(shell, QStringLiteral("OPENAI_API_KEY")), QByteArray("sk-after"));
        QDir(sandbox.path(QStringLiteral(".config"))).removeRecursively();
    }
    if (tried == 0)
        GTEST_SKIP() << "neither fish nor tcsh is installed here";
}

TEST_F(APIKeyStoreTest, NoExportOrAComputedOneGetsTheNewExportAfterIt)
{
    // Named only in a comment, in a longer name or inside another command: no export of it.
    // A value that a shell computes (a command, backquotes, an ANSI-C string, a variable, an
    // escape, a quote joined to more text, a string still open) is never edited. Either way the
    // export is added at the end, and both shells end with the new key and no syntax error.
    sandbox.writeFile(QStringLiteral("openai-key"), "from-file");
    const struct {
        QByteArray before;
        bool computed;
    } cases[] = {
        {"# remember OPENAI_API_KEY\nexport AZURE_OPENAI_API_KEY=az\n", false},
        {"# export OPENAI_API_KEY=\"old\"\n", false},
        {"echo \"export OPENAI_API_KEY=old\" >/dev/null\n", false},
        {"[ -n x ] && export OPENAI_API_KEY=old\n", false},
        {"export OPENAI_API_KEY=$(cat ~/openai-key)\n", true},
        {"export OPENAI_API_KEY=`cat ~/openai-key`\n", true},
        {"export OPENAI_API_KEY=$'sk-\\'x'\nalias next=line\n", true},
        {"export OPENAI_API_KEY=\"$HOME/k\"\n", true},
        {"export OPENAI_API_KEY=\"a\\\"b\"\n", true},
        {"export OPENAI_API_KEY=\"a\"b\n", true},
        {"OPENAI_API_KEY=~/k\n", true},
        {"export OPENAI_API_KEY=\"sk-cut-off", true},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.before.toStdString());
        const auto change = shellExport::withExport(c.before, QStringLiteral("OPENAI_API_KEY"), QStringLiteral("Codex"),
                                                    QStringLiteral("export OPENAI_API_KEY=\"sk-new\""));
        EXPECT_TRUE(change.appended);
        EXPECT_EQ(change.afterComputedValue, c.computed);
        EXPECT_EQ(change.profile, c.before + "\n# Codex API Key\nexport OPENAI_API_KEY=\"sk-new\"\n");
        if (c.before.count('"') % 2 == 1)
            continue; // a string the user left open swallows what follows in any shell
        sandbox.writeFile(QStringLiteral(".zshrc"), change.profile);
        expectSourced(QStringLiteral("OPENAI_API_KEY"), "sk-new");
    }
}

TEST_F(APIKeyStoreTest, TheKeyGoesToTheProfileInUseAndAFirstSaveAddsItsBlock)
{
    platform.terminalShell = QStringLiteral("/bin/bash");
    sandbox.writeFile(QStringLiteral(".bash_profile"), "export PATH=$PATH:/opt/bin"); // no final newline
    ASSERT_TRUE(save(QStringLiteral("AIza-1"), CLITool::geminiCLI).ok());
    EXPECT_FALSE(sandbox.exists(QStringLiteral(".zshrc")));
    EXPECT_EQ(profile(QStringLiteral(".bash_profile")),
              QByteArray("export PATH=$PATH:/opt/bin\n# Gemini CLI API Key\nexport GEMINI_API_KEY=\"AIza-1\"\n"));

    platform.terminalShell = QStringLiteral("/bin/zsh");
    ASSERT_TRUE(save(QStringLiteral("sk-ant-123"), CLITool::claudeCode).ok());
    EXPECT_EQ(profile(), QByteArray("\n# Claude Code API Key\nexport ANTHROPIC_API_KEY=\"sk-ant-123\"\n"));
    EXPECT_EQ(qgetenv("ANTHROPIC_API_KEY"), QByteArray("sk-ant-123"));
}

TEST_F(APIKeyStoreTest, HostileKeysStayData)
{
    const QString canary = sandbox.path(QStringLiteral("pwned"));
    const QStringList keys = {
        QStringLiteral("it's"),
        // No blanks inside (a key with one is refused): the shell's own separator stands in.
        QStringLiteral("$(touch${IFS}%1)").arg(canary),
        QStringLiteral("`touch${IFS}%1`").arg(canary),
        QStringLiteral("a\\nb\\c\\\\d"),
        QStringLiteral("bang!!x!$"),
        QStringLiteral("\";touch${IFS}%1;echo\"").arg(canary),
        QStringLiteral("';touch${IFS}%1;echo'").arg(canary),
        QStringLiteral("${HOME}*?[a]"),
        QString::fromUtf8("clé-ключ"),
    };
    for (const QString& key : keys) {
        // Both ways into the profile: appending to a new file, and rewriting an existing line.
        for (bool existing : {false, true}) {
            QFile::remove(sandbox.path(QStringLiteral(".zshrc")));
            if (existing)
                sandbox.writeFile(QStringLiteral(".zshrc"), "export OPENAI_API_KEY=\"old\"\n");
            ASSERT_TRUE(save(key, CLITool::codex).ok()) << key.toStdString();
            SCOPED_TRACE(key.toStdString());
            expectSourced(QStringLiteral("OPENAI_API_KEY"), key.toUtf8());
            EXPECT_EQ(qgetenv("OPENAI_API_KEY"), key.toUtf8());
            EXPECT_FALSE(QFile::exists(canary)) << key.toStdString() << " ran as code";
        }
    }
}

TEST_F(APIKeyStoreTest, RefusedSavesTouchNothing)
{
    const auto refusal = [this](const QString& key, CLITool tool) {
        const Result<QString> result = save(key, tool);
        return result.ok() ? QStringLiteral("<saved>") : result.error().errorDescription();
    };
    sandbox.writeFile(QStringLiteral(".zshrc"), "export GEMINI_API_KEY=\"old\"\n");
    const QString lineBreak = refusal(QStringLiteral("first\nsecond"), CLITool::geminiCLI);
    EXPECT_TRUE(lineBreak.contains(QStringLiteral("line break"))) << lineBreak.toStdString();
    EXPECT_FALSE(lineBreak.contains(QStringLiteral("first"))); // the key is never echoed
    // A key far longer than any real one would break every later command.
    const QString huge = refusal(QString(4097, QLatin1Char('k')), CLITool::geminiCLI);
    EXPECT_TRUE(huge.contains(QStringLiteral("4,096"))) << huge.toStdString();
    EXPECT_EQ(profile(), QByteArray("export GEMINI_API_KEY=\"old\"\n"));
    EXPECT_FALSE(qEnvironmentVariableIsSet("GEMINI_API_KEY"));
    const QString space = refusal(QStringLiteral("sk-1 sk-1"), CLITool::geminiCLI);
    EXPECT_TRUE(space.contains(QStringLiteral("contains a space"))) << space.toStdString();
    EXPECT_EQ(profile(), QByteArray("export GEMINI_API_KEY=\"old\"\n"));
    // What surrounds a pasted key is no part of it.
    const QString longest(4096, QLatin1Char('k'));
    ASSERT_TRUE(save(QStringLiteral(" \t") + longest + QStringLiteral("\r\n"), CLITool::geminiCLI).ok());
    EXPECT_EQ(qgetenv("GEMINI_API_KEY"), longest.toUtf8());

    // ~/.zshrc is a folder: no profile exists as a file, and appending to that path fails.
    QFile::remove(sandbox.path(QStringLiteral(".zshrc")));
    QDir().mkpath(sandbox.path(QStringLiteral(".zshrc")));
    const QString folder = refusal(QStringLiteral("sk-1"), CLITool::claudeCode);
    EXPECT_TRUE(folder.contains(QStringLiteral("~/.zshrc: it is not an ordinary file"))) << folder.toStdString();
    EXPECT_TRUE(QDir(sandbox.path(QStringLiteral(".zshrc"))).isEmpty());
    EXPECT_FALSE(qEnvironmentVariableIsSet("ANTHROPIC_API_KEY"));
}

TEST_F(APIKeyStoreTest, TheKeyNeverShowsInAProcessList)
{
    // A login file that takes its time: a command started for the save would be seen meanwhile.
    sandbox.writeFile(QStringLiteral(".zprofile"), "sleep 1\n");
    sandbox.writeFile(QStringLiteral(".zshrc"), "alias ll='ls -l'\n");
    const QByteArray key = "sk-ant-seen-" + QByteArray::number(QRandomGenerator::global()->generate());
    const QString self = QString::number(QCoreApplication::applicationPid());
    const auto mentioning = [&key, &self] {
        QStringList found;
        const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QString& pid : entries) {
            if (pid == self || !pid.front().isDigit())
                continue;
            for (const char* what : {"/cmdline", "/environ"}) {
                QFile file(QStringLiteral("/proc/") + pid + QLatin1String(what));
                if (file.open(QIODevice::ReadOnly) && file.readAll().contains(key))
                    found << pid + QLatin1String(what);
            }
        }
        return found;
    };

    auto saving = services.keys.save(QString::fromUtf8(key), CLITool::claudeCode);
    QStringList seen;
    while (!saving.isReady()) {
        seen << mentioning();
        QCoreApplication::processEvents();
    }
    const auto result = await(std::move(saving));
    ASSERT_TRUE(result && result->ok());
    EXPECT_EQ(seen, QStringList());
    EXPECT_EQ(profile(), "alias ll='ls -l'\n\n# Claude Code API Key\nexport ANTHROPIC_API_KEY=\"" + key + "\"\n");
}

TEST_F(APIKeyStoreTest, OnlyTheValueChangesWhateverTheProfileHolds)
{
    // Another key after the one saved, a note, line ends of Windows, bytes that are not UTF-8,
    // the file's permissions: all of it stays.
    const QByteArray before = "# caf\xE9\r\nexport OPENAI_API_KEY=\"old\"; export ANTHROPIC_API_KEY=\"keep\" # note\r\n"
                              "export GREETING='\xFF\xFE'\n";
    sandbox.writeFile(QStringLiteral(".zshrc"), before);
    const QByteArray path = QFile::encodeName(sandbox.path(QStringLiteral(".zshrc")));
    ASSERT_EQ(::chmod(path.constData(), 0600), 0);
    ASSERT_TRUE(save(QStringLiteral("sk-proj-new"), CLITool::codex).ok());
    const QByteArray after = "# caf\xE9\r\nexport OPENAI_API_KEY=\"sk-proj-new\"; export ANTHROPIC_API_KEY=\"keep\" "
                             "# note\r\nexport GREETING='\xFF\xFE'\n";
    EXPECT_EQ(profile(), after);
    struct stat info {};
    ASSERT_EQ(::stat(path.constData(), &info), 0);
    EXPECT_EQ(info.st_mode & 07777, 0600u);
    ASSERT_TRUE(save(QStringLiteral("sk-proj-new"), CLITool::codex).ok());
    EXPECT_EQ(profile(), after); // rewritten in place, never appended again
    expectSourced(QStringLiteral("OPENAI_API_KEY"), "sk-proj-new");
    expectSourced(QStringLiteral("ANTHROPIC_API_KEY"), "keep");
}
