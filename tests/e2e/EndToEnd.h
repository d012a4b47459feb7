#pragma once

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cstdio>
#include <functional>

namespace qf::e2e {

// How long an installation or update from the real registry may take.
inline constexpr int kInstallLimitMs = 20 * 60 * 1000;

struct ShellAnswer {
    int exitCode = -1;
    QString output;
};

// `line` in a fresh login shell of `home`, as a new terminal window would run it: nothing of
// this process's environment but the basics.
inline ShellAnswer freshLoginShell(const QString& shell, const QString& home, const QString& line)
{
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("HOME"), home);
    environment.insert(QStringLiteral("PATH"), QStringLiteral("/usr/local/bin:/usr/bin:/bin"));
    environment.insert(QStringLiteral("SHELL"), shell);
    environment.insert(QStringLiteral("LANG"), QStringLiteral("C.UTF-8"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(home);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(shell, {QStringLiteral("-l"), QStringLiteral("-i"), QStringLiteral("-c"), line});
    if (!process.waitForFinished(120000))
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()).trimmed()};
}

// Makes `home` this process's home, with `shell` in SHELL as a terminal's environment has it.
inline void moveInto(const QTemporaryDir& home, const QString& shell)
{
    ASSERT_TRUE(home.isValid());
    qputenv("HOME", QFile::encodeName(home.path()));
    ASSERT_TRUE(QFileInfo(shell).isExecutable()) << "zsh is needed for the login shell";
    qputenv("SHELL", QFile::encodeName(shell));
}

// `shell` as the account's shell, whatever the user database says of the user running the
// test: the login shell the app reads, and the one a terminal window would start.
inline std::function<QString()> accountShell(const QString& shell)
{
    return [shell] { return QString(shell); };
}

// Prints what the test does as it goes, for whoever runs it.
inline void say(const QString& text)
{
    std::fputs(text.toUtf8().constData(), stdout);
    std::fflush(stdout);
}

} // namespace qf::e2e
