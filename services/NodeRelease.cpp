#include "NodeRelease.h"

#include <QCryptographicHash>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QVersionNumber>

#include <algorithm>

namespace qf::nodeRelease {

std::optional<NodeRelease> newestLTS(const QByteArray& index, const NodeReleaseTarget& target)
{
    const QJsonDocument document = QJsonDocument::fromJson(index);
    if (!document.isArray())
        return std::nullopt;
    std::optional<NodeRelease> newest;
    QVersionNumber newestNumber;
    for (const QJsonValue value : document.array()) {
        const QJsonObject entry = value.toObject();
        // "lts" is false for current releases and the line's name for long-term ones.
        const QJsonValue lts = entry.value(QLatin1String("lts"));
        if (!lts.isString() || lts.toString().isEmpty())
            continue;
        if (!entry.value(QLatin1String("files")).toArray().contains(QJsonValue(target.indexKey)))
            continue;
        const QString version = entry.value(QLatin1String("version")).toString();
        // Only plain versions ("v22.11.0"): the text ends up in a file name and a command.
        static const QRegularExpression plain(QStringLiteral("^v[0-9]+\\.[0-9]+\\.[0-9]+$"));
        if (!plain.match(version).hasMatch())
            continue;
        const QVersionNumber number = QVersionNumber::fromString(version.mid(1));
        if (newest && number <= newestNumber)
            continue;
        const QString folder = QStringLiteral("node-") + version + QLatin1Char('-') + target.platform;
        newest = NodeRelease{version, lts.toString(), folder, folder + QStringLiteral(".tar.gz")};
        newestNumber = number;
    }
    return newest;
}

std::optional<QByteArray> publishedChecksum(const QByteArray& checksums, const QString& fileName)
{
    // Lines of "<64 hex digits>  <file name>".
    const QByteArray name = fileName.toUtf8();
    for (const QByteArray& rawLine : checksums.split('\n')) {
        const QByteArray line = rawLine.trimmed();
        const qsizetype space = line.indexOf(' ');
        if (space != 64)
            continue;
        QByteArray file = line.mid(space).trimmed();
        if (file.startsWith('*')) // binary mode mark
            file.remove(0, 1);
        if (file != name)
            continue;
        const QByteArray sum = line.left(64).toLower();
        const bool hex = std::all_of(sum.cbegin(), sum.cend(),
                                     [](char c) { return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f'); });
        return hex ? std::optional<QByteArray>(sum) : std::nullopt;
    }
    return std::nullopt;
}

std::optional<QByteArray> sha256OfFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!hash.addData(&file))
        return std::nullopt;
    return hash.result().toHex();
}

} // namespace qf::nodeRelease
