#include "LoginEnvironment.h"

#include <QProcessEnvironment>

namespace qf {

namespace {

// What a shell sets for itself on start and a command's own shell sets again.
bool isShellBookkeeping(const QByteArray& name)
{
    return name == "PATH" || name == "_" || name == "SHLVL" || name == "PWD" || name == "OLDPWD" ||
           name == loginEnvironment::kEnvironmentFileVariable;
}

QByteArray beginMarker(const QByteArray& token) { return "quillforge-environment-" + token + "-begin"; }
// A variable that env prints with the others: the list is whole when it is there.
QByteArray endEntry(const QByteArray& token) { return "quillforge_environment_" + token + "_end=1"; }

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
    // env is called by its path: a start-up file may have left a search path without it. It
    // takes the shell's place, which saves starting one more process. The file does not exist
    // before: '>' creates it even where the shell refuses to overwrite files.
    return QStringLiteral("printf '%s' '%1' > \"$%3\"; exec /usr/bin/env -0 '%2' >> \"$%3\"")
        .arg(QString::fromLatin1(beginMarker(token)), QString::fromLatin1(endEntry(token)),
             QLatin1String(kEnvironmentFileVariable));
}

std::optional<EnvironmentVariables> parse(const QByteArray& output, const QByteArray& token)
{
    const QByteArray begin = beginMarker(token);
    const qsizetype start = output.indexOf(begin);
    if (start < 0)
        return std::nullopt;
    // NAME=value entries, each ended by a NUL (a value may hold anything but a NUL), up to the
    // last NUL: what a start-up file left running may print after it.
    const qsizetype from = start + begin.size();
    const qsizetype last = output.lastIndexOf('\0');
    if (last < from)
        return std::nullopt;
    const QByteArrayView block = QByteArrayView(output).sliced(from, last + 1 - from);
    const QByteArray end = endEntry(token);
    bool whole = false;
    EnvironmentVariables variables;
    qsizetype position = 0;
    while (position < block.size()) {
        const qsizetype terminator = block.indexOf('\0', position);
        const QByteArrayView entry = block.sliced(position, terminator - position);
        position = terminator + 1;
        if (entry == end) {
            whole = true;
            continue;
        }
        const qsizetype equals = entry.indexOf('=');
        if (equals <= 0)
            return std::nullopt;
        variables.insert(entry.first(equals).toByteArray(), entry.sliced(equals + 1).toByteArray());
    }
    if (!whole)
        return std::nullopt;
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

QByteArray completeSearchPath(const QByteArray& own, const QString& fallback)
{
    QList<QByteArray> elements;
    for (const QByteArray& element : own.split(':')) {
        if (!element.isEmpty())
            elements << element;
    }
    for (const QByteArray& element : fallback.toLocal8Bit().split(':')) {
        if (!element.isEmpty() && !elements.contains(element))
            elements << element;
    }
    return elements.join(':');
}

} // namespace loginEnvironment

} // namespace qf
