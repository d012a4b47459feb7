#include "ShellQuote.h"

namespace qf {

namespace {

bool isPlainShellCharacter(QChar c)
{
    const char16_t u = c.unicode();
    if ((u >= 'a' && u <= 'z') || (u >= 'A' && u <= 'Z') || (u >= '0' && u <= '9'))
        return true;
    switch (u) {
    case '_':
    case '.':
    case '/':
    case '-':
    case '+':
    case '=':
    case ':':
    case ',':
    case '@':
    case '%': return true;
    default: return false;
    }
}

} // namespace

QString shellQuote(const QString& word, Quoting quoting)
{
    if (word.isEmpty())
        return QStringLiteral("''");
    // zsh replaces a word starting with "=" by the path of the command it names.
    bool plain = quoting == Quoting::whenNeeded && !word.startsWith(QLatin1Char('='));
    for (qsizetype i = 0; plain && i < word.size(); ++i)
        plain = isPlainShellCharacter(word.at(i));
    if (plain)
        return word;
    QString quoted = word;
    quoted.replace(QLatin1Char('\''), QLatin1String("'\\''"));
    return QLatin1Char('\'') + quoted + QLatin1Char('\'');
}

} // namespace qf
