#pragma once

#include "StdoutCapture.h"
#include "TestSupport.h"

#include <QByteArray>
#include <QFile>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>
#include <QTemporaryFile>

#include <gtest/gtest.h>

#include <cstdio>
#include <optional>

#include <unistd.h>

namespace qf::test {

// Sets an environment variable (or unsets it) for the lifetime of the object and puts the old
// value back.
class ScopedEnv {
public:
    ScopedEnv(const char* name, const QByteArray& value)
        : m_name(name), m_old(qgetenv(name)), m_had(qEnvironmentVariableIsSet(name))
    {
        qputenv(name, value);
    }
    ScopedEnv(const char* name, std::nullopt_t)
        : m_name(name), m_old(qgetenv(name)), m_had(qEnvironmentVariableIsSet(name))
    {
        qunsetenv(name);
    }
    ~ScopedEnv()
    {
        if (m_had)
            qputenv(m_name, m_old);
        else
            qunsetenv(m_name);
    }
    ScopedEnv(const ScopedEnv&) = delete;
    ScopedEnv& operator=(const ScopedEnv&) = delete;

private:
    const char* m_name;
    QByteArray m_old;
    bool m_had;
};

struct ShellRun {
    bool finished = false;
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
};

// Runs `shell -c script` with a small fixed environment. Blocking is fine here: a test is
// not the GUI.
inline ShellRun runShell(const QString& shell, const QString& script, const QString& home,
                         const QString& workingDirectory)
{
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("HOME"), home);
    environment.insert(QStringLiteral("PATH"), QStringLiteral("/usr/bin:/bin"));
    environment.insert(QStringLiteral("LANG"), QStringLiteral("C.UTF-8"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(workingDirectory);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(shell, {QStringLiteral("-c"), script});
    ShellRun run;
    run.finished = process.waitForFinished(30000);
    if (!run.finished) {
        process.kill();
        process.waitForFinished(5000);
        return run;
    }
    run.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    run.out = process.readAllStandardOutput();
    run.err = process.readAllStandardError();
    return run;
}

// The POSIX shells present here: sh always, bash and zsh (the shells our users have) when
// installed.
inline QStringList availableShells()
{
    QStringList shells{QStringLiteral("/bin/sh")};
    for (const QString& shell : {QStringLiteral("/bin/bash"), QStringLiteral("/bin/zsh")})
        if (QFile::exists(shell))
            shells << shell;
    return shells;
}

} // namespace qf::test
