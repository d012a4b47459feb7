#include "LoginEnvironment.h"

#include <QProcessEnvironment>

namespace qf {

namespace {

// What a shell sets for itself on start and a command's own shell sets again.
bool isShellBookkeeping(const QByteArray& name)
{
    return name == "PATH" || name == "_" || name == "SHLVL" || name == "PWD" || name == "OLDPWD";
}

QByteArray beginMarker(const QByteArray& token) { return "quillforge-environment-" + token + "-begin"; }
QByteArray endMarker(const QByteArray& token) { return "quillforge-environment-" + token + "-end"; }

} // namespace

EnvironmentVariables LoginEnvironment::appliedTo(EnvironmentVariables variables) const
{
    for (const QByteArray& name : removed)
        variables.remove(name);
    for (auto it = changed.cbegin(); it != changed.cend(); ++it)
        variables.insert(it.key(), it.value());
    return variables;
}

namespace loginEnvironment {

EnvironmentVariables applicationEnvironment()
{
    // The names as Qt lists them; the values as they are, bytes that are not UTF-8 included.
    EnvironmentVariables variables;
    const QStringList names = QProcessEnvironment::systemEnvironment().keys();
    for (const QString& name : names) {
        const QByteArray key = name.toLocal8Bit();
        if (qEnvironmentVariableIsSet(key.constData()))
            variables.insert(key, qgetenv(key.constData()));
    }
    return variables;
}

QList<QByteArray> entries(const EnvironmentVariables& variables)
{
    QList<QByteArray> list;
    list.reserve(variables.size());
    for (auto it = variables.cbegin(); it != variables.cend(); ++it)
        list << it.key() + '=' + it.value();
    return list;
}

QString script(const QByteArray& token)
{
    // env is called by its path: a start-up file may have left a search path without it.
    return QStringLiteral("printf '%s' '%1'; /usr/bin/env -0; printf '%s' '%2'")
        .arg(QString::fromLatin1(beginMarker(token)), QString::fromLatin1(endMarker(token)));
}

std::optional<EnvironmentVariables> parse(const QByteArray& output, const QByteArray& token)
{
    const QByteArray begin = beginMarker(token);
    const qsizetype start = output.indexOf(begin);
    if (start < 0)
        return std::nullopt;
    const qsizetype from = start + begin.size();
    const qsizetype end = output.indexOf(endMarker(token), from);
    if (end < 0)
        return std::nullopt;

    // NAME=value entries, each ended by a NUL; a value may hold anything but a NUL.
    const QByteArrayView block = QByteArrayView(output).sliced(from, end - from);
    if (!block.isEmpty() && !block.endsWith('\0'))
        return std::nullopt;
    EnvironmentVariables variables;
    qsizetype position = 0;
    while (position < block.size()) {
        const qsizetype terminator = block.indexOf('\0', position);
        const QByteArrayView entry = block.sliced(position, terminator - position);
        position = terminator + 1;
        const qsizetype equals = entry.indexOf('=');
        if (equals <= 0)
            return std::nullopt;
        variables.insert(entry.first(equals).toByteArray(), entry.sliced(equals + 1).toByteArray());
    }
    return variables;
}

LoginEnvironment difference(const EnvironmentVariables& started, const EnvironmentVariables& printed)
{
    LoginEnvironment environment;
    environment.path = printed.value("PATH");
    for (auto it = printed.cbegin(); it != printed.cend(); ++it) {
        if (isShellBookkeeping(it.key()))
            continue;
        const auto before = started.constFind(it.key());
        if (before == started.cend() || before.value() != it.value())
            environment.changed.insert(it.key(), it.value());
    }
    for (auto it = started.cbegin(); it != started.cend(); ++it) {
        if (!isShellBookkeeping(it.key()) && !printed.contains(it.key()))
            environment.removed << it.key();
    }
    return environment;
}

QByteArray joinSearchPath(const QString& front, const QByteArray& tail)
{
    QByteArray path = front.toLocal8Bit();
    for (const QByteArray& element : tail.split(':')) {
        if (element.isEmpty())
            continue;
        if (!path.isEmpty())
            path += ':';
        path += element;
    }
    return path;
}

} // namespace loginEnvironment

} // namespace qf
