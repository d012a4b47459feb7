#include "ToolVersion.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <climits>

namespace qf {

namespace {

// A version: at least two numbers, an optional "v" before them, an optional pre-release after
// a dash and optional build information after a plus (read and left out). Not a part of a
// longer word or of a longer dotted run ("x86_64", "127.0.0.1.5" are not versions).
const QString kVersion =
    QStringLiteral("v?(\\d+(?:\\.\\d+)+)(?:-([0-9A-Za-z-]+(?:\\.[0-9A-Za-z-]+)*))?(?:\\+[0-9A-Za-z.-]+)?");

std::optional<ToolVersion> fromMatch(const QRegularExpressionMatch& match)
{
    const QVersionNumber number = QVersionNumber::fromString(match.captured(1));
    if (number.isNull())
        return std::nullopt;
    return ToolVersion{number, match.captured(2)};
}

// Compares two pre-release parts: numbers as numbers, before any text; texts as text.
int compareIdentifiers(const QString& a, const QString& b)
{
    bool aNumeric = false;
    bool bNumeric = false;
    const qulonglong aNumber = a.toULongLong(&aNumeric);
    const qulonglong bNumber = b.toULongLong(&bNumeric);
    if (aNumeric && bNumeric)
        return aNumber < bNumber ? -1 : (aNumber > bNumber ? 1 : 0);
    if (aNumeric != bNumeric)
        return aNumeric ? -1 : 1;
    return QString::compare(a, b, Qt::CaseSensitive);
}

} // namespace

QString ToolVersion::text() const
{
    return preRelease.isEmpty() ? number.toString() : number.toString() + QLatin1Char('-') + preRelease;
}

int ToolVersion::compare(const ToolVersion& a, const ToolVersion& b)
{
    const int numbers = QVersionNumber::compare(a.number.normalized(), b.number.normalized());
    if (numbers != 0)
        return numbers;
    // A release is newer than any pre-release of the same numbers.
    if (a.preRelease.isEmpty() || b.preRelease.isEmpty())
        return int(a.preRelease.isEmpty()) - int(b.preRelease.isEmpty());
    const QStringList aParts = a.preRelease.split(QLatin1Char('.'));
    const QStringList bParts = b.preRelease.split(QLatin1Char('.'));
    for (qsizetype i = 0; i < std::min(aParts.size(), bParts.size()); ++i) {
        const int part = compareIdentifiers(aParts[i], bParts[i]);
        if (part != 0)
            return part < 0 ? -1 : 1;
    }
    return aParts.size() < bParts.size() ? -1 : (aParts.size() > bParts.size() ? 1 : 0);
}

std::optional<ToolVersion> readToolVersion(const QString& output)
{
    static const QRegularExpression colour(QStringLiteral("\\x1b\\[[0-9;?]*[A-Za-z]"));
    // The whole line: a version, perhaps after the program's name and before a remark.
    static const QRegularExpression versionLine(QStringLiteral("^(?:[A-Za-z][\\w./@-]*\\s+)?") + kVersion +
                                                QStringLiteral("(?:\\s+\\(.*\\))?$"));
    static const QRegularExpression anywhere(QStringLiteral("(?<![\\w.])") + kVersion +
                                             QStringLiteral("(?!\\w|\\.\\w)"));

    QString text = output;
    text.remove(colour);
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    const QStringList lines = text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : lines) {
        const QRegularExpressionMatch match = versionLine.match(line.trimmed());
        if (match.hasMatch())
            return fromMatch(match);
    }
    std::optional<ToolVersion> last;
    for (QRegularExpressionMatchIterator it = anywhere.globalMatch(text); it.hasNext();) {
        if (std::optional<ToolVersion> found = fromMatch(it.next()))
            last = std::move(found);
    }
    return last;
}

std::optional<QVersionNumber> parseToolVersion(const QString& output)
{
    const std::optional<ToolVersion> version = readToolVersion(output);
    if (!version)
        return std::nullopt;
    return version->number;
}

bool isNewerVersion(const QString& published, const QString& installed)
{
    const std::optional<ToolVersion> newest = readToolVersion(published);
    const std::optional<ToolVersion> current = readToolVersion(installed);
    return newest && current && ToolVersion::compare(*newest, *current) > 0;
}

int minimumNodeMajor(const QString& enginesRange)
{
    // One comparator: its operator and its major version ("x" and "*" stand for any).
    static const QRegularExpression comparator(QStringLiteral("(>=|<=|>|<|=|\\^|~)?\\s*v?(\\d+|[xX*])"));
    const QStringList alternatives = enginesRange.split(QStringLiteral("||"));
    int lowest = INT_MAX;
    for (const QString& alternative : alternatives) {
        // The first comparator that is not an upper bound sets this alternative's lower bound
        // ("18 - 22" too, whose first number is the lower end).
        int bound = 0;
        for (QRegularExpressionMatchIterator it = comparator.globalMatch(alternative); it.hasNext();) {
            const QRegularExpressionMatch match = it.next();
            const QString op = match.captured(1);
            if (op.startsWith(QLatin1Char('<')))
                continue;
            bool numeric = false;
            bound = match.captured(2).toInt(&numeric);
            if (!numeric)
                bound = 0;
            break;
        }
        if (bound == 0)
            return 0; // this alternative lets any Node.js in
        lowest = std::min(lowest, bound);
    }
    return lowest == INT_MAX ? 0 : lowest;
}

} // namespace qf
