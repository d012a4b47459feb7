#include "ShellExport.h"

#include "ShellQuote.h"

namespace qf::shellExport {

bool isPlainKey(const QString& key)
{
    if (key.isEmpty())
        return false;
    for (QChar c : key) {
        const char16_t u = c.unicode();
        const bool plain = (u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') || (u >= '0' && u <= '9') || u == '-' ||
                           u == '_' || u == '.';
        if (!plain)
            return false;
    }
    return true;
}

QString exportLine(const QString& variable, const QString& key, ShellFamily family)
{
    QString head;
    switch (family) {
    case ShellFamily::posix: head = QStringLiteral("export ") + variable + QLatin1Char('='); break;
    case ShellFamily::fish: head = QStringLiteral("set -gx ") + variable + QLatin1Char(' '); break;
    case ShellFamily::csh: head = QStringLiteral("setenv ") + variable + QLatin1Char(' '); break;
    }
    if (isPlainKey(key))
        return head + QLatin1Char('"') + key + QLatin1Char('"');
    QString quoted = key;
    switch (family) {
    case ShellFamily::posix:
        // Inside single quotes bash and zsh expand nothing.
        return head + shellQuote(key, Quoting::always);
    case ShellFamily::fish:
        // fish's single quotes know two escapes, for the quote and the backslash.
        quoted.replace(QLatin1Char('\\'), QStringLiteral("\\\\")).replace(QLatin1Char('\''), QStringLiteral("\\'"));
        return head + QLatin1Char('\'') + quoted + QLatin1Char('\'');
    case ShellFamily::csh:
        // csh expands nothing in single quotes but history: '!' needs its backslash there.
        quoted.replace(QLatin1Char('\''), QStringLiteral("'\\''")).replace(QLatin1Char('!'), QStringLiteral("\\!"));
        return head + QLatin1Char('\'') + quoted + QLatin1Char('\'');
    }
    return head + shellQuote(key, Quoting::always);
}

namespace {

bool isBlank(char c) { return c == ' ' || c == '\t'; }

// Where an unquoted word ends: a blank, the line's end or an operator.
bool endsWord(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == ';' || c == '&' || c == '|' || c == '(' ||
           c == ')' || c == '<' || c == '>';
}

// The words at `i` of `content`, after the blanks before them.
QByteArray wordAt(const QByteArray& content, qsizetype& i)
{
    while (i < content.size() && isBlank(content.at(i)))
        ++i;
    const qsizetype start = i;
    while (i < content.size() && !endsWord(content.at(i)))
        ++i;
    return content.mid(start, i - start);
}

// Where the value of an export of `name` starts when the line (from its indentation at `i`)
// is one in `family`'s words; -1 when it is not.
qsizetype exportValueStart(const QByteArray& content, qsizetype i, const QByteArray& name, ShellFamily family)
{
    switch (family) {
    case ShellFamily::posix: {
        // `export NAME=` or `NAME=`.
        while (i < content.size() && isBlank(content.at(i)))
            ++i;
        if (content.mid(i).startsWith("export") && i + 6 < content.size() && isBlank(content.at(i + 6))) {
            i += 6;
            while (i < content.size() && isBlank(content.at(i)))
                ++i;
        }
        return content.mid(i).startsWith(QByteArray(name + '=')) ? i + name.size() + 1 : -1;
    }
    case ShellFamily::fish: {
        // `set`, its options (one of them exports), then the name.
        if (wordAt(content, i) != "set")
            return -1;
        bool exported = false;
        for (;;) {
            const QByteArray word = wordAt(content, i);
            if (word.startsWith("--")) {
                exported = exported || word == "--export";
                continue;
            }
            if (word.startsWith('-') && word.size() > 1) {
                exported = exported || word.contains('x');
                continue;
            }
            if (word != name || !exported)
                return -1;
            break;
        }
        break;
    }
    case ShellFamily::csh:
        if (wordAt(content, i) != "setenv" || wordAt(content, i) != name)
            return -1;
        break;
    }
    if (i < content.size() && !isBlank(content.at(i)))
        return -1;
    while (i < content.size() && isBlank(content.at(i)))
        ++i;
    return i;
}

// The characters that make a quoted value more than its letters in `family`.
QByteArrayView expandingInQuotes(char quote, ShellFamily family)
{
    switch (family) {
    case ShellFamily::posix: return quote == '"' ? QByteArrayView("$`\\") : QByteArrayView();
    case ShellFamily::fish: return quote == '"' ? QByteArrayView("$`\\(") : QByteArrayView("\\");
    case ShellFamily::csh: return quote == '"' ? QByteArrayView("$`\\!") : QByteArrayView("\\!");
    }
    return QByteArrayView("$`\\");
}

} // namespace

ProfileChange withExport(const QByteArray& profile, const QString& variable, const QString& displayName,
                         const QString& line, ShellFamily family)
{
    const QByteArray name = variable.toUtf8();
    const QByteArray lineBytes = line.toUtf8();
    const qsizetype valueStart = exportValueStart(lineBytes, 0, name, family);
    const QByteArray value = valueStart >= 0 ? lineBytes.mid(valueStart) : lineBytes;

    ProfileChange change;
    bool found = false;
    bool lastComputed = false;
    bool continuation = false; // the line before ended in a backslash: this one is not a command
    qsizetype position = 0;
    while (position < profile.size()) {
        qsizetype end = profile.indexOf('\n', position);
        end = end < 0 ? profile.size() : end + 1;
        const QByteArray physical = profile.mid(position, end - position);
        position = end;
        QByteArray content = physical;
        while (content.endsWith('\n') || content.endsWith('\r'))
            content.chop(1);
        const bool continued = continuation;
        continuation = content.endsWith('\\');

        const qsizetype start = continued ? -1 : exportValueStart(content, 0, name, family);
        if (start < 0) {
            change.profile += physical;
            continue;
        }
        found = true;

        // The value: literal, or computed (anything a shell would expand or join).
        qsizetype stop = start;
        bool literal = true;
        const char first = start < content.size() ? content.at(start) : '\n';
        if (first == '"' || first == '\'') {
            const qsizetype close = content.indexOf(first, start + 1);
            if (close < 0) {
                literal = false;
            } else {
                const QByteArray inside = content.mid(start + 1, close - start - 1);
                for (const char c : expandingInQuotes(first, family)) {
                    if (inside.contains(c))
                        literal = false;
                }
                stop = close + 1;
                if (stop < content.size() && !endsWord(content.at(stop)))
                    literal = false; // joined to more text
            }
        } else {
            while (stop < content.size() && !endsWord(content.at(stop)))
                ++stop;
            for (const char c : content.mid(start, stop - start)) {
                if (QByteArrayView("$`\\\"'{}*?[]~!").contains(c))
                    literal = false;
            }
        }
        // A value followed by a parenthesis is an array or a command's output.
        if (stop < content.size() && (content.at(stop) == '(' || content.at(stop) == ')'))
            literal = false;
        if (family != ShellFamily::posix) {
            // In fish and csh more words would make a list or a mistake: only a comment or
            // the next command may follow.
            const QByteArray rest = content.mid(stop).trimmed();
            if (!rest.isEmpty() && !rest.startsWith('#') && !rest.startsWith(';'))
                literal = false;
        }
        if (literal) {
            change.profile += physical.left(start) + value + physical.mid(stop);
            lastComputed = false;
        } else {
            change.profile += physical;
            lastComputed = true;
        }
    }
    if (!found || lastComputed) {
        change.profile += appendedBlock(displayName, line);
        change.appended = true;
        change.afterComputedValue = found;
    }
    return change;
}

QByteArray appendedBlock(const QString& displayName, const QString& line)
{
    return (QStringLiteral("\n# ") + displayName + QStringLiteral(" API Key\n") + line + QLatin1Char('\n')).toUtf8();
}

QByteArray searchPathBlock(ShellFamily family)
{
    QByteArray lines;
    switch (family) {
    case ShellFamily::posix: lines = "export PATH=\"$HOME/.local/bin:$PATH\"\n"; break;
    case ShellFamily::fish:
        lines = "if not contains -- $HOME/.local/bin $PATH\n"
                "    set -gx PATH $HOME/.local/bin $PATH\n"
                "end\n";
        break;
    case ShellFamily::csh: lines = "set path = ( $HOME/.local/bin $path )\n"; break;
    }
    return QByteArray("\n") + kSearchPathMark + '\n' + lines;
}

QString searchPathLine(ShellFamily family)
{
    switch (family) {
    case ShellFamily::posix: break;
    case ShellFamily::fish: return QStringLiteral("set -gx PATH $HOME/.local/bin $PATH");
    case ShellFamily::csh: return QStringLiteral("set path = ( $HOME/.local/bin $path )");
    }
    return QStringLiteral("export PATH=\"$HOME/.local/bin:$PATH\"");
}

} // namespace qf::shellExport
