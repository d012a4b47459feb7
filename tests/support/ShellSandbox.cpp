#include "ShellSandbox.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <ranges>

#include <gtest/gtest.h>

namespace qf::test {

namespace {

// Real utilities that commands and fakes may use; nothing that the app looks for.
const char* const kUtilities[] = {
    "sh",    "bash", "cat",  "sleep", "head",    "tail",     "printf", "mkdir", "rm",   "rmdir", "dd",
    "tr",    "ls",   "env",  "true",  "false",   "echo",     "wc",     "sed",   "grep", "seq",   "touch",
    "chmod", "ln",   "cp",   "mv",    "dirname", "basename", "uname",  "id",    "tee",  "yes",   "mktemp",
    "sort",  "tar",  "gzip", "cut",   "stat",    "readlink", "kill",   "ps",
};

} // namespace

ShellSandbox::ShellSandbox()
{
    EXPECT_TRUE(m_root.isValid());
    QDir root(m_root.path());
    root.mkpath(QStringLiteral("home"));
    root.mkpath(QStringLiteral("bin"));
    root.mkpath(QStringLiteral("tools"));
    root.mkpath(QStringLiteral("state"));
    root.mkpath(QStringLiteral("root/opt/homebrew/bin"));
    root.mkpath(QStringLiteral("root/usr/local/bin"));

    const QStringList system = {QStringLiteral("/usr/bin"), QStringLiteral("/bin")};
    for (const char* utility : kUtilities) {
        const QString found = QStandardPaths::findExecutable(QString::fromLatin1(utility), system);
        if (!found.isEmpty())
            QFile::link(found, root.filePath(QStringLiteral("tools/") + QLatin1String(utility)));
    }

    setEnv("HOME", home().toUtf8());
    setEnv("FAKE_BIN", binDirectory().toUtf8());
    setEnv("FAKE_STATE", stateDirectory().toUtf8());
    setEnv("FAKE_FIXTURES", QByteArray(QF_FIXTURES_DIR "/bin"));
    setEnv("FAKE_ROOT", root.filePath(QStringLiteral("root")).toUtf8());
}

ShellSandbox::~ShellSandbox()
{
    for (const auto& [name, value] : std::views::reverse(m_savedEnvironment)) {
        if (value)
            qputenv(name.constData(), *value);
        else
            qunsetenv(name.constData());
    }
}

QString ShellSandbox::home() const { return m_root.filePath(QStringLiteral("home")); }
QString ShellSandbox::binDirectory() const { return m_root.filePath(QStringLiteral("bin")); }
QString ShellSandbox::stateDirectory() const { return m_root.filePath(QStringLiteral("state")); }
QString ShellSandbox::systemPath(const QString& absolute) const
{
    return m_root.filePath(QStringLiteral("root")) + absolute;
}

ShellRunner::Configuration ShellSandbox::shellConfiguration() const
{
    ShellRunner::Configuration configuration;
    configuration.shell = QStringLiteral(QF_FIXTURES_DIR "/sandbox-shell");
    configuration.fixedDirectories = {binDirectory()};
    configuration.inheritedPath = m_root.filePath(QStringLiteral("tools"));
    return configuration;
}

QString ShellSandbox::path(const QString& relative) const { return home() + QLatin1Char('/') + relative; }

void ShellSandbox::installFake(const QString& name, const QString& as)
{
    installFakeAt(name, binDirectory() + QLatin1Char('/') + (as.isEmpty() ? name : as));
    // A Mac's git is the developer tools' git: where it works, they are there.
    if (name == QLatin1String("git") && as.isEmpty())
        installFakeAt(QStringLiteral("xcode-select"), binDirectory() + QStringLiteral("/xcode-select"));
}

void ShellSandbox::installFakes(std::initializer_list<const char*> names)
{
    for (const char* name : names)
        installFake(QString::fromLatin1(name));
}

void ShellSandbox::installFakeAt(const QString& name, const QString& target)
{
    const QString source = QStringLiteral(QF_FIXTURES_DIR "/bin/") + name;
    QDir().mkpath(QFileInfo(target).absolutePath());
    QFile::remove(target);
    ASSERT_TRUE(QFile::copy(source, target)) << source.toStdString();
    QFile::setPermissions(target, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

void ShellSandbox::removeFake(const QString& name) { QFile::remove(binDirectory() + QLatin1Char('/') + name); }

void ShellSandbox::setEnv(const char* name, const QByteArray& value)
{
    const bool known = std::any_of(m_savedEnvironment.cbegin(), m_savedEnvironment.cend(),
                                   [&](const auto& saved) { return saved.first == name; });
    if (!known) {
        std::optional<QByteArray> previous;
        if (qEnvironmentVariableIsSet(name))
            previous = qgetenv(name);
        m_savedEnvironment.append({QByteArray(name), previous});
    }
    qputenv(name, value);
}

void ShellSandbox::writeFile(const QString& relative, const QByteArray& content)
{
    const QString full = path(relative);
    QDir().mkpath(QFileInfo(full).absolutePath());
    QFile file(full);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate)) << full.toStdString();
    file.write(content);
}

QByteArray ShellSandbox::readFile(const QString& relative) const
{
    QFile file(path(relative));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}

QByteArray ShellSandbox::readState(const char* name) const
{
    QFile file(stateDirectory() + QLatin1Char('/') + QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool ShellSandbox::exists(const QString& relative) const { return QFileInfo::exists(path(relative)); }

} // namespace qf::test
