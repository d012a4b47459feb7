#pragma once

#include "ShellRunner.h"

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <QTemporaryDir>

#include <optional>

namespace qf::test {

// A machine of its own for one test: a temporary HOME, a folder of fake programs (from
// tests/fixtures/bin) that is the only fixed search directory of a shell runner made with
// `shellConfiguration()`, and a folder of the few real utilities the fakes and commands need
// in place of the real PATH. So "Node.js is missing" holds here whatever this machine has
// installed. The environment is restored when the sandbox goes away.
class ShellSandbox {
public:
    ShellSandbox();
    ~ShellSandbox();

    QString home() const;
    QString binDirectory() const;                // fake programs live here
    QString stateDirectory() const;              // fakes keep what they "installed" here
    QString path(const QString& relative) const; // inside home
    // Where the sandbox keeps what a real machine has at a system path such as /usr/local/bin.
    QString systemPath(const QString& absolute) const;

    // A shell runner that works in this sandbox: the test shell, the fake programs, the tools.
    ShellRunner::Configuration shellConfiguration() const;

    // Puts the fake `name` (or a copy of it under `as`) into the fake program folder; git comes
    // with xcode-select, as a Mac's git comes with the developer tools.
    void installFake(const QString& name, const QString& as = QString());
    void installFakes(std::initializer_list<const char*> names);
    // Puts the fake `name` at an absolute path (inside the sandbox).
    void installFakeAt(const QString& name, const QString& target);
    void removeFake(const QString& name);
    // Sets an environment variable for the rest of the test.
    void setEnv(const char* name, const QByteArray& value);
    void writeFile(const QString& relative, const QByteArray& content);
    QByteArray readFile(const QString& relative) const;
    // What the fakes wrote into the state folder ("npm.log"); empty when nothing.
    QByteArray readState(const char* name) const;
    bool exists(const QString& relative) const;

private:
    QTemporaryDir m_root;
    QList<QPair<QByteArray, std::optional<QByteArray>>> m_savedEnvironment;
};

} // namespace qf::test
