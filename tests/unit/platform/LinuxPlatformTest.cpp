#include "PlatformBackends.h"
#include "PlatformTestTools.h"
#include "ShellQuote.h"
#include "WindowChrome.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStyle>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>

#include <cctype>
#include <ostream>
#include <string>

using qf::LinuxPlatform;
using qf::test::runShell;

namespace {

QString q(const char* text) { return QString::fromUtf8(text); }

QStringList inner(const QString& shell, const QString& line)
{
    return {shell, QStringLiteral("-l"), QStringLiteral("-i"), QStringLiteral("-c"), line};
}

// --- Shell quoting -------------------------------------------------------------------------

TEST(ShellQuote, PlainWordsStayAsTheyAreUnlessAlwaysQuoted)
{
    for (const char* word : {"claude", "/usr/bin/zsh", "a-b_c.d+e=f:g,h@i%j", "20.10.0"}) {
        EXPECT_EQ(qf::shellQuote(q(word)), q(word));
        EXPECT_EQ(qf::shellQuote(q(word), qf::Quoting::always), QLatin1Char('\'') + q(word) + QLatin1Char('\''));
    }
    // zsh would expand these if they stood bare.
    EXPECT_EQ(qf::shellQuote(QStringLiteral("~")), QStringLiteral("'~'"));
    EXPECT_EQ(qf::shellQuote(QStringLiteral("=true")), QStringLiteral("'=true'"));
}

// Every word, quoted, must reach a real shell's printf exactly as it was, and nothing in it
// may run.
TEST(ShellQuote, HostileWordsSurviveRealShells)
{
    const QStringList words{
        QStringLiteral("two words"),
        QStringLiteral("it's"),
        QStringLiteral("\"double\""),
        QStringLiteral("$(touch pwned)"),
        QStringLiteral("`touch pwned`"),
        QStringLiteral("back\\slash\\"),
        QStringLiteral("bang! !! !$"),
        QStringLiteral("line\nbreak\n"),
        QStringLiteral("$HOME ${HOME}"),
        QStringLiteral("*"),
        QStringLiteral("~"),
        QStringLiteral("~/x"),
        QStringLiteral("=true"),
        QString(),
        QStringLiteral("'"),
        QStringLiteral("''\\'"),
        QStringLiteral("tab\there"),
        QStringLiteral("a;b|c&d>e<f"),
        QStringLiteral("{a,b}"),
        QStringLiteral("-n"),
        QStringLiteral("%1 %s"),
        QStringLiteral("\u00fcml\u00e4ut"),
        QStringLiteral("#not a comment"),
        QStringLiteral("a=$(touch pwned)"),
    };
    QTemporaryDir sandbox;
    ASSERT_TRUE(sandbox.isValid());

    for (const QString& shell : qf::test::availableShells()) {
        for (const QString& word : words) {
            const QString script = QStringLiteral("printf %s ") + qf::shellQuote(word, word.size() % 2
                                                                                           ? qf::Quoting::always
                                                                                           : qf::Quoting::whenNeeded);
            const qf::test::ShellRun run = runShell(shell, script, sandbox.path(), sandbox.path());
            ASSERT_TRUE(run.finished) << shell.toStdString();
            EXPECT_EQ(run.exitCode, 0) << shell.toStdString() << ": " << script.toStdString() << "\n"
                                       << run.err.toStdString();
            EXPECT_EQ(QString::fromUtf8(run.out), word) << shell.toStdString() << ": " << script.toStdString();
        }
        EXPECT_FALSE(QFile::exists(sandbox.filePath(QStringLiteral("pwned")))) << shell.toStdString();
    }
}

// --- The line run inside the terminal ------------------------------------------------------

// The line is run for real: `pwd` stands for the command and /bin/true for the login shell
// that replaces it, so the shell prints where it arrived and then ends.
TEST(LinuxPlatformShellLine, DirectoriesWithBlanksAndQuotesArriveIntact)
{
    QTemporaryDir sandbox;
    ASSERT_TRUE(sandbox.isValid());
    const QString home = sandbox.filePath(QStringLiteral("home"));
    const QString relative = QStringLiteral("My Projects/it's \"here\"");
    const QString absolute = sandbox.filePath(QStringLiteral("abs dir/$(touch pwned) `touch pwned` \\ !x ~ *"));
    ASSERT_TRUE(QDir().mkpath(home + QLatin1Char('/') + relative));
    ASSERT_TRUE(QDir().mkpath(absolute));

    const QList<QPair<QString, QString>> cases{
        {QStringLiteral("~/") + relative, home + QLatin1Char('/') + relative},
        {absolute, absolute},
        {QStringLiteral("~"), home},
    };
    for (const QString& shell : qf::test::availableShells()) {
        for (const auto& [directory, expected] : cases) {
            const QString line = LinuxPlatform::terminalShellLine(QStringLiteral("pwd"), directory,
                                                                  QStringLiteral("/bin/true"));
            const qf::test::ShellRun run = runShell(shell, line, home, sandbox.path());
            ASSERT_TRUE(run.finished);
            EXPECT_EQ(run.exitCode, 0) << shell.toStdString() << ": " << line.toStdString() << "\n"
                                       << run.err.toStdString();
            EXPECT_EQ(QString::fromUtf8(run.out), expected + QLatin1Char('\n'))
                << shell.toStdString() << ": " << line.toStdString();
        }
    }
    EXPECT_FALSE(QFile::exists(sandbox.filePath(QStringLiteral("pwned"))));
}

// A missing directory stops the line at `cd` (the && keeps the command from running) and the
// terminal still ends in the login shell.
TEST(LinuxPlatformShellLine, MissingDirectorySkipsTheCommandButKeepsTheShell)
{
    QTemporaryDir sandbox;
    ASSERT_TRUE(sandbox.isValid());
    const QString line = LinuxPlatform::terminalShellLine(QStringLiteral("touch ran"), QStringLiteral("~/Developer"),
                                                          QStringLiteral("/bin/echo"));
    const qf::test::ShellRun run = runShell(QStringLiteral("/bin/sh"), line, sandbox.path(), sandbox.path());
    ASSERT_TRUE(run.finished);
    EXPECT_EQ(QString::fromUtf8(run.out), QStringLiteral("-l\n"));
    EXPECT_FALSE(QFile::exists(sandbox.filePath(QStringLiteral("ran"))));
}

// --- The emulator's command line -----------------------------------------------------------

// What each emulator is given: the working directory where it takes one (a leading "~" made
// absolute, since no shell expands it there), then the login shell that runs the line.
TEST(LinuxPlatformCommandLine, EachEmulatorGetsTheDirectoryAndTheLoginShell)
{
    const QString shell = QStringLiteral("/usr/bin/zsh");
    const auto commandLine = [&](const char* emulator, const char* directory) {
        return LinuxPlatform::terminalCommandLine(q(emulator), QStringLiteral("claude"), q(directory),
                                                  QStringLiteral("/home/ada"), shell);
    };
    const auto login = [&](const char* directory) {
        return inner(shell, LinuxPlatform::terminalShellLine(QStringLiteral("claude"), q(directory), shell));
    };
    EXPECT_EQ(commandLine("/usr/bin/gnome-terminal", "~/Developer"),
              QStringList({q("/usr/bin/gnome-terminal"), q("--working-directory=/home/ada/Developer"), q("--")}) +
                  login("~/Developer"));
    EXPECT_EQ(commandLine("konsole", "/srv/My Projects"),
              QStringList({q("konsole"), q("--workdir"), q("/srv/My Projects"), q("-e")}) + login("/srv/My Projects"));
    EXPECT_EQ(commandLine("xfce4-terminal", "~"),
              QStringList({q("xfce4-terminal"), q("--working-directory=/home/ada"), q("-x")}) + login("~"));
    // xterm keeps its window after the shell ends; everything after -e is what it runs.
    EXPECT_EQ(commandLine("xterm", "~/Developer"),
              QStringList({q("xterm"), q("-hold"), q("-e")}) + login("~/Developer"));
    EXPECT_EQ(commandLine("xdg-terminal-exec", "~/Developer"),
              QStringList{q("xdg-terminal-exec")} + login("~/Developer"));
    // x-terminal-emulator and any other emulator: the Debian convention.
    EXPECT_EQ(commandLine("/opt/kitty/bin/kitty", "~/Developer"),
              QStringList({q("/opt/kitty/bin/kitty"), q("-e")}) + login("~/Developer"));
}

// Every family of login shell gets a line it runs, and stays open afterwards for the user:
// with the real shells of each family that this machine has.
TEST(LinuxPlatformCommandLine, EveryShellFamilyRunsTheLineAndStaysOpen)
{
    // csh and tcsh refuse "-l" next to "-c"; they get "-c" alone and still end in a login shell.
    const QStringList tcsh = LinuxPlatform::terminalCommandLine(q("xterm"), q("claude"), q("~/Developer"),
                                                                q("/home/ada"), q("/usr/bin/tcsh"));
    EXPECT_EQ(tcsh.mid(0, 5), QStringList({q("xterm"), q("-hold"), q("-e"), q("/usr/bin/tcsh"), q("-c")}));
    EXPECT_TRUE(tcsh.last().endsWith(q("; exec /usr/bin/tcsh -l"))) << tcsh.last().toStdString();

    int tried = 0;
    for (const char* shell : {"/bin/sh", "/bin/bash", "/bin/zsh", "/bin/dash", "/bin/ksh", "/bin/mksh", "/bin/csh",
                              "/bin/tcsh", "/usr/bin/fish"}) {
        if (!QFileInfo(q(shell)).isExecutable())
            continue;
        ++tried;
        QTemporaryDir home;
        ASSERT_TRUE(home.isValid() && QDir(home.path()).mkpath(q("work")));
        // What the emulator would run after "-e".
        const QStringList run = LinuxPlatform::terminalCommandLine(q("x-terminal-emulator"), q("pwd > ran"),
                                                                   q("~/work"), home.path(), q(shell))
                                    .mid(2);
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(q("HOME"), home.path());
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(home.path());
        process.start(run.first(), run.mid(1));
        ASSERT_TRUE(process.waitForStarted(5000)) << shell;
        // The user's own shell, left open, takes what is typed next.
        process.write("echo stayed > stayed\n");
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished(10000)) << shell;
        const auto read = [&home](const char* name) {
            QFile file(home.filePath(q(name)));
            return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()).trimmed() : q("<missing>");
        };
        EXPECT_EQ(QFileInfo(read("work/ran")).canonicalFilePath(),
                  QFileInfo(home.filePath(q("work"))).canonicalFilePath())
            << shell << ": " << process.readAllStandardError().constData();
        EXPECT_EQ(read("work/stayed"), q("stayed")) << shell;
    }
    EXPECT_GT(tried, 0);
}

// --- Finding the emulator ------------------------------------------------------------------

TEST(LinuxPlatformFindEmulator, TakesTheMostPreferredEmulatorOnThePath)
{
    QTemporaryDir first;
    QTemporaryDir second;
    ASSERT_TRUE(first.isValid() && second.isValid());
    const QString searchPath = first.path() + QLatin1Char(':') + second.path();

    EXPECT_EQ(LinuxPlatform::findTerminalEmulator(searchPath), std::nullopt);
    // An empty path finds nothing, not even what the machine itself has installed.
    EXPECT_EQ(LinuxPlatform::findTerminalEmulator(QString()), std::nullopt);
    EXPECT_EQ(LinuxPlatform::findTerminalEmulator(QStringLiteral("::")), std::nullopt);

    ASSERT_TRUE(qf::test::writeExecutable(first.filePath(QStringLiteral("xterm")), "#!/bin/sh\n"));
    EXPECT_EQ(LinuxPlatform::findTerminalEmulator(searchPath), first.filePath(QStringLiteral("xterm")));

    // Neither a file that cannot be run nor a directory counts.
    QFile plain(first.filePath(QStringLiteral("gnome-terminal")));
    ASSERT_TRUE(plain.open(QIODevice::WriteOnly));
    plain.close();
    ASSERT_TRUE(QDir(first.path()).mkdir(QStringLiteral("xdg-terminal-exec")));
    EXPECT_EQ(LinuxPlatform::findTerminalEmulator(searchPath), first.filePath(QStringLiteral("xterm")));

    // Preference beats the order of the directories.
    ASSERT_TRUE(qf::test::writeExecutable(second.filePath(QStringLiteral("konsole")), "#!/bin/sh\n"));
    EXPECT_EQ(LinuxPlatform::findTerminalEmulator(searchPath), second.filePath(QStringLiteral("konsole")));

    ASSERT_TRUE(qf::test::writeExecutable(second.filePath(QStringLiteral("x-terminal-emulator")), "#!/bin/sh\n"));
    ASSERT_TRUE(qf::test::writeExecutable(first.filePath(QStringLiteral("x-terminal-emulator")), "#!/bin/sh\n"));
    EXPECT_EQ(LinuxPlatform::findTerminalEmulator(searchPath), first.filePath(QStringLiteral("x-terminal-emulator")));

    ASSERT_TRUE(qf::test::writeExecutable(second.filePath(QStringLiteral("xdg-terminal-exec")), "#!/bin/sh\n"));
    EXPECT_EQ(LinuxPlatform::findTerminalEmulator(searchPath), second.filePath(QStringLiteral("xdg-terminal-exec")));
}

// --- Opening a terminal, end to end with fake emulators ------------------------------------

class LinuxPlatformOpenTerminal : public ::testing::TestWithParam<const char*> {};

// The fake emulator records its arguments and working directory, then runs the program it
// was given the way the real one would. The fake login shell runs `-c` lines with sh and,
// started on its own (the interactive shell the line ends in), leaves a mark.
TEST_P(LinuxPlatformOpenTerminal, RunsTheLineInTheDirectoryAndEndsInTheShell)
{
    const QString emulatorName = q(GetParam());
    QTemporaryDir sandbox;
    ASSERT_TRUE(sandbox.isValid());
    const QString home = sandbox.filePath(QStringLiteral("home"));
    const QString bin = sandbox.filePath(QStringLiteral("bin"));
    const QString relative = QStringLiteral("My Projects/it's \"here\"");
    ASSERT_TRUE(QDir().mkpath(home + QLatin1Char('/') + relative));
    ASSERT_TRUE(QDir().mkpath(bin));
    const auto quoted = [](const QString& path) { return qf::shellQuote(path).toUtf8(); };
    const QString argsFile = sandbox.filePath(QStringLiteral("emulator-args"));
    const QString cwdFile = sandbox.filePath(QStringLiteral("emulator-cwd"));
    const QString pwdFile = sandbox.filePath(QStringLiteral("command-pwd"));
    const QString shellMark = sandbox.filePath(QStringLiteral("login-shell"));

    QByteArray emulator = "#!/bin/sh\n"
                          "for a in \"$@\"; do printf '%s\\n' \"$a\"; done > " +
                          quoted(argsFile) +
                          "\n"
                          "pwd > " +
                          quoted(cwdFile) + "\n";
    if (emulatorName != QLatin1String("xdg-terminal-exec"))
        emulator += "while [ $# -gt 0 ]; do a=$1; shift; case $a in --|-e|-x) break;; esac; done\n";
    emulator += "exec \"$@\"\n";
    ASSERT_TRUE(qf::test::writeExecutable(bin + QLatin1Char('/') + emulatorName, emulator));

    const QString shell = sandbox.filePath(QStringLiteral("shells/fake sh"));
    ASSERT_TRUE(QDir().mkpath(QFileInfo(shell).path()));
    ASSERT_TRUE(qf::test::writeExecutable(shell, "#!/bin/sh\n"
                                                 "if [ \"$1 $2 $3\" = \"-l -i -c\" ]; then exec /bin/sh -c \"$4\"; fi\n"
                                                 "printf '%s\\n' \"$*\" > " +
                                                     quoted(shellMark) + "\n"));

    qf::test::ScopedEnv pathEnv("PATH", bin.toUtf8());
    qf::test::ScopedEnv homeEnv("HOME", home.toUtf8());
    // The account's shell opens the window, not the one SHELL names (which would do nothing).
    const QString named = sandbox.filePath(QStringLiteral("shells/named sh"));
    ASSERT_TRUE(qf::test::writeExecutable(named, "#!/bin/sh\nexit 0\n"));
    qf::test::ScopedEnv shellEnv("SHELL", named.toUtf8());

    LinuxPlatform platform([shell] { return QString(shell); });
    EXPECT_EQ(platform.terminalDescription(),
              emulatorName + QStringLiteral(" (") + bin + QLatin1Char('/') + emulatorName + QLatin1Char(')'));
    qf::test::StdoutCapture capture;
    std::optional<bool> opened;
    platform.openTerminal(QStringLiteral("pwd > ") + qf::shellQuote(pwdFile), QStringLiteral("~/") + relative,
                          [&opened](qf::TerminalAnswer answer) { opened = answer == qf::TerminalAnswer::opened; });
    EXPECT_EQ(opened, true);
    const auto read = [](const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QStringLiteral("<missing>");
    };
    // The mark exists as soon as the shell opens it; it is complete with its line break.
    const bool ended = QTest::qWaitFor([&] { return read(shellMark).endsWith(QLatin1Char('\n')); }, 20000);
    const QString printed = capture.text();
    capture.restore();

    EXPECT_EQ(printed, QString());
    ASSERT_TRUE(ended) << "the login shell never started";

    EXPECT_EQ(read(pwdFile), home + QLatin1Char('/') + relative + QLatin1Char('\n'));
    // The emulator starts in the home folder (compared as real paths: the temporary folder
    // may lie behind a symbolic link).
    EXPECT_EQ(QFileInfo(read(cwdFile).trimmed()).canonicalFilePath(), QFileInfo(home).canonicalFilePath());
    EXPECT_EQ(read(shellMark), QStringLiteral("-l\n"));

    const QStringList expected = LinuxPlatform::terminalCommandLine(bin + QLatin1Char('/') + emulatorName,
                                                                    QStringLiteral("pwd > ") + qf::shellQuote(pwdFile),
                                                                    QStringLiteral("~/") + relative, home, shell);
    EXPECT_EQ(read(argsFile), expected.mid(1).join(QLatin1Char('\n')) + QLatin1Char('\n'));
}

INSTANTIATE_TEST_SUITE_P(LinuxPlatform, LinuxPlatformOpenTerminal,
                         ::testing::Values("xdg-terminal-exec", "x-terminal-emulator", "gnome-terminal", "konsole",
                                           "xfce4-terminal", "xterm"),
                         [](const ::testing::TestParamInfo<const char*>& info) {
                             std::string name = info.param;
                             for (char& ch : name)
                                 if (ch == '-')
                                     ch = '_';
                             return name;
                         });

// No emulator on the search path, or one that cannot start: no window, and the reason in one
// diagnostic line.
TEST(LinuxPlatformOpenTerminalFailures, NoWindowIsOneDiagnosticLine)
{
    QTemporaryDir bin;
    ASSERT_TRUE(bin.isValid());
    qf::test::ScopedEnv pathEnv("PATH", bin.path().toUtf8());
    EXPECT_EQ(LinuxPlatform().terminalDescription(), QStringLiteral("no terminal emulator found"));
    for (const bool present : {false, true}) {
        if (present) {
            ASSERT_TRUE(qf::test::writeExecutable(bin.filePath(q("xterm")), "#!/nonexistent/interpreter\n"));
        }
        qf::test::StdoutCapture capture;
        std::optional<bool> opened;
        LinuxPlatform().openTerminal(q("claude"), q("~/Developer"), [&opened](qf::TerminalAnswer answer) {
            opened = answer == qf::TerminalAnswer::opened;
        });
        const QString printed = capture.text();
        capture.restore();
        EXPECT_EQ(opened, false);
        EXPECT_TRUE(printed.startsWith(q("Terminal error: "))) << printed.toStdString();
        EXPECT_GT(printed.trimmed().size(), q("Terminal error:").size()) << "the reason is missing";
        EXPECT_EQ(printed.count(QLatin1Char('\n')), 1) << printed.toStdString();
        EXPECT_TRUE(printed.endsWith(QLatin1Char('\n')));
        EXPECT_EQ(printed.contains(q("no terminal emulator found")), !present) << printed.toStdString();
    }
}

// --- The operating system ------------------------------------------------------------------

TEST(LinuxPlatformOsRelease, ParsesQuotingLikeTheShell)
{
    const QString text = QStringLiteral("# os-release of a test system\n"
                                        "\n"
                                        "PRETTY_NAME=\"Debian GNU/Linux 12 (bookworm)\"\n"
                                        "NAME='Debian GNU/Linux'\n"
                                        "VERSION_ID=\"12\"\r\n"
                                        "ID=debian   \n"
                                        "   # an indented comment=ignored\n"
                                        "QUOTES=\"say \\\"hi\\\" \\\\ \\$HOME \\`x\\`\"\n"
                                        "SINGLE='no \\escapes \"here\"'\n"
                                        "EMPTY=\n"
                                        "EMPTY_QUOTED=\"\"\n"
                                        "HOME_URL=https://www.debian.org/\n"
                                        "a line without an equals sign\n"
                                        "=no key\n");
    const QMap<QString, QString> expected{
        {QStringLiteral("PRETTY_NAME"), QStringLiteral("Debian GNU/Linux 12 (bookworm)")},
        {QStringLiteral("NAME"), QStringLiteral("Debian GNU/Linux")},
        {QStringLiteral("VERSION_ID"), QStringLiteral("12")},
        {QStringLiteral("ID"), QStringLiteral("debian")},
        {QStringLiteral("QUOTES"), QStringLiteral("say \"hi\" \\ $HOME `x`")},
        {QStringLiteral("SINGLE"), QStringLiteral("no \\escapes \"here\"")},
        {QStringLiteral("EMPTY"), QString()},
        {QStringLiteral("EMPTY_QUOTED"), QString()},
        {QStringLiteral("HOME_URL"), QStringLiteral("https://www.debian.org/")},
    };
    EXPECT_EQ(LinuxPlatform::parseOsRelease(text), expected);
}

// The pretty name first, else the name and its version, else the name, else "Linux"; met only
// on a 64-bit system.
TEST(LinuxPlatformOsRelease, OperatingSystemCheck)
{
    using Map = QMap<QString, QString>;
    const Map debian{{q("PRETTY_NAME"), q("Debian GNU/Linux 12 (bookworm)")},
                     {q("NAME"), q("Debian GNU/Linux")},
                     {q("VERSION_ID"), q("12")}};
    const struct {
        Map osRelease;
        bool sixtyFourBits;
        const char* details;
    } cases[] = {
        {debian, true, "Debian GNU/Linux 12 (bookworm)"},
        {debian, false, "Debian GNU/Linux 12 (bookworm)"},
        {Map{{q("NAME"), q("Fedora Linux")}, {q("VERSION_ID"), q("39")}}, true, "Fedora Linux 39"},
        {Map{{q("NAME"), q("Arch Linux")}}, true, "Arch Linux"},
        {Map{}, true, "Linux"},
    };
    for (const auto& c : cases) {
        const qf::OperatingSystemCheck check = LinuxPlatform::operatingSystemCheck(c.osRelease, c.sixtyFourBits);
        EXPECT_EQ(check.met, c.sixtyFourBits) << c.details;
        EXPECT_EQ(check.details, q(c.details));
    }
    const qf::OperatingSystemCheck here = LinuxPlatform().checkOperatingSystem();
    EXPECT_EQ(here.met, QSysInfo::WordSize == 64);
    EXPECT_FALSE(here.details.isEmpty());
}

TEST(LinuxPlatformLook, AppearanceFromTheUserOrTheDesktop)
{
    EXPECT_EQ(LinuxPlatform::appearanceFrom("dark", ""), true);
    EXPECT_EQ(LinuxPlatform::appearanceFrom("Light", "Adwaita:dark"), false); // the user's word wins
    EXPECT_EQ(LinuxPlatform::appearanceFrom("", "Adwaita-dark"), true);
    EXPECT_EQ(LinuxPlatform::appearanceFrom("", "Adwaita"), std::nullopt); // the palette decides
    EXPECT_FALSE(LinuxPlatform().applicationLook().nativeStyle);
}

TEST(LinuxPlatformOsRelease, PackageLineFollowsTheDistributionFamily)
{
    const auto line = [](const char* id, const char* idLike) {
        QMap<QString, QString> osRelease;
        if (*id)
            osRelease.insert(QStringLiteral("ID"), q(id));
        if (*idLike)
            osRelease.insert(QStringLiteral("ID_LIKE"), q(idLike));
        return LinuxPlatform::packageInstallLine(osRelease);
    };
    // The distribution itself, else the first family it names that is known.
    EXPECT_TRUE(line("debian", "").startsWith(q("sudo apt-get install -y git")));
    EXPECT_EQ(line("linuxmint", "ubuntu debian"), line("debian", ""));
    EXPECT_TRUE(line("fedora", "").startsWith(q("sudo dnf install -y git")));
    EXPECT_EQ(line("rocky", "  rhel  centos fedora "), line("fedora", ""));
    EXPECT_TRUE(line("arch", "").startsWith(q("sudo pacman -S --needed git")));
    EXPECT_EQ(line("manjaro", "arch"), line("arch", ""));
    EXPECT_TRUE(line("opensuse-leap", "").startsWith(q("sudo zypper install -y git")));
    EXPECT_EQ(line("sles", "suse"), line("opensuse-leap", ""));
    // Unknown systems get the most common line.
    EXPECT_EQ(line("", ""), line("debian", ""));
}

// --- Node.js without Homebrew --------------------------------------------------------------

// Administrator rights come only through the desktop's password dialog; without one the
// line fails with a message instead of waiting for a password nobody can type.
TEST(LinuxPlatformAdministrator, ThroughPkexecOrAClearFailure)
{
    QTemporaryDir sandbox;
    ASSERT_TRUE(sandbox.isValid());
    const QString marker = sandbox.filePath(QStringLiteral("it's done"));
    const QString line = LinuxPlatform::administratorLine(QStringLiteral("touch ") + qf::shellQuote(marker));
    // A search path without pkexec, whatever this machine has.
    ASSERT_TRUE(QDir().mkpath(sandbox.filePath(q("empty"))));
    const QString withoutDialog = QStringLiteral("PATH=") + qf::shellQuote(sandbox.filePath(q("empty"))) +
                                  QStringLiteral("; ") + line;
    qf::test::ShellRun run = runShell(QStringLiteral("/bin/sh"), withoutDialog, sandbox.path(), sandbox.path());
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.err, QByteArray("This needs administrator rights, and no password dialog (pkexec) was found.\n"));
    EXPECT_FALSE(QFile::exists(marker));

    // pkexec runs the command as it was given, or says the dialog was dismissed.
    ASSERT_TRUE(QDir().mkpath(sandbox.filePath(q("bin"))));
    ASSERT_TRUE(qf::test::writeExecutable(sandbox.filePath(q("bin/pkexec")),
                                          "#!/bin/sh\n[ -n \"$DISMISS\" ] && exit 126\nexec \"$@\"\n"));
    const QString withDialog = QStringLiteral("PATH=") + qf::shellQuote(sandbox.filePath(q("bin"))) +
                               QStringLiteral(":/usr/bin:/bin; export PATH; ");
    run = runShell(QStringLiteral("/bin/sh"), withDialog + QStringLiteral("DISMISS=1; export DISMISS; ") + line,
                   sandbox.path(), sandbox.path());
    EXPECT_EQ(run.exitCode, qf::kAdministratorDeclined);
    EXPECT_FALSE(QFile::exists(marker));
    run = runShell(QStringLiteral("/bin/sh"), withDialog + line, sandbox.path(), sandbox.path());
    EXPECT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_TRUE(QFile::exists(marker));
}

TEST(NodeReleaseTargets, OneArchivePerSystemAndProcessor)
{
    using Target = qf::NodeReleaseTarget;
    EXPECT_EQ(LinuxPlatform::nodeReleaseTargetFor(q("x86_64")), (Target{q("linux-x64"), q("linux-x64")}));
    EXPECT_EQ(LinuxPlatform::nodeReleaseTargetFor(q("aarch64")), (Target{q("linux-arm64"), q("linux-arm64")}));
    EXPECT_EQ(LinuxPlatform::nodeReleaseTargetFor(q("i386")), std::nullopt);
    EXPECT_EQ(qf::MacPlatform::nodeReleaseTargetFor(q("arm64")), (Target{q("darwin-arm64"), q("osx-arm64-tar")}));
    EXPECT_EQ(qf::MacPlatform::nodeReleaseTargetFor(q("power")), std::nullopt);
}

// --- Logs -----------------------------------------------------------------------------------

TEST(LogFolders, EachSystemKeepsLogsAndCachesWhereItsUsersLook)
{
    EXPECT_EQ(qf::MacPlatform::logFolderIn(q("/Users/ada")), q("/Users/ada/Library/Logs/Quillforge"));
    EXPECT_EQ(LinuxPlatform::logFolderIn(q("/home/ada/.state"), q("/home/ada")), q("/home/ada/.state/quillforge/logs"));
    // Unset, empty or relative: the standard place in the home folder.
    for (const QString& unusable : {QString(), q(""), q("state")})
        EXPECT_EQ(LinuxPlatform::logFolderIn(unusable, q("/home/ada")), q("/home/ada/.local/state/quillforge/logs"))
            << unusable.toStdString();

    qf::test::ScopedEnv stateHome("XDG_STATE_HOME", "/srv/ada-state");
    EXPECT_EQ(LinuxPlatform().logFolder(), q("/srv/ada-state/quillforge/logs"));
    EXPECT_EQ(qf::MacPlatform().logFolder(), QDir::homePath() + q("/Library/Logs/Quillforge"));

    // The cache, likewise.
    EXPECT_EQ(qf::MacPlatform::cacheFolderIn(q("/Users/ada")), q("/Users/ada/Library/Caches/Quillforge"));
    EXPECT_EQ(LinuxPlatform::cacheFolderIn(q("/srv/cache"), q("/home/ada")), q("/srv/cache/quillforge"));
    EXPECT_EQ(LinuxPlatform::cacheFolderIn(q("cache"), q("/home/ada")), q("/home/ada/.cache/quillforge"));
}

// The file manager is asked over the session bus; a fake dbus-send records what it was given.
TEST(LogFolders, TheFileManagerIsAskedToShowTheFile)
{
    QTemporaryDir sandbox;
    ASSERT_TRUE(sandbox.isValid());
    const QString bin = sandbox.filePath(q("bin"));
    ASSERT_TRUE(QDir().mkpath(bin));
    const QString argsFile = sandbox.filePath(q("dbus-args"));
    ASSERT_TRUE(
        qf::test::writeExecutable(bin + q("/dbus-send"), "#!/bin/sh\nfor a in \"$@\"; do printf '%s\\n' \"$a\"; "
                                                         "done > " +
                                                             qf::shellQuote(argsFile).toUtf8() + "\n"));
    qf::test::ScopedEnv pathEnv("PATH", bin.toUtf8());

    const QString file = q("/home/ada/logs/2026-11-25 15-20-03 Install a,b.log");
    const QStringList expected = LinuxPlatform::showItemsCommandLine(file);
    ASSERT_EQ(expected.size(), 9);
    EXPECT_EQ(expected.first(), q("dbus-send"));
    EXPECT_TRUE(expected.contains(q("org.freedesktop.FileManager1.ShowItems")));
    // One item: the file's address, its blank encoded and its comma kept from splitting it.
    EXPECT_EQ(expected[7], q("array:string:file:///home/ada/logs/2026-11-25%2015-20-03%20Install%20a%2Cb.log"));

    std::optional<bool> shown;
    LinuxPlatform().revealFile(file, [&shown](bool answer) { shown = answer; });
    const auto read = [&argsFile] {
        QFile recorded(argsFile);
        return recorded.open(QIODevice::ReadOnly) ? QString::fromUtf8(recorded.readAll()) : QString();
    };
    ASSERT_TRUE(QTest::qWaitFor([&] { return shown.has_value(); }, 20000));
    EXPECT_EQ(shown, true);
    EXPECT_EQ(read(), expected.mid(1).join(QLatin1Char('\n')) + QLatin1Char('\n'));

    // No file manager on the bus and nothing to open the folder with: the caller hears so.
    ASSERT_TRUE(qf::test::writeExecutable(bin + q("/dbus-send"), "#!/bin/sh\nexit 1\n"));
    shown.reset();
    LinuxPlatform().revealFile(file, [&shown](bool answer) { shown = answer; });
    ASSERT_TRUE(QTest::qWaitFor([&] { return shown.has_value(); }, 20000));
    EXPECT_EQ(shown, false);
}

// --- The main window's frame ----------------------------------------------------------------

TEST(WindowFrames, UntilTheWindowIsFramedEachSystemAssumesItsTitleBar)
{
    using qf::WindowFrame;
    // Linux: what the window manager reports once it has framed the window; before that, a
    // title bar as tall as the style's.
    EXPECT_EQ(LinuxPlatform::windowFrame(QMargins(1, 20, 1, 5), 24), (WindowFrame{QMargins(1, 20, 1, 5), true}));
    EXPECT_EQ(LinuxPlatform::windowFrame(QMargins(), 24), (WindowFrame{QMargins(0, 24, 0, 0), false}));
    QWidget window;
    const WindowFrame unframed = qf::ui::mainWindowFrame(&window, LinuxPlatform());
    EXPECT_FALSE(unframed.reported);
    EXPECT_EQ(unframed.margins.top(), window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window));
    EXPECT_GE(unframed.margins.top(), 16);
    // A Mac: a standard title bar until the window exists, then what AppKit says.
    EXPECT_EQ(qf::ui::mainWindowFrame(&window, qf::MacPlatform()), (WindowFrame{QMargins(0, 28, 0, 0), false}));

    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    // The test's window system frames its windows as it shows them.
    const WindowFrame shown{qf::ui::windowFacts(&window).reported, true};
    ASSERT_FALSE(shown.margins.isNull());
    EXPECT_EQ(qf::ui::mainWindowFrame(&window, qf::MacPlatform()), shown);
    EXPECT_EQ(qf::ui::mainWindowFrame(&window, LinuxPlatform()), shown);
}

} // namespace
