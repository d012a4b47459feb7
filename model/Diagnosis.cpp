#include "Diagnosis.h"

#include <QDir>
#include <QRegularExpression>
#include <QStringList>
#include <QUrl>

#include <algorithm>
#include <array>
#include <utility>

namespace qf {

namespace {

// Sentences of this file, in their own translation context.
struct DiagnosisText {
    Q_DECLARE_TR_FUNCTIONS(Diagnosis)
};

// npm's own name for an error ("npm ERR! code EACCES", "npm error code E404").
std::optional<FailureCause> npmCode(const QString& output)
{
    static const QRegularExpression codeLine(QStringLiteral("npm (?:ERR!|error) code (\\w+)"));
    QString code;
    for (QRegularExpressionMatchIterator it = codeLine.globalMatch(output); it.hasNext();)
        code = it.next().captured(1);
    if (code.isEmpty())
        return std::nullopt;
    static const std::array<std::pair<const char*, FailureCause>, 17> codes{{
        {"EACCES", FailureCause::permissionDenied},
        {"EPERM", FailureCause::permissionDenied},
        {"ENOSPC", FailureCause::diskFull},
        {"ENOTFOUND", FailureCause::offline},
        {"EAI_AGAIN", FailureCause::offline},
        {"ECONNREFUSED", FailureCause::unreachable},
        {"ENETUNREACH", FailureCause::unreachable},
        {"EHOSTUNREACH", FailureCause::unreachable},
        {"ETIMEDOUT", FailureCause::timedOut},
        {"ESOCKETTIMEDOUT", FailureCause::timedOut},
        {"ECONNRESET", FailureCause::cutOff},
        {"SELF_SIGNED_CERT_IN_CHAIN", FailureCause::secureConnection},
        {"UNABLE_TO_GET_ISSUER_CERT_LOCALLY", FailureCause::secureConnection},
        {"UNABLE_TO_VERIFY_LEAF_SIGNATURE", FailureCause::secureConnection},
        {"CERT_HAS_EXPIRED", FailureCause::secureConnection},
        {"E404", FailureCause::notFound},
        {"EBADENGINE", FailureCause::nodeTooOld},
    }};
    for (const auto& [name, cause] : codes) {
        if (code == QLatin1String(name))
            return cause;
    }
    return std::nullopt;
}

// curl's own error number ("curl: (6) Could not resolve host: claude.ai"), the last one.
std::optional<FailureCause> curlCode(const QString& output)
{
    static const QRegularExpression curlError(QStringLiteral("curl: \\((\\d+)\\)"));
    int code = -1;
    for (QRegularExpressionMatchIterator it = curlError.globalMatch(output); it.hasNext();)
        code = it.next().captured(1).toInt();
    switch (code) {
    case 5:
    case 6: return FailureCause::offline;
    case 7: return FailureCause::unreachable;
    case 18:
    case 56: return FailureCause::cutOff;
    case 22: return output.contains(QLatin1String("error: 404")) ? std::optional(FailureCause::notFound) : std::nullopt;
    case 23:
        return output.contains(QLatin1String("No space left"), Qt::CaseInsensitive)
                   ? std::optional(FailureCause::diskFull)
                   : std::nullopt;
    case 28: return FailureCause::timedOut;
    case 35:
    case 51:
    case 58:
    case 60: return FailureCause::secureConnection;
    default: return std::nullopt;
    }
}

// What the system and the tools say in words, most telling first.
std::optional<FailureCause> words(const QString& output)
{
    static const std::array<std::pair<const char*, FailureCause>, 16> phrases{{
        {"no space left on device", FailureCause::diskFull},
        {"permission denied", FailureCause::permissionDenied},
        {"operation not permitted", FailureCause::permissionDenied},
        {"certificate", FailureCause::secureConnection},
        {"proxy", FailureCause::secureConnection},
        {"is not in this registry", FailureCause::notFound},
        {"404 not found", FailureCause::notFound},
        {"npm err! 404", FailureCause::notFound},
        {"npm error 404", FailureCause::notFound},
        {"unsupported engine", FailureCause::nodeTooOld},
        {"transfer closed with", FailureCause::cutOff},
        {"unexpected end of file", FailureCause::cutOff},
        {"timed out", FailureCause::timedOut},
        {"could not resolve host", FailureCause::offline},
        {"temporary failure in name resolution", FailureCause::offline},
        {"network is unreachable", FailureCause::unreachable},
    }};
    for (const auto& [phrase, cause] : phrases) {
        if (output.contains(QLatin1String(phrase), Qt::CaseInsensitive))
            return cause;
    }
    return std::nullopt;
}

} // namespace

std::optional<FailureCause> recogniseFailure(const QString& output)
{
    if (const auto cause = npmCode(output))
        return cause;
    if (const auto cause = curlCode(output))
        return cause;
    return words(output);
}

QString failureSentence(FailureCause cause)
{
    switch (cause) {
    case FailureCause::offline:
        return DiagnosisText::tr(
            "Your computer could not reach the internet. Check that you are online, then try again.");
    case FailureCause::unreachable:
        return DiagnosisText::tr("The server could not be reached. Check that you are online, then try again.");
    case FailureCause::timedOut:
        return DiagnosisText::tr("The connection timed out. Your internet may be slow or down: try again in a moment.");
    case FailureCause::secureConnection:
        return DiagnosisText::tr(
            "No secure connection to the server could be made. A proxy or security software on this "
            "network may be in the way: try another network, or ask whoever runs this one.");
    case FailureCause::permissionDenied:
        return DiagnosisText::tr(
            "Your user may not change a folder the installation needs. The log names it: make sure it "
            "belongs to you, then try again.");
    case FailureCause::diskFull: return DiagnosisText::tr("Your disk is full. Free up some space, then try again.");
    case FailureCause::notFound:
        return DiagnosisText::tr("What was asked for is not on the server right now. Try again later.");
    case FailureCause::nodeTooOld:
        return DiagnosisText::tr(
            "Your Node.js is too old for this tool. Update Node.js (or remove the old one so a new one is "
            "installed), then try again.");
    case FailureCause::cutOff: return DiagnosisText::tr("The download was cut off before it was complete. Try again.");
    }
    return {};
}

QString missingNpmPackage(const QString& output)
{
    // "npm ERR! 404  '@google/gemini-cli@*' is not in this registry.", or else the address of
    // "npm ERR! 404 Not Found - GET https://registry.npmjs.org/@google%2fgemini-cli - Not found".
    static const QRegularExpression notInRegistry(
        QStringLiteral("'(@?[^@'\\s]+)(?:@[^'\\s]*)?' is not in this registry"));
    if (const QRegularExpressionMatch match = notInRegistry.match(output); match.hasMatch())
        return match.captured(1);
    static const QRegularExpression notFound(QStringLiteral("404 Not Found - GET https?://[^/\\s]+/(\\S+)"));
    if (const QRegularExpressionMatch match = notFound.match(output); match.hasMatch())
        return QUrl::fromPercentEncoding(match.captured(1).toUtf8());
    return {};
}

QString npmErrorPath(const QString& output)
{
    static const QRegularExpression pathLine(QStringLiteral("^npm (?:ERR!|error) path (.+)$"),
                                             QRegularExpression::MultilineOption);
    QString path;
    for (QRegularExpressionMatchIterator it = pathLine.globalMatch(output); it.hasNext();)
        path = it.next().captured(1).trimmed();
    return path;
}

std::optional<QString> npmRefusedPath(const QString& output)
{
    if (recogniseFailure(output) != FailureCause::permissionDenied)
        return std::nullopt;
    return QDir::cleanPath(npmErrorPath(output));
}

QString npmPermissionRetrySentence(const QString& tool, bool ownFolder)
{
    if (ownFolder) {
        return DiagnosisText::tr(
                   "npm could not write to its folders, which usually happens after an earlier \u201csudo npm\u201d. "
                   "Try Again uses a private npm cache for Quillforge and installs %1 into your own ~/.local folder.")
            .arg(tool);
    }
    return DiagnosisText::tr(
        "npm could not write to its folders, which usually happens after an earlier \u201csudo npm\u201d. "
        "Try Again uses a private npm cache for Quillforge.");
}

QString lastMeaningfulLine(const QString& output)
{
    static const QRegularExpression marker(QStringLiteral("^(?:npm (?:ERR!|error|warn|WARN)|>+|[-=*#]+)\\s*$"));
    static const QRegularExpression stackFrame(QStringLiteral("^at\\s|^\\s*\\^+\\s*$"));
    const QStringList lines = output.split(QLatin1Char('\n'));
    // The last line that says something.
    const auto said = std::find_if(lines.crbegin(), lines.crend(), [](const QString& line) {
        const QString text = line.trimmed();
        return !text.isEmpty() && !marker.match(text).hasMatch() && !stackFrame.match(text).hasMatch();
    });
    return said == lines.crend() ? QString() : said->trimmed();
}

QString plainFailure(const QString& output)
{
    if (const std::optional<FailureCause> cause = recogniseFailure(output)) {
        const QString package = cause == FailureCause::notFound ? missingNpmPackage(output) : QString();
        if (!package.isEmpty()) {
            return DiagnosisText::tr("%1 was not found on the npm registry. Its maker may have moved it; the log has "
                                     "the details.")
                .arg(package);
        }
        return failureSentence(*cause);
    }
    const QString line = lastMeaningfulLine(output);
    if (line.isEmpty() || line == QLatin1String("Command failed"))
        return DiagnosisText::tr("Something went wrong. The log has the details.");
    constexpr qsizetype shown = 300;
    return DiagnosisText::tr("Something went wrong. The last message was: \u201c%1\u201d. The log has the details.")
        .arg(line.size() > shown ? line.left(shown) + QStringLiteral("\u2026") : line);
}

} // namespace qf
