#include "SetupTest.h"

using namespace qf;
using qf::test::SetupRun;

namespace {

// npm's global folder cannot take the package: its lib is a file (as root, permissions alone
// would not say no).
class SearchPathFixTest : public test::SetupTest {
protected:
    void SetUp() override
    {
        sandbox.installFakes({"git", "node", "npm"});
        writeFile(prefix + QStringLiteral("/lib"), "");
        sandbox.setEnv("FAKE_NPM_PREFIX", prefix.toUtf8());
    }

    const QString prefix = sandbox.stateDirectory() + QStringLiteral("/usr");
};

} // namespace

TEST_F(SearchPathFixTest, AnUnwritableNpmFolderSendsTheToolToLocalAndTheTerminalFindsIt)
{
    // The profile is a link into a dotfiles folder, with its own permissions and no line
    // break at its end.
    sandbox.writeFile(QStringLiteral("dotfiles/zshrc"), "alias ll='ls -l'");
    QFile::setPermissions(sandbox.path(QStringLiteral("dotfiles/zshrc")),
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    QFile::link(sandbox.path(QStringLiteral("dotfiles/zshrc")), sandbox.path(QStringLiteral(".zshrc")));
    // Session logging: the login shell's output goes to a file of the user's.
    sandbox.writeFile(QStringLiteral(".zprofile"), "exec >>\"$HOME/.zsh-session.log\" 2>&1\necho 'session started'\n");

    const SetupRun run = runSetup(CLITool::codex);
    ASSERT_TRUE(run.result && run.result->ok()) << run.error().toStdString();
    EXPECT_TRUE(run.log.contains(QStringLiteral("npm's global folder %1 is not writable for your user, so Codex goes "
                                                "into ~/.local instead (for this installation only; your npm settings "
                                                "stay as they are).\n")
                                     .arg(prefix)))
        << run.log.toStdString();
    EXPECT_EQ(sandbox.readState("npm-env.log"), "npm install -g @openai/codex with npm_config_prefix=" +
                                                    sandbox.path(QStringLiteral(".local")).toUtf8() + "\n");
    EXPECT_TRUE(sandbox.exists(QStringLiteral(".local/bin/codex")));
    EXPECT_FALSE(sandbox.exists(QStringLiteral(".npmrc")));

    // The user's terminal did not search ~/.local/bin: the profile gets the block, once.
    EXPECT_TRUE(run.log.contains(
        QStringLiteral("Added ~/.local/bin to the search path in ~/.zshrc, so new terminal windows find Codex.\n")));
    const QByteArray profile = "alias ll='ls -l'\n"
                               "# Added by Quillforge: programs installed for your user live in ~/.local/bin\n"
                               "export PATH=\"$HOME/.local/bin:$PATH\"\n";
    EXPECT_EQ(sandbox.readFile(QStringLiteral("dotfiles/zshrc")), profile);
    EXPECT_TRUE(QFileInfo(sandbox.path(QStringLiteral(".zshrc"))).isSymLink());
    EXPECT_EQ(QFileInfo(sandbox.path(QStringLiteral("dotfiles/zshrc"))).permissions() & 0x7077, // owner, group, others
              QFileDevice::ReadOwner | QFileDevice::WriteOwner);

    // A second install finds it on the search path and adds nothing.
    const SetupRun again = runSetup(CLITool::codex);
    ASSERT_TRUE(again.result && again.result->ok()) << again.error().toStdString();
    EXPECT_FALSE(again.log.contains(QStringLiteral("search path"))) << again.log.toStdString();
    EXPECT_EQ(sandbox.readFile(QStringLiteral("dotfiles/zshrc")), profile);
    // What the checks asked never went to the session log.
    const QByteArray session = sandbox.readFile(QStringLiteral(".zsh-session.log"));
    EXPECT_TRUE(session.contains("session started"));
    EXPECT_FALSE(session.contains(".local/bin")) << session.constData();

    // The block makes bash find the programs too.
    platform.terminalShell = QStringLiteral("/bin/bash");
    QFile::remove(sandbox.path(QStringLiteral(".zshrc")));
    sandbox.writeFile(QStringLiteral(".bashrc"), "");
    sandbox.writeFile(QStringLiteral(".bash_profile"), ". ~/.bashrc\n");
    const SetupRun bash = runSetup(CLITool::codex);
    ASSERT_TRUE(bash.result && bash.result->ok()) << bash.error().toStdString();
    EXPECT_TRUE(bash.log.contains(QStringLiteral("Added ~/.local/bin to the search path in ~/.bash_profile")))
        << bash.log.toStdString();
    EXPECT_FALSE(bash.log.contains(QStringLiteral("Note:"))) << bash.log.toStdString();
}

TEST_F(SearchPathFixTest, EveryShellFamilyGetsTheSearchPathInTheFileItReads)
{
    sandbox.setEnv("XDG_CONFIG_HOME", "");

    struct Case {
        const char* shell;
        bool login;
        const char* file;
    };
    // A bash that terminal windows start without a login (as on Linux) reads ~/.bashrc, also
    // on an account that has no start-up file yet.
    int tried = 0;
    for (const Case& user : {Case{"/usr/bin/fish", true, ".config/fish/conf.d/quillforge.fish"},
                             Case{"/usr/bin/tcsh", true, ".tcshrc"}, Case{"/bin/bash", false, ".bashrc"}}) {
        if (!QFileInfo(QString::fromLatin1(user.shell)).isExecutable())
            continue;
        ++tried;
        SCOPED_TRACE(user.shell);
        platform.terminalShell = QString::fromLatin1(user.shell);
        platform.loginTerminals = user.login;
        const SetupRun run = runSetup(CLITool::codex);
        ASSERT_TRUE(run.result && run.result->ok()) << run.error().toStdString();
        // Written, and a new terminal window's shell (the real one) finds the programs.
        EXPECT_TRUE(run.log.contains(QStringLiteral("Added ~/.local/bin to the search path in ~/%1, so new terminal "
                                                    "windows find Codex.\n")
                                         .arg(QLatin1String(user.file))))
            << run.log.toStdString();
        EXPECT_FALSE(run.log.contains(QStringLiteral("Note:"))) << run.log.toStdString();
        EXPECT_TRUE(sandbox.readFile(QString::fromLatin1(user.file)).startsWith("\n# Added by Quillforge"));
        EXPECT_FALSE(sandbox.exists(QStringLiteral(".zshrc")));
    }
    if (tried < 3)
        GTEST_SKIP() << "fish or tcsh is not installed here (scripts/setup installs both): not every shell was tried";
}
